// SPDX-License-Identifier: MIT
#pragma once

#include "routes/files/RtzValues.h"
#include "routes/files/WrittenRoute.h"
#include "routes/route/Route.h"

namespace korvel
{

/// Writes a route plan for ECDIS, with one schedule: what was typed (stays, speeds, the departure)
/// as set by hand, the times as calculated. What a file had that was read goes back into it.
///
/// The format knows rhumb lines and great circles: a composite leg is written as its tangent points
/// and marked, so that this program reads it as one leg again and every other program sails it. A
/// longitude of 180 is written as -180, which is the legal way. Waypoints keep their ids; new ones
/// get ids of their own, and the revision of one that was moved goes up.
/// @param version nothing: that of the file which the route came from, 1.1 for a route of our
/// own. 1.1 is
///                the first that says stays of a day and more, and is read wherever 1.2 is
/// @return a fault for fewer than two points, which is no route in this format
WrittenRoute writeRtz(const Route& route, std::optional<RtzVersion> version = std::nullopt);

} // namespace korvel
