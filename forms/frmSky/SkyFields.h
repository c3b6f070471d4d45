// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

#include <array>
#include <cstddef>
#include <string>

namespace korvel
{

/// Places of SkyFields.
enum class SkyBox : std::size_t {
    Moment,
    Latitude,
    Longitude,
    Course,
    Speed,
    HeightOfEye,
    IndexError,
    TD,
    Day,
    StarsAt,
    UnknownAt,
    UnknownAltitude,
    UnknownBearing,
    FirstDay
};

/// The boxes of the sky, in their Enter order, which is that of the record.
inline constexpr std::array<Field, 14> SkyFields = {{
    {"txtSky(0)", "Position of", "Time of the position", "ship's time, yyyy/m/d hh:mm",
     FieldKind::Moment},
    {"txtSky(1)", "Latitude", "Latitude", "degrees.minutes", FieldKind::Latitude, "degrees", -90,
     90, "south negative"},
    {"txtSky(2)", "Longitude", "Longitude", "degrees.minutes", FieldKind::Longitude, "degrees",
     -180, 180, "west negative"},
    {"txtSky(3)", "Course", "Course", "degrees true", FieldKind::Figure, "degrees", 0, 360},
    {"txtSky(4)", "Speed", "Speed", "knots", FieldKind::Figure, "kn", 0, 100},
    {"txtSky(5)", "Height of eye", "Height of eye", "metres", FieldKind::Figure, "m", 0, 200},
    {"txtSky(13)", "Index error", "Index error", "minutes of arc", FieldKind::Figure,
     "minutes of arc", -60, 60, "on the arc positive"},
    {"txtSky(6)", "TD", "TD of ship's time", "hours", FieldKind::Figure, "h", -12, 14,
     "east positive"},
    {"txtSky(7)", "Day", "Day that is shown", "yyyy/m/d", FieldKind::Moment},
    {"txtSky(8)", "Stars at", "Minute of the stars", "ship's time, hh:mm", FieldKind::Moment},
    {"txtSky(9)", "Observed at", "Time the unknown body was observed",
     "ship's time, yyyy/m/d hh:mm:ss", FieldKind::Moment},
    {"txtSky(10)", "Sextant altitude", "Altitude of the unknown body", "degrees.minutes",
     FieldKind::Angle, "degrees", 0, 90},
    {"txtSky(11)", "Bearing", "Bearing of the unknown body", "degrees true", FieldKind::Figure,
     "degrees", 0, 360},
    {"txtSky(12)", "First day", "First day of the almanac", "yyyy/m/d", FieldKind::Moment},
}};

constexpr std::size_t placeOf(SkyBox which)
{
    return static_cast<std::size_t>(which);
}

using SkyTexts = std::array<std::string, SkyFields.size()>;

} // namespace korvel
