// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/day_events.h"
#include "almanac/moon_phase.h"
#include "forms/frmSky/SkyShip.h"

#include <array>
#include <optional>
#include <string>

/// Twilight, Sun and Moon of a day for the moving ship.
namespace korvel
{

enum class SkyEvent : std::size_t {
    NauticalDawn,
    CivilDawn,
    Sunrise,
    SunPassage,
    Sunset,
    CivilDusk,
    NauticalDusk,
    Moonrise,
    MoonPassage,
    Moonset
};
inline constexpr std::size_t skyEvents = 10;
inline constexpr std::array<const char*, skyEvents> skyEventNames{
    "Nautical twilight begins", "Civil twilight begins",  "Sunrise",  "Sun's passage",  "Sunset",
    "Civil twilight ends",      "Nautical twilight ends", "Moonrise", "Moon's passage", "Moonset"};

/// A line of the day: a time and where the ship is then, or why there is none.
struct SkyEventLine {
    std::optional<NavFunc113::DateTime> utc;
    std::string name;     ///< "Nautical twilight"
    std::string ships;    ///< "05:12", ship's time; "none"
    std::string zulu;     ///< "11/21 20:12", UTC
    std::string bearing;  ///< of the body's centre; degrees true
    std::string altitude; ///< at the passage, of the centre, computed
    std::string where;    ///< the ship's position then, or why there is no time
};

struct SkyDay {
    std::optional<SkyShip> ship;
    std::array<SkyEventLine, skyEvents> events;
    std::string morning; ///< "05:12 - 05:41": stars and horizon are seen together
    std::string evening;
    std::string noon;      ///< ship's time of the Sun's passage
    std::string date;      ///< "Sun 2026/11/22, TD +9"
    std::string moonAge;   ///< "12.4 days"
    std::string moonPhase; ///< "waxing, first quarter past"
    std::string moonLit;   ///< "93 %"
    std::string notice;

    /// Middle of the twilight in which stars are taken: between -6 and -12 degrees of the Sun; the
    /// end that there is where the other one is not.
    std::optional<NavFunc113::DateTime> middleOfMorning, middleOfEvening;

    const SkyEventLine& event(SkyEvent which) const
    {
        return events[static_cast<std::size_t>(which)];
    }
    bool hasTimes() const { return ship.has_value(); }
};

/// Places of Sun and Moon over a day, which cost more than all else: kept from key to key.
class SkyPlaces
{
public:
    const almanac::HourlyPlaces& sun(NavFunc113::DateTime from, NavFunc113::DateTime to)
    {
        make(from, to);
        return *m_sun;
    }
    const almanac::HourlyPlaces& moon(NavFunc113::DateTime from, NavFunc113::DateTime to)
    {
        make(from, to);
        return *m_moon;
    }

private:
    void make(NavFunc113::DateTime from, NavFunc113::DateTime to);

    NavFunc113::DateTime m_from{}, m_to{};
    std::optional<almanac::HourlyPlaces> m_sun, m_moon;
};

/// Nothing entered gives an empty day without a word.
SkyDay CalculateDay(const SkyInput& input, SkyPlaces& places);

/// "waxing crescent" and the like, by the elongation: within 4 degrees of them new Moon, first
/// quarter, full Moon, last quarter.
std::string phaseName(NavFunc113::Degrees elongation);

} // namespace korvel
