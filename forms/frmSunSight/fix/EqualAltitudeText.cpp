// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/fix/EqualAltitudeText.h"

#include "app/reading/Format.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"
#include "navlib/sky/meridian_passage.h"

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

std::optional<SightPair> bestPair(const SightFixResult& result)
{
    constexpr Degrees farthest(1);
    std::optional<SightPair> best;
    for (const FixLine& first : result.lines)
        for (const FixLine& second : result.lines) {
            if (!isPair(first, second)) continue;
            const SightPair pair{&first, &second};
            if (pair.apart() <= farthest && (!best || pair.apart() < best->apart())) best = pair;
        }
    return best;
}

/// Standard deviation of the rate of latitude, minutes an hour.
double northingError(const ErrorModel& errors, const Motion& motion)
{
    const double speed = motion.speed.value();
    return std::hypot(errors.runAlong * speed * cos(motion.course),
                      speed * sin(errors.runCourse) * sin(motion.course));
}

} // namespace

std::string equalAltitudeText(const SightFixResult& result, const ErrorModel& errors)
{
    const auto pair = bestPair(result);
    if (!pair) return {};
    const FixLine &first = *pair->first, &second = *pair->second;
    const DateTime mean = (first.UTC + second.UTC) / 2;
    const Hours half((second.UTC - first.UTC) * 12);
    const Position atMean = Advanced(first.DR, result.motion, half);
    const auto found = LongitudeByEqualAltitudes(
        {first.sight.GHA, first.sight.declination, first.sight.observedAltitude, -half},
        {second.sight.GHA, second.sight.declination, second.sight.observedAltitude, half}, atMean,
        result.motion);
    if (!found) return {};
    const Degrees turned = second.sight.GHA - first.sight.GHA +
                           (second.sight.GHA < first.sight.GHA ? fullTurn : Degrees(0));
    const Degrees hourAngle =
        WithinHalfTurn(first.sight.GHA + turned / 2 + found->atMean.longitude);
    const double eastward =
        WithinHalfTurn(Advanced(found->atMean, result.motion, Hours(1)).longitude -
                       found->atMean.longitude)
            .value();
    const double turning = turned.value() / (2 * half.value()) + eastward;
    const double seconds = -hourAngle.value() / turning * 3600;
    const double sigma = std::hypot(errors.sigma.value() * found->ofAltitudes,
                                    northingError(errors, result.motion) * found->ofNorthing);
    const Position atPassage =
        Advanced(found->atMean, result.motion, Hours(-hourAngle.value() / turning));
    return "Equal altitudes " + Format(first.UTC, "hh:mm:ss") + " and " +
           Format(second.UTC, "hh:mm:ss") + ": passage " +
           Format(mean + seconds / 86400, "hh:mm:ss") + " UTC, the mean " +
           (seconds < 0 ? "less " : "and ") + Format(std::fabs(seconds), "0") + " s; longitude " +
           longitudeText(atPassage.longitude) + " ± " + Format(sigma, "0.0'");
}

} // namespace korvel
