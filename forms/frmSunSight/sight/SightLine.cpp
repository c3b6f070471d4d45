// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/SightLine.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "navlib/angles.h"
#include "navlib/sky/sight_reduction.h"

#include <cmath>

namespace korvel
{

using namespace NavFunc113;

std::optional<Degrees> azimuthByQuotient(DegMin GHA, DegMin declination, const Position& position)
{
    try {
        return ComputedAzimuth(GHA, declination, DegToDegMin(position.latitude),
                               DegToDegMin(position.longitude));
    } catch (const ArithmeticError&) {
        return std::nullopt;
    }
}

Degrees azimuthOfSun(DegMin GHA, DegMin declination, const Position& position)
{
    if (const auto azimuth = azimuthByQuotient(GHA, declination, position)) return *azimuth;
    return PlaceAboveHorizon(DegMinToDeg(GHA), DegMinToDeg(declination), position).azimuth;
}

std::string angleText(DegMin angle)
{
    return Format(angle, "0.-00'0");
}

std::string angleInFull(DegMin angle)
{
    const int tenths = tenthsShown(angle);
    return (tenths < 0 ? "-" : "") + std::to_string(std::abs(tenths) / 600) + "°" +
           Format(std::abs(tenths) % 600 / 10.0, "00.0") + "'";
}

int tenthsShown(DegMin angle)
{
    // The same three decimals as in angleText(); minutes of 60 count as such.
    const double shown = readNumber(Format(angle, "0.000"));
    return static_cast<int>(std::lround(DegMinToDeg(DegMin(shown)).value() * 600));
}

int tenthsShown(double minutes)
{
    return static_cast<int>(std::lround(readNumber(Format(minutes, "0.0")) * 10));
}

std::string interceptText(DegMin Ho, DegMin Hc)
{
    const int tenths = tenthsShown(Ho) - tenthsShown(Hc);
    return Format(std::abs(tenths) / 10.0, "0'.0") + (tenths < 0 ? " A" : " T");
}

std::string latitudeText(Degrees latitude)
{
    return Format(DegToDegMin(latitude), "00-.00'0N;00-.00'0S");
}

std::string longitudeText(Degrees longitude)
{
    return Format(DegToDegMin(longitude), "000-.00'0E;000-.00'0W");
}

std::string positionText(const Position& position)
{
    return latitudeText(position.latitude) + " " + longitudeText(position.longitude);
}

std::string spanText(Hours span)
{
    const double hours = fabs(span).value();
    if (hours >= 24) return Format(hours / 24, "0.0") + " days";
    if (hours >= 1) return Format(hours, "0.0") + " h";
    return Format(hours * 60, "0") + " min";
}

std::string aheadText(DateTime UTC, std::optional<DateTime> now)
{
    constexpr double minute = 1.0 / 1440;
    return now && UTC - *now > minute ? spanText(Hours((UTC - *now) * 24)) : std::string();
}

} // namespace korvel
