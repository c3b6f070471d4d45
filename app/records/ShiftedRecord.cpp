// SPDX-License-Identifier: MIT
#include "app/records/ShiftedRecord.h"

#include "app/reading/Reading.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

bool isWithin(const std::string& text, double limit)
{
    return isNumeric(text) && std::fabs(readNumber(text)) <= limit;
}

/// Whether a text is what is typed in boxes of the kind.
bool looksLike(const std::string& text, FieldKind kind)
{
    if (text.empty()) return true;
    switch (kind) {
    case FieldKind::Figure:
    case FieldKind::Angle:
        return isNumeric(text);
    case FieldKind::Latitude:
        return isWithin(text, 90);
    case FieldKind::Longitude:
        return isWithin(text, 180);
    case FieldKind::Moment:
        return text.find_first_of("/:") != std::string::npos;
    case FieldKind::Text:
    case FieldKind::Any:
        return true;
    case FieldKind::Number:
    case FieldKind::Tick:
        break;
    }
    return false;
}

bool isOf(const PerhapsValue& value, FieldKind kind)
{
    if (!value || kind == FieldKind::Any || std::holds_alternative<std::monostate>(*value))
        return true;
    if (kind == FieldKind::Tick) return std::holds_alternative<bool>(*value);
    if (kind == FieldKind::Number) return std::holds_alternative<double>(*value);
    return std::holds_alternative<std::string>(*value) && looksLike(textOf(*value), kind);
}

/// A record with its lines lost, or too many, from one place on.
class Shift
{
public:
    Shift(std::span<const PerhapsValue> values, std::span<const FieldKind> kinds)
        : m_values(values), m_kinds(kinds), m_end(std::min(values.size(), kinds.size()))
    {
    }

    /// The last place from which lines can be lost: the end of the record.
    std::size_t end() const { return m_end; }

    /// The value that stands in a place when the lines are lost from another one on.
    PerhapsValue at(std::size_t place, std::size_t lostFrom) const
    {
        if (place < lostFrom) return m_values[place];
        if (m_values.size() >= m_kinds.size())
            return m_values[place + m_values.size() - m_kinds.size()];
        const std::size_t lost = m_kinds.size() - m_values.size();
        return place < lostFrom + lost ? std::nullopt : m_values[place - lost];
    }

    std::size_t misfits(std::size_t lostFrom) const
    {
        std::size_t count = 0;
        for (std::size_t place = 0; place < m_kinds.size(); ++place)
            count += isOf(at(place, lostFrom), m_kinds[place]) ? 0U : 1U;
        return count;
    }

private:
    std::span<const PerhapsValue> m_values;
    std::span<const FieldKind> m_kinds;
    std::size_t m_end;
};

} // namespace

std::optional<std::vector<PerhapsValue>> putIntoPlaces(std::span<const PerhapsValue> values,
                                                       std::span<const FieldKind> kinds)
{
    const Shift shift(values, kinds);
    std::size_t fewest = shift.misfits(shift.end());
    std::vector<std::size_t> likely{shift.end()};
    for (std::size_t from = shift.end(); from-- > 0;) {
        const std::size_t misfits = shift.misfits(from);
        if (misfits < fewest) likely.clear();
        if (misfits <= fewest) likely.push_back(from);
        fewest = std::min(fewest, misfits);
    }
    if (likely.front() == shift.end()) return std::nullopt;
    std::vector<PerhapsValue> placed;
    for (std::size_t place = 0; place < kinds.size(); ++place) {
        const PerhapsValue value = shift.at(place, likely.front());
        const bool isSure = std::ranges::all_of(
            likely, [&](std::size_t from) { return shift.at(place, from) == value; });
        placed.push_back(isSure ? value : std::nullopt);
    }
    return placed;
}

} // namespace korvel
