// SPDX-License-Identifier: MIT
#pragma once

#include "app/Remarks.h"
#include "navlib/sight_fix.h"
#include "navlib/sight_reduction.h"
#include "navlib/units.h"

#include <optional>
#include <string>
#include <vector>

/// The inputs of the sun sight window, read with every box that cannot be used named.
namespace korvel
{

/// A sight of the Sun as typed. Empty boxes: index error, watch error, TD and height of eye are 0;
/// air and sea 10 degrees (the sea: as the air), pressure 1013 hPa, the air of the tables.
struct SightTexts {
    std::string date;       ///< by the scale below
    std::string time;       ///< by the watch, h:mm:ss
    bool SMT = false;       ///< the watch keeps ship's mean time; else UTC
    std::string TD;         ///< hours, used with SMT only
    std::string watchError; ///< seconds, fast positive; taken off
    std::string Hs;         ///< sextant altitude, DegMin
    std::string indexError; ///< minutes of arc, on the arc positive; taken off
    bool upperLimb = false;
    std::string heightOfEye; ///< metres
    std::string air;         ///< degrees Celsius
    std::string sea;         ///< degrees Celsius
    std::string pressure;    ///< hectopascals

    bool operator==(const SightTexts&) const = default;
};

/// The dead-reckoned track that all sights are referred to, as typed.
struct TrackTexts {
    std::string latitude;  ///< txtSunDR(0), DegMin, -89 to 89
    std::string longitude; ///< txtSunDR(1), DegMin
    std::string time;      ///< UTC of that position, date and time; empty: that of the (last) sight
    std::string course;    ///< made good, 0 to 360
    std::string speed;     ///< made good, knots
};

/// Corrections of a sight, those of the library and what stands before and after them.
struct SightCorrections {
    NavFunc113::DegMin Hs;
    double indexError = 0; ///< minutes, as taken off
    NavFunc113::AltitudeCorrectionTerms terms;
    double upperLimb = 0; ///< minutes; 0 for the lower limb
    NavFunc113::DegMin Ho;
};

/// A sight with its inputs resolved; what could not be resolved is absent.
struct Observation {
    std::optional<NavFunc113::DateTime> UTC;
    std::optional<NavFunc113::DegMin> GHA; ///< as the library gives it
    std::optional<NavFunc113::DegMin> declination;
    std::optional<SightCorrections> corrections;

    bool complete() const { return UTC && GHA && declination && corrections; }
    /// The sight as the fix takes it. @pre complete()
    NavFunc113::Sight sight(NavFunc113::DateTime timeOfFix) const;
};
Observation readObservation(const SightTexts& texts, Remarks& remarks);

/// The track resolved; what could not be resolved is absent.
struct Track {
    std::optional<NavFunc113::Position> position;
    std::optional<NavFunc113::Motion> motion;
    std::optional<NavFunc113::DateTime> UTC; ///< absent also when the box is empty
    bool timeUsable = true;                  ///< false when something unreadable was typed

    /// Position at an instant; nothing when an input is missing or the run ends at a pole.
    std::optional<NavFunc113::Position> at(NavFunc113::DateTime instant) const;
};
Track readTrack(const TrackTexts& texts, Remarks& remarks);

/// A number of a box, its fault or a doubt named.
/// @param name   of the box, as the officer knows it
/// @param empty  what an empty box stands for; nothing: it must be filled
std::optional<double> readBox(const std::string& name, const std::string& text, double low,
                              double high, std::optional<double> empty, Remarks& remarks);

/// Sets date and time of a sight to the present, so that the sight resolves to that UTC whatever
/// its scale and its watch error.
void Mark(SightTexts& sight, NavFunc113::DateTime UTC);

} // namespace korvel
