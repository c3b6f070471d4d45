// SPDX-License-Identifier: MIT
#include "forms/frmWeather/CalculateWeather.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "navlib/sea/weather_terms.h"

namespace korvel
{
namespace
{

constexpr double kilometresPerMile = 1.852;

std::string codeAndName(int code, std::string_view name)
{
    return Format(code, "0") + "-" + std::string(name);
}

} // namespace

std::string CalculateSeaState(std::string_view txtWave)
{
    const NavFunc113::Metres height(readNumber(txtWave));
    return codeAndName(NavFunc113::SeaStateCode(height), NavFunc113::SeaStateName(height));
}

std::string CalculateSwell(std::string_view txtSWELL)
{
    return std::string(NavFunc113::SwellTerm(NavFunc113::Metres(readNumber(txtSWELL))));
}

VisibilityResult CalculateVisibility(std::string_view txtVISIBILITY)
{
    const NavFunc113::Kilometres visibility(readNumber(txtVISIBILITY));
    const std::string miles = Format(visibility.value() / kilometresPerMile, "0.#");
    return {
        codeAndName(NavFunc113::VisibilityCode(visibility), NavFunc113::VisibilityName(visibility)),
        miles.empty() ? miles : miles + " nm"};
}

std::string CalculateWeatherTerm(std::size_t optWr)
{
    const auto letters = NavFunc113::WeatherLetters();
    if (optWr >= letters.size()) return {};
    const std::string letter(letters[optWr].letter);
    return letter + " " + std::string(NavFunc113::WeatherName("E", letter)) + " " +
           std::string(NavFunc113::WeatherName("J", letter));
}

std::string remarkOn(std::string_view text, const Field& field)
{
    Remarks remarks;
    readField(text, field, remarks);
    return remarks.text();
}

} // namespace korvel
