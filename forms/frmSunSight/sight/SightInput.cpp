// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/SightInput.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/PackedText.h"
#include "app/reading/Reading.h"
#include "app/reading/TypedTime.h"
#include "forms/frmSunSight/sight/BodySight.h"
#include "forms/frmSunSight/sight/SightBody.h"
#include "forms/frmSunSight/sight/SightFields.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"

#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

constexpr double secondsPerDay = 86400;

std::optional<DateTime> readTime(const Field& field, const std::string& text, Due due,
                                 Remarks& remarks)
{
    const TypedTime typed = readTypedTime(text, due);
    if (!typed.value) remarks.fault(std::string(field.words) + ": " + typed.remark);
    return typed.value;
}

/// A time alone is the one next to the last sight, whose date stands above it.
std::optional<DateTime> readDRTime(const std::string& text, std::optional<DateTime> lastSight,
                                   Remarks& remarks)
{
    const TypedTime alone = readTypedTime(text, Due::TimeOfDay);
    if (!lastSight || !alone.value || *alone.value >= 1)
        return readTime(entryFields[SightField::DRTime], text, Due::DateAndTime, remarks);
    const DateTime sameDay = std::floor(*lastSight) + *alone.value;
    return sameDay - std::round(sameDay - *lastSight);
}

std::optional<DateTime> readUTC(const SightTexts& texts, Remarks& remarks)
{
    using namespace SightField;
    const auto number = [&](std::size_t field) {
        return readBox(entryFields[field], texts.*sightMembers[field], 0, remarks);
    };
    const auto offset = texts.SMT ? number(TD) : 0;
    const auto error = number(watchError);
    if (!texts.isBegun()) {
        if (!isBlank(texts.date)) readTime(entryFields[date], texts.date, Due::Date, remarks);
        return std::nullopt;
    }
    const auto day = readTime(entryFields[date], texts.date, Due::Date, remarks);
    const auto watch = readTime(entryFields[time], texts.time, Due::TimeOfDay, remarks);
    if (!day || !watch || !offset || !error) return std::nullopt;
    try {
        return NearestSecond(*day + *watch - *error / secondsPerDay - DaysOfHours(Hours(*offset)));
    } catch (const ArithmeticError&) {
        remarks.fault("Date and time of the sight: beyond the calendar");
        return std::nullopt;
    }
}

/// The numbers that an altitude is corrected with.
struct AltitudeInputs {
    std::optional<double> Hs, indexError, eye, air, sea, pressure;
    bool complete() const { return Hs && indexError && eye && air && sea && pressure; }
};

AltitudeInputs readAltitude(const SightTexts& texts, Remarks& remarks)
{
    using namespace SightField;
    const auto number = [&](std::size_t field, std::optional<double> empty) {
        return readBox(entryFields[field], texts.*sightMembers[field], empty, remarks);
    };
    AltitudeInputs inputs;
    if (texts.isBegun()) inputs.Hs = number(Hs, std::nullopt);
    inputs.indexError = number(indexError, 0);
    inputs.eye = number(heightOfEye, 0);
    inputs.air = number(air, 10);
    inputs.sea = number(sea, inputs.air.value_or(10));
    inputs.pressure = number(pressure, 1013);
    return inputs;
}

/// How far the refraction may be out where its table, 10 to 85 degrees, is extrapolated.
void warnOfRefraction(DegMin observed, const AltitudeCorrectionTerms& terms, Remarks& remarks)
{
    // An index error taken off and put on again may not come out to the last bit.
    constexpr double low = 10 - 1e-9, high = 85 + 1e-9;
    const Degrees altitude = DegMinToDeg(observed);
    const bool below = altitude < Degrees(low);
    if (!below && altitude <= Degrees(high)) return;
    const Degrees apparent = altitude + Degrees(terms.dip / 60);
    const double usual = MeanRefraction(std::max(apparent, Degrees(0)));
    const double shown = terms.refraction;
    remarks.warn(std::string("Altitude ") + (below ? "below 10" : "above 85") +
                 " degrees: the refraction table is extrapolated to " + Format(shown, "0.0'") +
                 " where " + Format(usual, "0.0'") + " is usual, Ho may be " +
                 Format(std::fabs(usual - shown), "0.0'") +
                 (usual > shown ? " too great" : " too small"));
}

void warnOfMinutes(DegMin Hs, Remarks& remarks)
{
    if (Hs.packed() - std::floor(Hs.packed()) >= 0.6)
        remarks.warn("Sextant altitude: minutes of 60 and more, read as " +
                     inFullForm(Format(DegToDegMin(DegMinToDeg(Hs)), "0.00'0")));
}

/// What the boxes say of an altitude, before anything is corrected.
std::optional<SightCorrections> readCorrections(const SightTexts& texts,
                                                std::optional<DateTime> UTC, Remarks& remarks)
{
    const AltitudeInputs inputs = readAltitude(texts, remarks);
    if (!inputs.complete() || !UTC) return std::nullopt;
    SightCorrections corrections;
    corrections.Hs = DegMin(*inputs.Hs);
    corrections.indexError = *inputs.indexError;
    corrections.observed =
        DegToDegMin(DegMinToDeg(corrections.Hs) - Degrees(corrections.indexError / 60));
    corrections.month = DateOf(*UTC).month;
    corrections.heightOfEye = Metres(*inputs.eye);
    corrections.air = *inputs.air;
    corrections.sea = *inputs.sea;
    corrections.pressure = static_cast<float>(*inputs.pressure);
    corrections.limb = texts.upperLimb ? almanac::Limb::Upper : almanac::Limb::Lower;
    return corrections;
}

