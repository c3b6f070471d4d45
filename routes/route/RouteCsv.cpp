// SPDX-License-Identifier: MIT
#include "routes/route/RouteCsv.h"

#include "app/reading/Ascii.h"
#include "app/reading/PositionText.h"
#include "app/reading/Reading.h"
#include "app/reading/Remarks.h"
#include "app/reading/Utf8.h"
#include "app/records/DelimitedText.h"
#include "navlib/angles.h"
#include "routes/route/DelimitedLines.h"
#include "routes/route/LegWords.h"
#include "routes/route/RouteColumns.h"

#include <algorithm>
#include <array>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

using Column = RouteColumn;

/// The number of a field; nothing when the field is anything else.
std::optional<double> numberOf(std::string field, bool hasDecimalCommas)
{
    if (hasDecimalCommas) std::ranges::replace(field, ',', '.');
    return wholeNumber(field);
}

/// A date and time as lists have them: ISO, also with blank for T, slashes and without seconds.
std::optional<Instant> momentOf(std::string field)
{
    std::ranges::replace(field, '/', '-');
    std::ranges::replace(field, ' ', 'T');
    if (field.ends_with('Z')) field.pop_back();
    if (field.size() == std::string_view("2026-11-21T16:00").size()) field += ":00";
    return readIso(field);
}

/// A line being read into a point; its first fault is kept.
class PointLine
{
public:
    PointLine(const DelimitedLine& line, const RouteLayout& layout) : m_line(line), m_layout(layout)
    {
    }

    RoutePoint point()
    {
        for (std::size_t i = 0; i < m_layout.columns.size() && i < m_line.fields.size(); ++i)
            if (!m_line.fields[i].empty()) take(m_layout.columns[i], m_line.fields[i], i);
        if (m_line.fields.size() > m_layout.columns.size())
            refuse(m_layout.columns.size() - 1, "more fields than columns");
        requirePosition();
        return m_point;
    }

    const std::string& fault() const { return m_fault; }

private:
    void refuse(std::size_t column, const std::string& why)
    {
        if (m_fault.empty())
            m_fault = "line " + std::to_string(m_line.number) + ", " + m_layout.names[column] +
                      ": " + why;
    }

    void takeAngle(Axis axis, const std::string& field, std::size_t column)
    {
        const bool isLatitude = axis == Axis::Latitude;
        const auto angle = degreesOfField(field, axis, m_layout.hasDecimalCommas);
        const double most = isLatitude ? 90 : 180;
        if (!angle)
            refuse(column,
                   quotation(field) + (isLatitude ? " is no latitude" : " is no longitude"));
        else if (!(fabs(*angle) <= Degrees(most)))
            refuse(column, field + (isLatitude ? " is not within -90 to 90 degrees"
                                               : " is not within -180 to 180 degrees"));
        else
            (isLatitude ? m_latitude : m_longitude) = *angle;
    }

    void takePosition(const std::string& field, std::size_t column)
    {
        const auto position = parsePosition(field, Axis::Latitude);
        if (!position || !position->latitude || !position->longitude)
            return refuse(column, quotation(field) + " is no position");
        m_latitude = NavFunc113::DegMinToDeg(NavFunc113::DegMin(readNumber(*position->latitude)));
        m_longitude = NavFunc113::DegMinToDeg(NavFunc113::DegMin(readNumber(*position->longitude)));
    }

    /// The letter of a hemisphere, which may stand in front of its angle.
    void takeSide(bool& isNegative, const std::string& field, std::size_t column,
                  std::string_view letters)
    {
        if (field.size() != 1 || !isLetterOf(letters, field[0]))
            return refuse(column, quotation(field) + " is no hemisphere");
        isNegative = isLetterOf("sw", field[0]);
    }

    std::optional<double> number(const std::string& field, std::size_t column, double low,
                                 double high)
    {
        const auto value = numberOf(field, m_layout.hasDecimalCommas);
        if (!value)
            refuse(column, quotation(field) + " is no number");
        else if (!(*value >= low && *value <= high))
            refuse(column, field + " is out of range");
        return value;
    }

    std::optional<Instant> moment(const std::string& field, std::size_t column)
    {
        const auto value = momentOf(field);
        if (!value)
            refuse(column,
                   quotation(field) + " is no date and time of the form 2026-11-21T16:00:00Z");
        return value;
    }

    void takeLeg(const std::string& field, std::size_t column)
    {
        const auto leg = readLegWords(field);
        if (!leg) return refuse(column, quotation(field) + " is no kind of leg");
        m_point.leg = leg->kind;
        m_point.limit = leg->limit;
        m_point.step = leg->step;
    }

