// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/StationLines.h"
#include "forms/frmTIDE/day/TideTables.h"
#include "forms/frmTIDE/sheet/frmTIDEPicture.h"
#include "shell/paper/PagePrinter.h"
#include "shell/program/Program.h"

#include <QWidget>

namespace korvel
{

/// What a report is about: the station and the day that the window shows.
struct TideSubject {
    std::string place;
    const StationDays& station;
    const TideDayShown& day;
    const TideDates& dates;
    const StationLines& lines;
};

/// What goes on paper, into a table or into a file: the day, seven days, a month, a station's file.
class TideReports
{
public:
    TideReports(Program& program, QWidget& window, const PagePrinter& printer);

    void printDay(const TideSubject& subject, frmTIDEPicture& picture) const;
    void printWeek(const TideSubject& subject) const;
    void showWeek(const TideSubject& subject) const;
    void saveMonth(const TideSubject& subject) const;

    /// Asks for a station and shows what its file holds, field by field.
    void checkFile(TideKind kind, const std::string& offeredPlace) const;

private:
    void say(const std::string& text) const;

    Program& m_program;
    QWidget& m_window;
    const PagePrinter& m_printer;
};

} // namespace korvel
