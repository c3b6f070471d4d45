// SPDX-License-Identifier: MIT
#include "forms/frmETA/PassageTimes.h"

#include "app/Format.h"
#include "app/reading.h"

#include <cmath>

namespace korvel
{
namespace
{

std::string signedHours(double hours)
{
    return hours == 0 ? "0" : Format(hours, "+0.##;-0.##");
}

} // namespace

std::optional<NavFunc113::DateTime> passageTime(std::string_view date, std::string_view time)
{
    const auto day = readDateTime(date);
    const auto clock = readDateTime(time);
    if (!day || !clock) return std::nullopt;
    return std::floor(*day) + (*clock - std::floor(*clock));
}

bool isTD(std::string_view box)
{
    return IsInRange(box, "-12", "12");
}

std::string TDAndZDText(std::string_view box)
{
    if (!isTD(box)) return "";
    const double TD = readNumber(box);
    return "TD " + signedHours(TD) + ", ZD " + signedHours(-TD);
}

} // namespace korvel
