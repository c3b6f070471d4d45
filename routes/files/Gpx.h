// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "routes/files/WrittenRoute.h"
#include "routes/route/Route.h"

#include <string>
#include <string_view>

namespace korvel
{

/// Reads the first route with points of a GPX 1.1 (or 1.0) file. Other routes are named in a
/// remark; tracks and waypoints outside of routes are no plan. Names, times and descriptions of its
/// points are taken, the rest of each point is kept. Legs are rhumb lines: the format does not say
/// what they are.
/// @return a fault names line and element
ReadRoute readGpx(std::string_view bytes);

/// Writes a GPX 1.1 route. The format knows points alone: circles and composite legs are written as
/// points on them, those of their step or 60 miles apart, and a remark says so. A longitude of 180
/// is written as -180.
/// @param creator name and version of the program
WrittenRoute writeGpx(const Route& route, const std::string& creator);

/// Writes the line of a working paper, a route or a track, point by point. Its name and those of
/// its points are of their own: a chart program would take the points of another day with the same
/// names for these.
/// @param SMT when it is made, by ship's time
std::string writeGpx(const ExportLine& line, const std::string& creator, NavFunc113::DateTime SMT);

} // namespace korvel
