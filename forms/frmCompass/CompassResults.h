// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Result.h"
#include "forms/frmCompass/CalculateCompass.h"
#include "forms/frmCompass/CalculateCourses.h"
#include "forms/frmCompass/DeviationCurve.h"

namespace korvel
{

/// The results of a compass error. The places of the pairs of a compass follow each other.
inline constexpr std::array CompassResults = {
    Result<CompassResult>{"lblCompass(0)", "True bearing, °", "degrees true", Weight::Answer,
                          &CompassResult::trueBearing, "True bearing"},
    Result<CompassResult>{"lblCompass(1)", "Gyro error", "", Weight::Answer,
                          textAt<&CompassResult::errors, 0>, "Gyro error"},
    Result<CompassResult>{"lblCompass(2)", "Standard: error", "", Weight::Answer,
                          textAt<&CompassResult::errors, 1>, "Error of the standard compass"},
    Result<CompassResult>{"lblCompass(3)", "deviation", "", Weight::Answer,
                          textAt<&CompassResult::deviations, 1>,
                          "Deviation of the standard compass"},
    Result<CompassResult>{"lblCompass(4)", "Steering: error", "", Weight::Answer,
                          textAt<&CompassResult::errors, 2>, "Error of the steering compass"},
    Result<CompassResult>{"lblCompass(5)", "deviation", "", Weight::Answer,
                          textAt<&CompassResult::deviations, 2>,
                          "Deviation of the steering compass"},
    Result<CompassResult>{"lblCompass(6)", "", "", Weight::Remark,
                          textAt<&CompassResult::besideCurves, 1>,
                          "Standard compass beside the curve of the book"},
    Result<CompassResult>{"lblCompass(7)", "", "", Weight::Remark,
                          textAt<&CompassResult::besideCurves, 2>,
                          "Steering compass beside the curve of the book"},
    Result<CompassResult>{"lblCompass(8)", "Altitude", "", Weight::Figure, &CompassResult::altitude,
                          "Altitude of the body"},
    Result<CompassResult>{"lblCompass(9)", "Change a minute", "", Weight::Figure,
                          &CompassResult::change, "Change of the bearing in a minute"},
    Result<CompassResult>{"lblCompass(10)", "Found", "", Weight::Figure, &CompassResult::riseOrSet,
                          "Rise or set"},
    Result<CompassResult>{"lblCompass(11)", "", "", Weight::Figure,
                          textAt<&CompassResult::byHorizon, 0>,
                          "Bearing with the centre on the celestial horizon"},
    Result<CompassResult>{"lblCompass(12)", "", "", Weight::Figure,
                          textAt<&CompassResult::byHorizon, 1>,
                          "Bearing with the centre on the visible horizon"},
    Result<CompassResult>{"lblCompass(13)", "", "", Weight::Figure,
                          textAt<&CompassResult::byHorizon, 2>,
                          "Bearing with the upper limb on the visible horizon"},
    Result<CompassResult>{"lblCompass(14)", "True head", "", Weight::Figure,
                          &CompassResult::trueHead},
    Result<CompassResult>{"lblCompass(15)", "Variation", "", Weight::Figure,
                          &CompassResult::variation, "Variation used"},
    Result<CompassResult>{"lblCompass(16)", "Gyro speed error", "", Weight::Figure,
                          &CompassResult::speedError, "Speed error of the gyro"},
};

/// The results of a deviation.
inline constexpr std::array DeviationResults = {
    Result<DeviationCurve>{"lblDeviation(0)", "", "", Weight::Figure,
                           textAt<&DeviationCurve::coefficients, 0>, "Coefficient A"},
    Result<DeviationCurve>{"lblDeviation(1)", "", "", Weight::Figure,
                           textAt<&DeviationCurve::coefficients, 1>, "Coefficient B"},
    Result<DeviationCurve>{"lblDeviation(2)", "", "", Weight::Figure,
                           textAt<&DeviationCurve::coefficients, 2>, "Coefficient C"},
    Result<DeviationCurve>{"lblDeviation(3)", "", "", Weight::Figure,
                           textAt<&DeviationCurve::coefficients, 3>, "Coefficient D"},
    Result<DeviationCurve>{"lblDeviation(4)", "", "", Weight::Figure,
                           textAt<&DeviationCurve::coefficients, 4>, "Coefficient E"},
    Result<DeviationCurve>{"lblDeviation(5)", "scatter", "", Weight::Figure,
                           &DeviationCurve::scatter, "Scatter of one line"},
};

/// The results of courses; those to be steered and what is made good come first.
inline constexpr std::array CourseResults = {
    Result<CourseResult>{"lblCourses(0)", "Steer: true", "", Weight::Answer,
                         &CourseResult::trueHead, "True head"},
    Result<CourseResult>{"lblCourses(1)", "by gyro", "", Weight::Answer, &CourseResult::gyroHead,
                         "Gyro head"},
    Result<CourseResult>{"lblCourses(2)", "by compass", "", Weight::Answer,
                         &CourseResult::compassHead, "Compass head"},
    Result<CourseResult>{"lblCourses(3)", "Made good: track", "", Weight::Answer,
                         &CourseResult::track, "Track made good"},
    Result<CourseResult>{"lblCourses(4)", "knots", "knots", Weight::Answer, &CourseResult::speed,
                         "Speed made good"},
    Result<CourseResult>{"lblCourses(5)", "Magnetic head", "", Weight::Figure,
                         &CourseResult::magneticHead},
    Result<CourseResult>{"lblCourses(6)", "Deviation", "", Weight::Figure, &CourseResult::deviation,
                         "Deviation on that head"},
    Result<CourseResult>{"lblCourses(7)", "Through the water", "", Weight::Figure,
                         &CourseResult::waterCourse, "Course through the water"},
    Result<CourseResult>{"lblCourses(8)", "Time", "", Weight::Figure, &CourseResult::time,
                         "Time for the distance"},
};

} // namespace korvel
