// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/CalculateDR.h"

#include "app/reading/Format.h"
#include "forms/frmCDDR/CDDRFields.h"
#include "navlib/arithmetic_error.h"
#include "navlib/sailing/sailing.h"

#include <cmath>

namespace korvel
{
DRResult CalculateDR(const DRInput& input)
{
    DRResult result;
    Remarks remarks;
    const auto read = readFields(input.txtCDDR, std::span(CDDRFields).last<4>(), remarks);
    result.notice = remarks.text();
    if (!read) return result;
    const NavFunc113::DegMin lat((*read)[0]), longitude((*read)[1]);
    const NavFunc113::Degrees course((*read)[2]);
    const NavFunc113::Miles distance((*read)[3]);

    result.start = {lat, longitude};
    result.course = course;
    result.distance = distance;
    result.latitudeRun = NavFunc113::RunInLatitude(lat, course, distance, input.earth);
    const NavFunc113::DegMin reached = result.latitudeRun->reached;
    result.latitudeReached = reached;
    result.latitude = Format(reached, "00-.00'0N;00-.00'0S");
    if (std::fabs(reached.packed()) > 90) {
        result.notice = joined({result.notice, "The track crosses a pole: no longitude."});
        return result;
    }
    try {
        result.longitudeRun =
            NavFunc113::RunInLongitude(lat, longitude, course, distance, input.earth, reached);
        const NavFunc113::DegMin east = result.longitudeRun->reached;
        result.longitudeReached = east;
        result.longitude = Format(east, "000-.00'0E;000-.00'0W");
    } catch (const NavFunc113::ArithmeticError& error) {
        result.notice = joined(
            {result.notice, std::string("The longitude cannot be calculated from these figures (") +
                                error.what() + ")."});
    }
    return result;
}

} // namespace korvel
