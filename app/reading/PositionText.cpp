// SPDX-License-Identifier: MIT
#include "app/reading/PositionText.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"
#include "navlib/angles.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace korvel
{
namespace
{

constexpr double longestEcho = 100000; // degrees; nobody reads more digits than these

int greatestDegrees(Axis axis)
{
    return axis == Axis::Latitude ? 90 : 180;
}

struct DegreesAndMinutes {
    int degrees = 0;
    int minutes = 0;      ///< whole
    std::string decimals; ///< of the minutes
};

/// Split of a packed value, rounded as it stands: the minutes of 35.3005 are 30.05, while a
/// difference of doubles would make 30.04999 of them.
DegreesAndMinutes split(NavFunc113::DegMin value, int minuteDecimals)
{
    const std::string format = "0.00" + std::string(static_cast<std::size_t>(minuteDecimals), '0');
    const std::string text = Format(std::fabs(value.packed()), format);
    const std::size_t point = text.find('.');
    DegreesAndMinutes result;
    std::from_chars(text.data(), text.data() + point, result.degrees);
    std::from_chars(text.data() + point + 1, text.data() + point + 3, result.minutes);
    result.decimals = text.substr(point + 3);
    return result;
}

std::string inFull(NavFunc113::DegMin value, Axis axis, int minuteDecimals, const char* gap)
{
    DegreesAndMinutes parts = split(value, minuteDecimals);
    if (parts.minutes >= 60) {
        ++parts.degrees;
        parts.minutes -= 60;
    }
    const bool latitude = axis == Axis::Latitude;
    const char* letter = latitude ? (value < NavFunc113::DegMin() ? "S" : "N")
                                  : (value < NavFunc113::DegMin() ? "W" : "E");
    return Format(parts.degrees, latitude ? "00" : "000") + "°" + Format(parts.minutes, "00") +
           "." + parts.decimals + "'" + gap + letter;
}

/// Decimals that were typed.
int decimalsOf(std::string_view boxText)
{
    const std::string ascii = asciiForms(boxText);
    const std::size_t point = ascii.find('.');
    if (point == std::string::npos) return 0;
    const std::size_t end = ascii.find_first_not_of("0123456789", point + 1);
    return static_cast<int>(std::min(end, ascii.size()) - point - 1);
}

/// What is to be said when only the beginning of the text was read.
std::string remarkOnReading(std::string_view boxText, Axis axis)
{
    const double greatest = greatestDegrees(axis);
    const NumberReading reading = readField(
        boxText, {.name = {},
                  .low = -greatest,
                  .high = greatest,
                  .kind = axis == Axis::Latitude ? FieldKind::Latitude : FieldKind::Longitude});
    return reading.kind == NumberReading::Kind::Beginning ? reading.remark : std::string();
}

} // namespace

Echo positionEcho(std::string_view boxText, Axis axis)
{
    const auto value = readLeadingNumber(boxText);
    if (!value) return {};
    Echo echo;
    echo.hint = remarkOnReading(boxText, axis);
    const NavFunc113::DegMin packed(*value);
    const NavFunc113::DegMin size(std::fabs(*value));
    const int greatest = greatestDegrees(axis);
    if (size.packed() < longestEcho) {
        echo.text = inFull(packed, axis, std::clamp(decimalsOf(boxText) - 2, 1, 4), " ");
        const DegreesAndMinutes typed = split(packed, 8);
        if (typed.minutes >= 60) {
            const double minutes = readNumber(Format(typed.minutes, "0") + "." + typed.decimals);
            echo.hint = joined({echo.hint, "minutes " + Format(minutes, "0.####")});
        }
        const bool beyond = NavFunc113::DegMinToDeg(size).value() > greatest + 1e-9;
        if (!beyond) return echo;
    }
    echo.hint = joined({echo.hint, "beyond " + Format(greatest, "0") + "°"});
    return echo;
}

std::string positionInFull(NavFunc113::DegMin value, Axis axis)
{
    if (!(std::fabs(value.packed()) < longestEcho)) return {};
    return inFull(value, axis, 1, " ");
}

std::string positionForCopy(NavFunc113::DegMin value, Axis axis)
{
    if (!(std::fabs(value.packed()) < longestEcho)) return {};
    return inFull(value, axis, 1, "");
}

std::string positionForCopy(NavFunc113::DegMin latitude, NavFunc113::DegMin longitude)
{
    return positionForCopy(latitude, Axis::Latitude) + " " +
           positionForCopy(longitude, Axis::Longitude);
}

std::string altitudeText(NavFunc113::Degrees altitude)
{
    const double tenths = std::round(std::fabs(altitude.value()) * 600);
    const double whole = std::floor(tenths / 600);
    const std::string sign = altitude < NavFunc113::Degrees(0) && tenths > 0 ? "-" : "";
    return sign + Format(whole, "0") + "°" + Format((tenths - 600 * whole) / 10, "00.0") + "'";
}

std::string packedText(NavFunc113::Degrees angle)
{
    // Whole units first: minutes that round up to 60 are the next degree.
    constexpr long long unitsOfMinute = 100000;
    const long long all = std::llround(std::fabs(angle.value()) * 60 * unitsOfMinute);
    const long long whole = all / (60 * unitsOfMinute);
    const long long minutes = all % (60 * unitsOfMinute);
    const double packed =
        static_cast<double>(whole) + static_cast<double>(minutes) / (100 * unitsOfMinute);
    return Format(angle.value() < 0 ? -packed : packed, "0.0######");
}

} // namespace korvel
