// SPDX-License-Identifier: MIT
#pragma once

#include "routes/route/Route.h"

#include <string_view>

namespace korvel
{

/// Reads a route plan for ECDIS: RTZ 1.0, 1.1 and 1.2 of IEC 61174, told apart by the namespace.
///
/// Taken are names, positions, kinds of legs, stays, speeds and times (of the first schedule: what
/// was set by hand goes before what was calculated). A leg belongs to the waypoint where it ends;
/// the default waypoint's kind of leg holds where a waypoint names none, and a rhumb line where
/// neither does. Everything else is kept in the route and its points.
/// The tangent points that writeRtz() put into a composite leg become that leg again, as long as
/// nobody moved them.
/// @return a fault names line and element: what is required and missing, out of range or of another
///         type, a longitude of 180 (which is written -180), and an id that two waypoints have
ReadRoute readRtz(std::string_view bytes);

} // namespace korvel
