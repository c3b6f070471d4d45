// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanPaper.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/working/SailingWorking.h"
#include "navlib/angles.h"
#include "routes/route/LegPoints.h"
#include "routes/route/LegWords.h"

namespace korvel
{
namespace
{

std::string numberOfRow(std::size_t row)
{
    return std::to_string(row + 1);
}

/// Without the year, which the departure has: one line a leg across the sheet.
std::string dayAndTime(const std::optional<Instant>& moment, Span zone, bool hasWeekday)
{
    if (!moment) return "";
    const Instant shown = nearestMinute(*moment + zone);
    std::string text = minuteText(shown);
    if (text.empty()) return text;
    return (hasWeekday ? weekdayOf(shown) + " " : "") + text.substr(text.find('/') + 1);
}

std::string courses(const PlanLeg* leg)
{
    if (!leg || !leg->course) return "";
    const std::string first = courseText(*leg->course, "000.0");
    return leg->finalCourse ? first + "-" + courseText(*leg->finalCourse, "000.0") : first;
}

PaperTable legsTable(const PassagePlan& plan, const PlanReckoning& reckoning)
{
    PaperTable table{"Legs",
                     {"No.", "Waypoint", "Position", "Course °", "Miles", "Knots", "Hours", "UTC",
                      "Zone time", "To go"},
                     {}};
    for (std::size_t i = 0; i < reckoning.size(); ++i) {
        const ReadPlanRow& read = reckoning.read(i);
        if (read.isEmpty) continue;
        const PlanFigures& figures = reckoning.figures(i);
        const PlanRowTexts texts = planRowTexts(reckoning, i);
        table.rows.push_back(
            {numberOfRow(i), plan.rows[i].name,
             read.position ? positionForCopy(read.position->lat, read.position->longitude) : "",
             courses(reckoning.leg(i)), texts.distance, texts.speed,
             figures.underWay ? Format(hoursOf(*figures.underWay), "0.00") : "",
             dayAndTime(figures.eta, Span(0), false), dayAndTime(figures.eta, figures.zone, true),
             texts.toGo});
    }
    return table;
}

/// What only some rows have: kinds of legs, stops, clocks, remarks.
PaperTable remarksTable(const PassagePlan& plan, const PlanReckoning& reckoning)
{
    PaperTable table{"Stops, clocks and remarks",
                     {"No.", "Waypoint", "Leg", "Stop h", "ETD zone", "Zone", "Remark"},
                     {}};
    for (std::size_t i = 0; i < reckoning.size(); ++i) {
        const ReadPlanRow& read = reckoning.read(i);
        const PlanRow& row = plan.rows[i];
        const PlanRowTexts texts = planRowTexts(reckoning, i);
        const bool isCircle = row.leg != LegKind::Rhumb && reckoning.leg(i);
        const bool isRemarked = row.remark.find_first_not_of(' ') != std::string::npos;
        const std::string remark =
            joined({isRemarked ? row.remark : "", texts.clockChange, texts.remark});
        if (read.isEmpty || (!isCircle && texts.etd.empty() && !read.zone && remark.empty()))
            continue;
        table.rows.push_back(
            {numberOfRow(i), row.name,
             isCircle ? legWords(row.leg, read.step, read.limit.value_or(NavFunc113::DegMin()))
                      : "",
             texts.etd.empty() ? "" : row.stop,
             texts.etd.empty()
                 ? ""
                 : dayAndTime(reckoning.figures(i).etd, reckoning.figures(i).zone, true),
             read.zone ? texts.zone : "", remark});
    }
    return table;
}

void addTotals(WorkingPaper& paper, const PlanReckoning& reckoning)
{
    const PlanTotalTexts totals = planTotalTexts(reckoning);
    const std::vector<PaperFigure> figures = {{"Distance", totals.distance, "nautical miles"},
                                              {"Time under way", totals.underWay},
                                              {"Stops", totals.stopped},
                                              {"From departure to arrival", totals.elapsed},
                                              {"Saved by circles", totals.saving, "nautical miles"},
                                              {"Clocks, in all", totals.clockChange}};
    for (const PaperFigure& figure : figures)
        if (!figure.value.empty()) paper.results.push_back(figure);
}

/// The points of the plan, those between the ends of circles too.
ExportLine lineOfPlan(const PassagePlan& plan, const PlanReckoning& reckoning)
{
    ExportLine line{ExportLine::Kind::Route, plan.name.empty() ? "Passage plan" : plan.name, {}};
    const auto add = [&](const NavFunc113::GeoPoint& at, const std::string& name,
                         const std::optional<Instant>& utc) {
        line.points.push_back({DegMinToDeg(at.lat), DegMinToDeg(at.longitude), name, {}});
        if (utc) line.points.back().UTC = dateTimeOf(*utc);
    };
    for (std::size_t i = 0; i < reckoning.size(); ++i) {
        const ReadPlanRow& read = reckoning.read(i);
        const auto before = reckoning.rowBefore(i);
        if (read.isEmpty || !read.position) continue;
        if (before && reckoning.leg(i)) {
            const ReadPlanRow& from = reckoning.read(*before);
            auto points = pointsOfLeg(*from.position, *read.position, plan.rows[i].leg, read.step,
                                      read.limit ? limitOfLeg(from, read) : NavFunc113::DegMin());
            points.pop_back();
            for (const LegPoint& point : points)
                add(point.at, "", std::nullopt);
        }
        add(*read.position, plan.rows[i].name, reckoning.figures(i).eta);
    }
    return line;
}

} // namespace

void tellPlan(WorkingPaper& paper, const PassagePlan& plan, const PlanReckoning& reckoning)
{
    if (!reckoning.firstRow()) return;
    const bool isDeparture = plan.times.given == PlanTimes::Given::Departure;
    const bool isUTC = plan.times.clock == PlanTimes::Clock::UTC;
    if (!plan.name.empty()) paper.inputs.push_back({"Plan", plan.name});
    paper.inputs.push_back({isDeparture ? "Departure" : "Wanted arrival", plan.times.time,
                            isUTC ? "UTC" : "ship's time"});
    addTotals(paper, reckoning);
    paper.tables.push_back(legsTable(plan, reckoning));
    if (PaperTable remarks = remarksTable(plan, reckoning); !remarks.rows.empty())
        paper.tables.push_back(std::move(remarks));
    paper.limits.emplace_back(
        "Times are reckoned in UTC without rounding and shown to the nearest minute");
    for (const std::string& sentence : sailingLimits(reckoning.earth()))
        paper.limits.push_back(sentence);
    paper.list = planList(plan, reckoning);
    paper.line = lineOfPlan(plan, reckoning);
}

} // namespace korvel
