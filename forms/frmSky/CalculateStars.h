// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/moon_phase.h"
#include "almanac/star_round.h"
#include "app/records/PlannedSights.h"
#include "forms/frmSky/CalculateDay.h"

#include <optional>
#include <string>
#include <vector>

/// What stands in the sky at a minute, and which bodies make the best round.
namespace korvel
{

/// A body above the horizon.
struct SkyBody {
    almanac::Body body = almanac::Body::Sun;
    almanac::Direction seen;            ///< of the centre, without refraction
    std::optional<double> magnitude;    ///< none of Sun and Moon
    NavFunc113::Degrees altitudeChange; ///< in a minute, for the moving ship
    NavFunc113::Degrees azimuthChange;  ///< clockwise positive
    NavFunc113::Degrees sextant;        ///< to be preset, as it reads; lower limb of Sun and Moon
    bool isInRound = false;
};

/// A body as the table shows it.
struct SkyBodyTexts {
    std::string mark;   ///< "●" of the round
    std::string number; ///< of the star in almanacs
    std::string name;
    std::string magnitude;
    std::string altitude;
    std::string azimuth;
    std::string altitudeChange;
    std::string azimuthChange;
    std::string preset;
};
SkyBodyTexts textsOf(const SkyBody& body);

enum class SkyTwilight { Morning, Evening };

struct SkyStarsAsked {
    std::string at; ///< the box: empty for the middle of the twilight
    SkyTwilight twilight = SkyTwilight::Evening;
    std::size_t count{}; ///< bodies of the round
};

struct SkyStars {
    std::optional<NavFunc113::DateTime> utc;
    std::vector<SkyBody> bodies; ///< those of the round by azimuth, then the others by azimuth
    almanac::Direction sun;      ///< wherever it is
    double moonLit{};            ///< part of the disc
    std::optional<NavFunc113::Degrees>
        moonBrightLimb;  ///< towards where on the horizon, as seen:
                         ///< position angle from the zenith, clockwise
    std::string time;    ///< "17:58", ship's time
    std::string zulu;    ///< "2026/11/22 08:58", UTC
    std::string where;   ///< the ship's position then
    std::string round;   ///< "Vega, Deneb, Fomalhaut"
    std::string quality; ///< what the round makes of the position
    std::string polaris; ///< "azimuth 359.3°, altitude 35°12.3'"; why there is none
    std::string notice;

    std::size_t roundSize() const;
};

/// @param day is that of the same boxes
SkyStars CalculateStars(const SkyDay& day, const SkyStarsAsked& asked);

/// The round as it goes to the window of the sights.
PlannedSights plannedRound(const SkyStars& stars);

} // namespace korvel
