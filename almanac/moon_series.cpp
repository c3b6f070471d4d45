// SPDX-License-Identifier: MIT
#include "almanac/series.h"

#include <array>
#include <cmath>

namespace almanac
{
namespace
{

enum class MoonCoordinate { L, B, R };

struct MoonTerm {
    MoonCoordinate coordinate;
    int power;
    double amplitude; ///< seconds of arc; km for R
    double phase;     ///< radians
    double speed;     ///< radians a century
    double speedChange;
};

constexpr auto moonTerms = [] {
    using enum MoonCoordinate;
    return std::to_array<MoonTerm>({
#include "moon.inc"
    });
}();

constexpr double radiansOfSecond = 3.14159265358979323846 / 648000;

double meanLongitude(double T)
{
    return 3.8103440908308803 +
           T * (8399.68473007193 + T * (-0.00003318952042550094 +
                                        T * (3.1102494491060616e-8 + T * -2.0328237648922845e-10)));
}

/// From the mean ecliptic of date to that of J2000.0, the departure point kept (Laskar 1986).
Vector eclipticOf2000(const Vector& date, double T)
{
    const double p =
        T * (0.10180391e-4 +
             T * (0.47020439e-6 + T * (-0.5417367e-9 + T * (-0.2507948e-11 + T * 0.463486e-14))));
    const double q =
        T * (-0.113469002e-3 +
             T * (0.12372674e-6 + T * (0.12654170e-8 + T * (-0.1371808e-11 + T * -0.320334e-14))));
    const double k = std::sqrt(1 - p * p - q * q);
    return Matrix{{{1 - 2 * p * p, 2 * p * q, 2 * p * k},
                   {2 * p * q, 1 - 2 * q * q, -2 * q * k},
                   {-2 * p * k, 2 * q * k, 1 - 2 * p * p - 2 * q * q}}} *
           date;
}

// From the ecliptic of J2000.0 to ICRS, by the constants that ERFA's earth has too.
constexpr Matrix icrsOfEcliptic{{{1.000000000000, 0.000000211284, -0.000000091603},
                                 {-0.000000230286, 0.917482137087, -0.397776982902},
                                 {0.000000000000, 0.397776982902, 0.917482137087}}};

} // namespace

Vector geocentricMoon(double daysTT)
{
    const double T = daysTT / 36525;
    double sums[3] = {};
    for (const MoonTerm& term : moonTerms)
        sums[static_cast<std::size_t>(term.coordinate)] +=
            (term.power == 0 ? 1 : T) * term.amplitude *
            std::sin(term.phase + T * (term.speed + T * term.speedChange));
    const Vector ofDate =
        fromPolar(meanLongitude(T) + sums[0] * radiansOfSecond, sums[1] * radiansOfSecond, sums[2]);
    return icrsOfEcliptic * eclipticOf2000(ofDate, T);
}

} // namespace almanac
