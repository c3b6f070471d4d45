// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/CDDRWorking.h"

#include "app/KORVEL2000Actions.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using NavFunc113::Earth;

constexpr int decimals = 6; // of a degree
constexpr const char* noResult = "Nothing was entered, or the remarks say why there is no result.";

std::string degrees(Degrees angle)
{
    return term(angle, decimals) + "°";
}

void addLatitude(Working& working, const DRResult& result, Earth earth)
{
    const NavFunc113::LatitudeRun& run = *result.latitudeRun;
    const Degrees left = DegMinToDeg(result.start[0]);
    working.step("Run to the north", "r = D cos C / 60",
                 memoText(result.distance) + " × cos " + memoText(result.course) + "°" + " / 60",
                 figure(run.run, decimals), "°");
    if (earth == Earth::Spheroid) {
        working.step("Latitude for the length of the minute of latitude",
                     "φm = |2 φ1 + r| / 2.05, φ1 as it is written", "",
                     figure(run.lookup, decimals), "°");
        addFactor(working, "Length of the minute of latitude", "m(φm)",
                  NavFunc113::LatitudeFactorTable(), run.factor);
    }
    working.step("Change of latitude", earth == Earth::Spheroid ? "Δφ = r / m" : "Δφ = r", "",
                 figure(run.change, decimals), "°");
    working.step("Latitude reached", "φ2 = φ1 + Δφ", degrees(left) + " + " + degrees(run.change),
                 figure(DegMinToDeg(run.reached), decimals), "°");
    working.resultStep("Latitude reached", "degrees and minutes of φ2", result.latitude);
}

void addLongitude(Working& working, const DRResult& result, Earth earth)
{
    const NavFunc113::LongitudeRun& run = *result.longitudeRun;
    const Degrees left = DegMinToDeg(result.start[1]);
    if (run.alongParallel) {
        const bool isSpheroid = earth == Earth::Spheroid;
        if (isSpheroid)
            addFactor(working, "Length of the minute of longitude divided by cos φ",
                      "p(φ1), φ1 as it is written", NavFunc113::RunFactorTable(), run.factor);
        working.step("Change of longitude along the parallel, west negative",
                     isSpheroid ? "Δλ = D / (60 cos φ1 p)" : "Δλ = D / (60 cos φ1)", "",
                     figure(run.change, decimals), "°");
    } else if (result.distance > NavFunc113::Miles(0)) {
        addParts(working, "1", DegMinToDeg(result.start[0]), run.parts1);
        addParts(working, "2", DegMinToDeg(result.latitudeRun->reached), run.parts2);
        working.step("Change of longitude", "Δλ = tan C (M2 - M1) / 60",
                     "tan " + memoText(result.course) + "° × (" + term(run.parts2, 5) + " - " +
                         term(run.parts1, 5) + ") / 60",
                     figure(run.change, decimals), "°");
    }
    working.step("Longitude reached", "λ2 = λ1 + Δλ, less whole turns",
                 degrees(left) + " + " + degrees(run.change),
                 figure(DegMinToDeg(run.reached), decimals), "°");
    working.resultStep("Longitude reached", "degrees and minutes of λ2", result.longitude);
}

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
    addLatitude(working, result, earth);
    if (result.longitudeRun) addLongitude(working, result, earth);
    return working;
}

} // namespace korvel
