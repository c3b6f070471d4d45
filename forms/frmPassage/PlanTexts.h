// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmPassage/PlanReckoning.h"

namespace korvel
{

/// What a row of the plan shows; an empty text blanks the label. Made for the rows that are on the
/// screen alone.
struct PlanRowTexts {
    std::string course;      ///< "<073.6>"; of a circle at both ends, "<072.4> <107.6>"
    std::string distance;    ///< miles, "3181.6"
    std::string saving;      ///< of a circle against the rhumb line, miles
    std::string couldSave;   ///< miles by which a great circle would be shorter than a rhumb line
    std::string underWay;    ///< on the leg, "1 d 02 h 03 m"
    std::string run;         ///< from the departure, miles
    std::string toGo;        ///< miles
    std::string speed;       ///< knots in force
    std::string etaUTC;      ///< "Thu 2038/08/05 04:38"
    std::string etaZone;     ///< the same in the zone in force
    std::string etd;         ///< in the zone in force, in a row with a stop
    std::string zone;        ///< "TD +9 (ZD -9)"
    std::string clockChange; ///< "clocks 1 h 00 m forward"
    std::string remark;
};

PlanRowTexts planRowTexts(const PlanReckoning& plan, std::size_t row);

/// The sums, each as it is shown.
struct PlanTotalTexts {
    std::string distance;
    std::string underWay;
    std::string stopped;
    std::string elapsed;
    std::string saving;
    std::string clockChange;
};

PlanTotalTexts planTotalTexts(const PlanReckoning& plan);

/// "TD +9 (ZD -9)": both signs, which are confused at sea.
std::string zoneText(Span zone);

/// The plan for other programs, and to be read back: name, lat_deg, lon_deg, leg, course_deg,
/// distance_nm, distance_to_go_nm, speed_kn, stay_h, eta_utc. The time of the first row is that of
/// the departure.
ExportTable planList(const PassagePlan& plan, const PlanReckoning& reckoning);

} // namespace korvel
