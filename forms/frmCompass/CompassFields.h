// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

#include <array>
#include <string>

namespace korvel
{

/// The compasses of a ship, as rows of the window and of the book.
enum class CompassKind { Gyro, Standard, Steering };
inline constexpr std::size_t compassCount = 3;
inline constexpr std::array<const char*, compassCount> compassNames{"Gyro", "Standard", "Steering"};

/// Places of CompassFields. The bearing of a compass and its head follow each other.
enum class CompassBox {
    Moment,
    Latitude,
    Longitude,
    Body,
    GyroBearing,
    GyroHead,
    StandardBearing,
    StandardHead,
    SteeringBearing,
    SteeringHead,
    Variation,
    HeightOfEye,
    Speed
};

/// The boxes of a compass error; in this order in the record.
inline constexpr std::array<Field, 13> CompassFields = {{
    {"txtCompass(0)", "Time", "Time of the bearing", "yyyy/m/d hh:mm:ss", FieldKind::Moment},
    {"txtCompass(1)", "Latitude", "Latitude", "degrees.minutes", FieldKind::Latitude, "degrees",
     -90, 90, "south negative"},
    {"txtCompass(2)", "Longitude", "Longitude", "degrees.minutes", FieldKind::Longitude, "degrees",
     -180, 180, "west negative"},
    {"txtCompass(3)", "Body", "Body", "name or number of the star", FieldKind::Text},
    {"txtCompass(4)", "Bearing by gyro", "Bearing by gyro", "degrees", FieldKind::Figure, "degrees",
     0, 360},
    {"txtCompass(5)", "Head by gyro", "Head by gyro", "degrees", FieldKind::Figure, "degrees", 0,
     360},
    {"txtCompass(6)", "Bearing by standard compass", "Bearing by standard compass", "degrees",
     FieldKind::Figure, "degrees", 0, 360},
    {"txtCompass(7)", "Head by standard compass", "Head by standard compass", "degrees",
     FieldKind::Figure, "degrees", 0, 360},
    {"txtCompass(8)", "Bearing by steering compass", "Bearing by steering compass", "degrees",
     FieldKind::Figure, "degrees", 0, 360},
    {"txtCompass(9)", "Head by steering compass", "Head by steering compass", "degrees",
     FieldKind::Figure, "degrees", 0, 360},
    {"txtCompass(10)", "Variation", "Variation", "degrees", FieldKind::Text, "", -180, 180,
     "west negative or with a W"},
    {"txtCompass(11)", "Height of eye", "Height of eye", "metres", FieldKind::Figure, "metres", 0,
     200},
    {"txtCompass(12)", "Speed", "Ship's speed", "knots", FieldKind::Figure, "knots", 0, 100},
}};

} // namespace korvel
