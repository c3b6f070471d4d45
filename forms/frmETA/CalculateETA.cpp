// SPDX-License-Identifier: MIT
#include "forms/frmETA/CalculateETA.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmETA/ETAFields.h"
#include "forms/frmETA/PassageTimes.h"
#include "navlib/arithmetic_error.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace korvel
{
namespace
{

/// Why the input cannot be used; empty when it can.
std::string complaint(const ETAInput& input)
{
    if (std::string why = complaintOnTD(input.txtTD); !why.empty()) return why;
    if (!readDateTime(input.departureDate))
        return complaintOn("departure date", input.departureDate, Due::Date);
    if (!readDateTime(input.departureTime))
        return complaintOn("departure time", input.departureTime, Due::TimeOfDay);
    if (readNumber(input.txtDist) < ETAFields[ETAField::distance].low)
        return "The distance is negative.";
    const double speed = readNumber(input.txtSpeed);
    if (speed < ETAFields[ETAField::speed].low) return "The speed is negative.";
    if (speed > static_cast<double>(std::numeric_limits<float>::max()) ||
        std::isinf(readNumber(input.txtDist)))
        return "A number is too large.";
    return "";
}

/// What was read in another way than it looks.
std::string warningsOn(const ETAInput& input)
{
    Remarks said;
    readField(input.txtTD[0], ETAFields[ETAField::departureTD], said);
    readField(input.txtTD[1], ETAFields[ETAField::arrivalTD], said);
    readField(input.txtDist, ETAFields[ETAField::distance], said);
    readField(input.txtSpeed, ETAFields[ETAField::speed], said);
    warnOfKind("departure date", input.departureDate, Due::Date, said);
    warnOfKind("departure time", input.departureTime, Due::TimeOfDay, said);
    return said.text();
}

std::string arrivalText(NavFunc113::DateTime arrival)
{
    const std::string text = Format(arrival, "MM/dd hh:mm");
    return text.empty() ? text : text + "LT"; // beyond the calendar there is no date to show
}

} // namespace

ETAResult CalculateETA(const ETAInput& input)
{
    if (std::string notice = complaint(input); !notice.empty()) return {std::nullopt, notice};
    const double departure = *passageTime(input.departureDate, input.departureTime);
    const double distance = readNumber(input.txtDist);

    ETALabels labels;
    Passage passage{
        departure, {readNumber(input.txtTD[0]), readNumber(input.txtTD[1])}, distance, {}};
    // Single precision, as the speeds are shown: the arrivals belong to these very values.
    float speed = static_cast<float>(readNumber(input.txtSpeed));
    if (speed == 0)
        return {labels, joined({input.txtDist.empty() ? "" : "The speed is 0: no arrivals",
                                warningsOn(input)})};
    for (std::size_t i = 0; i < labels.lblSPD.size(); ++i, speed += 0.25F) {
        const double hours = NavFunc113::Quotient(distance, static_cast<double>(speed));
        passage.hours[i] = hours;
        labels.lblSPD[i] = Format(static_cast<double>(speed), "0.00 ");
        labels.lblETA[i] = arrivalText(departure + passage.TDChange() / 24 + hours / 24);
    }
    const bool isBlank = std::ranges::any_of(labels.lblETA, &std::string::empty);
    return {labels,
            joined({isBlank ? "An arrival lies beyond the calendar" : "", warningsOn(input)}),
            passage};
}

} // namespace korvel