/// The library is given the altitude above the sea horizon, index error taken off.
std::optional<SightCorrections> correctSun(const SightTexts& texts, std::optional<DateTime> UTC,
                                           Remarks& remarks)
{
    auto read = readCorrections(texts, UTC, remarks);
    if (!read) return std::nullopt;
    SightCorrections& corrections = *read;
    const auto month = static_cast<float>(corrections.month);
    try {
        corrections.terms =
            SunAltitudeTerms(corrections.observed, month, corrections.heightOfEye, corrections.air,
                             corrections.sea, corrections.pressure);
        corrections.Ho =
            SunAltitudeCorrection(corrections.observed, month, corrections.heightOfEye,
                                  corrections.air, corrections.sea, corrections.pressure);
    } catch (const ArithmeticError& error) {
        remarks.fault(std::string("Altitude correction: ") + error.what());
        return std::nullopt;
    }
    if (texts.upperLimb) {
        // The library corrects the lower limb; the upper one lies a diameter higher.
        corrections.upperLimb =
            -2 * (corrections.terms.semiDiameter + corrections.terms.semiDiameterOfMonth);
        corrections.Ho =
            DegToDegMin(DegMinToDeg(corrections.Ho) + Degrees(corrections.upperLimb / 60));
    }
    warnOfMinutes(corrections.Hs, remarks);
    warnOfRefraction(corrections.observed, corrections.terms, remarks);
    return read;
}

void observeSun(const SightTexts& texts, Observation& observation, Remarks& remarks)
{
    observation.corrections = correctSun(texts, observation.UTC, remarks);
    if (!observation.UTC) return;
    try {
        observation.sun = FiguresOfSun(*observation.UTC);
        observation.GHA = observation.sun->GHA;
        observation.declination = observation.sun->declination;
    } catch (const ArithmeticError& error) {
        remarks.fault(std::string("Place of the Sun: ") + error.what());
    }
}

void observeOther(const SightTexts& texts, Observation& observation, Remarks& remarks)
{
    const auto corrections = readCorrections(texts, observation.UTC, remarks);
    if (!observation.UTC) return;
    try {
        observation.place = almanac::Sky(*observation.UTC).place(observation.body);
    } catch (const almanac::OutOfRange& outside) {
        remarks.fault(std::string("Date of the sight: ") + outside.what());
        return;
    }
    observation.GHA = DegToDegMin(observation.place->gha);
    observation.declination = DegToDegMin(observation.place->declination);
    if (!corrections) return;
    observation.corrections = corrected(*corrections, observation, {});
    warnOfMinutes(corrections->Hs, remarks);
    warnOfLowBody(*observation.corrections, remarks);
}

} // namespace

bool SightTexts::isBegun() const
{
    return !isBlank(time) || !isBlank(Hs);
}

std::optional<double> readBox(const Field& field, const std::string& text,
                              std::optional<double> empty, Remarks& remarks)
{
    // The unit behind a box tells its sign too: a remark takes the one in words.
    const char* const unit = field.kind == FieldKind::Figure ? field.measure : "degrees";
    return readField(text, {field.words, field.low, field.high, unit, field.kind, empty}, remarks);
}

Observation readObservation(const SightTexts& texts, Remarks& remarks)
{
    Observation observation;
    const auto body = readBody(texts.body, remarks);
    observation.UTC = readUTC(texts, remarks);
    if (!body) return observation;
    observation.body = *body;
    (observation.isSun() ? observeSun : observeOther)(texts, observation, remarks);
    return observation;
}

Sight Observation::sight(DateTime timeOfFix) const
{
    return {DegMinToDeg(*GHA), DegMinToDeg(*declination), DegMinToDeg(corrections->Ho),
            Hours((*UTC - timeOfFix) * 24)};
}

std::optional<Position> Track::at(DateTime instant) const
{
    if (!position || !UTC || !motion) return std::nullopt;
    try {
        const Position there = Advanced(*position, *motion, Hours((instant - *UTC) * 24));
        if (fabs(there.latitude) > Degrees(89)) return std::nullopt;
        return there;
    } catch (const ArithmeticError&) {
        return std::nullopt;
    }
}

Track readTrack(const TrackTexts& texts, std::optional<DateTime> lastSight, bool isNeeded,
                Remarks& remarks)
{
    using namespace SightField;
    Remarks unneeded;
    const auto number = [&](std::size_t field, std::optional<double> empty) {
        const std::string& text = texts.*trackMembers[field - DRLatitude];
        return readBox(entryFields[field], text, empty,
                       isNeeded || !isBlank(text) ? remarks : unneeded);
    };
    Track track;
    const auto latitude = number(DRLatitude, std::nullopt);
    const auto longitude = number(DRLongitude, std::nullopt);
    if (latitude && longitude)
        track.position = Position{DegMinToDeg(DegMin(*latitude)), DegMinToDeg(DegMin(*longitude))};
    const auto courseMadeGood = number(course, 0);
    const auto speedMadeGood = number(speed, 0);
    if (courseMadeGood && speedMadeGood)
        track.motion = Motion{Degrees(*courseMadeGood), Knots(*speedMadeGood)};
    track.UTC = lastSight;
    if (!isBlank(texts.time)) {
        track.UTC = readDRTime(texts.time, lastSight, remarks);
        track.timeUsable = track.UTC.has_value();
    }
    return track;
}

void Mark(SightTexts& sight, DateTime UTC)
{
    DateTime watch = UTC;
    if (sight.SMT) watch += readNumber(sight.TD) / 24;
    watch += readNumber(sight.watchError) / secondsPerDay;
    sight.date = Format(watch, "yyyy/mm/dd");
    sight.time = Format(watch, "hh:mm:ss");
}

} // namespace korvel
