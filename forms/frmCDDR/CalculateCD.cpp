// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/CalculateCD.h"

#include "app/Format.h"
#include "app/reading.h"
#include "navlib/sailing.h"

namespace korvel
{

CDResult CalculateCD(const CDInput& input)
{
    const auto& [lat1Text, long1Text, lat2Text, long2Text] = input.txtCDDR;
    if (!IsInRange(lat1Text, "-90", "90") || !IsInRange(long1Text, "-180", "180") ||
        !IsInRange(lat2Text, "-90", "90") || !IsInRange(long2Text, "-180", "180"))
        return {};
    const NavFunc113::DegMin lat1(readNumber(lat1Text));
    const NavFunc113::DegMin long1(readNumber(long1Text));
    const NavFunc113::DegMin lat2(readNumber(lat2Text));
    const NavFunc113::DegMin long2(readNumber(long2Text));

    const auto [course, miles] =
        NavFunc113::RhumbCourseAndDistance(lat1, long1, lat2, long2, input.earth);
    CDResult result;
    result.course = courseText(course);
    // The apostrophe stands before the point here and after it in frmGC2000: both on purpose.
    result.distance = Format(miles, "0'.0");
    result.courseDegrees = course;
    result.miles = miles;
    return result;
}

} // namespace korvel
