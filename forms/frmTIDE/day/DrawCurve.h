// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/PredictTide.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

/// The picture of a day's curve as figures: everything in hours (x, to the right) and metres or
/// knots (y, upwards). The window turns them into strokes.
namespace korvel
{

/// The picture's user scale.
struct CurveScale {
    double left;
    double right;
    double top;
    double bottom;
};

struct CurvePoint {
    double x{};
    double y{};
};

struct CurveLine {
    CurvePoint from;
    CurvePoint to;
};

/// A label with the position of its top left corner. Labels outside the scale lie outside the
/// picture.
struct HourLabel {
    double left{};
    double top{};
    int hour{};
    std::string caption;
};
struct HeightLabel {
    double top{};
    std::string caption;
};

struct CurvePicture {
    CurveScale scale = {};
    std::array<HourLabel, 11> lblTime;
    std::array<HeightLabel, 6> lblHeight;
    std::vector<HeightLabel> furtherLevels; ///< whole levels of the scale that lblHeight lacks
    std::vector<CurveLine> hourLines;       ///< dotted, every second hour
    std::vector<CurveLine> fineLevelLines;  ///< dotted, every 0.2 between the whole levels
    std::vector<CurveLine> levelLines;      ///< dotted, whole levels other than 0
    CurveLine zeroLine;                     ///< solid: chart datum, or slack water
    std::vector<CurveLine> ticks; ///< width 1: a stroke across the curve at samples 1 to 47
    std::array<CurvePoint, NavFunc113::samplesOfDay> curve; ///< width 2: joined by straight lines
};

CurvePicture DrawCurve(const TidePrediction& prediction);

/// What the pointer reads at a point of the curve.
struct CurveReading {
    CurvePoint point; ///< on the curve
    std::string text; ///< "13:30  1.23m", or "13:30  1.2kn NNE" with the direction a stream sets to
};

/// Reads the curve where it stands at an hour, between samples on the straight line that is drawn.
/// @param hour pointer's x; outside 0 to 24 nothing is read
/// @param mark stands before the figure: "~" for one of an estimated level
std::optional<CurveReading> readCurve(const TidePrediction& prediction, double hour,
                                      const std::string& mark = {});

} // namespace korvel
