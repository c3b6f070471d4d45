// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"
#include "navlib/units.h"

#include <optional>
#include <string>
#include <vector>

/// A route as files carry it, whatever their format.
namespace korvel
{

enum class LegKind { Rhumb, GreatCircle, Composite };

/// Something of a file that is none of the program's business and goes back into the file as it
/// came.
struct KeptPart {
    std::string place; ///< "waypoint@radius" of an attribute, "leg/extensions" of an element
    std::string text;  ///< the attribute's value; the element with all that is in it

    bool operator==(const KeptPart&) const = default;
};

/// Where the points between the ends of a great circle lie: on meridians so many degrees apart, or
/// so many miles apart. Nothing: it has none.
struct CircleStep {
    std::optional<NavFunc113::Degrees> degrees;
    std::optional<NavFunc113::Miles> miles;

    bool operator==(const CircleStep&) const = default;
};

struct RoutePoint {
    std::string name;
    NavFunc113::Degrees latitude;
    NavFunc113::Degrees longitude;          ///< -180 .. 180
    LegKind leg = LegKind::Rhumb;           ///< from the point before
    CircleStep step;                        ///< of a circle
    NavFunc113::Degrees limit;              ///< of a composite leg; north positive
    std::optional<NavFunc113::Knots> speed; ///< on the leg; nothing: that of the leg before
    std::optional<NavFunc113::Hours> stop;
    std::optional<NavFunc113::Hours> zone; ///< time difference from here on, east positive
    std::string remark;
    std::optional<Instant> eta; ///< UTC
    std::optional<Instant> etd; ///< UTC
    std::vector<KeptPart> kept;
};

struct Route {
    std::string name;
    std::vector<RoutePoint> points;
    std::vector<KeptPart> kept;
};

/// The most points that a route may have.
inline constexpr std::size_t mostRoutePoints = 500;

/// What was read of a file.
struct ReadRoute {
    Route route;
    std::string fault; ///< line, element and what is wrong; empty when the route can be taken
    std::vector<std::string> remarks; ///< what the officer should know of a route that was taken
};

} // namespace korvel
