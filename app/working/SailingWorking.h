// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"
#include "navlib/sailing/sailing.h"

#include <array>
#include <span>

namespace korvel
{

/// Which sphere or spheroid, which mile and which meridional parts: for every working that sails
/// along rhumb lines.
std::vector<std::string> sailingMethod(NavFunc113::Earth earth);

/// How far rhumb lines by this method can be trusted.
std::vector<std::string> sailingLimits(NavFunc113::Earth earth);

/// The steps of a rhumb-line leg, up to course and distance with full precision.
/// @param ends lat1, long1, lat2, long2
void addRhumbLeg(Working& working, const std::array<NavFunc113::DegMin, 4>& ends,
                 const NavFunc113::RhumbLeg& leg, NavFunc113::Earth earth);

/// The nodes of a table of factors, "0.99507 at 0°, ..".
std::string factorNodes(std::span<const NavFunc113::FactorNode> table);

/// A factor that was interpolated from a table.
struct LookedUpFactor {
    std::span<const NavFunc113::FactorNode> table;
    NavFunc113::Degrees at;
    double factor;
};

/// A step with such a factor.
/// @param formula "m(φm)"
void addFactor(Working& working, const std::string& name, const std::string& formula,
               const LookedUpFactor& found);

/// A step with the meridional parts of a latitude.
/// @param number of the latitude, "1"
void addParts(Working& working, const std::string& number, NavFunc113::Degrees lat, double parts);

/// Where a dead reckoning starts, and how it goes on.
struct ReckonedRun {
    std::array<NavFunc113::DegMin, 2> start; ///< latitude, longitude
    NavFunc113::Degrees course;
    NavFunc113::Miles distance;
};

/// The steps of the latitude reached, from φ1 on.
void addRunInLatitude(Working& working, const ReckonedRun& from, const NavFunc113::LatitudeRun& run,
                      NavFunc113::Earth earth);

/// The steps of the longitude reached, from λ1 on.
void addRunInLongitude(Working& working, const ReckonedRun& from,
                       const NavFunc113::LatitudeRun& latitude, const NavFunc113::LongitudeRun& run,
                       NavFunc113::Earth earth);

} // namespace korvel
