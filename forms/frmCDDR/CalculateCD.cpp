// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/CalculateCD.h"

#include "app/reading/Format.h"
#include "forms/frmCDDR/CDDRFields.h"
#include "navlib/sailing/sailing.h"

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

    const auto leg = NavFunc113::RhumbCourseAndDistance(lat1, long1, lat2, long2, input.earth);
    result.course = courseText(leg.course);
    // The apostrophe stands before the point here and after it in frmGC2000: both on purpose.
    result.distance = Format(leg.distance, "0'.0");
    result.leg = leg;
    result.ends = {lat1, long1, lat2, long2};
    return result;
}

} // namespace korvel
