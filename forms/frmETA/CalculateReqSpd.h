// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <array>
#include <optional>
#include <string>

namespace korvel
{

struct ReqSpdInput {
    std::array<std::string, 4> txtTime; ///< departure date and time, arrival date and time
    std::array<std::string, 2> txtTD;   ///< at departure, at arrival
    std::string txtDist;
};

struct ReqSpdResult {
    std::optional<std::string> speed; ///< knots; nothing: the label stays as it was, shown dimmed
    std::string notice;               ///< why it stays; empty when it does not
    NavFunc113::DateTime departure{}; ///< UTC, when there is a speed
    NavFunc113::DateTime arrival{};   ///< UTC, when there is a speed
    double distance{};                ///< nautical miles
    NavFunc113::Hours hours = {};
    std::array<double, 2> TD = {}; ///< hours, at departure and arrival
};

/// Speed that covers the distance between two local times. Input that cannot be used, an arrival
/// that does not lie after the departure included, keeps the label; empty arrival boxes do so
/// without a notice.
ReqSpdResult CalculateReqSpd(const ReqSpdInput& input);

} // namespace korvel
