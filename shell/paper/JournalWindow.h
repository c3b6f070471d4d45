// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Journal.h"
#include "shell/paper/PagePrinter.h"
#include "shell/program/WindowMenus.h"

#include <QMainWindow>
#include <QTimer>

class QLabel;
class QLineEdit;
class QListWidget;
class QPlainTextEdit;

namespace korvel
{

class Program;

/// The papers that were kept, day by day: read, searched, printed.
class JournalWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param program must outlive the window
    explicit JournalWindow(Program& program);

    /// Reads the journal afresh.
    void refresh();

private:
    void addMenus(Program& program);
    void showDay();
    void searchOn();
    void showDays(const std::vector<std::string>& days);
    void findNext();
    void print() const;
    QString day() const;

    Program& m_program;
    Journal m_journal;
    std::unique_ptr<JournalSearch> m_running; ///< none while there is nothing to search for
    QTimer m_searchOn;
    PagePrinter m_printer;
    WindowMenus m_menus;
    QLineEdit* m_search;
    QListWidget* m_days;
    QPlainTextEdit* m_text;
    QLabel* m_found;
};

} // namespace korvel
