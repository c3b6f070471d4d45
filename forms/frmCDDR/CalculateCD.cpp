// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/CalculateCD.h"

#include "app/Format.h"
#include "forms/frmCDDR/CDDRFields.h"
#include "navlib/sailing.h"

namespace korvel
{

CDResult CalculateCD(const CDInput& input)
{
    CDResult result;
    Remarks remarks;
    const auto read = readFields(input.txtCDDR, std::span(CDDRFields).first<4>(), remarks);
    result.notice = remarks.text();
    if (!read) return result;
    const NavFunc113::DegMin lat1((*read)[0]), long1((*read)[1]), lat2((*read)[2]),
        long2((*read)[3]);

    const auto [course, miles] =
        NavFunc113::RhumbCourseAndDistance(lat1, long1, lat2, long2, input.earth);
    result.course = courseText(course);
    // The apostrophe stands before the point here and after it in frmGC2000: both on purpose.
    result.distance = Format(miles, "0'.0");
    result.courseDegrees = course;
    result.miles = miles;
    return result;
}

} // namespace korvel
