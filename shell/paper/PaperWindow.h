// SPDX-License-Identifier: MIT
#pragma once

#include "shell/paper/PaperMenu.h"
#include "shell/program/WindowMenus.h"

#include <QMainWindow>

class QTextBrowser;

namespace korvel
{

/// The working paper of a calculator window as it stood when it was asked for. It belongs to that
/// window and goes with it.
class PaperWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param program must outlive the window
    PaperWindow(Program& program, const PaperDocument& paper, QWidget* parent);

    /// Shows another paper.
    void showPaper(const PaperDocument& paper);

    const PaperDocument& paper() const { return m_paper; }

    /// Writes what was put off until the beginning of the paper could be read.
    void finish();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void zoom();

    Program& m_program;
    PaperDocument m_paper;
    QTextBrowser* m_text;
    std::size_t m_rest{}; ///< part of the paper that is still to be written; 0 for none
    PaperMenu m_menu;
    WindowMenus m_menus;
};

} // namespace korvel
