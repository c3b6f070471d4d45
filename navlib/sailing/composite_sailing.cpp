// SPDX-License-Identifier: MIT
#include "navlib/sailing/composite_sailing.h"

#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace NavFunc113
{
namespace
{

// A latitude nearer to the limit than this (a tenth of a millimetre) lies on it.
constexpr Degrees onTheLimit(1e-9);

/// One end's way to its tangent point. Latitudes are counted towards the limit.
struct Approach {
    bool isOnLimit = false;
    Degrees change; ///< of longitude
};

Approach approachOf(Degrees phi, Degrees limit)
{
    if (limit - phi < onTheLimit) return {true, Degrees(0)};
    // Every circle from beyond the opposite parallel runs steeply through the limit and comes back
    // behind half a turn only: it touches nothing.
    if (phi <= -limit) return {false, halfTurn};
    return {false, RadToDeg(Radians(std::acos(tan(phi) / tan(limit))))};
}

GeoPoint shifted(DegMin lat, DegMin longitude, Degrees change)
{
    return {lat, DegToDegMin(WithinHalfTurn(DegMinToDeg(longitude) + change))};
}

CompositeKind kindOf(const Approach& first, const Approach& second)
{
    if (first.isOnLimit && second.isOnLimit) return CompositeKind::AlongParallel;
    return first.isOnLimit || second.isOnLimit ? CompositeKind::OneTangent
                                               : CompositeKind::TwoTangents;
}

void takeFullCircle(CompositeTrack& track, const GreatCircleArc& circle)
{
    track.firstCircle = track.fullCircle;
    track.distance = track.fullCircle;
    track.leavingTheCircle = track.fullCircle;
    track.initialCourse = circle.courseAt(Degrees(0));
    track.finalCourse = circle.courseAt(circle.arc());
}

/// How far it is when the full circle is left where it meets the limit.
Miles leavingTheCircle(const GreatCircleArc& circle, DegMin limit, const GeoPoint& from,
                       const GeoPoint& to, Earth earth)
{
    const auto runs = circle.runsAt(limit);
    if (!runs) return circle.distance(earth);
    const auto at = [&](Degrees run) {
        return GeoPoint{limit, circle.pointAt(std::clamp(run, Degrees(0), circle.arc())).longitude};
    };
    const GeoPoint left = at((*runs)[0]);
    const GeoPoint joined = at((*runs)[1]);
    return GreatCircleArc(from, left).distance(earth) +
           RhumbDistance(limit, left.longitude, limit, joined.longitude, earth) +
           GreatCircleArc(joined, to).distance(earth);
}

void takePieces(CompositeTrack& track, const GeoPoint& from, const GeoPoint& to, Earth earth)
{
    const GreatCircleArc first(from, *track.joins);
    const GreatCircleArc second(*track.leaves, to);
    track.firstCircle = first.distance(earth);
    track.secondCircle = second.distance(earth);
    track.alongParallel = RhumbDistance(track.joins->lat, track.joins->longitude, track.leaves->lat,
                                        track.leaves->longitude, earth);
    track.distance = track.firstCircle + track.alongParallel + track.secondCircle;
    const bool startsOnLimit = track.firstChange == Degrees(0);
    const bool endsOnLimit = track.secondChange == Degrees(0);
    track.initialCourse = startsOnLimit ? track.parallelCourse : first.courseAt(Degrees(0));
    track.finalCourse = endsOnLimit ? track.parallelCourse : second.courseAt(second.arc());
}

} // namespace

CompositeTrack CompositeSailing(const GeoPoint& from, const GeoPoint& to, DegMin limit, Earth earth)
{
    const Degrees wanted = DegMinToDeg(limit);
    if (!(fabs(wanted) > Degrees(0) && fabs(wanted) < quarterTurn)) throwInvalidArgument();
    const double towards = std::copysign(1.0, wanted.value());
    const Degrees most = fabs(wanted);
    const Degrees phi1 = towards * DegMinToDeg(from.lat);
    const Degrees phi2 = towards * DegMinToDeg(to.lat);

    const GreatCircleArc circle(from, to);
    CompositeTrack track;
    track.fullCircle = circle.distance(earth);
    if (std::max(phi1, phi2) > most + onTheLimit) {
        track.kind = CompositeKind::EndBeyondLimit;
        return track;
    }
    const Degrees change = ChangeOfLongitude(from.longitude, to.longitude);
    const Approach first = approachOf(phi1, most);
    const Approach second = approachOf(phi2, most);
    if (fabs(change) - first.change - second.change <= onTheLimit) {
        takeFullCircle(track, circle);
        return track;
    }
    track.kind = kindOf(first, second);
    const double eastward = std::copysign(1.0, change.value());
    track.firstChange = first.change;
    track.secondChange = second.change;
    track.parallelCourse = Degrees(180 - 90 * eastward);
    track.joins = shifted(limit, from.longitude, eastward * first.change);
    track.leaves = shifted(limit, to.longitude, -eastward * second.change);
    track.leavingTheCircle = leavingTheCircle(circle, limit, from, to, earth);
    takePieces(track, from, to, earth);
    return track;
}

} // namespace NavFunc113
