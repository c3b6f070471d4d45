// SPDX-License-Identifier: MIT
#include "navlib/sea/tide_turns.h"

#include <cstddef>

namespace NavFunc113
{
namespace
{

constexpr int stepsOfDay = 144; // of ten minutes
constexpr double second = 1.0 / 3600;

constexpr Hours timeOf(int step)
{
    return Hours(step / 6.0);
}

using ThreeHeights = std::array<double, 3>; // before, at and after a time

ThreeHeights heightsAround(const TideCurve& curve, Hours time, Hours step)
{
    return {curve(time - step), curve(time), curve(time + step)};
}

// How many steps from the middle the turn lies by the parabola through the three heights.
double stepsToTurn(const ThreeHeights& heights)
{
    const double bend = heights[0] - 2 * heights[1] + heights[2];
    return bend == 0 ? 0 : (heights[0] - heights[2]) / (2 * bend);
}

// The vertex of a parabola over twenty minutes is a second or two from the turn, that of one over a
// minute around it a small part of a second.
Hours turnNear(const TideCurve& curve, Hours time, ThreeHeights heights, bool isHigh)
{
    const double sign = isHigh ? 1 : -1;
    const Hours step = tenMinutes / 16;
    time = time + stepsToTurn(heights) * tenMinutes;
    heights = heightsAround(curve, time, step);
    // Where the curve is no parabola a neighbour may stand nearer to the turn.
    while (sign * heights[0] > sign * heights[1] || sign * heights[2] > sign * heights[1]) {
        time = sign * heights[2] > sign * heights[1] ? time + step : time - step;
        heights = heightsAround(curve, time, step);
    }
    return time + stepsToTurn(heights) * step;
}

Hours passageBetween(const TideCurve& curve, Hours from, Hours to, double value, bool isRising)
{
    while (to - from > Hours(second)) {
        const Hours middle = from + 0.5 * (to - from);
        if ((curve(middle) > value) == isRising)
            to = middle;
        else
            from = middle;
    }
    return to;
}

} // namespace

std::vector<TideTurn> TurnsOf(const TideCurve& curve, const TenMinutely& samples)
{
    std::vector<TideTurn> turns;
    // The samples before 00:00 and after 24:00 are the neighbours of a turn at midnight.
    for (std::size_t i = 1; i + 1 < samples.size(); ++i) {
        const bool isHigh = samples[i] > samples[i - 1] && samples[i] >= samples[i + 1];
        const bool isLow = samples[i] < samples[i - 1] && samples[i] <= samples[i + 1];
        if (!isHigh && !isLow) continue;
        const Hours time = turnNear(curve, timeOf(static_cast<int>(i) - 1),
                                    {samples[i - 1], samples[i], samples[i + 1]}, isHigh);
        if (time >= Hours(0) && time < Hours(24)) turns.push_back({time, curve(time), isHigh});
    }
    return turns;
}

std::vector<TideTurn> TurnsOf(const TideCurve& curve)
{
    TenMinutely samples;
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = curve(timeOf(static_cast<int>(i) - 1));
    return TurnsOf(curve, samples);
}

std::vector<TidePassage> PassagesOf(const TideCurve& curve, double value)
{
    std::vector<TidePassage> passages;
    bool isAbove = curve(Hours(0)) > value;
    for (int step = 1; step <= stepsOfDay; ++step) {
        const bool wasAbove = isAbove;
        isAbove = curve(timeOf(step)) > value;
        if (isAbove != wasAbove)
            passages.push_back(
                {passageBetween(curve, timeOf(step - 1), timeOf(step), value, isAbove), isAbove});
    }
    return passages;
}

} // namespace NavFunc113
