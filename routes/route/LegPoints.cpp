// SPDX-License-Identifier: MIT
#include "routes/route/LegPoints.h"

#include "navlib/angles.h"

#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

// Points nearer than this to an end (some metres) are the end.
constexpr Degrees nearAnEnd(1e-4);

/// Points on meridians that are whole multiples of the step.
void addOnMeridians(std::vector<LegPoint>& points, const GreatCircleArc& arc, const GeoPoint& from,
                    const GeoPoint& to, Degrees step)
{
    const Degrees change = ChangeOfLongitude(from.longitude, to.longitude);
    const double eastward = std::copysign(1.0, change.value());
    const Degrees start = eastward * DegMinToDeg(from.longitude);
    const Degrees end = start + fabs(change) - nearAnEnd;
    for (double n = std::floor((start + nearAnEnd) / step) + 1; n * step < end; ++n) {
        const DegMin meridian = DegToDegMin(WithinHalfTurn(eastward * n * step));
        if (const auto lat = arc.latitudeAt(meridian))
            points.push_back({{*lat, meridian}, LegKind::GreatCircle});
    }
}

void addCircle(std::vector<LegPoint>& points, const GeoPoint& from, const GeoPoint& to,
               const CircleStep& step)
{
    const GreatCircleArc arc(from, to);
    if (step.degrees && *step.degrees > Degrees(0)) {
        addOnMeridians(points, arc, from, to, *step.degrees);
    } else if (step.miles && *step.miles > Miles(0)) {
        const Degrees run = ArcOfMiles(*step.miles);
        for (double n = 1; n * run < arc.arc() - nearAnEnd; ++n)
            points.push_back({arc.pointAt(n * run), LegKind::GreatCircle});
    }
    points.push_back({to, LegKind::GreatCircle});
}

bool isLimit(DegMin limit)
{
    return limit != DegMin() && fabs(DegMinToDeg(limit)) < quarterTurn;
}

} // namespace

std::vector<LegPoint> pointsOfLeg(const GeoPoint& from, const GeoPoint& to, LegKind kind,
                                  const CircleStep& step, DegMin limit)
{
    std::vector<LegPoint> points;
    if (kind == LegKind::Rhumb) {
        points.push_back({to, LegKind::Rhumb});
        return points;
    }
    CompositeTrack track;
    if (kind == LegKind::Composite && isLimit(limit))
        track = CompositeSailing(from, to, limit, Earth::Sphere);
    if (!track.joins) {
        addCircle(points, from, to, step);
        return points;
    }
    if (track.firstChange > Degrees(0)) {
        addCircle(points, from, *track.joins, step);
        points.back().isTangent = true;
    }
    const bool goesOn = track.secondChange > Degrees(0);
    points.push_back({goesOn ? *track.leaves : to, LegKind::Rhumb, goesOn});
    if (goesOn) addCircle(points, *track.leaves, to, step);
    return points;
}

} // namespace korvel
