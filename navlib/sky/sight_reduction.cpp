// SPDX-License-Identifier: MIT
#include "navlib/sky/sight_reduction.h"

#include "navlib/angles.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace NavFunc113
{
namespace
{

Radians radiansOf(DegMin value)
{
    return DegToRad(DegMinToDeg(value));
}

/// Above this altitude the corrections for temperature and pressure no longer show.
constexpr DegMin lowAltitude(30);

constexpr std::array<TablePair, 7> refractions{
    {{10, 5.3}, {22, 2.378}, {34, 1.43}, {46, 0.933}, {58, 0.6}, {70, 0.352}, {85, 0.085}}};

constexpr std::array<TablePair, 7> ofFrost{
    {{0, -3.6}, {5, -0.3}, {10, -0.3}, {15, -0.2}, {20, -0.2}, {25, -0.1}, {30, -0.1}}};
constexpr std::array<TablePair, 7> ofWarmth{
    {{0, 2.5}, {5, 0.5}, {10, 0.25}, {15, 0.15}, {20, 0.13}, {25, 0.1}, {30, 0.1}}};
constexpr std::array<TablePair, 7> ofHeat{
    {{0, 4.9}, {5, 0.9}, {10, 0.5}, {15, 0.3}, {20, 0.2}, {25, 0.2}, {30, 0.1}}};

constexpr std::array<TablePair, 7> ofLows{
    {{0, 2}, {5, 0.5}, {10, 0.3}, {15, 0.2}, {20, 0.15}, {25, 0.1}, {30, 0.1}}};
constexpr std::array<TablePair, 3> ofHighs{{{0, -0.6}, {15, 0.1}, {30, 0}}};

double lookedUp(CorrectionTable table, DegMin altitude)
{
    return *InterpolateLagrange(altitude.packed(), table);
}

double temperatureTerm(DegMin altitude, double temperature)
{
    const CorrectionTable table = TemperatureTable(altitude, temperature);
    return table.empty() ? 0 : lookedUp(table, altitude);
}

double pressureTerm(DegMin altitude, float pressure)
{
    if (const CorrectionTable table = PressureTable(altitude, pressure); !table.empty())
        return lookedUp(table, altitude);
    const bool isSomewhatLow = altitude <= lowAltitude && pressure >= 975 && pressure < 985;
    return isSomewhatLow ? 0.1 : 0;
}

double semiDiameterOfMonth(float month)
{
    constexpr std::array beyondJuly{0.5, 0.5, 0.4, 0.2, 0.1, 0.0, 0.0, 0.1, 0.2, 0.3, 0.5, 0.5};
    // Outside int a cast has no meaning; such a month is in no list anyway.
    if (!(month >= 0 && month < 100))
        throw ArithmeticError(ArithmeticError::Condition::SubscriptOutOfRange);
    return PickItem<double>(static_cast<int>(std::floor(month)), beyondJuly);
}

} // namespace

CorrectionTable RefractionTable()
{
    return refractions;
}

CorrectionTable TemperatureTable(DegMin altitude, double temperature)
{
    if (altitude > lowAltitude) return {};
    if (temperature < -5) return ofFrost;
    if (temperature < 17) return {};
    if (temperature < 27) return ofWarmth;
    return ofHeat;
}

CorrectionTable PressureTable(DegMin altitude, float pressure)
{
    if (altitude > lowAltitude) return {};
    if (pressure < 975) return ofLows;
    if (pressure < 1025) return {};
    if (pressure < 1045) return ofHighs;
    // Nothing above 1045 hPa: a rule of the program, not of the air.
    return {};
}

DegMin ComputedAltitude(DegMin GHA, DegMin declination, DegMin latitude, DegMin longitude)
{
    const Radians phi = radiansOf(latitude);
    const Radians delta = radiansOf(declination);
    const Radians t = DegToRad(DegMinToDeg(GHA) + DegMinToDeg(longitude));
    const double s = cos(delta) * cos(phi) * cos(t) + sin(delta) * sin(phi);
    return DegToDegMin(RadToDeg(ArcSin(s)));
}

Degrees ComputedAzimuth(DegMin GHA, DegMin declination, DegMin latitude, DegMin longitude)
{
    const Radians phi = radiansOf(latitude);
    const Radians delta = radiansOf(declination);
    const Radians t = DegToRad(DegMinToDeg(GHA) + DegMinToDeg(longitude));
    const Radians h = radiansOf(ComputedAltitude(GHA, declination, latitude, longitude));
    const double x = Quotient(cos(phi) * sin(delta) - sin(phi) * cos(delta) * cos(t), cos(h));
    const Degrees Z = RadToDeg(ArcCos(x));
    return sin(t) > 0 ? fullTurn - Z : Z;
}

AltitudeCorrectionTerms SunAltitudeTerms(DegMin observedAltitude, float month, Metres heightOfEye,
                                         double airTemperature, double seaTemperature,
                                         float pressure)
{
    AltitudeCorrectionTerms terms;
    terms.dip = -1.776 * SquareRoot(heightOfEye.value());
    terms.refraction = lookedUp(refractions, observedAltitude);
    terms.semiDiameter = 15.75;
    terms.parallax = 0.15 * cos(radiansOf(observedAltitude));
    terms.temperature = temperatureTerm(observedAltitude, airTemperature);
    terms.pressure = pressureTerm(observedAltitude, pressure);
    terms.semiDiameterOfMonth = semiDiameterOfMonth(month);
    terms.airSea = (airTemperature - seaTemperature) * 0.2;
    return terms;
}

double MeanRefraction(Degrees apparentAltitude)
{
    const double h = apparentAltitude.value();
    // The formula passes through 0 just short of the zenith.
    return std::max(0.0, 1 / tan(Degrees(h + 7.31 / (h + 4.4))));
}

DegMin SunAltitudeCorrection(DegMin observedAltitude, float month, Metres heightOfEye,
                             double airTemperature, double seaTemperature, float pressure)
{
    const AltitudeCorrectionTerms terms = SunAltitudeTerms(
        observedAltitude, month, heightOfEye, airTemperature, seaTemperature, pressure);
    const double main = terms.dip - terms.refraction + terms.semiDiameter + terms.parallax;
    const double minutes =
        terms.temperature + main + terms.pressure + terms.semiDiameterOfMonth + terms.airSea;
    return DegToDegMin(DegMinToDeg(observedAltitude) + Degrees(minutes / 60));
}

} // namespace NavFunc113
