// SPDX-License-Identifier: MIT
#include "routes/route/RouteColumns.h"

#include "app/reading/Ascii.h"
#include "app/reading/Reading.h"
#include "app/records/DelimitedText.h"
#include "navlib/angles.h"

#include <algorithm>
#include <array>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using Column = RouteColumn;

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

/// Columns of a list without a heading, by what its first line holds.
std::vector<Column> columnsByContent(const std::vector<std::string>& fields, bool hasDecimalCommas)
{
    const auto is = [&](std::size_t i, Axis axis) {
        return i < fields.size() && degreesOfField(fields[i], axis, hasDecimalCommas).has_value();
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

bool has(const std::vector<Column>& columns, Column column)
{
    return std::ranges::find(columns, column) != columns.end();
}

} // namespace

bool RouteLayout::knowsPositions() const
{
    return has(columns, Column::Position) ||
           (has(columns, Column::Latitude) && has(columns, Column::Longitude));
}

bool isLetterOf(std::string_view letters, char c)
{
    return letters.find(lower(c)) != std::string_view::npos;
}

std::optional<Degrees> degreesOfField(std::string field, Axis axis, bool hasDecimalCommas)
{
    const std::string_view letters = axis == Axis::Latitude ? "ns" : "ew";
    field = asciiForms(field);
    if (hasDecimalCommas) std::ranges::replace(field, ',', '.');
    if (const auto plain = wholeNumber(field)) return Degrees(*plain);
    if (field.empty()) return std::nullopt;
    const bool isBehind = isLetterOf(letters, field.back());
    if (isBehind || isLetterOf(letters, field.front())) {
        std::string digits = isBehind ? field.substr(0, field.size() - 1) : field.substr(1);
        digits.erase(digits.find_last_not_of(' ') + 1);
        digits.erase(0, digits.find_first_not_of(' '));
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

RouteLayout layoutOfList(const DelimitedLine& first, char separator)
{
    RouteLayout layout;
    layout.hasDecimalCommas = separator != ',';
    for (const std::string& field : first.fields)
        layout.columns.push_back(columnOf(field));
    layout.hasHeading = layout.knowsPositions();
    if (layout.hasHeading) {
        layout.names = first.fields;
        return layout;
    }
    layout.columns = columnsByContent(first.fields, layout.hasDecimalCommas);
    for (std::size_t i = 0; i < layout.columns.size(); ++i)
        layout.names.push_back("column " + std::to_string(i + 1));
    return layout;
}

} // namespace korvel