    void take(Column column, const std::string& field, std::size_t at)
    {
        switch (column) {
        case Column::Name:
            m_point.name = field;
            break;
        case Column::Latitude:
            takeAngle(Axis::Latitude, field, at);
            break;
        case Column::Longitude:
            takeAngle(Axis::Longitude, field, at);
            break;
        case Column::NorthSouth:
            takeSide(m_isSouth, field, at, "ns");
            break;
        case Column::EastWest:
            takeSide(m_isWest, field, at, "ew");
            break;
        case Column::Position:
            takePosition(field, at);
            break;
        default:
            takeVoyage(column, field, at);
        }
    }

    void takeVoyage(Column column, const std::string& field, std::size_t at)
    {
        switch (column) {
        case Column::Leg:
            takeLeg(field, at);
            break;
        case Column::Speed:
            if (const auto speed = number(field, at, 0, 100); speed && *speed > 0)
                m_point.speed = NavFunc113::Knots(*speed);
            break;
        case Column::Stay:
            if (const auto stay = number(field, at, 0, 10000))
                m_point.stop = NavFunc113::Hours(*stay);
            break;
        case Column::Zone:
            if (const auto zone = number(field, at, -12, 14))
                m_point.zone = NavFunc113::Hours(*zone);
            break;
        case Column::Eta:
            m_point.eta = moment(field, at);
            break;
        case Column::Etd:
            m_point.etd = moment(field, at);
            break;
        case Column::Remark:
            m_point.remark = field;
            break;
        default:
            break;
        }
    }

    /// Where the layout has one half of the position, or all of it.
    std::size_t columnAt(Column wanted) const
    {
        const auto found = std::ranges::find_if(m_layout.columns, [wanted](Column each) {
            return each == wanted || each == Column::Position;
        });
        return static_cast<std::size_t>(found - m_layout.columns.begin());
    }

    void requirePosition()
    {
        if (!m_latitude) return refuse(columnAt(Column::Latitude), "there is no latitude");
        if (!m_longitude) return refuse(columnAt(Column::Longitude), "there is no longitude");
        m_point.latitude = m_isSouth ? -fabs(*m_latitude) : *m_latitude;
        m_point.longitude = m_isWest ? -fabs(*m_longitude) : *m_longitude;
    }

    const DelimitedLine& m_line;
    const RouteLayout& m_layout;
    RoutePoint m_point;
    std::optional<Degrees> m_latitude;
    std::optional<Degrees> m_longitude;
    bool m_isSouth = false;
    bool m_isWest = false;
    std::string m_fault;
};

void nameColumnsNotTaken(const RouteLayout& layout, ReadRoute& read)
{
    for (std::size_t i = 0; i < layout.columns.size(); ++i)
        if (layout.columns[i] == Column::Unknown && !layout.names[i].empty())
            read.remarks.push_back("the column " + quotation(layout.names[i]) + " was not taken");
}

} // namespace

ReadRoute readRouteCsv(std::string_view text)
{
    const auto refused = [](const std::string& fault) { return ReadRoute{{}, fault, {}}; };
    if (text.find('\0') != std::string_view::npos)
        return refused("line 1: it is no list of text (or one in UTF-16: save it as UTF-8)");
    if (!isUtf8(text)) {
        ReadRoute read = readRouteCsv(utf8OfLatin1(text));
        read.remarks.emplace_back(
            "the list is not UTF-8: its letters were read as Western European");
        return read;
    }
    const char separator = separatorOf(text);
    const auto lines = delimitedLines(text, separator, mostRoutePoints + 2);
    if (lines.empty()) return refused("line 1: it is empty");
    const RouteLayout layout = layoutOfList(lines.front(), separator);
    if (!layout.knowsPositions())
        return refused("line " + std::to_string(lines.front().number) +
                       ": no columns of latitude and longitude are there");
    ReadRoute read;
    for (const DelimitedLine& line : std::span(lines).subspan(layout.hasHeading ? 1 : 0)) {
        const std::string where = "line " + std::to_string(line.number);
        if (!line.isClosed) return refused(where + ": its quotation marks do not match");
        if (read.route.points.size() == mostRoutePoints)
            return refused(where + ": more than " + std::to_string(mostRoutePoints) + " points");
        PointLine point(line, layout);
        read.route.points.push_back(point.point());
        if (!point.fault().empty()) return refused(point.fault());
    }
    if (read.route.points.empty()) return refused("line 2: there is no point");
    nameColumnsNotTaken(layout, read);
    return read;
}

} // namespace korvel
