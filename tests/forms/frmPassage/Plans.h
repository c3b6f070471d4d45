// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanReckoning.h"

#include <map>
#include <string>

namespace korvel::testing
{

/// A plan as tables of cases write it, rows parted by " / ": "A 0 140 / B 0 -149.15 gc:10 v=13.6":
/// name ("-": none), packed latitude and longitude ("-": nothing typed), then gc, gc:DEGREES,
/// gc:MILESnm, co:LIMIT for circles, v= speed, stop= hours, td= zone, note= remark. "." is an empty
/// row.
std::vector<PlanRow> planRows(const std::string& text);

/// "dep utc 2038/7/23 04:30", "arr ship 2024/3/1 12:00".
PlanTimes planTimes(const std::string& text);

/// The rows in that form again.
std::string rowsText(const std::vector<PlanRow>& rows);

/// The texts that the plan shows: "2.eta", "2.zone", "2.course", "total.distance", "notice" ..
std::map<std::string, std::string> shownTexts(const PlanReckoning& plan);

} // namespace korvel::testing
