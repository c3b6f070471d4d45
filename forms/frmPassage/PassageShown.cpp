// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PassageShown.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/reading/Reading.h"
#include "app/reading/TypedTime.h"

namespace korvel
{
namespace
{

std::string weekdayAndMinute(Instant moment)
{
    const Instant shown = nearestMinute(moment);
    const std::string text = minuteText(shown);
    return text.empty() ? text : weekdayOf(shown) + " " + text;
}

/// The row that a box names by its number. @return nothing when there is none
std::optional<std::size_t> rowNamed(const std::string& box, std::optional<std::size_t> otherwise,
                                    const PlanReckoning& plan)
{
    if (box.find_first_not_of(' ') == std::string::npos) return otherwise;
    const auto number = readLeadingNumber(box);
    if (!number || *number < 1 || *number > static_cast<double>(plan.size())) return std::nullopt;
    const auto row = static_cast<std::size_t>(*number) - 1;
    return plan.read(row).isEmpty ? std::nullopt : std::optional(row);
}

void showSpeedNeeded(const PassagePlan& plan, const PlanReckoning& reckoning, PassageShown& shown)
{
    if (plan.wish.time.find_first_not_of(' ') == std::string::npos) return;
    const auto from = rowNamed(plan.wish.from, reckoning.firstRow(), reckoning);
    const auto to = rowNamed(plan.wish.to, reckoning.lastRow(), reckoning);
    if (!from || !to) {
        shown.speedFor = "there is no such row";
        return;
    }
    const TypedTime typed = readTypedTime(plan.wish.time, Due::DateAndTime);
    if (!typed.value) {
        shown.speedFor = typed.remark;
        return;
    }
    const Instant wanted = instantOf(*typed.value);
    const bool isUTC = plan.times.clock == PlanTimes::Clock::UTC;
    const Span zone = isUTC ? Span(0) : reckoning.figures(*to).zone;
    const SpeedNeeded needed = reckoning.speedNeeded(*from, *to, wanted - zone);
    shown.speedFor = needed.why;
    if (!needed.speed) return;
    shown.speed = Format(*needed.speed, "0.00");
    shown.speedFor = "row " + std::to_string(*from + 1) + " to " + std::to_string(*to + 1) + ", " +
                     weekdayAndMinute(wanted) + (isUTC ? " UTC" : " " + zoneText(zone));
}

void showArrival(const PlanReckoning& reckoning, PassageShown& shown)
{
    const auto last = reckoning.lastRow();
    if (!last || *last == *reckoning.firstRow()) return;
    const PlanFigures& figures = reckoning.figures(*last);
    if (!figures.eta) return;
    shown.arrival = weekdayAndMinute(*figures.eta + figures.zone);
    shown.arrivalUTC = zoneText(figures.zone) + "; UTC " + weekdayAndMinute(*figures.eta);
}

void showRow(const PlanInHand& work, PassageShown& shown)
{
    if (work.row() >= work.reckoning().size()) return;
    const PlanRowTexts row = planRowTexts(work.reckoning(), work.row());
    shown.toGo = row.toGo;
    shown.run = row.run;
    shown.leaves = row.etd;
    const PlanLeg* leg = work.reckoning().leg(work.row());
    if (!leg) return;
    std::string saves;
    if (!row.saving.empty() && row.saving != "0.0") saves = "saves " + row.saving + " nm";
    if (!row.couldSave.empty() && row.couldSave != "0.0")
        saves = "a great circle would save " + row.couldSave + " nm";
    shown.circle = joined({saves, leg->remark});
}

void showTotals(const PlanReckoning& reckoning, PassageShown& shown)
{
    const PlanTotalTexts totals = planTotalTexts(reckoning);
    shown.distance = totals.distance;
    shown.underWay = totals.underWay;
    shown.stopped = totals.stopped;
    shown.elapsed = totals.elapsed;
    shown.saving = totals.saving;
    if (const auto blank = totals.clockChange.find(' '); blank != std::string::npos)
        shown.clocks = totals.clockChange.substr(blank + 1);
    const auto departure = reckoning.departure();
    if (!departure) return;
    const std::string utc = weekdayAndMinute(*departure);
    shown.departure = weekdayAndMinute(*departure + reckoning.figures(*reckoning.firstRow()).zone) +
                      "; UTC " + utc.substr(0, 4) + utc.substr(utc.rfind(' ') + 1);
}

} // namespace

PassageShown passageShown(const PlanInHand& work)
{
    PassageShown shown;
    const PlanReckoning& reckoning = work.reckoning();
    const auto first = reckoning.firstRow();
    if (!first) return shown; // nothing typed, nothing claimed
    showRow(work, shown);
    if (reckoning.lastRow() == first) {
        shown.notice = reckoning.remark(*first);
        return shown;
    }
    showTotals(reckoning, shown);
    showArrival(reckoning, shown);
    showSpeedNeeded(work.plan(), reckoning, shown);
    shown.notice = reckoning.notice();
    shown.isWhole = reckoning.totals().distance && !shown.arrival.empty();
    return shown;
}

std::string planAsText(const PassagePlan& plan, const PlanReckoning& reckoning)
{
    std::string text = "No.\tWaypoint\tLatitude\tLongitude\tCourse\tMiles\tTo go\tRun\tKnots\t"
                       "Under way\tETA UTC\tETA zone\tETD zone\tZone\tStop h\tRemark\n";
    for (std::size_t i = 0; i < reckoning.size(); ++i) {
        const ReadPlanRow& read = reckoning.read(i);
        if (read.isEmpty) continue;
        const PlanRowTexts row = planRowTexts(reckoning, i);
        text += std::to_string(i + 1) + "\t" + plan.rows[i].name + "\t";
        if (read.position)
            text += positionForCopy(read.position->lat, Axis::Latitude) + "\t" +
                    positionForCopy(read.position->longitude, Axis::Longitude);
        else
            text += plan.rows[i].latitude + "\t" + plan.rows[i].longitude;
        for (const std::string* cell : {&row.course, &row.distance, &row.toGo, &row.run, &row.speed,
                                        &row.underWay, &row.etaUTC, &row.etaZone, &row.etd,
                                        &row.zone, &plan.rows[i].stop, &plan.rows[i].remark})
            text += "\t" + *cell;
        text += "\n";
    }
    const PlanTotalTexts totals = planTotalTexts(reckoning);
    text += "Distance\t" + totals.distance + "\nTime under way\t" + totals.underWay + "\nStops\t" +
            totals.stopped + "\nFrom departure to arrival\t" + totals.elapsed + "\n";
    return text;
}

} // namespace korvel
