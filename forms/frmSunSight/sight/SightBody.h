// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/sky.h"
#include "app/reading/Remarks.h"
#include "app/records/PlannedSights.h"
#include "navlib/sky/sight_fix.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Which body a sight is of.
namespace korvel
{

/// The body that a box names: its name, as much of it as no other body begins with, or the number
/// of a star; the Sun when the box is empty. Full-width forms are read like plain ones.
/// @return nothing for what names none, or several; the remarks say which
std::optional<almanac::Body> readBody(std::string_view box, Remarks& remarks);

/// How a record keeps the body of a sight: its name, empty for the Sun; what names no body as it
/// stands.
std::string bodyForRecord(const std::string& box);

/// What a name does not tell: "star 12", "mag. 2.0"; nothing of the Sun, the Moon and planets.
std::string bodyFacts(almanac::Body body);

/// A sight that is to be taken: "Capella  preset 50.-06'4  bearing 005.5  at 1978/02/28 12:20 UTC".
std::string plannedLine(const PlannedSight& planned);

/// A name at the beginning of a sentence: "The Moon", "Venus".
std::string sentenceOf(std::string name);

/// A body that may have been observed, and how far its altitude is off.
struct LikelyBody {
    almanac::Body body;
    NavFunc113::Degrees off;     ///< observed less computed
    NavFunc113::Degrees azimuth; ///< true
};

/// The bodies that stand within a degree of what was observed, the likeliest first: the nearer and
/// the brighter. By day the Sun, the Moon and Venus alone, by night all but the Sun.
/// @param seen   altitude of what was observed, limb or middle; dip and refraction put on
/// @param except the body that was named
/// @return three at most
std::vector<LikelyBody> likelyBodies(const almanac::Sky& sky, NavFunc113::Degrees seen,
                                     const NavFunc113::Position& place, almanac::Body except);

/// The Sun stands above the horizon: his upper limb is to be seen.
bool isByDay(const almanac::Sky& sky, const NavFunc113::Position& place);

/// "Vega, 0.1° off, bearing 045; ..", for a remark.
std::string likelyText(const std::vector<LikelyBody>& likely);

} // namespace korvel
