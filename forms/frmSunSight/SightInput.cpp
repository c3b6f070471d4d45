// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/SightInput.h"

#include "app/Format.h"
#include "app/reading.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/ephemeris.h"

#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

constexpr double secondsPerDay = 86400;

bool isEmpty(const std::string& text)
{
    return text.find_first_not_of(" \t") == std::string::npos;
}

std::optional<DateTime> readDateAndTime(const std::string& text, const std::string& name,
                                        Remarks& remarks)
{
    const auto value = readDateTime(text);
    // Neither a time without its day nor a day without its time is an instant.
    const std::string ascii = asciiForms(text);
    if (value && ascii.find('/') != std::string::npos && ascii.find(':') != std::string::npos) {
        if (*value >= 1) return value;
        remarks.faults.push_back(name + ": dates before 1900 cannot be computed");
        return std::nullopt;
    }
    remarks.faults.push_back(name + ": " + (isEmpty(text) ? "empty" : "\"" + text + "\" is none") +
                             "; yyyy/mm/dd and hh:mm:ss are needed");
    return std::nullopt;
}

std::optional<DateTime> readUTC(const SightTexts& texts, Remarks& remarks)
{
    std::optional<double> TD = 0;
    if (texts.SMT) TD = readBox("TD", texts.TD, -12, 12, 0, remarks);
    const auto watchError = readBox("Watch error", texts.watchError, -43200, 43200, 0, remarks);
    const std::string text =
        isEmpty(texts.date) && isEmpty(texts.time) ? std::string() : texts.date + " " + texts.time;
    const auto watch = readDateAndTime(text, "Date and time of the sight", remarks);
    if (!watch || !TD || !watchError) return std::nullopt;
    try {
        return NearestSecond(*watch - *watchError / secondsPerDay - *TD / 24);
    } catch (const ArithmeticError&) {
        remarks.faults.push_back("Date and time of the sight: beyond the calendar");
        return std::nullopt;
    }
}

/// The library is given the altitude above the sea horizon, index error taken off.
std::optional<SightCorrections> correct(const SightTexts& texts, std::optional<DateTime> UTC,
                                        Remarks& remarks)
{
    const auto Hs = readBox("Sextant altitude", texts.Hs, 0, 90, std::nullopt, remarks);
    const auto indexError = readBox("Index error", texts.indexError, -60, 60, 0, remarks);
    const auto eye = readBox("Height of eye", texts.heightOfEye, 0, 100, 0, remarks);
    const auto air = readBox("Air temperature", texts.air, -60, 60, 10, remarks);
    const auto sea = readBox("Sea temperature", texts.sea, -5, 45, air.value_or(10), remarks);
    const auto pressure = readBox("Pressure", texts.pressure, 850, 1100, 1013, remarks);
    if (!Hs || !indexError || !eye || !air || !sea || !pressure || !UTC) return std::nullopt;

    SightCorrections corrections;
    corrections.Hs = DegMin(*Hs);
    corrections.indexError = *indexError;
    const DegMin observed = DegToDegMin(DegMinToDeg(corrections.Hs) - Degrees(*indexError / 60));
    const auto month = static_cast<float>(DateOf(*UTC).month);
    const Metres heightOfEye(*eye);
    const auto hectopascals = static_cast<float>(*pressure);
    try {
        corrections.terms =
            SunAltitudeTerms(observed, month, heightOfEye, *air, *sea, hectopascals);
        corrections.Ho =
            SunAltitudeCorrection(observed, month, heightOfEye, *air, *sea, hectopascals);
    } catch (const ArithmeticError& error) {
        remarks.faults.push_back(std::string("Altitude correction: ") + error.what());
        return std::nullopt;
    }
    if (texts.upperLimb) {
        // The library corrects the lower limb; the upper one lies a diameter higher.
        corrections.upperLimb =
            -2 * (corrections.terms.semiDiameter + corrections.terms.semiDiameterOfMonth);
        corrections.Ho =
            DegToDegMin(DegMinToDeg(corrections.Ho) + Degrees(corrections.upperLimb / 60));
    }
    if (*Hs - std::floor(*Hs) >= 0.6)
        remarks.warnings.push_back("Sextant altitude: minutes of 60 and more, read as " +
                                   Format(DegToDegMin(DegMinToDeg(corrections.Hs)), "0.-00'0"));
    if (*Hs < 10)
        remarks.warnings.push_back("Sextant altitude below 10 degrees: the refraction table is "
                                   "extrapolated");
    if (*Hs > 85)
        remarks.warnings.push_back("Sextant altitude above 85 degrees: the refraction table is "
                                   "extrapolated");
    return corrections;
}

} // namespace

std::optional<double> readBox(const std::string& name, const std::string& text, double low,
                              double high, std::optional<double> empty, Remarks& remarks)
{
    if (isEmpty(text)) {
        if (!empty) remarks.faults.push_back(name + ": empty");
        return empty;
    }
    const auto value = readLeadingNumber(text);
    if (!value) {
        remarks.faults.push_back(name + ": \"" + text + "\" is no number");
        return std::nullopt;
    }
    if (!(*value >= low && *value <= high)) {
        remarks.faults.push_back(name + ": not within " + Format(low, "0.##") + " to " +
                                 Format(high, "0.##"));
        return std::nullopt;
    }
    if (!isNumeric(text))
        remarks.warnings.push_back(name + ": \"" + text + "\" is read as " +
                                   Format(*value, "0.####"));
    return value;
}

Observation readObservation(const SightTexts& texts, Remarks& remarks)
{
    Observation observation;
    observation.UTC = readUTC(texts, remarks);
    observation.corrections = correct(texts, observation.UTC, remarks);
    if (observation.UTC) {
        try {
            observation.GHA = SunGHA(*observation.UTC);
            observation.declination = SunDeclination(*observation.UTC);
        } catch (const ArithmeticError& error) {
            remarks.faults.push_back(std::string("Place of the Sun: ") + error.what());
        }
    }
    return observation;
}

Sight Observation::sight(DateTime timeOfFix) const
{
    return {DegMinToDeg(*GHA), DegMinToDeg(*declination), DegMinToDeg(corrections->Ho),
            Hours((*UTC - timeOfFix) * 24)};
}

std::optional<Position> Track::at(DateTime instant) const
{
    if (!position || !timeUsable) return std::nullopt;
    if (!UTC) return position;
    if (!motion) return std::nullopt;
    try {
        const Position there = Advanced(*position, *motion, Hours((instant - *UTC) * 24));
        if (fabs(there.latitude) > Degrees(89)) return std::nullopt;
        return there;
    } catch (const ArithmeticError&) {
        return std::nullopt;
    }
}

Track readTrack(const TrackTexts& texts, Remarks& remarks)
{
    Track track;
    // On the last degree to a pole the plane chart and the run by middle latitude fail.
    const auto latitude = readBox("DR latitude", texts.latitude, -89, 89, std::nullopt, remarks);
    const auto longitude =
        readBox("DR longitude", texts.longitude, -180, 180, std::nullopt, remarks);
    if (latitude && longitude)
        track.position = Position{DegMinToDeg(DegMin(*latitude)), DegMinToDeg(DegMin(*longitude))};
    const auto course = readBox("Course", texts.course, 0, 360, 0, remarks);
    const auto speed = readBox("Speed", texts.speed, 0, 100, 0, remarks);
    if (course && speed) track.motion = Motion{Degrees(*course), Knots(*speed)};
    if (!isEmpty(texts.time)) {
        track.UTC = readDateAndTime(texts.time, "Time of the DR position", remarks);
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
