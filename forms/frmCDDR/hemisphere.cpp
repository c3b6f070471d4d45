// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/hemisphere.h"

#include "app/reading/Reading.h"
#include "app/records/KORVEL2000Actions.h"

namespace korvel
{

std::optional<std::string> withHemisphere(std::string_view boxText, bool positive)
{
    const double value = readNumber(boxText);
    const bool asChosen = positive ? value >= 0 : value < 0;
    if (asChosen) return std::nullopt;
    return value == 0 ? "0" : memoText(value * -1.0);
}

std::optional<bool> hemisphereOf(std::string_view boxText)
{
    const double value = readNumber(boxText);
    if (value == 0) return std::nullopt;
    return value > 0;
}

} // namespace korvel
