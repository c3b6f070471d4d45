// SPDX-License-Identifier: MIT
#include "navlib/sea/current.h"

#include "navlib/angles.h"

#include <cmath>

namespace NavFunc113
{

HorizontalMotion MadeGood(const HorizontalMotion& throughWater, const HorizontalMotion& current)
{
    const auto& [course, speed] = throughWater;
    const auto& [set, drift] = current;
    const double east = speed.value() * sin(course) + drift.value() * sin(set);
    const double north = speed.value() * cos(course) + drift.value() * cos(set);
    const double overGround = std::hypot(east, north);
    if (!std::isfinite(overGround)) throw ArithmeticError(ArithmeticError::Condition::Overflow);
    // What is left of opposite and equal speeds by rounding has no direction.
    if (overGround <= 1e-9 * (speed + drift).value()) return {};
    return {CourseOfParts(east, north), Knots(overGround)};
}

std::optional<SteeredTrack> CourseThroughCurrent(Degrees track, Knots speed,
                                                 const HorizontalMotion& current)
{
    if (std::isnan(speed.value())) throwInvalidArgument();
    const Degrees angle = current.direction - track;
    const double across = current.speed.value() * sin(angle);    // towards starboard of the track
    if (std::fabs(across) >= speed.value()) return std::nullopt; // it is carried aside
    const Radians against(std::asin(-across / speed.value()));
    const Knots madeGood(speed.value() * cos(against) + current.speed.value() * cos(angle));
    if (!(madeGood > Knots(0))) return std::nullopt;
    const Degrees course = track + RadToDeg(against);
    return SteeredTrack{CourseOfParts(sin(course), cos(course)), madeGood};
}

} // namespace NavFunc113
