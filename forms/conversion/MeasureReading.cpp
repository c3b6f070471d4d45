// SPDX-License-Identifier: MIT
#include "forms/conversion/MeasureReading.h"

#include "app/reading/Ascii.h"
#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "navlib/angles.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::Quantity;
using NavFunc113::Unit;
using NavFunc113::UnitScale;

std::string lowered(std::string_view text)
{
    std::string small(text);
    std::ranges::transform(small, small.begin(), lower);
    return small;
}

std::string_view trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// Size of a unit by a name as it is written: capitals tell ST from st, elsewhere they are free,
/// and so is the s of a plural.
std::optional<double> factorCalled(Quantity quantity, std::string_view name)
{
    const auto find = [quantity](const auto& isCalled) -> std::optional<double> {
        for (const Unit& unit : NavFunc113::UnitTable(quantity))
            if (unit.scale == UnitScale::Ratio && unit.needs == NavFunc113::UnitNeed::Nothing &&
                (isCalled(unit.symbol) || isCalled(unit.caption)))
                return unit.factor;
        for (const NavFunc113::UnitName& other : NavFunc113::OtherUnitNames())
            if (other.quantity == quantity && isCalled(other.name)) return other.factor;
        return std::nullopt;
    };
    if (const auto exact = find([name](std::string_view known) { return known == name; }))
        return exact;
    const std::string small = lowered(name);
    return find([&small](std::string_view known) {
        const std::string other = lowered(known);
        return other == small || other + "s" == small;
    });
}

/// The digits that a text begins with.
std::string_view digitsOf(std::string_view text)
{
    return text.substr(0, text.find_first_not_of("0123456789."));
}

/// The sum of numbers with their units, in the base unit; nothing for any other text.
std::optional<double> sumOfUnits(Quantity quantity, std::string_view text)
{
    double sum = 0;
    bool isNegative = false;
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) {
        isNegative = text.front() == '-';
        text = trimmed(text.substr(1));
    }
    if (text.empty()) return std::nullopt;
    while (!text.empty()) {
        const std::string_view digits = digitsOf(text);
        const auto number = readLeadingNumber(digits);
        if (!number || std::ranges::count(digits, '.') > 1) return std::nullopt;
        text = trimmed(text.substr(digits.size()));
        const std::string_view name = trimmed(text.substr(0, text.find_first_of("0123456789+-.,")));
        const auto factor = factorCalled(quantity, name);
        if (!factor) return std::nullopt;
        sum += *number * *factor;
        text = trimmed(text.substr(name.size()));
    }
    return isNegative ? -sum : sum;
}

/// Hours of a time with one or two colons; nothing for any other text.
std::optional<double> hoursOfClock(std::string_view text)
{
    const bool isNegative = text.starts_with('-');
    if (isNegative) text.remove_prefix(1);
    constexpr std::array<double, 3> size{1, 60, 3600};
    double hours = 0;
    std::size_t part = 0;
    for (; part < size.size() && !text.empty(); ++part) {
        const std::string_view digits = digitsOf(text);
        const auto number = readLeadingNumber(digits);
        if (!number || (part > 0 && *number >= 60)) return std::nullopt;
        hours += *number / size[part];
        text.remove_prefix(digits.size());
        if (text.empty()) continue;
        if (text.front() != ':') return std::nullopt;
        text.remove_prefix(1);
    }
    if (part < 2 || !text.empty()) return std::nullopt;
    return isNegative ? -hours : hours;
}

} // namespace

MeasureReading readMeasure(Quantity quantity, const Unit& unit, std::string_view text)
{
    const std::string typed = asciiForms(text);
    const std::string_view plain = trimmed(typed);
    if (unit.scale == UnitScale::Clock)
        if (const auto hours = hoursOfClock(plain)) return {hours, false, true, {}};
    if (unit.scale == UnitScale::Ratio && unit.needs == NavFunc113::UnitNeed::Nothing)
        if (const auto sum = sumOfUnits(quantity, plain); sum)
            return {*sum / unit.factor, true, true, {}};
    MeasureReading reading{readLeadingNumber(text), false, false, {}};
    if (reading.value && unit.scale == UnitScale::PackedArc) {
        const double magnitude = std::fabs(*reading.value);
        const double minutes = (magnitude - std::floor(magnitude)) * 100;
        constexpr double asTyped = 1e-9; // what a double adds to decimals
        if (minutes >= 60 - asTyped) return {{}, false, true, "minutes are below 60"};
    }
    return reading;
}

std::string clockText(double hours)
{
    constexpr double tenthsOfHour = 36000;
    const double tenths = std::round(std::fabs(hours) * tenthsOfHour);
    if (!(tenths < 1e15)) return {};
    const double wholeHours = std::floor(tenths / tenthsOfHour);
    const double minutes = std::floor((tenths - wholeHours * tenthsOfHour) / 600);
    const double seconds = (tenths - wholeHours * tenthsOfHour - minutes * 600) / 10;
    std::string text = std::signbit(hours) && tenths > 0 ? "-" : "";
    text += Format(wholeHours, "0") + ":" + Format(minutes, "00") + ":";
    return text + Format(seconds, "00.#");
}

std::string packedText(double packed)
{
    constexpr double steps = 1e4; // of a minute
    const double degrees = std::fabs(NavFunc113::DegMinToDeg(NavFunc113::DegMin(packed)).value());
    const double parts = std::round(degrees * 60 * steps);
    if (!(parts < 1e15)) return {};
    const double whole = std::floor(parts / (60 * steps));
    const double minutes = (parts - whole * 60 * steps) / steps;
    const std::string text = Format(whole + minutes / 100, "0.00####");
    return std::signbit(packed) && parts > 0 ? "-" + text : text;
}

} // namespace korvel
