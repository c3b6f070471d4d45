// SPDX-License-Identifier: MIT
#pragma once

#include "shell/paper/PagePrinter.h"
#include "shell/paper/PaperDocument.h"

#include <QObject>

class QAction;
class QMainWindow;
class QMenu;
class QMenuBar;

namespace korvel
{

/// What can be done with a working paper: the same entries in a calculator window, for the paper of
/// its figures at that moment, and in the paper itself.
class PaperMenu : public QObject
{
public:
    struct Hooks {
        std::function<PaperDocument()> document;
        std::function<void(const QString&)> tell; ///< what was done, quietly
    };
    /// @param program, window must outlive this object
    PaperMenu(Program& program, QMainWindow& window, Hooks hooks);

    /// Adds the menu to the window's bar.
    /// @param first entry of the menu, before all that belong to every paper; may be nullptr
    QMenu* addTo(QMenuBar& bar, QAction* first);

    void print() const { m_printer.print(m_hooks.document()); }

private:
    void savePDF() const;
    void copyResults() const;
    void keep() const;
    void exportList() const;
    void exportLine() const;
    void save(const std::string& title, const std::string& offered, const std::string& bytes) const;
    QKeySequence ifFree(const QKeySequence& keys) const;
    QAction* add(QMenu* menu, const QString& caption, const QKeySequence& keys,
                 void (PaperMenu::*run)() const);

    Program& m_program;
    QMainWindow& m_window;
    PagePrinter m_printer;
    Hooks m_hooks;
};

} // namespace korvel
