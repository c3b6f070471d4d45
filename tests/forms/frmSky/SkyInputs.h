// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSky/CalculateDay.h"

#include <array>
#include <cstddef>
#include <initializer_list>

/// The boxes of the ship, typed as an officer would.
namespace korvel::skies
{

/// Position of, latitude, longitude, course, speed, height of eye, TD, day.
inline SkyInput inputOf(std::initializer_list<const char*> boxes)
{
    SkyInput input;
    using enum SkyBox;
    constexpr std::array places{Moment, Latitude, Longitude, Course, Speed, HeightOfEye, TD, Day};
    std::size_t at = 0;
    for (const char* box : boxes)
        input.txtSky[placeOf(places.at(at++))] = box;
    input.TD = NavFunc113::Hours(9);
    return input;
}

inline SkyDay dayOf(std::initializer_list<const char*> boxes)
{
    SkyPlaces places;
    return CalculateDay(inputOf(boxes), places);
}

} // namespace korvel::skies
