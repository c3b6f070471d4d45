// SPDX-License-Identifier: MIT
#include "forms/frmWind/CalculateWind.h"

#include "app/reading/Format.h"
#include "forms/frmWind/WindFields.h"
#include "navlib/sea/wind.h"

namespace korvel
{
WindResult CalculateWind(const std::array<std::string, 4>& txtWind)
{
    WindResult result;
    Remarks remarks;
    const auto read = readFields(txtWind, std::span(WindFields), remarks);
    result.notice = remarks.text();
    if (!read) return result;
    WindFigures wind;
    wind.course = NavFunc113::Degrees((*read)[0]);
    wind.shipSpeed = NavFunc113::Knots((*read)[1]);
    wind.relativeDirection = NavFunc113::Degrees((*read)[2]);
    wind.apparentSpeed = NavFunc113::Knots((*read)[3]);
    const auto steps = NavFunc113::TrueWindFromBow(wind.course, wind.shipSpeed,
                                                   wind.relativeDirection, wind.apparentSpeed);
    wind.trueDirection = steps.direction;
    wind.trueSpeed =
        NavFunc113::TrueWindSpeed(wind.shipSpeed, wind.relativeDirection, wind.apparentSpeed);
    const std::string name = NavFunc113::TrueWindName(wind.course, wind.shipSpeed,
                                                      wind.relativeDirection, wind.apparentSpeed);
    const int beaufort = NavFunc113::BeaufortNumber(wind.trueSpeed);

    result.lblWind = {name + " <" + Format(wind.trueDirection, "000") + ">",
                      "Beaufort " + Format(beaufort, "0") + " (" +
                          Format(wind.trueSpeed, "0.0Kn)")};
    result.figures = wind;
    result.steps = steps;
    return result;
}

} // namespace korvel
