// SPDX-License-Identifier: MIT
#include "navlib/tide.h"

#include "navlib/angles.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

Degrees raisedAbove(Degrees threshold, int turns, Degrees change)
{
    for (int turn = 0; turn <= turns; ++turn) {
        if (change + 360 * turn > threshold) return change + 360 * turn;
    }
    return change;
}

} // namespace

Degrees SemidiurnalChange(Degrees thisDay, Degrees nextDay)
{
    return raisedAbove(600, 3, thisDay - nextDay);
}

Degrees DiurnalChange(Degrees thisDay, Degrees nextDay)
{
    return raisedAbove(300, 2, thisDay - nextDay);
}

TideDay::TideDay(const TideConstituents& station, const DailyFactors& thisDay,
                 const DailyFactors& nextDay, const ShallowWaterTerms& shallowWater)
{
    for (std::size_t j = 0; j < m_waves.size(); ++j) {
        const auto change = j < 2 ? SemidiurnalChange : DiurnalChange;
        m_waves[j] = {.phase = thisDay[j].angle + station[j].phase,
                      .speed = change(thisDay[j].angle, nextDay[j].angle) / 24,
                      .amplitude = station[j].amplitude,
                      .factor = thisDay[j].factor,
                      // Next day minus this day: the other way round than the angles.
                      .factorIncrease = (nextDay[j].factor - thisDay[j].factor) / 24};
    }
    const auto turned = [](double coefficient, Degrees phase) {
        return Turned{coefficient * std::cos(DegToRad(phase)),
                      coefficient * std::sin(DegToRad(phase))};
    };
    m_quarter = turned(shallowWater.quarterCoefficient, shallowWater.quarterPhase);
    m_sixth = turned(shallowWater.sixthCoefficient, shallowWater.sixthPhase);
}

double TideDay::amplitudeAt(const Wave& wave, Hours t) const
{
    return (wave.factor + t * wave.factorIncrease) * wave.amplitude;
}

double TideDay::at(Hours t) const
{
    const double degree = Pi() / 180;
    double S = 0;
    double C = 0;
    for (std::size_t j = 0; j < 2; ++j) {
        const double amplitude = amplitudeAt(m_waves[j], t);
        const Radians psi = (m_waves[j].phase - m_waves[j].speed * t) * degree;
        S += amplitude * std::sin(psi);
        C += amplitude * std::cos(psi);
    }
    double diurnal = 0;
    for (std::size_t j = 2; j < 4; ++j) {
        diurnal += amplitudeAt(m_waves[j], t) *
                   std::cos((m_waves[j].phase - m_waves[j].speed * t) * degree);
    }
    // The combined wave is R and theta with C = R cos theta, S = R sin theta. Squaring and cubing
    // C + iS gives R^2 and R^3 with the doubled and tripled angle, in every quadrant and without a
    // quotient that could meet a zero.
    const double quarterCosine = C * C - S * S;
    const double quarterSine = 2 * C * S;
    const double sixthCosine = quarterCosine * C - quarterSine * S;
    const double sixthSine = quarterSine * C + quarterCosine * S;
    const double quarter = quarterCosine * m_quarter.cosine - quarterSine * m_quarter.sine;
    const double sixth = sixthCosine * m_sixth.cosine - sixthSine * m_sixth.sine;
    return diurnal + C + quarter + sixth;
}

double TideHarmonicSum(Hours t, const TideConstituents& station, const DailyFactors& thisDay,
                       const DailyFactors& nextDay, const ShallowWaterTerms& shallowWater)
{
    return TideDay(station, thisDay, nextDay, shallowWater).at(t);
}

TideValues TideValuesOfDay(const TideDay& day, double level)
{
    TideValues values;
    for (int i = 0; i < samplesOfDay; ++i)
        values[static_cast<std::size_t>(i)] = day.at(i / 2.0) + level;
    return values;
}

TideExtremes SearchHighestLowest(const TideValues& values, const TideExtremes& earlier)
{
    TideExtremes found{0, earlier.timeHigh, 5, earlier.timeLow};
    for (std::size_t i = 1; i < values.size(); ++i) {
        const Hours t = static_cast<double>(i) / 2;
        if (values[i] > found.highest) {
            found.highest = values[i];
            found.timeHigh = t;
        }
        if (values[i] < found.lowest) {
            found.lowest = values[i];
            found.timeLow = t;
        }
    }
    return found;
}

} // namespace NavFunc113
