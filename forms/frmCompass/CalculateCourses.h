// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"
#include "navlib/sailing/deviation.h"
#include "navlib/sea/current.h"

#include <array>
#include <optional>
#include <string>

namespace korvel
{

/// What the course that is typed is: where the ship heads, by one of three, or the track wanted
/// over the ground.
enum class CourseGiven { TrueHead, GyroHead, CompassHead, Track };

/// Places of CourseFields.
enum class CourseBox {
    Course,
    Speed,
    Leeway,
    Set,
    Drift,
    GyroError,
    Variation,
    Deviation,
    Distance
};

inline constexpr std::array<Field, 9> CourseFields = {{
    {"txtCourses(0)", "Course", "Course", "degrees", FieldKind::Figure, "degrees", 0, 360},
    {"txtCourses(1)", "Speed", "Speed through the water", "knots", FieldKind::Figure, "knots", 0,
     100},
    {"txtCourses(2)", "Leeway", "Leeway", "degrees", FieldKind::Figure, "degrees", -45, 45,
     "to port negative"},
    {"txtCourses(3)", "Set", "Set of the current", "degrees true", FieldKind::Figure, "degrees", 0,
     360},
    {"txtCourses(4)", "Drift", "Drift of the current", "knots", FieldKind::Figure, "knots", 0, 30},
    {"txtCourses(5)", "Gyro error", "Gyro error", "degrees", FieldKind::Text, "", -180, 180,
     "west negative or with a W"},
    {"txtCourses(6)", "Variation", "Variation", "degrees", FieldKind::Text, "", -180, 180,
     "west negative or with a W"},
    {"txtCourses(7)", "Deviation", "Deviation", "degrees", FieldKind::Text, "", -180, 180,
     "west negative or with a W"},
    {"txtCourses(8)", "Distance", "Distance to make good", "nautical miles", FieldKind::Figure,
     "miles", 0, 25000},
}};

struct CourseInput {
    std::array<std::string, CourseFields.size()> txtCourses; ///< boxes as typed
    CourseGiven given = CourseGiven::TrueHead;
    std::optional<NavFunc113::DeviationCoefficients> curve; ///< of the compass; nothing: as typed

    const std::string& box(CourseBox which) const
    {
        return txtCourses[static_cast<std::size_t>(which)];
    }
};

/// Sides of the vector triangle: through the water, the current, over the ground.
struct CourseTriangle {
    NavFunc113::HorizontalMotion throughWater, current, madeGood;
};

struct CourseResult {     ///< an empty text blanks the label
    std::string trueHead; ///< "<103.1>"
    std::string gyroHead; ///< where a gyro error is typed
    std::string magneticHead;
    std::string compassHead;
    std::string deviation;   ///< on that head, "4.9 W"
    std::string waterCourse; ///< true, leeway taken in
    std::string track;       ///< made good over the ground, true
    std::string speed;       ///< made good, "12.3"
    std::string time;        ///< for the distance at that speed, "1 d 02 h 15 m"
    std::string notice;      ///< why labels are blank, and what else is to be said

    /// What the courses were worked from, with full precision; for the paper.
    struct Worked {
        NavFunc113::Degrees course, leeway;
        std::optional<NavFunc113::Degrees> gyroError, variation, deviation, magnetic, compassHead;
        std::optional<double> distance; ///< miles
    };
    Worked worked;
    std::optional<CourseTriangle> triangle;  ///< for the picture; nothing without a speed
    std::optional<NavFunc113::Degrees> head; ///< true, with full precision
};

/// Courses into each other. Leeway, set and drift that are not typed are none; a gyro head needs
/// the gyro error, a compass head the variation.
CourseResult CalculateCourses(const CourseInput& input);

} // namespace korvel
