// SPDX-License-Identifier: MIT
#include "routes/route/RouteCsv.h"

#include "app/reading/Ascii.h"
#include "app/reading/PositionText.h"
#include "app/reading/Reading.h"
#include "app/reading/Remarks.h"
#include "app/records/DelimitedText.h"
#include "navlib/angles.h"
#include "routes/route/DelimitedLines.h"
#include "routes/route/LegWords.h"

#include <algorithm>
#include <array>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

enum class Column {
    Name,
    Latitude,
    Longitude,
    NorthSouth,
    EastWest,
    Position,
    Leg,
    Speed,
    Stay,
    Zone,
    Eta,
    Etd,
    Remark,
    Calculated,
    Unknown
};

struct ColumnName {
    std::string_view name; ///< small letters, without signs and what stands in brackets
    Column column;
};

constexpr std::array columnNames{
    ColumnName{"name", Column::Name},
    ColumnName{"waypoint", Column::Name},
    ColumnName{"waypointname", Column::Name},
    ColumnName{"wp", Column::Name},
    ColumnName{"wpt", Column::Name},
    ColumnName{"wpname", Column::Name},
    ColumnName{"lat", Column::Latitude},
    ColumnName{"latdeg", Column::Latitude},
    ColumnName{"latitude", Column::Latitude},
    ColumnName{"lon", Column::Longitude},
    ColumnName{"londeg", Column::Longitude},
    ColumnName{"long", Column::Longitude},
    ColumnName{"lng", Column::Longitude},
    ColumnName{"longitude", Column::Longitude},
    ColumnName{"ns", Column::NorthSouth},
    ColumnName{"ew", Column::EastWest},
    ColumnName{"position", Column::Position},
    ColumnName{"pos", Column::Position},
    ColumnName{"leg", Column::Leg},
    ColumnName{"legtype", Column::Leg},
    ColumnName{"geometrytype", Column::Leg},
    ColumnName{"sailing", Column::Leg},
    ColumnName{"speed", Column::Speed},
    ColumnName{"speedkn", Column::Speed},
    ColumnName{"knots", Column::Speed},
    ColumnName{"stay", Column::Stay},
    ColumnName{"stayh", Column::Stay},
    ColumnName{"stop", Column::Stay},
    ColumnName{"stoph", Column::Stay},
    ColumnName{"zone", Column::Zone},
    ColumnName{"zoneh", Column::Zone},
    ColumnName{"td", Column::Zone},
    ColumnName{"eta", Column::Eta},
    ColumnName{"etautc", Column::Eta},
    ColumnName{"etd", Column::Etd},
    ColumnName{"etdutc", Column::Etd},
    ColumnName{"remark", Column::Remark},
    ColumnName{"remarks", Column::Remark},
    ColumnName{"note", Column::Remark},
    ColumnName{"notes", Column::Remark},
    ColumnName{"comment", Column::Remark},
    ColumnName{"coursedeg", Column::Calculated},
    ColumnName{"course", Column::Calculated},
    ColumnName{"distancenm", Column::Calculated},
    ColumnName{"distance", Column::Calculated},
    ColumnName{"distancetogonm", Column::Calculated},
    ColumnName{"distancetogo", Column::Calculated},
    ColumnName{"no", Column::Calculated},
    ColumnName{"id", Column::Calculated},
};

constexpr std::array ownOrder{
    Column::Name,       Column::Latitude,   Column::Longitude, Column::Leg,  Column::Calculated,
    Column::Calculated, Column::Calculated, Column::Speed,     Column::Stay, Column::Eta};

/// How a list is written.
struct Layout {
    std::vector<Column> columns;
    std::vector<std::string> names; ///< of the columns, for faults
    bool hasHeading = false;
    bool hasDecimalCommas = false;
};

std::string bareName(std::string_view heading)
{
    std::string bare;
    for (const char c : heading.substr(0, heading.find_first_of("([")))
        if (const char small = lower(c); isDigit(small) || (small >= 'a' && small <= 'z'))
            bare += small;
    return bare;
}

Column columnOf(std::string_view heading)
{
    const auto found = std::ranges::find(columnNames, bareName(heading), &ColumnName::name);
    return found == columnNames.end() ? Column::Unknown : found->column;
}

bool has(const Layout& layout, Column column)
{
    return std::ranges::find(layout.columns, column) != layout.columns.end();
}

bool knowsPositions(const Layout& layout)
{
    return has(layout, Column::Position) ||
           (has(layout, Column::Latitude) && has(layout, Column::Longitude));
}

/// The number of a field; nothing when the field is anything else.
std::optional<double> numberOf(std::string field, bool hasDecimalCommas)
{
    if (hasDecimalCommas) std::ranges::replace(field, ',', '.');
    return wholeNumber(field);
}

bool isLetterOf(std::string_view letters, char c)
{
    return letters.find(lower(c)) != std::string_view::npos;
}

