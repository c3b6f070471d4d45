// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <compare>

/// The units in which the function library speaks. Each is a type of its own: none turns into
/// another, or into a plain number, unless somebody writes it down.
namespace NavFunc113
{

/// A number of one unit. Sums and comparisons are those of like with like; what a number scales
/// keeps its unit, and the ratio of two is a plain number.
template <typename Unit>
class Measure
{
public:
    constexpr Measure() = default;
    constexpr explicit Measure(double value) : m_value(value) {}

    constexpr double value() const { return m_value; }

    constexpr Measure& operator+=(Measure other)
    {
        m_value += other.m_value;
        return *this;
    }
    constexpr Measure& operator-=(Measure other)
    {
        m_value -= other.m_value;
        return *this;
    }
    constexpr Measure& operator*=(double factor)
    {
        m_value *= factor;
        return *this;
    }

    friend constexpr Measure operator+(Measure a, Measure b) { return a += b; }
    friend constexpr Measure operator-(Measure a, Measure b) { return a -= b; }
    friend constexpr Measure operator-(Measure a) { return Measure(-a.m_value); }
    friend constexpr Measure operator*(Measure a, double factor) { return a *= factor; }
    friend constexpr Measure operator*(double factor, Measure a) { return a *= factor; }
    friend constexpr Measure operator/(Measure a, double divisor)
    {
        return Measure(a.m_value / divisor);
    }
    friend constexpr double operator/(Measure a, Measure b) { return a.m_value / b.m_value; }
    friend constexpr auto operator<=>(Measure, Measure) = default;

    friend Measure fabs(Measure a) { return Measure(std::fabs(a.m_value)); }

private:
    double m_value{};
};

using Degrees = Measure<struct DegreesUnit>; ///< decimal degrees
using Radians = Measure<struct RadiansUnit>;
using Miles = Measure<struct MilesUnit>; ///< nautical miles of 1852 m; one a minute of arc
using Knots = Measure<struct KnotsUnit>; ///< nautical miles an hour
using Hours = Measure<struct HoursUnit>; ///< decimal
using Metres = Measure<struct MetresUnit>;
using Kilometres = Measure<struct KilometresUnit>;

inline constexpr Degrees quarterTurn(90);
inline constexpr Degrees halfTurn(180);
inline constexpr Degrees fullTurn(360);

/// Packed degrees and minutes: whole degrees before the point, minutes/100 after it
/// (35.305 is 35 degrees 30.5 minutes); north and east positive. No range is enforced. Packed
/// values are neither added nor scaled: DegMinToDeg comes first.
class DegMin
{
public:
    constexpr DegMin() = default;
    constexpr explicit DegMin(double packed) : m_packed(packed) {}

    constexpr double packed() const { return m_packed; }

    friend constexpr DegMin operator-(DegMin a) { return DegMin(-a.m_packed); }
    friend constexpr auto operator<=>(DegMin, DegMin) = default;

private:
    double m_packed{};
};

constexpr Miles operator*(Knots speed, Hours time)
{
    return Miles(speed.value() * time.value());
}

constexpr Hours operator/(Miles distance, Knots speed)
{
    return Hours(distance.value() / speed.value());
}

constexpr Knots operator/(Miles distance, Hours time)
{
    return Knots(distance.value() / time.value());
}

/// Arc of a run along a meridian or another great circle, and the way back.
constexpr Degrees ArcOfMiles(Miles distance)
{
    return Degrees(distance.value() / 60);
}

constexpr Miles MilesOfArc(Degrees arc)
{
    return Miles(arc.value() * 60);
}

/// Date and time as days since 1899-12-30 00:00: the whole part is the civil date, the fraction
/// the time of day. Astronomical routines take it as UTC.
using DateTime = double;

/// Angle by which the earth turns in a time, and the way back.
constexpr Degrees ArcOfHours(Hours time)
{
    return Degrees(15 * time.value());
}

constexpr Hours HoursOfArc(Degrees arc)
{
    return Hours(arc.value() / 15);
}

/// Hours as a part of a day, to be added to a date-time.
constexpr double DaysOfHours(Hours time)
{
    return time.value() / 24;
}

} // namespace NavFunc113
