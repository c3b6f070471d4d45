// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/CompassBody.h"
#include "forms/frmCompass/CompassFields.h"
#include "forms/frmCompass/CompassVariation.h"

#include <array>
#include <optional>
#include <string>

namespace korvel
{

enum class CompassClock { UTC, ShipsTime };
enum class CompassMethod { Azimuth, Amplitude };

struct CompassInput {
    std::array<std::string, CompassFields.size()> txtCompass; ///< boxes as typed
    CompassClock clock = CompassClock::UTC;
    NavFunc113::Hours TD; ///< ship's time is UTC and this
    CompassMethod method = CompassMethod::Azimuth;
    AmplitudeHorizon horizon = AmplitudeHorizon::Celestial;
    AmplitudeSide side = AmplitudeSide::Nearest;
    bool usesModel = true; ///< variation by the model; else as typed
    const almanac::MagneticModel* model = &almanac::MagneticModel::ofProgram();

    const std::string& box(CompassBox which) const
    {
        return txtCompass[static_cast<std::size_t>(which)];
    }
};

/// What one compass showed and what is wrong with it; nothing where it is not known. East positive.
struct CompassReading {
    std::optional<NavFunc113::Degrees> bearing;
    std::optional<NavFunc113::Degrees> head;
    std::optional<NavFunc113::Degrees> error;
    std::optional<NavFunc113::Degrees> deviation; ///< of a magnetic compass
    bool byHeads = false; ///< no bearing: its head was compared with that of another compass

    bool operator==(const CompassReading&) const = default;
};
using CompassReadings = std::array<CompassReading, compassCount>;

struct CompassResult {                    ///< an empty text blanks the label
    std::string trueBearing;              ///< "<103.1>"
    std::string altitude;                 ///< of the centre, computed: "12°34.5'"
    std::string change;                   ///< of the bearing in a minute of time, "0.21°"
    std::string variation;                ///< "8.0 E", of a model "8.0 E ±0.4 (WMM-2025)"
    std::string riseOrSet;                ///< "Rise 2038/07/23 05:12:34 UTC" on the horizon chosen
    std::string trueHead;                 ///< "<231.0>"
    std::string speedError;               ///< of a gyro without correction, "1.7 W (high)"
    std::array<std::string, 3> byHorizon; ///< bearing on each horizon, of an amplitude
    std::array<std::string, compassCount> errors; ///< gyro error, "1.2 W (high)"; others "3.1 E"
    std::array<std::string, compassCount> deviations; ///< for this head; none of the gyro
    /// Beside the curves of the book, "Curve 0.5 W on 082: fits"; by whoever knows the book.
    std::array<std::string, compassCount> besideCurves;
    std::string notice; ///< why labels are blank, and what else is to be said

    std::optional<NavFunc113::DateTime> ut;
    std::optional<almanac::Body> body;
    std::optional<NavFunc113::Degrees> latitude, longitude;
    std::optional<TrueBearing> seen;
    std::optional<CompassVariation> magnetic;
    std::optional<almanac::Crossing> crossing;
    CompassReadings readings; ///< with full precision
    /// What the bearing was worked from, for the paper.
    struct Worked {
        std::optional<almanac::Place> place;
        std::optional<NavFunc113::Degrees> trueHead;
        NavFunc113::Metres eye; ///< 0 where nothing was typed
        NavFunc113::Degrees dip;
        std::array<std::optional<TrueBearing>, 3> byHorizon; ///< of an amplitude
        std::optional<NavFunc113::Knots> speed;
        std::optional<NavFunc113::Degrees> speedError, course; ///< of the gyro, and on which course
    };
    Worked worked;
};

/// Errors of the compasses from the bearing of a body. What cannot be told without an empty box
/// stays blank; results follow from whichever bearings and heads are there.
CompassResult CalculateCompass(const CompassInput& input);

} // namespace korvel
