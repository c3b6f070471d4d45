// SPDX-License-Identifier: MIT
#include "forms/frmWind/CalculateWind.h"

#include "app/Format.h"
#include "app/reading.h"
#include "navlib/wind.h"

namespace korvel
{
namespace
{

/// A speed has no upper bound, so it bounds itself; what is no number is in no range.
bool isSpeed(const std::string& box)
{
    return IsInRange(box, "0", box);
}

} // namespace

WindResult CalculateWind(const std::array<std::string, 4>& txtWind)
{
    if (!IsInRange(txtWind[0], "0", "360") || !isSpeed(txtWind[1]) ||
        !IsInRange(txtWind[2], "-180", "180") || !isSpeed(txtWind[3]))
        return {};
    WindFigures wind;
    wind.course = NavFunc113::Degrees(readNumber(txtWind[0]));
    wind.shipSpeed = NavFunc113::Knots(readNumber(txtWind[1]));
    wind.relativeDirection = NavFunc113::Degrees(readNumber(txtWind[2]));
    wind.apparentSpeed = NavFunc113::Knots(readNumber(txtWind[3]));
    wind.trueDirection = NavFunc113::TrueWindDirection(wind.course, wind.shipSpeed,
                                                       wind.relativeDirection, wind.apparentSpeed);
    wind.trueSpeed =
        NavFunc113::TrueWindSpeed(wind.shipSpeed, wind.relativeDirection, wind.apparentSpeed);
    const std::string name = NavFunc113::TrueWindName(wind.course, wind.shipSpeed,
                                                      wind.relativeDirection, wind.apparentSpeed);
    const int beaufort = NavFunc113::BeaufortNumber(wind.trueSpeed);

    return {{name + " <" + Format(wind.trueDirection, "000") + ">",
             "Beaufort " + Format(beaufort, "0") + " (" + Format(wind.trueSpeed, "0.0Kn)")},
            wind};
}

} // namespace korvel
