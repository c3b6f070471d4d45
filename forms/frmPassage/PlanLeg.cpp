// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanLeg.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "navlib/arithmetic_error.h"

#include <algorithm>

namespace korvel
{
namespace
{

using namespace NavFunc113;

void sailRhumbLine(PlanLeg& leg, const GeoPoint& from, const GeoPoint& to, Earth earth)
{
    const RhumbLeg line =
        RhumbCourseAndDistance(from.lat, from.longitude, to.lat, to.longitude, earth);
    leg.rhumbLine = line.distance;
    leg.distance = line.distance;
    if (line.distance > Miles(0)) leg.course = line.course;
}

void sailCircle(PlanLeg& leg, const GreatCircleArc& arc)
{
    leg.distance = leg.greatCircle;
    if (!arc.isDefined()) return;
    leg.course = arc.courseAt(Degrees(0));
    leg.finalCourse = arc.courseAt(arc.arc());
}

std::string compositeRemark(const CompositeTrack& track)
{
    const std::string cost =
        Format(track.distance - track.fullCircle, milesFormat) + " miles more than the full circle";
    switch (track.kind) {
    case CompositeKind::NotBinding:
        return "the limit does not bind: the great circle";
    case CompositeKind::OneTangent:
        return "composite, one tangent point, an end lies on the limit; " + cost;
    case CompositeKind::AlongParallel:
        return "along the limiting parallel; " + cost;
    default:
        return "composite; " + cost;
    }
}

/// @return why there is no such leg; empty when there is
std::string sailComposite(PlanLeg& leg, const ReadPlanRow& from, const ReadPlanRow& to, Earth earth)
{
    if (!to.limit) return "no limiting latitude";
    const DegMin limit = limitOfLeg(from, to);
    const CompositeTrack track = CompositeSailing(*from.position, *to.position, limit, earth);
    if (track.kind == CompositeKind::EndBeyondLimit)
        return "an end lies beyond the limit of " + positionInFull(limit, Axis::Latitude);
    leg.distance = track.distance;
    if (track.distance > Miles(0)) {
        leg.course = track.initialCourse;
        leg.finalCourse = track.finalCourse;
    }
    leg.remark = compositeRemark(track);
    if (limit != *to.limit)
        leg.remark += "; limit taken as " + positionInFull(limit, Axis::Latitude);
    leg.composite = track;
    return {};
}

} // namespace

Miles PlanLeg::saving() const
{
    return std::max(Miles(0), rhumbLine - distance);
}

Miles PlanLeg::couldSave() const
{
    return std::max(Miles(0), distance - greatCircle);
}

DegMin limitOfLeg(const ReadPlanRow& from, const ReadPlanRow& to)
{
    const bool bothSouth = from.position->lat < DegMin() && to.position->lat < DegMin();
    return bothSouth && !to.limitNamesItsSide ? -*to.limit : *to.limit;
}

PlannedLeg legBetween(const ReadPlanRow& from, const ReadPlanRow& to, LegKind kind, Earth earth)
{
    PlannedLeg planned;
    if (!from.position || !to.position) return planned;
    PlanLeg leg;
    leg.kind = kind;
    try {
        sailRhumbLine(leg, *from.position, *to.position, earth);
        const GreatCircleArc arc(*from.position, *to.position);
        leg.greatCircle = arc.distance(earth);
        if (kind != LegKind::Rhumb) {
            if (!arc.isDefined() && arc.arc() > quarterTurn)
                planned.fault = "every great circle leads to the opposite position";
            else if (kind == LegKind::GreatCircle)
                sailCircle(leg, arc);
            else
                planned.fault = sailComposite(leg, from, to, earth);
        }
    } catch (const ArithmeticError& error) {
        planned.fault = std::string("the leg cannot be calculated: ") + error.what();
    }
    if (planned.fault.empty()) planned.leg = std::move(leg);
    return planned;
}

} // namespace korvel
