// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassTexts.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"
#include "navlib/angles.h"

#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

} // namespace

std::string eastWestText(Degrees angle)
{
    std::string figure = Format(fabs(angle), "0.0");
    if (figure == "0.0") return figure;
    return figure + (angle > Degrees(0) ? " E" : " W");
}

std::string gyroErrorText(Degrees error)
{
    const std::string text = eastWestText(error);
    if (text.ends_with('E')) return text + " (low)";
    return text.ends_with('W') ? text + " (high)" : text;
}

bool isBlankBox(std::string_view box)
{
    return box.find_first_not_of(" \t") == std::string_view::npos;
}

std::optional<double> readFilled(std::string_view box, const Field& field, Remarks& remarks)
{
    const NumberField number{field.words, field.low, field.high, field.unit};
    return readIfTyped(box, number, remarks);
}

std::optional<Degrees> readCoordinate(std::string_view box, const Field& field, Remarks& remarks)
{
    const NumberField number{field.words, field.low, field.high, field.unit, field.kind};
    const auto packed = readAngleIfTyped(box, number, remarks);
    if (!packed) return std::nullopt;
    return DegMinToDeg(*packed);
}

std::optional<Degrees> readEastWest(std::string_view box, const Field& field, Remarks& remarks)
{
    std::string typed = asciiForms(box);
    typed.erase(typed.find_last_not_of(" \t") + 1);
    const char letter = typed.empty() ? ' ' : typed.back();
    const bool isEast = letter == 'E' || letter == 'e', isWest = letter == 'W' || letter == 'w';
    if (isEast || isWest) typed.pop_back();
    typed.erase(typed.find_last_not_of(" \t") + 1);
    constexpr std::string_view degreeSign = "°";
    if (typed.ends_with(degreeSign)) typed.resize(typed.size() - degreeSign.size());
    const auto value = readFilled(typed, field, remarks);
    if (!value) return std::nullopt;
    if ((isEast || isWest) && *value < 0) {
        remarks.fault(std::string(field.words) + ": a minus and a letter, write one of them");
        return std::nullopt;
    }
    return Degrees(isWest ? -*value : *value);
}

} // namespace korvel
