// SPDX-License-Identifier: MIT
#include "forms/frmETA/CalculateReqSpd.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmETA/ETAFields.h"
#include "forms/frmETA/PassageTimes.h"
#include "navlib/arithmetic_error.h"

#include <cmath>

namespace korvel
{
namespace
{

/// Why the input cannot be used; empty when it can.
std::string complaint(const ReqSpdInput& input)
{
    struct Box {
        const char* name;
        Due due;
    };
    constexpr std::array<Box, 4> boxes = {{{"departure date", Due::Date},
                                           {"departure time", Due::TimeOfDay},
                                           {"arrival date", Due::Date},
                                           {"arrival time", Due::TimeOfDay}}};
    for (std::size_t i = 0; i < boxes.size(); ++i)
        if (!readDateTime(input.txtTime[i]))
            return complaintOn(boxes[i].name, input.txtTime[i], boxes[i].due);
    if (std::string why = complaintOnTD(input.txtTD); !why.empty()) return why;
    if (readNumber(input.txtDist) < ETAFields[ETAField::distance].low)
        return "The distance is negative.";
    if (std::isinf(readNumber(input.txtDist))) return "A number is too large.";
    return "";
}

std::string remarksOnArrival(const ReqSpdInput& input)
{
    Remarks said;
    warnOfKind("arrival date", input.txtTime[2], Due::Date, said);
    warnOfKind("arrival time", input.txtTime[3], Due::TimeOfDay, said);
    return said.text();
}

} // namespace

ReqSpdResult CalculateReqSpd(const ReqSpdInput& input)
{
    if (input.txtTime[2].empty() && input.txtTime[3].empty()) return {}; // nobody asks for a speed
    const std::string onArrival = remarksOnArrival(input);
    // What disturbs the table of arrivals too is said with that.
    const auto refused = [&](const std::string& why) -> ReqSpdResult {
        return {std::nullopt, onArrival.empty() ? why : onArrival + "."};
    };
    if (const std::string notice = complaint(input); !notice.empty()) return refused(notice);
    const double departure =
        *passageTime(input.txtTime[0], input.txtTime[1]) - readNumber(input.txtTD[0]) / 24;
    const double arrival =
        *passageTime(input.txtTime[2], input.txtTime[3]) - readNumber(input.txtTD[1]) / 24;
    // Within half a second they are one moment, whatever the last bits of their fractions are.
    const double hours = (arrival - departure) * 24;
    if (hours * 3600 < 0.5) return refused("The arrival does not lie after the departure.");
    const double distance = readNumber(input.txtDist);
    return {Format(NavFunc113::Quotient(distance, hours), "0.00"),
            onArrival,
            departure,
            arrival,
            distance,
            NavFunc113::Hours(hours),
            {readNumber(input.txtTD[0]), readNumber(input.txtTD[1])}};
}

} // namespace korvel
