// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "forms/frmSunSight/sight/SightTexts.h"

#include <array>
#include <cstddef>
#include <string>

namespace korvel
{

/// Places in entryFields.
namespace SightField
{
enum : std::size_t {
    date,
    time,
    TD,
    watchError,
    Hs,
    indexError,
    heightOfEye,
    air,
    sea,
    pressure,
    DRLatitude,
    DRLongitude,
    DRTime,
    course,
    speed
};
constexpr std::size_t ofSight = 10, ofTrack = 5;
} // namespace SightField

/// The sight being entered, then the track that it is referred to.
inline constexpr std::array<Field, SightField::ofSight + SightField::ofTrack> entryFields = {{
    {"txtSunSight(0)", "Date", "Date of the sight", "year/month/day", FieldKind::Moment,
     "yyyy/mm/dd"},
    {"txtSunSight(1)", "Time by the watch", "Time of the sight by the watch",
     "hours:minutes:seconds", FieldKind::Moment, "hh:mm:ss"},
    {"txtSunSight(2)", "TD", "TD of ship's mean time", "hours", FieldKind::Figure, "hours, east +",
     -12, 12, "east positive"},
    {"txtSunSight(3)", "Watch error", "Watch error", "seconds", FieldKind::Figure, "s, fast +",
     -43200, 43200, "fast positive"},
    {"txtSunSight(4)", "Sextant altitude Hs", "Sextant altitude", "degrees.minutes",
     FieldKind::Angle, "deg.min", 0, 90},
    {"txtSunSight(5)", "Index error", "Index error", "minutes of arc", FieldKind::Figure,
     "', on the arc +", -60, 60, "on the arc positive"},
    {"txtSunSight(6)", "Height of eye", "Height of eye", "metres", FieldKind::Figure, "m", 0, 100},
    {"txtSunSight(7)", "Air temperature", "Air temperature", "degrees Celsius", FieldKind::Figure,
     "°C", -60, 60},
    {"txtSunSight(8)", "Sea temperature", "Sea temperature", "degrees Celsius", FieldKind::Figure,
     "°C", -5, 45},
    {"txtSunSight(9)", "Pressure", "Air pressure", "hectopascals", FieldKind::Figure, "hPa", 850,
     1100},
    // On the last degree to a pole the plane chart and the run by middle latitude fail.
    {"txtSunDR(0)", "DR latitude", "DR latitude", "degrees.minutes", FieldKind::Latitude, "", -89,
     89, "north positive, up to 89"},
    {"txtSunDR(1)", "DR longitude", "DR longitude", "degrees.minutes", FieldKind::Longitude, "",
     -180, 180, "east positive"},
    {"txtSunRun(0)", "Time of DR", "Time of the DR position",
     "UTC, year/month/day hours:minutes:seconds", FieldKind::Moment, "UTC"},
    {"txtSunRun(1)", "Course", "Course made good", "degrees true", FieldKind::Figure, "° made good",
     0, 360},
    {"txtSunRun(2)", "Speed", "Speed made good", "knots", FieldKind::Figure, "kn made good", 0,
     100},
}};

/// The body of the sight, before all else.
inline constexpr std::array<Field, 1> bodyField = {{
    {"txtSunBody", "Body", "Body of the sight", "name or number", FieldKind::Text, ""},
}};

/// How good the lines are held to be.
inline constexpr std::array<Field, 3> qualityFields = {{
    {"txtSunSigma(0)", "Sigma", "Sigma of a line", "nautical miles", FieldKind::Figure, "nm", 0.1,
     20},
    {"txtSunSigma(1)", "Run", "Error of the run", "per cent of the distance", FieldKind::Figure,
     "%", 0, 100},
    {"txtSunSigma(2)", "Course", "Error of the course made good", "degrees", FieldKind::Figure, "°",
     0, 45},
}};

/// Where the text of a field belongs, in the order of the tables.
inline constexpr std::array<std::string SightTexts::*, SightField::ofSight> sightMembers = {
    &SightTexts::date, &SightTexts::time,       &SightTexts::TD,          &SightTexts::watchError,
    &SightTexts::Hs,   &SightTexts::indexError, &SightTexts::heightOfEye, &SightTexts::air,
    &SightTexts::sea,  &SightTexts::pressure};
inline constexpr std::array<std::string TrackTexts::*, SightField::ofTrack> trackMembers = {
    &TrackTexts::latitude, &TrackTexts::longitude, &TrackTexts::time, &TrackTexts::course,
    &TrackTexts::speed};
inline constexpr std::array<std::string SightFixOptions::*, 3> qualityMembers = {
    &SightFixOptions::sigma, &SightFixOptions::runAlong, &SightFixOptions::runCourse};

} // namespace korvel
