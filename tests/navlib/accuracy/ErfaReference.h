// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <array>
#include <optional>
#include <vector>

/// Places of the Sun and the Moon by ERFA and a long series of the Moon, independent of the
/// function library: what its accuracy is measured against. 1900 to 2100; UTC stands for UT1.
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

/// Rise or set of a local day, by bisection of the altitude.
class DayOfEvents
{
public:
    DayOfEvents(Body body, NavFunc113::DateTime date, double TD);

    /// Local date-times, the earliest first; those of half an hour before and after the date too.
    /// @param raised degrees by which the horizon is raised, to see what an error does
    std::vector<NavFunc113::DateTime> events(bool rising, double latitude, double longitude,
                                             Horizon horizon, double raised = 0) const;
    /// The earliest of the date: in high latitudes it can have two. Nothing when there is none.
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
