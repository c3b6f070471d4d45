// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/CalculateDR.h"

#include "app/Format.h"
#include "app/reading.h"
#include "navlib/arithmetic_error.h"
#include "navlib/sailing.h"

#include <cmath>

namespace korvel
{
namespace
{

/// Half the earth's circumference: no dead reckoning goes further.
constexpr const char* longestDistance = "10800";

} // namespace

DRResult CalculateDR(const DRInput& input)
{
    const auto& [latText, longText, courseText, distanceText] = input.txtCDDR;
    if (!IsInRange(latText, "-90", "90") || !IsInRange(longText, "-180", "180") ||
        !IsInRange(courseText, "0", "360") || !IsInRange(distanceText, "0", longestDistance))
        return {};
    const NavFunc113::DegMin lat(readNumber(latText));
    const NavFunc113::DegMin longitude(readNumber(longText));
    const NavFunc113::Degrees course(readNumber(courseText));
    const NavFunc113::Miles distance(readNumber(distanceText));

    DRResult result;
    const NavFunc113::DegMin reached = NavFunc113::DRLatitude(lat, course, distance, input.earth);
    result.latitudeReached = reached;
    result.latitude = Format(reached, "00-.00'0N;00-.00'0S");
    if (std::fabs(reached.packed()) > 90) {
        result.notice = "The track crosses a pole: no longitude.";
        return result;
    }
    try {
        const NavFunc113::DegMin east =
            NavFunc113::DRLongitude(lat, longitude, course, distance, input.earth, reached);
        result.longitudeReached = east;
        result.longitude = Format(east, "000-.00'0E;000-.00'0W");
    } catch (const NavFunc113::ArithmeticError& error) {
        result.notice = std::string("The longitude cannot be calculated from these figures (") +
                        error.what() + ").";
    }
    return result;
}

} // namespace korvel
