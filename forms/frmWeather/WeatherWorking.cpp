// SPDX-License-Identifier: MIT
#include "forms/frmWeather/WeatherWorking.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "navlib/sea/weather_terms.h"

#include <span>

namespace korvel
{
namespace
{

std::string boundsText(std::span<const double> bounds)
{
    std::string text;
    for (const double bound : bounds)
        text += (text.empty() ? "" : ", ") + Format(bound, "0.##");
    return text;
}

std::string typedFigure(std::string_view text)
{
    return Format(readNumber(text), "0.######");
}

} // namespace

Working weatherWorking(std::string_view txtWave, std::string_view txtSWELL,
                       std::string_view txtVISIBILITY, const WeatherShown& shown)
{
    Working working{"Terms of the log", {"Scales of the log by their bounds, as below"}, {}};
    if (!shown.wave.empty())
        working.step("Sea state",
                     "0 for 0 m, then the first state whose greatest height is not exceeded: " +
                         boundsText(NavFunc113::SeaStateHeights()) + " m for 1 to 8, else 9",
                     typedFigure(txtWave) + " m", shown.wave);
    if (!shown.swell.empty())
        working.step("Swell", "none to 0 m, slight below 2 m, moderate or rough below 4 m, heavy",
                     typedFigure(txtSWELL) + " m", shown.swell);
    if (!shown.visibility.empty()) {
        working.step("Visibility",
                     "the last code whose least distance is reached: " +
                         boundsText(NavFunc113::VisibilityDistances()) + " km for 1 to 9, else 0",
                     typedFigure(txtVISIBILITY) + " km", shown.visibility);
        working.step("The same in miles", "km / 1.852, 1 nm = 1852 m",
                     typedFigure(txtVISIBILITY) + " / 1.852", shown.miles);
    }
    if (!shown.letter.empty())
        working.step("Weather", "the letter that was chosen, with its names",
                     shown.letter.substr(0, shown.letter.find(' ')), shown.letter);
    if (working.steps.empty()) working.whyNone = "Nothing was entered.";
    return working;
}

} // namespace korvel
