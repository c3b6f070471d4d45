// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/events.h"
#include "almanac/sextant.h"
#include "app/reading/Instant.h"
#include "app/reading/PositionText.h"
#include "app/reading/Remarks.h"
#include "forms/frmSky/SkyFields.h"
#include "navlib/sailing/great_circle_arc.h"
#include "navlib/sailing/sailing.h"

#include <optional>
#include <string>
#include <string_view>

/// The ship of the sky window: where she is at any instant of a day, and how times are shown.
namespace korvel
{

/// The boxes, and what is needed of the program.
struct SkyInput {
    SkyTexts txtSky;
    NavFunc113::Hours TD; ///< of the ship, for an empty box
    NavFunc113::Earth earth = NavFunc113::Earth::Sphere;

    const std::string& box(SkyBox which) const { return txtSky[placeOf(which)]; }
};

/// A ship on one course from a position at an instant, and before it.
class SkyShip
{
public:
    NavFunc113::GeoPoint position; ///< at the time `of`
    NavFunc113::DateTime of{};     ///< UTC
    NavFunc113::Degrees course;    ///< true
    NavFunc113::Knots speed;
    NavFunc113::Metres eye;
    NavFunc113::Degrees indexError; ///< of the sextant, on the arc positive: it reads so much more
    NavFunc113::Hours TD;
    NavFunc113::DateTime day{}; ///< that is shown: 0 hours of ship's time, as UTC
    NavFunc113::Earth earth = NavFunc113::Earth::Sphere;

    /// @throws NavFunc113::ArithmeticError when she crosses a pole on the way
    almanac::Observer at(NavFunc113::DateTime utc) const;
    almanac::Track track() const;
    NavFunc113::Degrees dip() const;
    NavFunc113::DateTime shipsTime(NavFunc113::DateTime utc) const
    {
        return utc + NavFunc113::DaysOfHours(TD);
    }
    NavFunc113::DateTime utcOf(NavFunc113::DateTime shipsTime) const
    {
        return shipsTime - NavFunc113::DaysOfHours(TD);
    }
};

/// The air of presets and unknown bodies.
inline almanac::SextantAir meanAir(NavFunc113::Metres heightOfEye)
{
    return {heightOfEye, 10, 10, 1010};
}

/// Reads the ship and the day. The day is that of the position's time unless another is typed; a
/// date without a time is noon; empty course, speed, height of eye and index error are 0.
/// @return nothing when something is missing or cannot be used; the remarks say what
std::optional<SkyShip> readShip(const SkyInput& input, Remarks& remarks);

/// A box of date and time, ship's time. A date alone is noon, a time alone is of the day given.
/// @param day 0 hours of it, ship's time; nothing: a time alone cannot be used
/// @return ship's time; nothing when there is none, with a fault unless the box is empty
std::optional<NavFunc113::DateTime> readShipsTime(std::string_view box, const Field& field,
                                                  std::optional<NavFunc113::DateTime> day,
                                                  Remarks& remarks);

// How figures are written.

/// "05:12", to the nearest minute; "24:00" at the end of the day.
std::string timeOfDayText(NavFunc113::DateTime time);
/// "11/22 05:12", to the nearest minute.
std::string dayAndTimeText(NavFunc113::DateTime time);
/// "Sun 2026/11/22".
std::string dayText(NavFunc113::DateTime day);
/// "34°12'": to the minute, as a sextant is preset.
std::string presetText(NavFunc113::Degrees altitude);
/// "35°30.5'N 139°45.2'E".
std::string placeText(const almanac::Observer& observer);

} // namespace korvel
