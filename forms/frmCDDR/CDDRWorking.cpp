// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/CDDRWorking.h"

namespace korvel
{
namespace
{

using NavFunc113::Earth;

constexpr const char* noResult = "Nothing was entered, or the remarks say why there is no result.";

} // namespace

Working courseAndDistanceWorking(const CDResult& result, Earth earth)
{
    Working working{"Course and distance (rhumb line)", sailingMethod(earth), {}};
    if (!result.leg) {
        working.whyNone = noResult;
        return working;
    }
    addRhumbLeg(working, result.ends, *result.leg, earth);
    working.resultStep("Course", "C rounded to 0.1°", result.course, "degrees true");
    working.resultStep("Distance", "D rounded to 0.1", result.distance, "nautical miles");
    return working;
}

Working deadReckoningWorking(const DRResult& result, Earth earth)
{
    Working working{"Dead reckoning", sailingMethod(earth), {}};
    if (!result.latitudeRun) {
        working.whyNone = noResult;
        return working;
    }
    working.angleStep("Latitude left", "φ1", result.start[0]);
    working.angleStep("Longitude left", "λ1", result.start[1]);
    const ReckonedRun run{result.start, result.course, result.distance};
    addRunInLatitude(working, run, *result.latitudeRun, earth);
    working.resultStep("Latitude reached", "degrees and minutes of φ2", result.latitude);
    if (!result.longitudeRun) return working;
    addRunInLongitude(working, run, *result.latitudeRun, *result.longitudeRun, earth);
    working.resultStep("Longitude reached", "degrees and minutes of λ2", result.longitude);
    return working;
}

} // namespace korvel