/// Degrees of a field: a number with or without a letter is decimal degrees, anything longer is
/// what the boxes understand. @return nothing when it is neither
std::optional<Degrees> degreesOf(std::string field, Axis axis, bool hasDecimalCommas)
{
    const std::string_view letters = axis == Axis::Latitude ? "ns" : "ew";
    field = asciiForms(field);
    if (hasDecimalCommas) std::ranges::replace(field, ',', '.');
    if (const auto plain = wholeNumber(field)) return Degrees(*plain);
    if (field.empty()) return std::nullopt;
    const bool isBehind = isLetterOf(letters, field.back());
    if (isBehind || isLetterOf(letters, field.front())) {
        std::string digits = isBehind ? field.substr(0, field.size() - 1) : field.substr(1);
        digits.erase(digits.find_last_not_of(" ") + 1);
        digits.erase(0, digits.find_first_not_of(" "));
        const char letter = lower(isBehind ? field.back() : field.front());
        const auto value = wholeNumber(digits);
        if (value && *value >= 0) return Degrees(letter == 's' || letter == 'w' ? -*value : *value);
    }
    const auto position = parsePosition(field, axis);
    if (!position) return std::nullopt;
    const auto& text = axis == Axis::Latitude ? position->latitude : position->longitude;
    const auto& other = axis == Axis::Latitude ? position->longitude : position->latitude;
    if (!text || other) return std::nullopt;
    return NavFunc113::DegMinToDeg(NavFunc113::DegMin(readNumber(*text)));
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

/// Columns of a list without a heading, by what its first line holds.
std::vector<Column> columnsByContent(const std::vector<std::string>& fields, bool hasDecimalCommas)
{
    const auto is = [&](std::size_t i, Axis axis) {
        return i < fields.size() && degreesOf(fields[i], axis, hasDecimalCommas).has_value();
    };
    if (fields.size() == ownOrder.size() && is(1, Axis::Latitude) && is(2, Axis::Longitude))
        return {ownOrder.begin(), ownOrder.end()};
    const auto isLetter = [&](std::size_t i, std::string_view letters) {
        return i < fields.size() && fields[i].size() == 1 && isLetterOf(letters, fields[i][0]);
    };
    for (std::size_t i = 0; i < std::min<std::size_t>(fields.size(), 3); ++i) {
        std::vector<Column> columns(fields.size(), Column::Unknown);
        const bool hasLetters = isLetter(i + 1, "ns") && isLetter(i + 3, "ew");
        const std::size_t second = i + (hasLetters ? 2 : 1);
        if (!is(i, Axis::Latitude) || !is(second, Axis::Longitude)) continue;
        columns[i] = Column::Latitude;
        columns[second] = Column::Longitude;
        if (hasLetters) columns[i + 1] = Column::NorthSouth, columns[i + 3] = Column::EastWest;
        const std::size_t behind = second + (hasLetters ? 2 : 1);
        if (i > 0)
            columns[i - 1] = Column::Name;
        else if (behind < fields.size())
            columns[behind] = Column::Name;
        return columns;
    }
    return {};
}

Layout layoutOf(const DelimitedLine& first, char separator)
{
    Layout layout;
    layout.hasDecimalCommas = separator != ',';
    for (const std::string& field : first.fields)
        layout.columns.push_back(columnOf(field));
    layout.hasHeading = knowsPositions(layout);
    if (layout.hasHeading) {
        layout.names = first.fields;
        return layout;
    }
    layout.columns = columnsByContent(first.fields, layout.hasDecimalCommas);
    for (std::size_t i = 0; i < layout.columns.size(); ++i)
        layout.names.push_back("column " + std::to_string(i + 1));
    return layout;
}

/// A line being read into a point; its first fault is kept.
class PointLine
{
public:
    PointLine(const DelimitedLine& line, const Layout& layout) : m_line(line), m_layout(layout) {}

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
        const auto angle = degreesOf(field, axis, m_layout.hasDecimalCommas);
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

    void takeSide(std::optional<Degrees>& angle, const std::string& field, std::size_t column,
                  std::string_view letters)
    {
        if (field.size() != 1 || !isLetterOf(letters, field[0]))
            return refuse(column, quotation(field) + " is no hemisphere");
        if (angle && isLetterOf("sw", field[0])) angle = -fabs(*angle);
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
            takeSide(m_latitude, field, at, "ns");
            break;
        case Column::EastWest:
            takeSide(m_longitude, field, at, "ew");
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

    std::size_t columnAt(Column wanted) const
    {
        const auto found = std::ranges::find(m_layout.columns, wanted);
        return found == m_layout.columns.end()
                   ? 0
                   : static_cast<std::size_t>(found - m_layout.columns.begin());
    }

    void requirePosition()
    {
        if (!m_latitude) refuse(columnAt(Column::Latitude), "there is no latitude");
        if (!m_longitude) refuse(columnAt(Column::Longitude), "there is no longitude");
        m_point.latitude = m_latitude.value_or(Degrees(0));
        m_point.longitude = m_longitude.value_or(Degrees(0));
    }

    const DelimitedLine& m_line;
    const Layout& m_layout;
    RoutePoint m_point;
    std::optional<Degrees> m_latitude;
    std::optional<Degrees> m_longitude;
    std::string m_fault;
};

void nameColumnsNotTaken(const Layout& layout, ReadRoute& read)
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
    const char separator = separatorOf(text);
    const auto lines = delimitedLines(text, separator, mostRoutePoints + 2);
    if (lines.empty()) return refused("line 1: it is empty");
    const Layout layout = layoutOf(lines.front(), separator);
    if (!knowsPositions(layout))
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
