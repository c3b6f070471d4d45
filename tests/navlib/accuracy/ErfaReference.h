// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <array>
#include <functional>
#include <optional>

/// Places of the Sun and the Moon by ERFA, independent of the function library: what its accuracy
/// is measured against. UTC stands for UT1.
namespace erfareference
{

enum class Body { Sun, Moon };

/// Degrees; doubles, as the peer speaks them.
struct Place {
    double GHA = 0; ///< 0 <= GHA < 360
    double declination = 0;
    double distanceKm = 0;
};

/// Apparent geocentric place, referred to the true equator and equinox of date.
Place apparentPlace(Body body, NavFunc113::DateTime utc);

enum class Horizon {
    AsTheLibrary, ///< Sun's centre at -0.9033, Moon's centre at 0 degrees
    Almanac       ///< upper limb on the horizon, 34' of refraction; parallax and size of the day
};

/// Rise or set of a local day, by bisection of the altitude; the earliest when there are two.
/// @return local date-time, nothing when there is none
class DayOfEvents
{
public:
    DayOfEvents(Body body, NavFunc113::DateTime date, double TD);
    std::optional<NavFunc113::DateTime> event(bool rising, double latitude, double longitude,
                                              Horizon horizon) const;

private:
    static constexpr int hours = 25;
    static constexpr int margin = 2;
    Place at(double hour) const;
    Body m_body;
    NavFunc113::DateTime m_date;
    std::array<Place, hours + 2 * margin> m_hourly; ///< GHA runs on without a jump
};

} // namespace erfareference
