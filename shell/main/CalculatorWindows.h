// SPDX-License-Identifier: MIT
#pragma once

#include "shell/program/WindowCatalogue.h"

#include <QObject>
#include <QPointer>

#include <map>

namespace korvel
{

/// The calculator windows that are open: at most one of each name.
class CalculatorWindows : public QObject
{
    Q_OBJECT

public:
    /// Gives the windows of the catalogue to the program's links.
    /// @param program must outlive this object
    CalculatorWindows(Program& program, WindowCatalogue catalogue);
    ~CalculatorWindows() override;

    const WindowCatalogue& catalogue() const { return m_catalogue; }

    /// Makes a window, or brings the one that is open to the front, minimised or not. An unknown
    /// name does nothing.
    void open(const QString& name);
    /// Gives the keyboard to the open window after one of them: the main window, those of the
    /// catalogue in its order, then papers, journal and manual by their titles.
    void openNext(const QWidget& from, QWidget& mainWindow);
    /// The same, and goes to one of its places.
    void openAt(const QString& name, const QString& place);
    /// Those that are open, in the order of the catalogue.
    std::vector<CalculatorWindow*> all() const;
    /// Closes every window as its cross does.
    void closeAll();

signals:
    void opened(const QString& name);
    void closed(const QString& name);

private:
    void forget(const QString& name);

    Program& m_program;
    WindowCatalogue m_catalogue;
    std::map<QString, QPointer<CalculatorWindow>> m_open;
    /// Closed, and not deleted before the event loop comes round.
    std::vector<QPointer<CalculatorWindow>> m_leaving;
};

} // namespace korvel
