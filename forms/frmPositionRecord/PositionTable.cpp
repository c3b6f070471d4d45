// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/PositionTable.h"

#include "forms/frmPositionRecord/RowReading.h"
#include "shell/machine/AsQString.h"
#include "shell/screen/WidgetColours.h"

namespace korvel
{
namespace
{

using Label = TableColumn::Label;
enum : std::size_t { Number, SMT, TD, Latitude, LatitudeEcho, Longitude };

using RowTexts = PositionRowResult;
constexpr std::array<RowColumn<RowTexts>, 13> rowTable = {{
    {{"lblRow", "No.", "29 !", Label::RowNumber, "Row %1, number", "", Qt::AlignRight}},
    {{"txtSatelliteSMT", "SMT of fix", "2000/00/00 00:00", FieldKind::Moment,
      "Row %1, ship's mean time of the fix", "0930 or 14-0930 or 2024/5/14 0930"}},
    {{"txtSatelliteTD", "TD h", "-00.0", FieldKind::Figure, "Row %1, time difference",
      "hours, east positive", Qt::AlignLeft, false, false, &RowField::timeDifference}},
    {{"txtLat", "Latitude", "-00.00000", FieldKind::Latitude, "Row %1, latitude",
      "degrees.minutes, north positive", Qt::AlignLeft, false, false, &RowField::latitude}},
    {{"", "", "00°00.000' N", Label::Echo}},
    {{"txtLong", "Longitude", "-000.00000", FieldKind::Longitude, "Row %1, longitude",
      "degrees.minutes, east positive", Qt::AlignLeft, false, false, &RowField::longitude}},
    {{"", "", "000°00.000' W", Label::Echo}},
    {{"lblUTC", "UTC", "2000/00/00 00:00", Label::Result, "Row %1, UTC", "", Qt::AlignLeft, false,
      true},
     &RowTexts::utc},
    {{"lblCourse", "Course", "<000.0>", Label::Result, "Row %1, course to the next fix",
      "degrees true"},
     &RowTexts::course},
    {{"lblDistance", "Dist. nm", "00000.'0", Label::Result, "Row %1, distance to the next fix",
      "nautical miles", Qt::AlignRight},
     &RowTexts::distance},
    {{"lblHours", "Hours", "-0000.00", Label::Result, "Row %1, hours to the next fix", "",
      Qt::AlignRight},
     &RowTexts::hours},
    {{"lblSpeed", "Knots", "000.00", Label::Result, "Row %1, speed to the next fix", "knots",
      Qt::AlignRight},
     &RowTexts::speed},
    {{"lblDayRun", "Day's run", "0000.'0 in 000.0 h", Label::Result, "Row %1, day's run",
      "nautical miles"},
     &RowTexts::dayRun},
}};
constexpr auto columns = columnsOf(rowTable);

} // namespace

PositionTable::PositionTable() : RowTable(columns, positionRowCount) {}

PositionTable::Row PositionTable::row(std::size_t index) const
{
    return {box(index, SMT), box(index, TD), position(index, Latitude), position(index, Longitude)};
}

PositionRows PositionTable::texts() const
{
    PositionRows all;
    for (std::size_t i = 0; i < all.size(); ++i) {
        const Row typed = row(i);
        all[i] = {typed.satelliteSMT->value(), typed.satelliteTD->value(), typed.latitude->value(),
                  typed.longitude->value()};
    }
    return all;
}

void PositionTable::fill(const PositionRows& rows)
{
    const auto put = [](EntryBox* box, const std::string& text) {
        const QString shown = asQString(text);
        if (box->text() != shown) box->setText(shown);
    };
    for (std::size_t i = 0; i < rows.size(); ++i) {
        const Row into = row(i);
        put(into.satelliteSMT, rows[i].satelliteSMT);
        put(into.satelliteTD, rows[i].satelliteTD);
        put(into.latitude, rows[i].latitude);
        put(into.longitude, rows[i].longitude);
    }
}

void PositionTable::show(const PositionRecordResult& record)
{
    for (std::size_t i = 0; i < rows(); ++i) {
        if (m_shown[i] == record.rows[i]) continue;
        const PositionRowResult& shown = m_shown[i] = record.rows[i];
        showRow(i, rowTable, shown);
        row(i).satelliteTD->setPlaceholderText(asQString(shown.assumedTD));
        const bool warned = !shown.remark.empty();
        number(i)->setToolTip(asQString(shown.remark));
        number(i)->setAccessibleDescription(number(i)->toolTip());
        if (warned == m_warned[i]) continue;
        m_warned[i] = warned;
        number(i)->setText(QString::number(i + 1) + (warned ? " !" : ""));
        setWarningColour(m_warning);
    }
}

void PositionTable::setWarningColour(const QColor& colour)
{
    m_warning = colour;
    for (std::size_t i = 0; i < rows(); ++i) {
        if (m_warned[i])
            setTextColour(number(i), colour);
        else
            resetTextColour(number(i));
    }
}

} // namespace korvel
