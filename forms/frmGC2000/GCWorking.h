// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmGC2000/CalculateGC.h"

namespace korvel
{

/// How the distances, the courses, the vertex and the saving came about.
Working greatCircleWorking(const GCResult& result, NavFunc113::Earth earth);

/// How the waypoints and the legs between them came about, of a result that has figures.
Working waypointsWorking(const GCResult& result, NavFunc113::Earth earth);

/// The waypoints with their positions in full.
PaperTable waypointTable(const GCResult& result);

/// The waypoints for other programs.
ExportTable waypointList(const GCResult& result);
ExportLine routeOf(const GCResult& result);

/// "Dep.", "1" .., "Arr."
std::string waypointName(const GCRoute& route, std::size_t waypoint);

} // namespace korvel
