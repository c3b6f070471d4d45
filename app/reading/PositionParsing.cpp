// SPDX-License-Identifier: MIT
#include "app/reading/PositionText.h"

#include "app/reading/PositionCoordinate.h"
#include "app/reading/Reading.h"
#include "navlib/angles.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace korvel
{
namespace
{

int wholeOf(std::string_view digits)
{
    int value = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), value);
    return value;
}

double valueOfToken(const PositionToken& number)
{
    return readNumber((number.digits.empty() ? "0" : number.digits) + "." + number.decimals + "0");
}

/// Packed text of degrees and of minutes that were computed, rounded to what was given.
std::string packedOf(int degrees, double minutes, int decimals)
{
    const double scale = std::pow(10.0, decimals);
    std::int64_t scaled = std::llround(minutes * scale);
    const std::int64_t degree = 60 * std::llround(scale);
    if (scaled >= degree) { // 59.99999' that rounds up is the next degree
        scaled -= degree;
        ++degrees;
    }
    std::string fraction = std::to_string(scaled);
    const auto width = static_cast<std::size_t>(decimals) + 2;
    fraction.insert(0, width - std::min(width, fraction.size()), '0');
    while (fraction.size() > 2 && fraction.back() == '0')
        fraction.pop_back();
    return std::to_string(degrees) + "." + fraction;
}

/// 35.508333°: a decimal of a degree is six tenths of a minute's two decimals, so two less are due.
std::string packedOfDecimalDegrees(const PositionToken& degrees)
{
    const int given = static_cast<int>(degrees.decimals.size());
    if (given == 0) return std::to_string(wholeOf(degrees.digits));
    const double fraction = readNumber("0." + degrees.decimals);
    return packedOf(wholeOf(degrees.digits), fraction * 60, std::clamp(given - 2, 2, 9));
}

/// Whether a plain decimal number can be a packed value at all: it has no 60 minutes.
bool canBePacked(const Coordinate& c)
{
    const std::string decimals = c.numbers[0].decimals + "0";
    return decimals[0] < '6';
}

/// 3530.5 and 353030.5 taken apart.
/// @return false when the number of digits does not fit the axis
bool takeApart(std::vector<PositionToken>& numbers, Axis axis)
{
    const std::size_t degreeDigits = axis == Axis::Latitude ? 2 : 3;
    PositionToken last = numbers[0];
    const std::size_t length = last.digits.size();
    if (length != degreeDigits + 2 && length != degreeDigits + 4) return false;
    std::vector<PositionToken> parts;
    for (std::size_t at = 0; at < length; at += at == 0 ? degreeDigits : 2) {
        parts.push_back(last);
        parts.back().digits = last.digits.substr(at, at == 0 ? degreeDigits : 2);
        parts.back().decimals.clear();
    }
    parts.back().decimals = last.decimals;
    numbers = std::move(parts);
    return true;
}

bool isInRange(std::string_view packed, Axis axis)
{
    const std::size_t point = std::min(packed.find('.'), packed.size());
    const int degrees = wholeOf(packed.substr(0, point));
    const int greatest = axis == Axis::Latitude ? 90 : 180;
    const bool more = packed.substr(point).find_first_of("123456789") != std::string_view::npos;
    return degrees < greatest || (degrees == greatest && !more);
}

std::string withoutLeadingZeros(std::string_view digits)
{
    const std::size_t first = digits.find_first_not_of('0');
    return first == std::string_view::npos ? "0" : std::string(digits.substr(first));
}

/// The packed text; nothing when a part is out of range.
std::optional<std::string> packed(const Coordinate& c, Axis axis, bool plainIsDecimal)
{
    std::vector<PositionToken> numbers = c.numbers;
    if (c.compact() && !(c.knowsAxis() && !c.degreeSign && takeApart(numbers, axis)))
        return std::nullopt;
    for (std::size_t i = 1; i < numbers.size(); ++i)
        if (numbers[i].digits.empty() || numbers[i].digits.size() > 2 ||
            wholeOf(numbers[i].digits) >= 60)
            return std::nullopt;
    std::string text;
    if (numbers.size() == 3) {
        const int decimals = static_cast<int>(numbers[2].decimals.size());
        text = packedOf(wholeOf(numbers[0].digits),
                        wholeOf(numbers[1].digits) + valueOfToken(numbers[2]) / 60,
                        std::min(decimals + 3, 9));
    } else if (numbers.size() == 2) {
        // The digits themselves, so that the box holds what the instrument gave.
        const std::string& minutes = numbers[1].digits;
        text = withoutLeadingZeros(numbers[0].digits) + "." + (minutes.size() == 1 ? "0" : "") +
               minutes + numbers[1].decimals;
    } else if (c.degreeSign || plainIsDecimal) {
        text = packedOfDecimalDegrees(numbers[0]);
    } else {
        text = withoutLeadingZeros(numbers[0].digits);
        if (!numbers[0].decimals.empty()) text += "." + numbers[0].decimals;
    }
    if (!isInRange(text, axis)) return std::nullopt;
    const bool zero = text.find_first_of("123456789") == std::string::npos;
    return (c.south() && !zero ? "-" : "") + text;
}

