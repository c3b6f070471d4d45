// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/BodySight.h"

#include "app/reading/Format.h"
#include "forms/frmSunSight/sight/SightBody.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

using namespace NavFunc113;

/// Altitude of the limb, or of the middle, with dip and refraction put on.
Degrees seenAltitude(const SightCorrections& sight)
{
    if (sight.ofBody)
        return sight.ofBody->seen -
               Degrees((sight.ofBody->semiDiameter + sight.ofBody->augmentation) / 60);
    const AltitudeCorrectionTerms& terms = sight.terms;
    return DegMinToDeg(sight.observed) + Degrees((terms.dip - terms.refraction + terms.temperature +
                                                  terms.pressure + terms.airSea) /
                                                 60);
}

/// Nobody takes a star by day; Venus and the Moon are taken.
bool isSeenByDay(almanac::Body body)
{
    return almanac::hasLimbs(body) || body == almanac::Body::Venus;
}

std::string whyDoubted(const Observation& observation, const Position& DR, const almanac::Sky& sky)
{
    constexpr Miles farthest(60);
    const std::string name = sentenceOf(almanac::bodyInSentence(observation.body));
    const HorizonPlace computed =
        PlaceAboveHorizon(DegMinToDeg(*observation.GHA), DegMinToDeg(*observation.declination), DR);
    if (computed.altitude < Degrees(0))
        return name + " is below the horizon of the DR position: check body, date, time and "
                      "position";
    if (!isSeenByDay(observation.body) && isByDay(sky, DR))
        return name + " by day: the Sun is above the horizon of the DR position";
    if (!observation.corrections) return {};
    const Miles off = Intercept(DegMinToDeg(observation.corrections->Ho), computed.altitude);
    if (fabs(off) > farthest)
        return name + " should stand " + Format(fabs(off) / Miles(60), "0.0") + "° " +
               (off > Miles(0) ? "lower" : "higher") +
               " than was observed: check body, date, time, altitude and position";
    return {};
}

} // namespace

SightCorrections corrected(SightCorrections read, const Observation& observation,
                           const std::optional<Position>& place)
{
    std::optional<almanac::SightPlace> taken;
    if (place) {
        const almanac::Observer observer{place->latitude, place->longitude, read.heightOfEye};
        taken = almanac::SightPlace{
            observer, almanac::computedDirection(*observation.place, observer).azimuth};
    }
    const almanac::SextantAir air{read.heightOfEye, read.air, read.sea,
                                  static_cast<double>(read.pressure)};
    read.ofBody = almanac::correctSextant(*observation.place, observation.body,
                                          DegMinToDeg(read.observed), read.limb, air, taken);
    read.Ho = DegToDegMin(read.ofBody->corrected);
    return read;
}

Observation Observation::takenAt(const Position& DR) const
{
    Observation there = *this;
    if (place && corrections) there.corrections = corrected(*corrections, *this, DR);
    return there;
}

void warnOfLowBody(const SightCorrections& corrections, Remarks& remarks)
{
    constexpr double low = 10 - 1e-9; // an index error taken off may not come out to the last bit
    const Degrees altitude = DegMinToDeg(corrections.observed);
    if (altitude < Degrees(low))
        remarks.warn("Altitude below 10 degrees: the refraction of " +
                     Format(-corrections.ofBody->refraction, "0.0'") + " may be out by " +
                     (altitude < Degrees(3) ? "minutes" : "some tenths"));
}

std::string BodyDoubt::remark() const
{
    if (why.empty() || likely.empty()) return why;
    return why + "; likeliest other: " + likely;
}

BodyDoubt doubtOf(const Observation& observation, const Position& DR)
{
    BodyDoubt doubt;
    try {
        const almanac::Sky sky(*observation.UTC);
        doubt.why = whyDoubted(observation, DR, sky);
        if (!doubt.why.empty() && observation.corrections)
            doubt.likely = likelyText(
                likelyBodies(sky, seenAltitude(*observation.corrections), DR, observation.body));
    } catch (const almanac::OutOfRange&) {
        return {}; // of the Sun alone, whose place is known beyond the almanac
    }
    return doubt;
}

} // namespace korvel
