// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PassagePlan.h"

namespace korvel::bench
{

/// Noons of half a degree and one and a half, every third leg a great circle, some stops and zones.
inline PassagePlan planOfRows(std::size_t count)
{
    PassagePlan plan;
    plan.name = "Bench";
    plan.times.time = "2026/11/10 08:00";
    for (std::size_t i = 0; i < count; ++i) {
        PlanRow row;
        row.name = "Waypoint " + std::to_string(i + 1);
        row.latitude = std::to_string(20 + i % 40) + (i % 2 ? ".30" : ".00");
        row.longitude = std::to_string(static_cast<int>(i * 7 % 340) - 170) + ".105";
        row.leg = i % 3 ? LegKind::Rhumb : LegKind::GreatCircle;
        if (i % 5 == 0) row.speed = "14.5";
        if (i % 9 == 4) row.stop = "2.5";
        if (i % 11 == 0) row.zone = std::to_string(static_cast<int>(i % 20) - 9);
        plan.rows.push_back(std::move(row));
    }
    return plan;
}

} // namespace korvel::bench
