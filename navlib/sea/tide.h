// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <array>
#include <span>

/// Tide and tidal stream of one station and one day, from four harmonic constituents.
///
/// Heights are metres, stream rates knots; t counts the hours of the station's own zone time from
/// 00:00 of the day. Constituents 1 and 2 are semidiurnal (M2, S2), 3 and 4 diurnal (K1, O1).
///
/// Accuracy of the four-constituent form with the shipped data against the full harmonic prediction
/// of 78 stations, half-hourly over 2003-2005: RMS error typically 6 % of the tide's standard
/// deviation, worst 23 % (a tide of 0.1 m); bench/TideAccuracy.cpp measures it.
namespace NavFunc113
{

/// A station's constant of one constituent.
struct TideConstituent {
    Degrees phase;      ///< phase lag, referred to the station's zone time
    double amplitude{}; ///< metres or knots
};

/// One constituent's line entry of a day, for 00:00.
struct DailyFactor {
    Degrees angle;   ///< runs backwards in time
    double factor{}; ///< multiplies the amplitude
};

/// Shallow-water terms of a station: powers of its combined semidiurnal wave.
struct ShallowWaterTerms {
    Degrees quarterPhase;
    double quarterCoefficient{}; ///< multiplies the square; per metre or per knot
    Degrees sixthPhase;
    double sixthCoefficient{}; ///< multiplies the cube; per square metre or square knot
};

using TideConstituents = std::array<TideConstituent, 4>;
using DailyFactors = std::array<DailyFactor, 4>;

/// Samples of a day: every half hour from 00:00 to 24:00.
inline constexpr int samplesOfDay = 49;
using TideValues = std::array<double, samplesOfDay>;

/// Change of a semidiurnal constituent's angle over a day: this day's minus the next day's, raised
/// by up to three whole turns until it is more than 600 (exactly 600 is not); kept as it is when
/// that does not suffice.
Degrees SemidiurnalChange(Degrees thisDay, Degrees nextDay);

/// The same for a diurnal constituent: up to two turns, until it is more than 300.
Degrees DiurnalChange(Degrees thisDay, Degrees nextDay);

/// The parts of a value of the harmonic part.
struct TideSums {
    double cosine; ///< C, of the combined semidiurnal wave
    double sine;   ///< S
    double diurnal;
    double quarter; ///< quarter- and sixth-diurnal term
    double sixth;
    double sum;
};

/// What a value of the harmonic part was calculated from.
struct TideSteps : TideSums {
    struct Wave {
        Degrees phaseAtMidnight; ///< angle of the day and phase lag of the station
        Degrees speed;           ///< by which the phase goes back in an hour
        double amplitude{};      ///< of the station by the factor at that time
        Degrees phase;           ///< at that time
        double cosine{};         ///< amplitude times cosine and sine of the phase
        double sine{};
    };
    std::array<Wave, 4> waves;
};

/// The harmonic part of a day's values, what does not depend on the time of day worked out once.
class TideDay
{
public:
    TideDay(const TideConstituents& station, const DailyFactors& thisDay,
            const DailyFactors& nextDay, const ShallowWaterTerms& shallowWater);

    /// Harmonic part at t, without the mean level.
    double at(Hours t) const { return stepsAt(t).sum; }
    TideSteps stepsAt(Hours t) const;

    /// The half-hourly values of the day: at() plus the level, to within rounding. Each wave is
    /// turned on by half an hour at a time, so that a day takes a few sines instead of hundreds.
    /// @param level mean level with its monthly correction, or mean stream
    TideValues halfHourly(double level) const;

    /// The same from any time of the day on in steps of any length.
    void turnOn(Hours from, Hours step, double level, std::span<double> values) const;

private:
    struct Wave {
        Degrees phase;         // at 00:00
        Degrees speed;         // an hour
        double amplitude;      // of the station
        double factor;         // at 00:00
        double factorIncrease; // an hour
    };
    struct Turned { // coefficient times cosine and sine of a shallow-water phase
        double cosine;
        double sine;
    };
    static double amplitudeAt(const Wave& wave, Hours t);
    void addUp(TideSums& sums) const;

    std::array<Wave, 4> m_waves;
    Turned m_quarter;
    Turned m_sixth;
};

/// Harmonic part at t hours after 00:00, without the mean level.
///
/// @param t           0 to 24
/// @param station     phases and amplitudes of the four constituents
/// @param thisDay     angles and factors for 00:00 of the day
/// @param nextDay     the same for 00:00 of the day after; factors are interpolated between them
/// @param shallowWater quarter- and sixth-diurnal terms
/// @return metres or knots, as the amplitudes
double TideHarmonicSum(Hours t, const TideConstituents& station, const DailyFactors& thisDay,
                       const DailyFactors& nextDay, const ShallowWaterTerms& shallowWater);

/// The day's highest and lowest value with their times.
struct TideExtremes {
    double highest{};
    Hours timeHigh; ///< decimal hours
    double lowest{};
    Hours timeLow; ///< decimal hours
};

/// Finds the highest and lowest sample of 00:30 to 24:00; 00:00 takes no part (it is the 24:00 of
/// the day before). The earliest of equal samples (to within 1e-9) wins; nothing is refined between
/// samples.
///
/// The search starts at highest 0 and lowest 5: on a day without a value above 0 the highest is 0
/// (a stream that never turns), without one below 5 the lowest is 5.
/// @param earlier what was found before: its times stay where the search finds nothing
TideExtremes SearchHighestLowest(const TideValues& values, const TideExtremes& earlier);

} // namespace NavFunc113
