// SPDX-License-Identifier: MIT
#include "app/working/Working.h"

#include "app/reading/Format.h"
#include "navlib/angles.h"

#include <cmath>

namespace korvel
{

void Working::step(std::string name, std::string formula, std::string figures, std::string value,
                   std::string unit)
{
    steps.push_back({std::move(name), std::move(formula), std::move(figures), std::move(value),
                     std::move(unit)});
}

void Working::angleStep(const std::string& name, const std::string& symbol,
                        NavFunc113::DegMin angle)
{
    step(name, symbol + " = degrees + minutes / 60", angleFigures(angle),
         figure(NavFunc113::DegMinToDeg(angle), 6), "°");
}

std::string Working::angleFigures(NavFunc113::DegMin angle)
{
    const double degrees = std::trunc(angle.packed());
    // The packed form is a decimal text: what a double adds to it is no part of the minutes.
    const double minutes = std::fabs(angle.packed() - degrees) * 100;
    const bool isNegative = angle.packed() < 0;
    return (isNegative ? "-(" : "") + Format(std::fabs(degrees), "0") + " + " +
           Format(minutes, "0.0#######") + " / 60" + (isNegative ? ")" : "");
}

void Working::resultStep(const std::string& name, const std::string& from, const std::string& shown,
                         std::string unit)
{
    step(name, "shown in the window as", from, shown, std::move(unit));
}

std::string figure(double value, int decimals)
{
    const std::string digits(static_cast<std::size_t>(decimals), '0');
    std::string text = Format(value, decimals > 0 ? "0." + digits : "0");
    // What rounds to nothing has no sign.
    if (text.starts_with('-') && text.find_first_of("123456789") == text.npos) text.erase(0, 1);
    return text;
}

std::string directionFigure(NavFunc113::Degrees direction, int decimals)
{
    const std::string text = figure(direction, decimals);
    return text == figure(NavFunc113::fullTurn, decimals) ? figure(0, decimals) : text;
}

} // namespace korvel
