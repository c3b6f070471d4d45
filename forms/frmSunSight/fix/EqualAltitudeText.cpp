// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/fix/EqualAltitudeText.h"

#include "app/reading/Format.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"
#include "navlib/sky/meridian_passage.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

struct SightPair {
    const FixLine* first = nullptr;
    const FixLine* second = nullptr;

    Degrees apart() const
    {
        return fabs(first->sight.observedAltitude - second->sight.observedAltitude);
    }
};

/// To the east of the meridian first, to the west then: on both sides of the upper passage.
bool isPair(const FixLine& first, const FixLine& second)
{
    constexpr double longest = 0.5; // days
    const double days = second.UTC - first.UTC;
    return first.body == second.body && days > 0 && days < longest && sin(first.line.azimuth) > 0 &&
           sin(second.line.azimuth) < 0;
}

/// No two of them share a sight, all are of one body; those of the nearest altitudes first.
std::vector<SightPair> pairsOf(const SightFixResult& result)
{
    constexpr Degrees farthest(1);
    std::vector<SightPair> all, chosen;
    for (const FixLine& first : result.lines)
        for (const FixLine& second : result.lines)
            if (isPair(first, second)) all.push_back({&first, &second});
    std::erase_if(all, [&](const SightPair& pair) { return pair.apart() > farthest; });
    std::ranges::stable_sort(all, {}, &SightPair::apart);
    for (const SightPair& pair : all)
        if (std::ranges::all_of(chosen, [&](const SightPair& other) {
                return pair.first->body == other.first->body && pair.first != other.first &&
                       pair.second != other.second;
            }))
            chosen.push_back(pair);
    return chosen;
}

/// Standard deviation of the rate of latitude, minutes an hour.
double northingError(const ErrorModel& errors, const Motion& motion)
{
    const double speed = motion.speed.value();
    return std::hypot(errors.runAlong * speed * cos(motion.course),
                      speed * sin(errors.runCourse) * sin(motion.course));
}

std::optional<EqualAltitudePair> worked(const SightPair& pair, const ErrorModel& errors,
                                        const Motion& motion)
{
    const FixLine &first = *pair.first, &second = *pair.second;
    const DateTime mean = (first.UTC + second.UTC) / 2;
    const Hours half((second.UTC - first.UTC) * 12);
    const Position atMean = Advanced(first.DR, motion, half);
    const auto found = LongitudeByEqualAltitudes(
        {first.sight.GHA, first.sight.declination, first.sight.observedAltitude, -half},
        {second.sight.GHA, second.sight.declination, second.sight.observedAltitude, half}, atMean,
        motion);
    if (!found) return std::nullopt;
    const Degrees turned = second.sight.GHA - first.sight.GHA +
                           (second.sight.GHA < first.sight.GHA ? fullTurn : Degrees(0));
    const Degrees hourAngle =
        WithinHalfTurn(first.sight.GHA + turned / 2 + found->atMean.longitude);
    const double eastward = WithinHalfTurn(Advanced(found->atMean, motion, Hours(1)).longitude -
                                           found->atMean.longitude)
                                .value();
    const double turning = turned.value() / (2 * half.value()) + eastward;
    const Hours later(-hourAngle.value() / turning);
    return EqualAltitudePair{first.UTC,
                             second.UTC,
                             mean + DaysOfHours(later),
                             Advanced(found->atMean, motion, later).longitude,
                             Degrees(errors.sigma.value() * found->ofAltitudes / 60),
                             Degrees(northingError(errors, motion) * found->ofNorthing / 60)};
}

std::string textOfOne(const EqualAltitudePair& pair)
{
    const double seconds = (pair.passage - (pair.first + pair.second) / 2) * 86400;
    return "Equal altitudes " + Format(pair.first, "hh:mm:ss") + " and " +
           Format(pair.second, "hh:mm:ss") + ": passage " + Format(pair.passage, "hh:mm:ss") +
           " UTC, the mean " + (seconds < 0 ? "less " : "and ") + Format(std::fabs(seconds), "0") +
           " s; longitude " + longitudeText(pair.longitude) + " ± " +
           Format(std::hypot(pair.byAltitudes.value(), pair.byRun.value()) * 60, "0.0'");
}

/// The weighted mean. The run is common to all pairs: its error does not shrink with their number.
std::string textOfMean(const std::vector<EqualAltitudePair>& pairs)
{
    const Degrees near = pairs.front().longitude;
    double weight = 0, off = 0, run = 0, square = 0;
    DateTime passage{};
    const auto weightOf = [](const EqualAltitudePair& pair) {
        return 1 / (pair.byAltitudes.value() * pair.byAltitudes.value());
    };
    for (const EqualAltitudePair& each : pairs) {
        const double w = weightOf(each);
        weight += w;
        off += w * WithinHalfTurn(each.longitude - near).value();
        run += w * each.byRun.value();
        passage += w * (each.passage - pairs.front().passage);
    }
    const Degrees longitude = WithinHalfTurn(near + Degrees(off / weight));
    std::string apart;
    for (const EqualAltitudePair& each : pairs) {
        const double of = WithinHalfTurn(each.longitude - longitude).value();
        square += weightOf(each) * of * of;
        apart += Format(of * 60, " +0.0'; -0.0'");
    }
    // Pairs that scatter more than their sigma says are worth what they show.
    const double scatter = std::sqrt(square / static_cast<double>(pairs.size() - 1));
    const double sigma = std::hypot(std::max(1.0, scatter) / std::sqrt(weight), run / weight);
    return "Equal altitudes, mean of " + std::to_string(pairs.size()) + " pairs: passage " +
           Format(pairs.front().passage + passage / weight, "hh:mm:ss") + " UTC; longitude " +
           longitudeText(longitude) + " ± " + Format(sigma * 60, "0.0'") + "; the pairs" + apart;
}

} // namespace

void findEqualAltitudes(const ErrorModel& errors, SightFixResult& result)
{
    for (const SightPair& pair : pairsOf(result))
        if (const auto each = worked(pair, errors, result.motion))
            result.equalPairs.push_back(*each);
    if (result.equalPairs.empty()) return;
    result.equalText = result.equalPairs.size() == 1 ? textOfOne(result.equalPairs.front())
                                                     : textOfMean(result.equalPairs);
}

} // namespace korvel
