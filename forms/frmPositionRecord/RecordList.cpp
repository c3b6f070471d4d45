// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/RecordList.h"

#include "app/reading/Ascii.h"
#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/reading/Remarks.h"
#include "app/records/DelimitedText.h"
#include "app/records/KORVEL2000Actions.h"
#include "forms/frmPositionRecord/FixTime.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::DateTime;

enum : std::size_t { Row, SMT, TD, Latitude, Longitude, UTC, Course, Distance, HoursOfLeg, Speed };

const std::vector<std::string> headings = {"row",
                                           "SMT (ship's mean time)",
                                           "TD (hours east)",
                                           "latitude (degrees north)",
                                           "longitude (degrees east)",
                                           "UTC",
                                           "course to the next (degrees true)",
                                           "distance to the next (nautical miles)",
                                           "time to the next (hours)",
                                           "speed to the next (knots)"};
constexpr const char* timeFormat = "yyyy-mm-ddThh:mm:ss";
constexpr const char* timePattern = "0000-00-00T00:00:00";
constexpr int listDecimals = 7; // of a degree: a centimetre

std::string timeCell(const std::optional<DateTime>& time, const char* zone)
{
    return time ? Format(*time, timeFormat) + zone : "";
}

std::string degreesCell(const std::optional<NavFunc113::DegMin>& angle)
{
    return angle ? figure(NavFunc113::DegMinToDeg(*angle), listDecimals) : "";
}

/// A line being read; the first fault ends it.
class Line
{
public:
    Line(std::vector<std::string> cells, int number) : m_cells(std::move(cells)), m_number(number)
    {
    }

    const std::string& fault() const { return m_fault; }

    void refuse(std::size_t field, const std::string& why)
    {
        if (m_fault.empty())
            m_fault = "line " + std::to_string(m_number) + ", " + headings[field] + ": " + why;
    }

    std::optional<double> number(std::size_t field, double low, double high)
    {
        if (m_cells[field].empty()) return std::nullopt;
        const auto value = wholeNumber(m_cells[field]);
        if (!value)
            refuse(field, quotation(m_cells[field]) + " is no number");
        else if (*value < low || *value > high)
            refuse(field,
                   m_cells[field] + " is not within " + memoText(low) + " to " + memoText(high));
        return value;
    }

    /// @param zone what stands behind the time, "Z"
    std::optional<DateTime> time(std::size_t field, std::string_view zone)
    {
        std::string text = m_cells[field];
        if (text.empty()) return std::nullopt;
        std::string shape = text;
        std::ranges::replace_if(shape, isDigit, '0');
        std::optional<DateTime> value;
        if (shape == std::string(timePattern) + std::string(zone)) {
            text.resize(text.size() - zone.size());
            std::replace(text.begin(), text.end(), '-', '/');
            std::replace(text.begin(), text.end(), 'T', ' ');
            value = readFixTime(text);
        }
        if (!value)
            refuse(field, quotation(m_cells[field]) +
                              " is no date and time of the form 2026-11-21T16:00:00" +
                              std::string(zone));
        return value;
    }

private:
    std::vector<std::string> m_cells;
    int m_number;
    std::string m_fault;
};

PositionRow boxesOf(const std::optional<DateTime>& smt, const std::optional<double>& td,
                    const std::optional<double>& latitude, const std::optional<double>& longitude)
{
    PositionRow row;
    if (smt) row.satelliteSMT = fixTimeText(*smt);
    if (td) row.satelliteTD = Format(*td, "0.0#####");
    if (latitude) row.latitude = packedText(NavFunc113::Degrees(*latitude));
    if (longitude) row.longitude = packedText(NavFunc113::Degrees(*longitude));
    return row;
}

