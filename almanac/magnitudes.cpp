// SPDX-License-Identifier: MIT
#include "almanac/magnitudes.h"
#include "almanac/place_vector.h"

#include <algorithm>
#include <cmath>

namespace almanac
{
namespace
{

constexpr double radiiOfUnit = 149597870.7 / 6378.137; // of the earth in an astronomical unit

double venus(double phase)
{
    if (phase > 163.7) return 236.05828 - 2.81914 * phase + 8.39034e-3 * phase * phase;
    return -4.384 +
           phase * (-1.044e-3 + phase * (3.687e-4 + phase * (-2.814e-6 + phase * 8.938e-9)));
}

double saturn(double phase, double sineOfTilt)
{
    return -8.914 - 1.825 * sineOfTilt + 0.026 * phase -
           0.378 * sineOfTilt * std::exp(-2.25 * phase);
}

/// Sine of the angle at which the rings are seen, the mean of earth and Sun; 0 when they look at
/// different sides, where the rings are dark.
double tiltOfRings(const Vector& fromEarth, const Vector& fromSun)
{
    const Vector pole{0.08547883, 0.07323576, 0.99364475}; // of Saturn, equator of 2000
    const double product = dot(pole, unit(fromEarth)) * dot(pole, unit(fromSun));
    return std::sqrt(std::max(0.0, product));
}

double planetAtUnit(Body planet, double phase, const Vector& fromEarth, const Vector& fromSun)
{
    switch (planet) {
    case Body::Mars:
        return -1.601 + 2.267e-2 * phase - 1.302e-4 * phase * phase;
    case Body::Jupiter:
        return -9.395 - 3.7e-4 * phase + 6.16e-4 * phase * phase;
    case Body::Saturn:
        return saturn(phase, tiltOfRings(fromEarth, fromSun));
    default:
        return venus(phase);
    }
}

} // namespace

std::optional<double> magnitudeOf(Body body, const Sky& sky)
{
    const BodyEntry& entry = entryOf(body);
    if (entry.kind != BodyKind::Planet) return entry.magnitude;
    const Vector fromEarth = placeVector(sky.place(body));
    const Vector fromSun = fromEarth - placeVector(sky.place(Body::Sun));
    const double cosine = std::clamp(dot(unit(fromEarth), unit(fromSun)), -1.0, 1.0);
    const double phase = NavFunc113::RadToDeg(NavFunc113::Radians(std::acos(cosine))).value();
    const double distances = length(fromEarth) * length(fromSun) / (radiiOfUnit * radiiOfUnit);
    return planetAtUnit(body, phase, fromEarth, fromSun) + 5 * std::log10(distances);
}

} // namespace almanac
