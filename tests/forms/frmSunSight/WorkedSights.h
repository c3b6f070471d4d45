// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Format.h"
#include "forms/frmSunSight/fix/SightFix.h"
#include "forms/frmSunSight/sight/SightInput.h"
#include "navlib/angles.h"

#include <cmath>

/// The published exercises, typed in as an officer would.
namespace korvel::worked
{

inline SightTexts sight(const char* date, const char* time, const char* Hs, const char* indexError,
                        const char* eye)
{
    SightTexts texts;
    texts.date = date;
    texts.time = time;
    texts.Hs = Hs;
    texts.indexError = indexError;
    texts.heightOfEye = eye;
    return texts;
}

/// A sailing school's morning and noon sight, 2020.
inline const SightTexts morning2020 = sight("2020/12/17", "11:45:11", "24.350", "4.0", "2.8");
inline const SightTexts noon2020 = sight("2020/12/17", "15:30:00", "52.220", "4.0", "2.8");
inline const TrackTexts track2020{"14.020", "-52.110", "2020/12/17 11:45:11", "271", "8"};

/// A manual's morning and noon sight, 1990; the run of 19 miles as a speed.
inline const SightTexts morning1990 = sight("1990/12/16", "10:49:06", "19.186", "0", "2");
inline const SightTexts noon1990 = sight("1990/12/16", "14:37:10", "52.282", "0", "2");
inline const TrackTexts track1990{"13.530", "-44.390", "1990/12/16 10:49:06", "270", "4.9986"};

inline double milesBetween(const NavFunc113::Position& a, double packedLatitude,
                           double packedLongitude)
{
    using namespace NavFunc113;
    const Degrees north = a.latitude - DegMinToDeg(DegMin(packedLatitude));
    const Degrees east = a.longitude - DegMinToDeg(DegMin(packedLongitude));
    return 60 * std::hypot(north.value(), east.value() * cos(a.latitude));
}

inline SightList listOf(std::initializer_list<SightTexts> sights)
{
    SightList list;
    for (const SightTexts& each : sights)
        list.record(each);
    return list;
}

/// A sight as a ship lying at a place reads it, out by some miles (too great: towards the body).
/// @param body the Sun, or a star
inline SightTexts seenFrom(const NavFunc113::Position& place, const char* date, const char* time,
                           double miles = 0, const char* body = "")
{
    using namespace NavFunc113;
    SightTexts texts = sight(date, time, "30", "", "");
    texts.body = body;
    for (int pass = 0; pass < 5; ++pass) {
        Remarks unheard;
        const Observation seen = readObservation(texts, unheard);
        const Degrees stands =
            PlaceAboveHorizon(DegMinToDeg(*seen.GHA), DegMinToDeg(*seen.declination), place)
                .altitude;
        const Degrees missing =
            stands + ArcOfMiles(Miles(miles)) - DegMinToDeg(seen.corrections->Ho);
        texts.Hs = Format(DegToDegMin(DegMinToDeg(seen.corrections->Hs) + missing), "0.0000");
    }
    return texts;
}

} // namespace korvel::worked
