// SPDX-License-Identifier: MIT
#include "navlib/sailing/compass.h"

#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace NavFunc113
{

Degrees DipOfHorizon(Metres heightOfEye)
{
    return Degrees(1.776 * SquareRoot(heightOfEye.value()) / 60);
}

Degrees BearingAtAltitude(Degrees latitude, Degrees declination, Degrees altitude, bool rising)
{
    const double cosBearing =
        Quotient(sin(declination) - sin(latitude) * sin(altitude), cos(latitude) * cos(altitude));
    constexpr double ofRounding = 1e-12; // due north and south are a cosine of 1
    if (std::fabs(cosBearing) > 1 + ofRounding) throwInvalidArgument();
    const Degrees fromNorth = RadToDeg(Radians(std::acos(std::clamp(cosBearing, -1.0, 1.0))));
    return rising || fromNorth == Degrees(0) ? fromNorth : fullTurn - fromNorth;
}

Degrees BearingChangeOfMinute(Degrees latitude, Degrees altitude, Degrees bearing)
{
    const double tangent = Quotient(sin(altitude), cos(altitude));
    return Degrees(0.25 * (sin(latitude) - cos(latitude) * tangent * cos(bearing)));
}

Degrees GyroSpeedError(Degrees course, Knots speed, Degrees latitude)
{
    constexpr double turningOfEarth = 900; // knots at the equator
    const double eastward = turningOfEarth * cos(latitude) + speed.value() * sin(course);
    if (!(eastward > 0)) throwInvalidArgument();
    return -RadToDeg(Radians(std::atan(speed.value() * cos(course) / eastward)));
}

} // namespace NavFunc113
