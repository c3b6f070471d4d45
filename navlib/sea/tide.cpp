// SPDX-License-Identifier: MIT
#include "navlib/sea/tide.h"

#include "navlib/angles.h"

#include <cmath>

namespace NavFunc113
{
namespace
{

// Two tides of a day that repeat exactly differ by the rounding of their angles. That must not
// decide which of them counts as the higher: the earlier one does.
constexpr double roundingError = 1e-9;

Hours timeOfSample(std::size_t i)
{
    return Hours(static_cast<double>(i) / 2);
}

Degrees raisedAbove(Degrees threshold, int turns, Degrees change)
{
    for (int turn = 0; turn <= turns; ++turn) {
        if (change + fullTurn * turn > threshold) return change + fullTurn * turn;
    }
    return change;
}

} // namespace

Degrees SemidiurnalChange(Degrees thisDay, Degrees nextDay)
{
    return raisedAbove(Degrees(600), 3, thisDay - nextDay);
}

Degrees DiurnalChange(Degrees thisDay, Degrees nextDay)
{
    return raisedAbove(Degrees(300), 2, thisDay - nextDay);
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
        return Turned{coefficient * cos(phase), coefficient * sin(phase)};
    };
    m_quarter = turned(shallowWater.quarterCoefficient, shallowWater.quarterPhase);
    m_sixth = turned(shallowWater.sixthCoefficient, shallowWater.sixthPhase);
}

double TideDay::amplitudeAt(const Wave& wave, Hours t)
{
    return (wave.factor + t.value() * wave.factorIncrease) * wave.amplitude;
}

// C and S are cosine and sine part of the combined semidiurnal wave: R and theta with
// C = R cos theta, S = R sin theta. Squaring and cubing C + iS gives R^2 and R^3 with the doubled
// and tripled angle, in every quadrant and without a quotient that could meet a zero.
void TideDay::addUp(TideSums& sums) const
{
    const double C = sums.cosine;
    const double S = sums.sine;
    const double quarterCosine = C * C - S * S;
    const double quarterSine = 2 * C * S;
    const double sixthCosine = quarterCosine * C - quarterSine * S;
    const double sixthSine = quarterSine * C + quarterCosine * S;
    sums.quarter = quarterCosine * m_quarter.cosine - quarterSine * m_quarter.sine;
    sums.sixth = sixthCosine * m_sixth.cosine - sixthSine * m_sixth.sine;
    sums.sum = sums.diurnal + C + sums.quarter + sums.sixth;
}

TideSteps TideDay::stepsAt(Hours t) const
{
    TideSteps steps;
    auto& waves = steps.waves;
    for (std::size_t j = 0; j < waves.size(); ++j) {
        TideSteps::Wave& wave = waves[j];
        wave.phaseAtMidnight = m_waves[j].phase;
        wave.speed = m_waves[j].speed;
        wave.amplitude = amplitudeAt(m_waves[j], t);
        wave.phase = wave.phaseAtMidnight - wave.speed * t.value();
        const Radians psi(wave.phase.value() * Pi() / 180);
        wave.cosine = wave.amplitude * cos(psi);
        wave.sine = wave.amplitude * sin(psi);
    }
    steps.cosine = waves[0].cosine + waves[1].cosine;
    steps.sine = waves[0].sine + waves[1].sine;
    steps.diurnal = waves[2].cosine + waves[3].cosine;
    addUp(steps);
    return steps;
}

TideValues TideDay::halfHourly(double level) const
{
    TideValues values;
    turnOn(Hours(0), Hours(0.5), level, values);
    return values;
}

void TideDay::turnOn(Hours from, Hours step, double level, std::span<double> values) const
{
    struct Turning {
        double cosine, sine;
        double stepCosine, stepSine;
    };
    std::array<Turning, 4> turning;
    for (std::size_t j = 0; j < m_waves.size(); ++j) {
        const Radians phase = DegToRad(m_waves[j].phase - m_waves[j].speed * from.value());
        const Radians turn = DegToRad(-m_waves[j].speed * step.value());
        turning[j] = {cos(phase), sin(phase), cos(turn), sin(turn)};
    }
    for (std::size_t i = 0; i < values.size(); ++i) {
        std::array<double, 4> c;
        std::array<double, 4> s;
        for (std::size_t j = 0; j < m_waves.size(); ++j) {
            const double amplitude = amplitudeAt(m_waves[j], from + static_cast<double>(i) * step);
            auto& [cosine, sine, stepCosine, stepSine] = turning[j];
            c[j] = amplitude * cosine;
            s[j] = amplitude * sine;
            const double next = cosine * stepCosine - sine * stepSine;
            sine = sine * stepCosine + cosine * stepSine;
            cosine = next;
        }
        TideSums sums;
        sums.cosine = c[0] + c[1];
        sums.sine = s[0] + s[1];
        sums.diurnal = c[2] + c[3];
        addUp(sums);
        values[i] = sums.sum + level;
    }
}

double TideHarmonicSum(Hours t, const TideConstituents& station, const DailyFactors& thisDay,
                       const DailyFactors& nextDay, const ShallowWaterTerms& shallowWater)
{
    return TideDay(station, thisDay, nextDay, shallowWater).at(t);
}

TideExtremes SearchHighestLowest(const TideValues& values, const TideExtremes& earlier)
{
    TideExtremes found{0, earlier.timeHigh, 5, earlier.timeLow};
    for (std::size_t i = 1; i < values.size(); ++i) {
        const Hours t = timeOfSample(i);
        if (values[i] > found.highest + roundingError) {
            found.highest = values[i];
            found.timeHigh = t;
        }
        if (values[i] < found.lowest - roundingError) {
            found.lowest = values[i];
            found.timeLow = t;
        }
    }
    return found;
}

} // namespace NavFunc113
