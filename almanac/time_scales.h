// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <stdexcept>

namespace almanac
{

using NavFunc113::DateTime;

inline constexpr int firstYear = 1950;
inline constexpr int lastYear = 2100;

/// A date or a place for which nothing is known. what() is a sentence for the officer that names
/// the range.
class OutOfRange : public std::out_of_range
{
public:
    using std::out_of_range::out_of_range;
};

/// @throws OutOfRange for an instant outside 1950-01-01 00:00 .. 2100-12-31 24:00 (this end
///         excluded), and for one that is no number
void requireAlmanacYears(DateTime ut);

/// Terrestrial time less universal time.
struct DeltaT {
    enum class Source {
        LeapSeconds, ///< 32.184 s + (TAI - UTC) as announced, 1960 on
        Estimate,    ///< before there was UTC: a fitted curve, good to 0.1 s
        Assumed      ///< beyond the announced leap seconds: the last known TAI - UTC, 37 s, kept
    };
    double seconds{};
    Source source = Source::LeapSeconds;
};

/// Delta T of an instant, UT taken as UTC and UT1. A second of it changes the Moon's place by
/// 0.55" and no other by more than 0.05".
/// Sources: ERFA's table of leap seconds; before 1960 Espenak and Meeus, Five Millennium Canon of
/// Solar Eclipses, 2006.
DeltaT deltaTAt(DateTime ut);

/// Year and the part of it that has passed: 2026.0 is January 1, 00:00.
double decimalYear(DateTime ut);

} // namespace almanac
