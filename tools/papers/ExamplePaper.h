// SPDX-License-Identifier: MIT
#pragma once

#include <QByteArray>
#include <QString>

#include <string>
#include <vector>

namespace korvel
{

/// The paper of an example of the manual.
struct ExamplePaper {
    std::string text; ///< Markdown
    QByteArray PDF;
    std::vector<std::string> missing; ///< results of the window that no step of the working has
};

/// Works an example in the real windows, without a display.
///
/// An example is lines of two parts, the second being the rest of its line:
///     source  where the figures come from
///     clock   2024/5/1 03:00, UTC
///     TD      9
///     file    "NAME" text of a file beside the program, \n for a line end
///     window  frmCDDR
///     NAME    what is typed into that box; for a list the number of the entry; buttons and menu
///             entries are pressed
/// Empty lines and those that begin with # mean nothing.
/// @param data folder of the tide data
/// @throws std::runtime_error for a control that is not there, or a question that somebody asks
ExamplePaper workExample(const std::string& example, const QString& data);

} // namespace korvel