/// A sentence of a receiver ("$GPGGA,...") cut down to its position.
std::optional<std::string> positionOfSentence(std::string_view text)
{
    std::vector<std::string_view> fields;
    while (fields.size() < 30) {
        const std::size_t comma = text.find(',');
        fields.push_back(text.substr(0, comma));
        if (comma == std::string_view::npos) break;
        text.remove_prefix(comma + 1);
    }
    for (std::size_t i = 1; i + 3 < fields.size(); ++i) {
        if ((fields[i + 1] == "N" || fields[i + 1] == "S") && isNumeric(fields[i]) &&
            (fields[i + 3] == "E" || fields[i + 3] == "W") && isNumeric(fields[i + 2]))
            return std::string(fields[i]) + std::string(fields[i + 1]) + "," +
                   std::string(fields[i + 2]) + std::string(fields[i + 3]);
    }
    return std::nullopt;
}

/// Whether the signs around the numbers make a position of them, or they are numbers only.
bool isPosition(const std::vector<Coordinate>& found)
{
    const Coordinate& first = found[0];
    if (found.size() == 2) {
        if (first.knowsAxis() != found[1].knowsAxis()) return false;
        if (first.knowsAxis()) return true;
        // Numbers alone make a pair when both have decimals or more: 35.305, 139.4523.
        return std::all_of(found.begin(), found.end(), [](const Coordinate& c) {
            return !c.colon && (c.numbers.size() > 1 || c.degreeSign || c.plain());
        });
    }
    return first.knowsAxis() || (!first.colon && (first.numbers.size() > 1 || first.degreeSign));
}

/// A lone number as other programs give decimal degrees: 35.508333, 35.75.
bool isProbablyDecimal(const std::vector<Coordinate>& found)
{
    return found.size() == 1 && found[0].plain() && !found[0].knowsAxis() &&
           (found[0].numbers[0].decimals.size() >= 5 || !canBePacked(found[0]));
}

/// How the plain decimal numbers among the coordinates were taken, and what the other way is.
std::string remarkOnPlain(const std::vector<Coordinate>& found, const std::vector<Axis>& axes,
                          bool decimal)
{
    std::string taken;
    std::string other;
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (!found[i].plain()) continue;
        const auto asTaken = packed(found[i], axes[i], decimal);
        const auto asDecimal = packed(found[i], axes[i], true);
        const std::string gap = taken.empty() ? "" : " ";
        if (asTaken)
            taken += gap + positionForCopy(NavFunc113::DegMin(readNumber(*asTaken)), axes[i]);
        if (asDecimal)
            other += gap + positionForCopy(NavFunc113::DegMin(readNumber(*asDecimal)), axes[i]);
    }
    if (decimal) return "taken as decimal degrees: " + taken;
    return "taken as degrees.minutes: " + taken +
           (other.empty() ? "" : "; as decimal degrees it would be " + other);
}

std::string remarkOn(const std::vector<Coordinate>& found, const std::vector<Axis>& axes,
                     bool decimal)
{
    if (std::any_of(found.begin(), found.end(), [](const Coordinate& c) { return c.plain(); }))
        return remarkOnPlain(found, axes, decimal);
    if (found[0].knowsAxis()) return {};
    if (found.size() == 2) return "taken as latitude, then longitude";
    return found[0].onlyBlanks ? "taken as degrees and minutes" : "";
}

} // namespace

std::optional<PastedPosition> parsePosition(std::string_view text, Axis box)
{
    std::optional<std::string> sentence;
    if (text.starts_with('$')) {
        sentence = positionOfSentence(text);
        if (!sentence) return std::nullopt;
    }
    const auto found = readCoordinates(sentence ? *sentence : text);
    if (!found || !(isPosition(*found) || isProbablyDecimal(*found))) return std::nullopt;

    std::vector<Axis> axes;
    for (const Coordinate& c : *found)
        axes.push_back(c.knowsAxis()        ? axisOfLetter(c.axisLetter())
                       : found->size() == 1 ? box
                       : axes.empty()       ? Axis::Latitude
                                            : Axis::Longitude);
    if (axes.size() == 2 && axes[0] == axes[1]) return std::nullopt;

    // One number that has 60 minutes or more gives both away as decimal degrees.
    const bool decimal = isPosition(*found) && std::ranges::any_of(*found, [](const auto& c) {
                             return c.plain() && !canBePacked(c);
                         });
    PastedPosition position;
    for (std::size_t i = 0; i < found->size(); ++i) {
        const auto value = packed((*found)[i], axes[i], decimal);
        if (!value) return std::nullopt;
        (axes[i] == Axis::Latitude ? position.latitude : position.longitude) = *value;
    }
    position.remark = remarkOn(*found, axes, decimal);
    return position;
}

} // namespace korvel
