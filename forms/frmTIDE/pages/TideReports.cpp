// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/pages/TideReports.h"
#include "shell/machine/AsQString.h"
#include "shell/machine/ExecOwned.h"

#include "forms/frmTIDE/day/StationCheck.h"
#include "forms/frmTIDE/pages/TableDialog.h"
#include "forms/frmTIDE/pages/TideWeekPage.h"
#include "forms/frmTIDE/pages/frmTIDEPage.h"
#include "forms/frmTIDE/stations/Stations.h"

#include <QPointer>

namespace korvel
{
namespace
{

std::vector<QStringList> rowsOf(const std::vector<WeekDay>& week)
{
    std::vector<QStringList> rows;
    for (const WeekDay& day : week)
        for (bool isFirst = true; const WaterLine& water : day.waters) {
            rows.push_back({isFirst ? asQString(day.date) : "", isFirst ? asQString(day.moon) : "",
                            asQString(water.four), asQString(water.all)});
            isFirst = false;
        }
    return rows;
}

std::vector<QStringList> rowsOf(const StationCheck& check)
{
    std::vector<QStringList> rows;
    for (const CheckedField& field : check.fields)
        rows.push_back({QString::number(field.number), asQString(field.name),
                        asQString(field.value), asQString(field.unit), asQString(field.verdict)});
    return rows;
}

} // namespace

TideReports::TideReports(Program& program, QWidget& window, const PagePrinter& printer)
    : m_program(program), m_window(window), m_printer(printer)
{
}

void TideReports::say(const std::string& text) const
{
    m_program.questions().ask({text, programTitle, Buttons::Ok});
}

void TideReports::printDay(const TideSubject& subject, frmTIDEPicture& picture) const
{
    const frmTIDEPage page{
        asQString(subject.place), asQString(TideDates::label(subject.day.four.serial)), subject.day,
        subject.lines,
        [&picture](QPainter& painter, const QSize& size) { picture.drawForPaper(painter, size); }};
    const bool isTide = subject.day.four.kind == TideKind::Tide;
    m_printer.print((isTide ? "Tide of " : "Tidal stream of ") + page.place + ", " + page.date,
                    QPageLayout::Portrait,
                    [&page](QPainter& painter, const QRect& room) { page.draw(painter, room); });
}

void TideReports::printWeek(const TideSubject& subject) const
{
    const TideWeekPage page{
        asQString(subject.place), subject.day.four.kind, asQString(subject.day.four.lblTD),
        weekFrom(subject.station, subject.day.four.serial, subject.dates), subject.lines};
    m_printer.print(page.place + ", seven days", QPageLayout::Portrait,
                    [&page](QPainter& painter, const QRect& room) { page.draw(painter, room); });
}

void TideReports::showWeek(const TideSubject& subject) const
{
    const auto week = weekFrom(subject.station, subject.day.four.serial, subject.dates);
    execOwned(
        new TableDialog(&m_window, "dlgWeek", asQString(subject.place + ", seven days"),
                        asQString("Zone time " + subject.day.four.lblTD +
                                  ".  Not for navigation.  " + subject.lines.estimates),
                        {"Date", "Moon", "Four constituents", "All constituents (difference)"},
                        rowsOf(week), [this, &subject] { printWeek(subject); }));
}

void TideReports::saveMonth(const TideSubject& subject) const
{
    const std::int64_t serial = subject.day.four.serial;
    const std::string name = monthFileName(subject.place, subject.day.four.kind, serial);
    const std::string table = monthTable(subject.station, subject.place, serial, subject.dates);
    const auto path = m_program.questions().fileToWrite("Save the month as a table file", name);
    if (!path || !m_printer.write(*path, table)) return;
    say("The table of the month is\r" + *path);
}

void TideReports::checkFile(TideKind kind, const std::string& offeredPlace) const
{
    const auto answer = m_program.questions().input(
        std::string(kind == TideKind::Tide ? "Tide" : "Stream") + " station whose file is checked",
        programTitle, offeredPlace);
    if (!answer || answer->empty()) return;
    const bool isKnown = kind == TideKind::Tide ? isTideStation(*answer) : isStreamStation(*answer);
    if (!isKnown) {
        say("There is no station \"" + *answer + "\" in the menus.");
        return;
    }
    const StationCheck check = checkStation(m_program.files(), kind, *answer);
    execOwned(new TableDialog(&m_window, "dlgCheck", asQString(check.file),
                              asQString(check.summary()),
                              {"Field", "Meaning", "Value", "Unit", "Verdict"}, rowsOf(check)));
}

} // namespace korvel
