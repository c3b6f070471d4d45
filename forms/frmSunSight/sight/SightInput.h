// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/sextant.h"
#include "almanac/sky.h"
#include "app/reading/Remarks.h"
#include "forms/frmSunSight/sight/SightTexts.h"
#include "navlib/sky/ephemeris.h"
#include "navlib/sky/sight_fix.h"
#include "navlib/sky/sight_reduction.h"
#include "navlib/units.h"

#include <optional>

/// The inputs of the sun sight window, read with every box that cannot be used named.
namespace korvel
{

struct Field;

/// What a sight stands in, besides its own texts.
struct SightContext {
    std::optional<NavFunc113::DateTime> lastSight; ///< UTC of the last other sight that is on
    std::optional<NavFunc113::DateTime> now;       ///< UTC
    std::optional<NavFunc113::Hours> shipsTD;
};

/// Corrections of a sight, those of the library and what stands before and after them.
struct SightCorrections {
    NavFunc113::DegMin Hs;
    double indexError{};         ///< minutes, as taken off
    NavFunc113::DegMin observed; ///< index error taken off: the altitude above the sea horizon
    int month{};
    NavFunc113::Metres heightOfEye;
    double air{};                              ///< degrees Celsius
    double sea{};                              ///< degrees Celsius
    float pressure{};                          ///< hectopascals
    NavFunc113::AltitudeCorrectionTerms terms; ///< of the Sun
    double upperLimb{};                        ///< minutes, of the Sun; 0 for the lower limb
    almanac::Limb limb = almanac::Limb::Lower;
    std::optional<almanac::SextantTerms> ofBody; ///< of every other body, instead of these
    NavFunc113::DegMin Ho;
};

/// A sight with its inputs resolved; what could not be resolved is absent.
struct Observation {
    almanac::Body body = almanac::Body::Sun;
    std::optional<NavFunc113::DateTime> UTC;
    std::optional<NavFunc113::SunFigures> sun; ///< what the two below follow from; the Sun's alone
    std::optional<almanac::Place> place;       ///< the same of every other body
    std::optional<NavFunc113::DegMin> GHA;     ///< as the library gives it
    std::optional<NavFunc113::DegMin> declination;
    std::optional<SightCorrections> corrections;

    bool isSun() const { return body == almanac::Body::Sun; }
    /// The sight as it is from a place: what the earth's shape adds to the parallax, 0.2' for the
    /// Moon. A sight of the Sun comes back as it is.
    Observation takenAt(const NavFunc113::Position& place) const;

    /// The place is read whole, and after the time.
    bool complete() const { return GHA && corrections; }
    /// The sight as the fix takes it. @pre complete()
    NavFunc113::Sight sight(NavFunc113::DateTime timeOfFix) const;
};
/// Of a body other than the Sun the sight is corrected for the sphere; takenAt() goes on from
/// there. Of a sight that is not begun nothing empty is remarked upon.
Observation readObservation(const SightTexts& texts, Remarks& remarks);

/// The track resolved; what could not be resolved is absent.
struct Track {
    std::optional<NavFunc113::Position> position;
    std::optional<NavFunc113::Motion> motion;
    std::optional<NavFunc113::DateTime> UTC; ///< absent also when there is neither box nor sight
    bool timeUsable = true;                  ///< false when something unreadable was typed

    /// Position at an instant; nothing when an input is missing or the run ends at a pole.
    std::optional<NavFunc113::Position> at(NavFunc113::DateTime instant) const;
};
/// @param lastSight  UTC of the last sight: that of the DR position when its box is empty; a time
///                   of day alone is the one nearest to it
/// @param isNeeded   whether an empty position is remarked upon
Track readTrack(const TrackTexts& texts, std::optional<NavFunc113::DateTime> lastSight,
                bool isNeeded, Remarks& remarks);

/// The number in a box, its fault or a doubt named.
/// @param empty  what an empty box stands for; nothing: it must be filled
std::optional<double> readBox(const Field& field, const std::string& text,
                              std::optional<double> empty, Remarks& remarks);

/// Sets date and time of a sight to the present, so that the sight resolves to that UTC whatever
/// its scale and its watch error.
void Mark(SightTexts& sight, NavFunc113::DateTime UTC);

} // namespace korvel
