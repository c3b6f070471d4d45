// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Result.h"
#include "forms/frmNoon/CalculateNoon.h"

#include <algorithm>
#include <array>
#include <cstddef>

namespace korvel
{

using NoonRow = Result<NoonResult>;
inline constexpr std::array NoonResults = {
    NoonRow{"lblNoon(0)", "Day's run", "nautical miles", Weight::Answer, &NoonResult::run},
    NoonRow{"lblNoon(1)", "Steaming time", "", Weight::Answer, &NoonResult::hours},
    NoonRow{"lblNoon(2)", "Average speed", "knots", Weight::Answer, &NoonResult::average},
    // Eight in a column.
    NoonRow{"lblNoon(3)", "Between", "", Weight::Figure, &NoonResult::between, "Between the fixes"},
    NoonRow{"lblNoon(4)", "Position", "", Weight::Figure, &NoonResult::position},
    NoonRow{"lblNoon(5)", "Since full away", "", Weight::Figure, &NoonResult::sinceAway},
    NoonRow{"lblNoon(6)", "To go", "nm", Weight::Figure, &NoonResult::toGo, "Distance to go"},
    NoonRow{"lblNoon(7)", "By", "", Weight::Remark, &NoonResult::by,
            "How the distance to go is known"},
    NoonRow{"lblNoon(8)", "ETA", "", Weight::Figure, textAt<&NoonResult::eta, 0>,
            "ETA at the first speed"},
    NoonRow{"lblNoon(9)", "ETA", "", Weight::Figure, textAt<&NoonResult::eta, 1>,
            "ETA at the second speed"},
    NoonRow{"lblNoon(10)", "ETA", "", Weight::Figure, textAt<&NoonResult::eta, 2>,
            "ETA at the third speed"},
    NoonRow{"lblNoon(11)", "Speed wanted", "kn", Weight::Figure, &NoonResult::speedNeeded,
            "Speed for the wanted arrival"},
    NoonRow{"lblNoon(12)", "Set and drift", "", Weight::Figure, &NoonResult::setAndDrift},
    NoonRow{"lblNoon(13)", "Engine miles", "", Weight::Figure, &NoonResult::engine, "Engine miles"},
    NoonRow{"lblNoon(14)", "Slip apparent", "%", Weight::Figure, &NoonResult::apparentSlip,
            "Apparent slip"},
    NoonRow{"lblNoon(15)", "Slip real", "%", Weight::Figure, &NoonResult::realSlip, "Real slip"},
    NoonRow{"lblNoon(16)", "Fuel 1", "", Weight::Figure, textAt<&NoonResult::fuel, 0>,
            "Consumption of fuel 1"},
    NoonRow{"lblNoon(17)", "Fuel 2", "", Weight::Figure, textAt<&NoonResult::fuel, 1>,
            "Consumption of fuel 2"},
    NoonRow{"lblNoon(18)", "Fuel 3", "", Weight::Figure, textAt<&NoonResult::fuel, 2>,
            "Consumption of fuel 3"},
    NoonRow{"lblNoon(19)", "Sea", "", Weight::Figure, &NoonResult::sea, "Sea and swell"},
    NoonRow{"lblNoon(20)", "Visibility", "", Weight::Figure, &NoonResult::visibility,
            "Visibility in the log's terms"},
    NoonRow{"lblNoon(21)", "Sky", "", Weight::Figure, &NoonResult::weather,
            "Weather in the log's terms"},
    NoonRow{"lblNoon(22)", "Fuel by", "", Weight::Remark, &NoonResult::fuelBy,
            "Where the fuel on board comes from"},
};
/// They come first.
inline constexpr auto noonAnswers =
    static_cast<std::size_t>(std::ranges::count(NoonResults, Weight::Answer, &NoonRow::weight));

inline constexpr std::array<const char*, NoonResults.size()> NoonRooms = {
    "00000.0",
    "000 d 00 h 00 m",
    "00.00",
    "rows 00-00, TD +00 to +00: clocks 01 h 00 m forward",
    "00°00.0'N 000°00.0'E",
    "00000.0 nm in 00 d 00 h 00 m, 00.00 kn",
    "00000.0",
    "great circle to row 000, then by the plan; stops 00 h 00 m",
    "00.00 kn: Wed 2038/08/04 20:38 TD -10; UTC Wed 20:38",
    "00.00 kn: Wed 2038/08/04 20:38 TD -10; UTC Wed 20:38",
    "00.00 kn: Wed 2038/08/04 20:38 TD -10; UTC Wed 20:38",
    "00.00",
    "000°, 000.0 nm = 00.00 kn",
    "00000.0 of 1852 m",
    "-000.00",
    "-000.00",
    "00000.0 t, 0.0000 t per nm",
    "00000.0 t, 0.0000 t per nm",
    "00000.0 t, 0.0000 t per nm",
    "9-Phenomenal, Mod./Rough swell",
    "9-Visivility exceptional, 000.0 nm",
    "c Cloudy, o Overcast, r Rain, q Squalls",
    "tank list, 2038/08/04 20:38"};

} // namespace korvel
