// SPDX-License-Identifier: MIT
#pragma once

#include "tools/papers/ExampleMachine.h"

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

class QMainWindow;

namespace korvel
{

class PaperWindow;

/// An example of the manual, worked in the real windows without a display, its window open.
///
/// An example is lines of two parts, the second being the rest of its line:
///     source  where the figures come from
///     clock   2024/5/1 03:00, UTC
///     TD      9
///     mile    1852, the distance unit in metres; without this line it is a minute of latitude
///     file    "NAME" text of a file beside the program, \n for a line end
///     window  frmCDDR
///     NAME    what is typed into that box; for a list the number of the entry; buttons and menu
///             entries are pressed
/// Empty lines and those that begin with # mean nothing.
class WorkedExample
{
public:
    /// @param data folder of the tide data
    /// @throws std::runtime_error for a control that is not there, or a question that somebody asks
    WorkedExample(const std::string& example, const QString& data);

    QMainWindow& window() const { return *m_window; }
    const std::string& source() const { return m_source; }
    /// Opens the paper of the window, as F2 does, or makes it anew.
    PaperWindow& openPaper() const;

private:
    ExampleMachine m_machine;
    frmKORVEL2000 m_main;
    std::string m_source;
    QMainWindow* m_window;
};

/// The paper of an example of the manual.
struct ExamplePaper {
    std::string text; ///< Markdown
    QByteArray PDF;
    std::vector<std::string> missing; ///< results of the window that no step of the working has
};

/// Works an example and takes its paper.
ExamplePaper workExample(const std::string& example, const QString& data);

/// Names of the results that a window shows and no working of its paper has. A window of pages
/// shows one of them, which its paper tells.
std::vector<std::string> resultsWithoutStep(const QWidget& window, const QString& paperText);

} // namespace korvel
