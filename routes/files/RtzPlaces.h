// SPDX-License-Identifier: MIT
#pragma once

/// Names under which reader and writer of RTZ keep what they do not understand: an element, behind
/// it "@" and an attribute, or "/" for an element in it.
namespace korvel::rtz
{

inline constexpr const char* version = "rtz version";
inline constexpr const char* route = "rtz route";
inline constexpr const char* inRoute = "rtz route/";
inline constexpr const char* routeInfo = "rtz routeInfo";
inline constexpr const char* inRouteInfo = "rtz routeInfo/";
inline constexpr const char* defaultWaypoint = "rtz defaultWaypoint";
inline constexpr const char* inWaypoints = "rtz waypoints/";
inline constexpr const char* waypoint = "rtz waypoint";
inline constexpr const char* waypointId = "rtz waypoint@id";
inline constexpr const char* waypointRevision = "rtz waypoint@revision";
inline constexpr const char* inWaypoint = "rtz waypoint/";
inline constexpr const char* waypointExtension = "rtz waypoint/extension";
inline constexpr const char* position = "rtz position"; ///< latitude, blank, longitude as written
inline constexpr const char* leg = "rtz leg";
inline constexpr const char* inLeg = "rtz leg/";
inline constexpr const char* legExtension = "rtz leg/extension";
inline constexpr const char* inSchedules = "rtz schedules/";
inline constexpr const char* schedule = "rtz schedule";
inline constexpr const char* inSchedule = "rtz schedule/";
inline constexpr const char* inManual = "rtz manual/";
inline constexpr const char* inCalculated = "rtz calculated/";
inline constexpr const char* manual = "rtz manual element";
inline constexpr const char* inManualElement = "rtz manual element/";
inline constexpr const char* calculated = "rtz calculated element";
inline constexpr const char* inCalculatedElement = "rtz calculated element/";

// What this program writes beside: the kind of a leg and its step, zones, tangent points.
inline constexpr const char* ownManufacturer = "KORVEL2000";
inline constexpr const char* ownPlan = "plan";
inline constexpr const char* ownTangent = "tangentPoint";

} // namespace korvel::rtz
