// SPDX-License-Identifier: MIT
#include "forms/frmETA/PassageTimes.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"

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

std::string complaintOn(std::string_view name, std::string_view box, Due due)
{
    return "The " + std::string(name) + ": " + readTypedTime(box, due).remark + ".";
}

void warnOfKind(std::string_view name, std::string_view box, Due due, Remarks& said)
{
    const std::string remark = readTypedTime(box, due).remark;
    if (!remark.empty()) said.warn("The " + std::string(name) + ": " + remark);
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