/// Reads a line into its row. @param above the row before it, counted from 1
/// @return the fault; empty when there is none
std::string takeLine(Line line, PositionRows& rows, double& above)
{
    const auto number = line.number(Row, 1, positionRowCount);
    if (!number) line.refuse(Row, "it is empty");
    if (number && *number != std::floor(*number)) line.refuse(Row, "it is no whole number");
    if (number && *number <= above) line.refuse(Row, "the rows are not in their order");
    const auto smt = line.time(SMT, "");
    const auto td = line.number(TD, -12, 12);
    const auto latitude = line.number(Latitude, -90, 90);
    const auto longitude = line.number(Longitude, -180, 180);
    const auto utc = line.time(UTC, "Z");
    const bool isDue = smt && td;
    if (utc.has_value() != isDue ||
        (utc && NavFunc113::NearestSecond(*utc) != NavFunc113::NearestSecond(*smt - *td / 24)))
        line.refuse(UTC, "it is not SMT less TD");
    line.number(Course, 0, 360);
    for (const std::size_t field : {Distance, HoursOfLeg, Speed})
        line.number(field, -HUGE_VAL, HUGE_VAL);
    if (!line.fault().empty()) return line.fault();
    above = *number;
    rows[static_cast<std::size_t>(*number) - 1] = boxesOf(smt, td, latitude, longitude);
    return {};
}

/// The cells of the next line.
std::vector<std::string> nextLine(DelimitedText& text, bool& isWhole)
{
    std::vector<std::string> cells;
    do {
        const DelimitedText::Item item = text.next();
        cells.push_back(textOfCell(item.text));
        isWhole = isWhole && item.flaw == DelimitedText::Item::Flaw::None;
    } while (text.lineGoesOn());
    return cells;
}

} // namespace

ExportTable recordList(const PositionRecordInput& input, const PositionRecordResult& result)
{
    ExportTable list{headings, {}};
    std::vector<const RecordLeg*> legFrom(input.rows.size());
    for (std::size_t i = 0; i < result.legs.size(); ++i)
        if (result.legs[i]) legFrom[result.fixes[i].row] = &*result.legs[i];
    for (std::size_t i = 0; i < input.rows.size(); ++i) {
        if (input.rows[i].isEmpty()) continue;
        const ReadRow& read = result.rows[i].read;
        std::vector<std::string> cells = {std::to_string(i + 1),
                                          timeCell(read.smt, ""),
                                          read.td ? memoText(*read.td) : "",
                                          degreesCell(read.latitude),
                                          degreesCell(read.longitude),
                                          timeCell(read.utc, "Z")};
        cells.resize(headings.size());
        if (const RecordLeg* leg = legFrom[i]) {
            cells[Course] = figure(leg->sailed.course, 4);
            cells[Distance] = figure(leg->sailed.distance, 4);
            cells[HoursOfLeg] = figure(leg->hours, 4);
            if (leg->hours > NavFunc113::Hours(0))
                cells[Speed] = figure(leg->sailed.distance / leg->hours, 4);
        }
        list.rows.push_back(std::move(cells));
    }
    return list;
}

ExportLine trackOf(const PositionRecordResult& result)
{
    ExportLine line{ExportLine::Kind::Track, "Position record", {}};
    for (const RecordedFix& fix : result.fixes)
        line.points.push_back({DegMinToDeg(fix.latitude), DegMinToDeg(fix.longitude),
                               "row " + std::to_string(fix.row + 1), fix.utc});
    return line;
}

ReadList readRecordList(std::string_view text)
{
    ReadList list;
    const auto refused = [](const std::string& fault) { return ReadList{{}, fault}; };
    DelimitedText items(text);
    bool isWhole = true;
    if (items.atEnd() || nextLine(items, isWhole) != headings || !isWhole)
        return refused("line 1: it is not the heading of a position record");
    double above = 0;
    for (items.skipEmptyLines(); !items.atEnd(); items.skipEmptyLines()) {
        const std::vector<std::string> cells = nextLine(items, isWhole);
        const std::string where = "line " + std::to_string(items.line());
        if (cells.size() != headings.size())
            return refused(where + ": it has " + std::to_string(cells.size()) + " fields, not " +
                           std::to_string(headings.size()));
        if (!isWhole) return refused(where + ": its quotation marks do not match");
        const std::string fault = takeLine(Line(cells, items.line()), list.rows, above);
        if (!fault.empty()) return refused(fault);
    }
    if (above == 0) return refused("line 2: there is no row");
    return list;
}

} // namespace korvel
