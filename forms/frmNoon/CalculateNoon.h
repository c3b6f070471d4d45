// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"
#include "forms/frmPassage/PlanReckoning.h"
#include "forms/frmPositionRecord/PositionRecord.h"

#include <array>

/// The noon report: from the record of positions and the passage plan, nothing typed twice.
namespace korvel
{

/// The boxes as typed; an empty one takes what record and plan say.
struct NoonBoxes {
    std::array<std::string, 2> fixes; ///< rows of the record; empty: the last two at noon
    std::string fullAway;             ///< row of the record where the passage began
    std::string stopped;              ///< hours
    std::string next;                 ///< row of the plan that comes next
    std::string toGo;                 ///< miles, where there is no plan
    std::string portTD; ///< hours; empty: that of the plan's last row, else the ship's
    std::array<std::string, 3> speeds;  ///< knots; the first empty: the day's average
    std::string wanted;                 ///< arrival, port time
    std::string pitch;                  ///< metres
    std::array<std::string, 2> counter; ///< revolutions, at both fixes
    std::string wake;                   ///< fraction, 0 to 1
    std::array<std::string, 3> before;  ///< fuel on board, tons
    std::array<std::string, 3> onBoard;
    std::string weather; ///< words
    std::string remark;
    std::string order; ///< of the fields of the mail

    bool operator==(const NoonBoxes&) const = default;
};

struct NoonInput {
    NoonBoxes boxes;
    PositionRecordInput record;
    PassagePlan plan;
    NavFunc113::Hours shipsTD;
};

/// What the window shows; an empty text blanks the label.
struct NoonResult {
    std::string run;                 ///< miles of the day
    std::string hours;               ///< "23 h 00 m"
    std::string average;             ///< knots
    std::string between;             ///< which fixes, and what the clocks did
    std::string position;            ///< of the later fix
    std::string sinceAway;           ///< "980.5 nm in 70 h 00 m, 14.01 kn"
    std::string toGo;                ///< miles
    std::string by;                  ///< "by the plan to row 5", "as typed"
    std::array<std::string, 3> eta;  ///< "14.5 kn: Thu 2026/12/03 06:00 TD -8; UTC .."
    std::string speedNeeded;         ///< knots
    std::string setAndDrift;         ///< "259°, 26.4 nm = 1.15 kn"
    std::string engine;              ///< miles of 1852 m
    std::string apparentSlip;        ///< per cent
    std::string realSlip;            ///< per cent
    std::array<std::string, 3> fuel; ///< "25.0 t, 0.0725 t/nm"
    std::string notice;
    bool isWhole = false; ///< there is a day's run
    std::string mail;     ///< the report as a block of text
};

NoonResult CalculateNoon(const NoonInput& input);

/// The fields of the mail in the order that is usual.
inline constexpr const char* usualOrder =
    "date position hours run speed togo eta wanted drift slip fuel weather remark";

} // namespace korvel
