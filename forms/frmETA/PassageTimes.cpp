// SPDX-License-Identifier: MIT
#include "forms/frmETA/PassageTimes.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmETA/ETAFields.h"

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

std::string complaintOnTD(const std::array<std::string, 2>& boxes)
{
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const Field& TD = ETAFields[ETAField::departureTD + i];
        if (!isTD(boxes[i]))
            return std::string(TD.caption) + " is not within " + Format(TD.low, "0.######") +
                   " to " + Format(TD.high, "0.######") + ".";
    }
    return {};
}

bool isTD(std::string_view box)
{
    constexpr const char* plain = "0.######";
    const Field& TD = ETAFields[ETAField::departureTD];
    return IsInRange(box, Format(TD.low, plain), Format(TD.high, plain));
}

std::string TDAndZDText(std::string_view box)
{
    if (!isTD(box)) return "";
    const double TD = readNumber(box);
    return "TD " + signedHours(TD) + ", ZD " + signedHours(-TD);
}

} // namespace korvel
