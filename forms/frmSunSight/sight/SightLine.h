// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/sky/sight_fix.h"

#include <optional>
#include <string>

/// The figures of a line of position as all of the window shows them.
namespace korvel
{

/// True azimuth at a position; on the meridian and due east or west, where the library's
/// quotient faults, by the four-quadrant form.
/// @param position decimal degrees
NavFunc113::Degrees azimuthOfSun(NavFunc113::DegMin GHA, NavFunc113::DegMin declination,
                                 const NavFunc113::Position& position);

/// The same, nothing where the library's quotient faults.
std::optional<NavFunc113::Degrees> azimuthByQuotient(NavFunc113::DegMin GHA,
                                                     NavFunc113::DegMin declination,
                                                     const NavFunc113::Position& position);

/// "24.-31'3".
std::string angleText(NavFunc113::DegMin angle);

/// "24°31.3'", the same figure as angleText() in full.
std::string angleInFull(NavFunc113::DegMin angle);

/// An angle in tenths of minutes as angleText() shows it.
int tenthsShown(NavFunc113::DegMin angle);
/// Minutes of arc in tenths as "0.0" shows them.
int tenthsShown(double minutes);

/// An intercept, "10'.8 T" or "3'.8 A": the difference of the two altitudes as they are shown, so
/// that it is the one that a worksheet gives.
std::string interceptText(NavFunc113::DegMin Ho, NavFunc113::DegMin Hc);

/// "14-.06'0N" and "052-.25'8W".
std::string latitudeText(NavFunc113::Degrees latitude);
std::string longitudeText(NavFunc113::Degrees longitude);
/// Both, a blank between them.
std::string positionText(const NavFunc113::Position& position);

/// A span of time in words: "2.1 days", "7.2 h", "12 min".
std::string spanText(NavFunc113::Hours span);

/// How far an instant lies ahead of now; empty when it does not, or by no more than a minute.
std::string aheadText(NavFunc113::DateTime UTC, std::optional<NavFunc113::DateTime> now);

} // namespace korvel
