// SPDX-License-Identifier: MIT
#include "navlib/tide_turns.h"

#include <array>
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

// Golden section: the curve has one turn between the two times.
Hours turnBetween(const TideCurve& curve, Hours from, Hours to, bool isHigh)
{
    constexpr double golden = 0.6180339887498949;
    const auto height = [&](Hours t) { return isHigh ? curve(t) : -curve(t); };
    Hours left = to - golden * (to - from);
    Hours right = from + golden * (to - from);
    double atLeft = height(left);
    double atRight = height(right);
    while (to - from > Hours(second)) {
        if (atLeft >= atRight) {
            to = right;
            right = left;
            atRight = atLeft;
            left = to - golden * (to - from);
            atLeft = height(left);
        } else {
            from = left;
            left = right;
            atLeft = atRight;
            right = from + golden * (to - from);
            atRight = height(right);
        }
    }
    return from + 0.5 * (to - from);
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

std::vector<TideTurn> TurnsOf(const TideCurve& curve)
{
    // One sample before 00:00 and one after 24:00, so that a turn at midnight has neighbours.
    std::array<double, stepsOfDay + 3> samples;
    for (std::size_t i = 0; i < samples.size(); ++i)
        samples[i] = curve(timeOf(static_cast<int>(i) - 1));
    std::vector<TideTurn> turns;
    for (int step = 0; step <= stepsOfDay; ++step) {
        const std::size_t i = static_cast<std::size_t>(step) + 1;
        const bool isHigh = samples[i] > samples[i - 1] && samples[i] >= samples[i + 1];
        const bool isLow = samples[i] < samples[i - 1] && samples[i] <= samples[i + 1];
        if (!isHigh && !isLow) continue;
        const Hours time = turnBetween(curve, timeOf(step - 1), timeOf(step + 1), isHigh);
        if (time >= Hours(0) && time < Hours(24)) turns.push_back({time, curve(time), isHigh});
    }
    return turns;
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
