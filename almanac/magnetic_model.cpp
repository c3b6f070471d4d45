// SPDX-License-Identifier: MIT
#include "almanac/magnetic_model.h"
#include "almanac/vectors.h"
#include "navlib/angles.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace almanac
{
namespace
{

using NavFunc113::DegToRad;
using NavFunc113::Radians;
using NavFunc113::RadToDeg;

struct FieldTerm {
    int n, m;
    double g, h, gChange, hChange;
};
constexpr FieldTerm fieldTerms[] = {
#include "wmm2025.inc"
};

/// Schmidt's semi-normalised functions of the sine of a latitude, what they change with the
/// latitude, and, for m of 1 and more, their quotient by its cosine, which stays finite at the
/// poles.
struct SchmidtFunctions {
    using Table = double[MagneticModel::degree + 1][MagneticModel::degree + 1];
    Table value{}, slope{}, byCosine{};

    explicit SchmidtFunctions(double latitude)
    {
        const double s = std::sin(latitude), c = std::cos(latitude);
        value[0][0] = 1;
        for (int n = 1; n <= MagneticModel::degree; ++n) {
            for (int m = 0; m < n; ++m)
                stepUp(n, m, s, c);
            const double k = n == 1 ? 1 : std::sqrt((2.0 * n - 1) / (2.0 * n));
            byCosine[n][n] = n == 1 ? 1 : k * c * byCosine[n - 1][n - 1];
            value[n][n] = k * c * value[n - 1][n - 1];
            slope[n][n] = k * (c * slope[n - 1][n - 1] - s * value[n - 1][n - 1]);
        }
    }

private:
    void stepUp(int n, int m, double s, double c)
    {
        const double a = (2 * n - 1) / std::sqrt(n * n - m * m);
        const double b =
            n - 1 > m ? std::sqrt(((n - 1) * (n - 1) - m * m) / double(n * n - m * m)) : 0;
        const auto before = [&](const Table& table) { return b > 0 ? b * table[n - 2][m] : 0; };
        value[n][m] = a * s * value[n - 1][m] - before(value);
        byCosine[n][m] = a * s * byCosine[n - 1][m] - before(byCosine);
        slope[n][m] = a * (c * value[n - 1][m] + s * slope[n - 1][m]) - before(slope);
    }
};

std::string yearText(double year)
{
    char text[32];
    const auto end = std::to_chars(text, std::end(text), year, std::chars_format::fixed, 1);
    return {text, end.ptr};
}

struct Geocentric {
    double latitude; ///< radians
    double radius;   ///< kilometres
};

Geocentric geocentricOf(Degrees latitude, double kilometres)
{
    constexpr double a = 6378.137, f = 1 / 298.257223563, e2 = f * (2 - f);
    const double phi = DegToRad(latitude).value();
    const double normal = a / std::sqrt(1 - e2 * std::sin(phi) * std::sin(phi));
    const double fromAxis = (normal + kilometres) * std::cos(phi);
    const double fromEquator = (normal * (1 - e2) + kilometres) * std::sin(phi);
    return {std::atan2(fromEquator, fromAxis), std::hypot(fromAxis, fromEquator)};
}

} // namespace

std::string_view describe(CompassZone zone)
{
    switch (zone) {
    case CompassZone::Caution:
        return "the horizontal field is below 6000 nT: the magnetic compass may be unreliable here";
    case CompassZone::Unreliable:
        return "the horizontal field is below 2000 nT, near a magnetic pole: the magnetic compass "
               "is not to be used here";
    default:
        return "";
    }
}

const MagneticModel& MagneticModel::ofProgram()
{
    static const MagneticModel model = [] {
        MagneticModel made;
        made.m_name = "WMM-2025";
        made.m_epoch = 2025;
        for (const FieldTerm& term : fieldTerms)
            made.m_coefficients.at(indexOf(term.n, term.m)) = {term.g, term.h, term.gChange,
                                                               term.hChange};
        return made;
    }();
    return model;
}

void MagneticModel::requireRange(const MagneticPoint& point) const
{
    if (!(point.year >= firstYear() && point.year <= lastYear()))
        throw OutOfRange(m_name + " holds for " + yearText(firstYear()) + " to " +
                         yearText(lastYear()) + ": beyond that the field is not known");
    if (!(std::fabs(point.latitude.value()) <= 90))
        throw OutOfRange("a latitude is from -90 to 90");
    if (!(std::fabs(point.longitude.value()) <= 360))
        throw OutOfRange("a longitude is from -360 to 360");
    if (!(point.kilometres >= -1 && point.kilometres <= 850))
        throw OutOfRange(m_name + " holds for heights from -1 to 850 km");
}

MagneticField MagneticModel::field(const MagneticPoint& point) const
{
    requireRange(point);
    constexpr double referenceRadius = 6371.2;
    const double years = point.year - m_epoch;
    const double lambda = DegToRad(point.longitude).value();
    const Geocentric at = geocentricOf(point.latitude, point.kilometres);
    const SchmidtFunctions P(at.latitude);

    // North, east, down, along the geocentric vertical; of the field and of its yearly change.
    Vector now{}, change{};
    double power = std::pow(referenceRadius / at.radius, 2);
    for (int n = 1; n <= degree; ++n) {
        power *= referenceRadius / at.radius;
        for (int m = 0; m <= n; ++m) {
            const Coefficient& k = m_coefficients[indexOf(n, m)];
            const double c = power * std::cos(m * lambda), s = power * std::sin(m * lambda);
            const auto add = [&](Vector& sum, double g, double h) {
                const double along = g * c + h * s;
                sum = sum + Vector{-along * P.slope[n][m], m * (g * s - h * c) * P.byCosine[n][m],
                                   -(n + 1) * along * P.value[n][m]};
            };
            add(now, k.g + k.gChange * years, k.h + k.hChange * years);
            add(change, k.gChange, k.hChange);
        }
    }
    const double turn = at.latitude - DegToRad(point.latitude).value();
    const auto turned = [&](const Vector& v) {
        return Vector{v[0] * std::cos(turn) - v[2] * std::sin(turn), v[1],
                      v[0] * std::sin(turn) + v[2] * std::cos(turn)};
    };
    now = turned(now);
    change = turned(change);
    const double level = now[0] * now[0] + now[1] * now[1];
    const double rate = level > 0 ? (now[0] * change[1] - now[1] * change[0]) / level : 0;
    return {now[0],
            now[1],
            now[2],
            std::sqrt(level),
            RadToDeg(Radians(std::atan2(now[1], now[0]))),
            RadToDeg(Radians(rate))};
}

Variation MagneticModel::variation(const MagneticPoint& point) const
{
    constexpr double cautionBelow = 6000, unreliableBelow = 2000;
    const MagneticField at = field(point);
    const double ofHeading = at.horizontal > 0 ? 5417 / at.horizontal : 180;
    const CompassZone zone = at.horizontal < unreliableBelow ? CompassZone::Unreliable
                             : at.horizontal < cautionBelow  ? CompassZone::Caution
                                                             : CompassZone::Reliable;
    return {at.declination, Degrees(std::min(180.0, std::hypot(0.26, ofHeading))),
            at.declinationChange, at.horizontal, zone};
}

} // namespace almanac
