// SPDX-License-Identifier: MIT
#include "forms/frmWind/WindWorking.h"

#include "app/records/KORVEL2000Actions.h"

namespace korvel
{

Working trueWindWorking(const WindResult& result)
{
    Working working{"True wind",
                    {"Wind triangle: the true wind is the apparent wind less the wind that the "
                     "ship's own motion makes; directions are those the wind blows from"},
                    {}};
    if (!result.steps) {
        working.whyNone = "Nothing was entered, or the remarks say why there is no result.";
        return working;
    }
    const WindFigures& wind = *result.figures;
    const NavFunc113::TrueWindSteps& steps = *result.steps;
    const std::string apparent = memoText(wind.apparentSpeed);
    const std::string theta = '(' + memoText(wind.relativeDirection) + "°)";
    const std::string ship = memoText(wind.shipSpeed);
    working.step("True wind along the course, from ahead", "x = Va cos θ - Vs",
                 apparent + " × cos " + theta + " - " + ship, figure(steps.ahead, 5), "knots");
    working.step("True wind across the course, from starboard", "y = Va sin θ",
                 apparent + " × sin " + theta, figure(steps.abeam, 5), "knots");
    working.step("True wind from the bow", "tan β = y / x, β in the quadrant of x and y",
                 "arctan(" + term(steps.abeam, 5) + " / " + term(steps.ahead, 5) + ")",
                 figure(steps.fromBow, 5), "°");
    working.step("True wind", "course + β, less or plus 360°",
                 memoText(wind.course) + "° + " + angleTerm(steps.fromBow, 5),
                 figure(steps.direction, 5), "°");
    working.resultStep("True wind from", "point of the compass and whole degrees",
                       result.lblWind[0]);
    working.step("Speed of the true wind", "V = √(Va² + Vs² - 2 Va Vs cos θ)",
                 "√(" + apparent + "² + " + ship + "² - 2 × " + apparent + " × " + ship +
                     " × cos " + theta + ")",
                 figure(wind.trueSpeed, 3), "knots");
    working.resultStep("Force of the true wind",
                       "Beaufort by the knots of the scale, 9 for everything from 41 knots up",
                       result.lblWind[1]);
    return working;
}

} // namespace korvel
