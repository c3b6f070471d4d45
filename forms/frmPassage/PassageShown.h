// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanInHand.h"
#include "forms/frmPassage/PlanTexts.h"

namespace korvel
{

/// What the window shows beside the rows; an empty text blanks the label.
struct PassageShown {
    // The answers.
    std::string toGo;       ///< from the row in hand, miles
    std::string arrival;    ///< at the last row, by its zone, "Tue 2026/12/01 22:40"
    std::string arrivalUTC; ///< "TD -8; UTC Wed 2026/12/02 06:40"
    std::string speed;      ///< needed, knots
    std::string speedFor;   ///< what it leads to, or why there is none

    // The whole plan.
    std::string departure; ///< "Fri 2026/11/20 12:00; UTC Fri 03:00"
    std::string distance;  ///< miles
    std::string underWay;
    std::string stopped;
    std::string elapsed;
    std::string saving; ///< of circles, miles
    std::string clocks; ///< "17 h 00 m back"

    // The row in hand.
    std::string run;    ///< miles
    std::string leaves; ///< after its stop, in its zone
    std::string circle; ///< "saves 100.2 nm" or "a great circle would save 100.2 nm", limits
    std::string sun;    ///< see SunOfDay; a caller's, who need not have it at each key
    std::string twilight;
    std::string tide; ///< see PlanTide; the same

    std::string notice;
    bool isWhole = true; ///< every distance and time is there
};

PassageShown passageShown(const PlanInHand& work);

/// The rows as a table for a spreadsheet or a mail: a heading, one line a row in use, the totals;
/// the columns parted by tabs.
std::string planAsText(const PassagePlan& plan, const PlanReckoning& reckoning);

} // namespace korvel
