// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanTexts.h"

#include "app/reading/Format.h"
#include "navlib/angles.h"
#include "routes/route/LegWords.h"

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using NavFunc113::Miles;

constexpr int listDecimals = 7; // of a degree: a centimetre
constexpr int figureDecimals = 4;

std::string milesText(const std::optional<Miles>& miles)
{
    return miles ? Format(*miles, milesFormat) : "";
}

std::string durationText(const std::optional<Span>& span)
{
    return span ? spanText(*span) : "";
}

std::string momentText(const std::optional<Instant>& utc, Span zone)
{
    if (!utc) return "";
    const Instant shown = nearestMinute(*utc + zone);
    const std::string text = minuteText(shown);
    return text.empty() ? text : weekdayOf(shown) + " " + text;
}

std::string signedHours(Span zone)
{
    return zone == Span(0) ? "0" : Format(hoursOf(zone), "+0.##;-0.##");
}

std::string changeText(Span change)
{
    if (change == Span(0)) return "";
    std::string text = spanText(change < Span(0) ? -change : change);
    if (text.starts_with('0')) text.erase(0, 1);
    return "clocks " + text + (change < Span(0) ? " back" : " forward");
}

std::string coursesText(const PlanLeg& leg)
{
    if (!leg.course) return "";
    return courseText(*leg.course) + (leg.finalCourse ? " " + courseText(*leg.finalCourse) : "");
}

} // namespace

std::string zoneText(Span zone)
{
    return "TD " + signedHours(zone) + " (ZD " + signedHours(-zone) + ")";
}

PlanRowTexts planRowTexts(const PlanReckoning& plan, std::size_t row)
{
    PlanRowTexts texts;
    if (plan.read(row).isEmpty) return texts;
    const PlanFigures& figures = plan.figures(row);
    if (const PlanLeg* leg = plan.leg(row)) {
        texts.course = coursesText(*leg);
        texts.distance = Format(leg->distance, milesFormat);
        const bool isRhumb = leg->kind == LegKind::Rhumb;
        (isRhumb ? texts.couldSave : texts.saving) =
            Format(isRhumb ? leg->couldSave() : leg->saving(), milesFormat);
    }
    texts.underWay = durationText(figures.underWay);
    texts.run = milesText(figures.run);
    texts.toGo = milesText(figures.toGo);
    if (figures.speed) texts.speed = Format(*figures.speed, "0.0##");
    texts.etaUTC = momentText(figures.eta, Span(0));
    texts.etaZone = momentText(figures.eta, figures.zone);
    if (figures.etd != figures.eta) texts.etd = momentText(figures.etd, figures.zone);
    texts.zone = zoneText(figures.zone);
    texts.clockChange = changeText(figures.clockChange);
    texts.remark = plan.remark(row);
    return texts;
}

PlanTotalTexts planTotalTexts(const PlanReckoning& plan)
{
    const PlanTotals& totals = plan.totals();
    return {milesText(totals.distance),   durationText(totals.underWay),
            durationText(totals.stopped), durationText(totals.elapsed),
            milesText(totals.saving),     changeText(totals.clockChange)};
}

ExportTable planList(const PassagePlan& plan, const PlanReckoning& reckoning)
{
    ExportTable list{{"name", "lat_deg", "lon_deg", "leg", "course_deg", "distance_nm",
                      "distance_to_go_nm", "speed_kn", "stay_h", "eta_utc"},
                     {}};
    for (std::size_t i = 0; i < plan.rows.size(); ++i) {
        const ReadPlanRow& read = reckoning.read(i);
        if (read.isEmpty) continue;
        const PlanFigures& figures = reckoning.figures(i);
        const PlanLeg* leg = reckoning.leg(i);
        std::vector<std::string> cells{plan.rows[i].name, "", "", "", "", "", "", "", "", ""};
        if (read.position) {
            cells[1] = figure(DegMinToDeg(read.position->lat), listDecimals);
            cells[2] = figure(DegMinToDeg(read.position->longitude), listDecimals);
        }
        if (const auto before = reckoning.rowBefore(i))
            cells[3] = legWords(plan.rows[i].leg, read.step,
                                read.limit && leg ? limitOfLeg(reckoning.read(*before), read)
                                                  : read.limit.value_or(NavFunc113::DegMin()));
        if (leg && leg->course) cells[4] = figure(*leg->course, figureDecimals);
        if (leg) cells[5] = figure(leg->distance, figureDecimals);
        if (figures.toGo) cells[6] = figure(*figures.toGo, figureDecimals);
        if (figures.speed) cells[7] = Format(*figures.speed, "0.0#####");
        if (read.stop > Span(0)) cells[8] = Format(hoursOf(read.stop), "0.0#####");
        if (figures.eta) cells[9] = isoText(*figures.eta);
        list.rows.push_back(std::move(cells));
    }
    return list;
}

} // namespace korvel
