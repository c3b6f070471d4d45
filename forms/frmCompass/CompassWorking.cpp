// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassWorking.h"

#include "app/reading/Format.h"
#include "forms/frmCompass/CompassTexts.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

constexpr int anglePlaces = 4; // a third of a second of arc

std::string degrees(Degrees angle)
{
    return angleTerm(angle, anglePlaces);
}

std::string shown(Degrees angle)
{
    return directionFigure(angle, anglePlaces);
}

/// The steps of the bearing of a body.
class BearingWorking
{
public:
    BearingWorking(const CompassInput& input, const CompassResult& result)
        : m_input(input), m_result(result)
    {
    }

    Working working()
    {
        const bool isAmplitude = m_input.method == CompassMethod::Amplitude;
        m_working.title = isAmplitude ? "True bearing by amplitude" : "True bearing by azimuth";
        m_working.method = {"Place of the body: apparent, by the almanac's series; its Greenwich "
                            "hour angle and declination are those of an almanac's daily page",
                            "Z is counted from north through east; E is +"};
        if (!m_result.seen || !m_result.worked.place) {
            m_working.whyNone = "Nothing was entered, or the remarks say why there is no bearing.";
            return m_working;
        }
        addTimeAndPlace();
        if (isAmplitude)
            addAmplitude();
        else
            addAzimuth();
        m_working.resultStep("Change of the bearing in a minute", "the figure above",
                             m_result.change);
        return m_working;
    }

private:
    void addTimeAndPlace()
    {
        const std::string ut = Format(*m_result.ut, "yyyy-mm-dd hh:mm:ss");
        if (m_input.clock == CompassClock::ShipsTime)
            m_working.step("UTC of the bearing", "UTC = SMT - TD",
                           "SMT less " + Format(m_input.TD, "0.0#") + " h", ut);
        const std::string body(almanac::entryOf(*m_result.body).name);
        m_working.step("Declination", "d, by the almanac", body + ", " + ut + " UTC",
                       shown(m_result.worked.place->declination), "°");
        if (m_input.method == CompassMethod::Azimuth)
            m_working.step("Greenwich hour angle", "GHA, by the almanac", body + ", " + ut + " UTC",
                           shown(m_result.worked.place->gha), "°");
        m_working.angleStep("Latitude", "L", DegToDegMin(*m_result.latitude));
        if (m_input.method == CompassMethod::Azimuth)
            m_working.angleStep("Longitude", "λ", DegToDegMin(*m_result.longitude));
    }

    void addAzimuth()
    {
        const auto& place = *m_result.worked.place;
        const Degrees lha = place.gha + *m_result.longitude;
        const std::string L = degrees(*m_result.latitude), d = degrees(place.declination),
                          LHA = degrees(lha);
        m_working.step("Local hour angle", "LHA = GHA + λ",
                       degrees(place.gha) + " + " + degrees(*m_result.longitude), shown(lha), "°");
        const double east = -cos(place.declination) * sin(lha);
        const double north = sin(place.declination) * cos(*m_result.latitude) -
                             cos(place.declination) * cos(lha) * sin(*m_result.latitude);
        m_working.step("Easterly part", "y = -cos d sin LHA", "-cos " + d + " × sin " + LHA,
                       figure(east, 6));
        m_working.step("Northerly part", "x = sin d cos L - cos d cos LHA sin L",
                       "sin " + d + " × cos " + L + " - cos " + d + " × cos " + LHA + " × sin " + L,
                       figure(north, 6));
        m_working.step("Azimuth", "tan Z = y / x, Z in the quadrant of x and y",
                       "arctan(" + term(east, 6) + " / " + term(north, 6) + ")",
                       shown(m_result.seen->bearing), "°");
        m_working.resultStep("True bearing", "Z to a tenth of a degree", m_result.trueBearing);
        m_working.step("Altitude of the centre", "sin h = sin L sin d + cos L cos d cos LHA",
                       "arcsin(sin " + L + " × sin " + d + " + cos " + L + " × cos " + d +
                           " × cos " + LHA + ")",
                       shown(m_result.seen->altitude), "°");
        m_working.resultStep("Altitude of the body", "h", m_result.altitude);
        addChange();
    }

    void addChange()
    {
        const std::string L = degrees(*m_result.latitude), h = degrees(m_result.seen->altitude),
                          Z = degrees(m_result.seen->bearing);
        m_working.step("Change in a minute of time",
                       "the earth turns 0.25° a minute: 0.25 (sin L - cos L tan h cos Z)",
                       "0.25 × (sin " + L + " - cos " + L + " × tan " + h + " × cos " + Z + ")",
                       figure(m_result.seen->change, 4), "°");
    }

    void addAmplitude()
    {
        m_working.step("Dip of the horizon", "D = 1.776' √h",
                       "1.776 / 60 × √(" + figure(m_result.worked.eye, 1) + ")",
                       shown(m_result.worked.dip), "°");
        for (std::size_t i = 0; i < m_result.worked.byHorizon.size(); ++i)
            if (m_result.worked.byHorizon[i]) addHorizon(static_cast<AmplitudeHorizon>(i));
        addChange();
        m_working.resultStep("True bearing",
                             amplitudeHorizonNames[static_cast<std::size_t>(m_input.horizon)],
                             m_result.trueBearing);
        m_working.resultStep("Altitude of the body", "h of that horizon", m_result.altitude);
        if (!m_result.riseOrSet.empty())
            m_working.resultStep("Found", "the nearest time at which the body has this altitude",
                                 m_result.riseOrSet);
    }

    void addHorizon(AmplitudeHorizon horizon)
    {
        const auto index = static_cast<std::size_t>(horizon);
        const TrueBearing& seen = *m_result.worked.byHorizon[index];
        const auto& place = *m_result.worked.place;
        if (horizon == AmplitudeHorizon::Celestial) {
            m_working.step("Altitude on the celestial horizon", "h", "0", "0", "°");
        } else {
            const bool isLimb = horizon == AmplitudeHorizon::VisibleUpperLimb;
            m_working.step(isLimb ? "Altitude with the upper limb on the visible horizon"
                                  : "Altitude with the centre on the visible horizon",
                           isLimb ? "h = HP - SD - 34' - D" : "h = HP - 34' - D",
                           degrees(place.horizontalParallax) +
                               (isLimb ? " - " + degrees(place.semiDiameter) : "") +
                               " - 34 / 60 - " + degrees(m_result.worked.dip),
                           shown(seen.altitude), "°");
        }
        const std::string L = degrees(*m_result.latitude), d = degrees(place.declination),
                          h = degrees(seen.altitude);
        const bool rising = seen.bearing < NavFunc113::halfTurn;
        m_working.step("Bearing there",
                       std::string("cos Z = (sin d - sin L sin h) / (cos L cos h)") +
                           (rising ? "" : ", 360° - Z"),
                       std::string(rising ? "" : "360 - ") + "arccos((sin " + d + " - sin " + L +
                           " × sin " + h + ") / (cos " + L + " × cos " + h + "))",
                       shown(seen.bearing), "°");
        m_working.resultStep(std::string("Bearing with its ") + amplitudeHorizonNames[index],
                             "Z to a tenth of a degree", m_result.byHorizon[index]);
    }

    const CompassInput& m_input;
    const CompassResult& m_result;
    Working m_working;
};

/// The steps of the errors of the compasses.
class ErrorWorking
{
public:
    explicit ErrorWorking(const CompassResult& result) : m_result(result) {}

    Working working()
    {
        m_working.title = "Errors of the compasses";
        m_working.method = {"Error = true less compass: E, +, when the compass reads too low",
                            "Deviation = error less variation"};
        addVariation();
        for (std::size_t i = 0; i < compassCount; ++i)
            if (!m_result.readings[i].byHeads) addCompass(i);
        addTrueHead();
        for (std::size_t i = 0; i < compassCount; ++i)
            if (m_result.readings[i].byHeads) addCompass(i);
        addSpeedError();
        if (m_working.steps.empty())
            m_working.whyNone = "There is no bearing of a compass to compare.";
        return m_working;
    }

private:
    void addVariation()
    {
        if (!m_result.magnetic) return;
        const bool isTyped = !m_result.magnetic->uncertainty;
        std::string from = "as typed";
        if (!isTyped)
            from = m_result.magnetic->source + ", degree and order 12, at sea level, year " +
                   figure(almanac::decimalYear(*m_result.ut), 3);
        m_working.step("Variation", isTyped ? "E +" : "World Magnetic Model", from,
                       shown(m_result.magnetic->variation), "°");
        m_working.resultStep("Variation used",
                             isTyped ? "to a tenth of a degree"
                                     : "± standard deviation, √(0.26² + (5417 / H)²)",
                             m_result.variation);
    }

    void addCompass(std::size_t i)
    {
        const CompassReading& reading = m_result.readings[i];
        if (!reading.error) return;
        const std::string name(compassNames[i]);
        if (reading.byHeads)
            m_working.step(name + ", error by heads", "true head less head by compass",
                           degrees(*m_result.worked.trueHead) + " - " + degrees(*reading.head) +
                               turnToHalf(*m_result.worked.trueHead - *reading.head),
                           shown(*reading.error), "°");
        else
            m_working.step(name + ", error", "true bearing less bearing by compass",
                           degrees(m_result.seen->bearing) + " - " + degrees(*reading.bearing) +
                               turnToHalf(m_result.seen->bearing - *reading.bearing),
                           shown(*reading.error), "°");
        m_working.resultStep(name + ", error", "to a tenth of a degree", m_result.errors[i]);
        if (!reading.deviation) return;
        m_working.step(name + ", deviation", "error less variation",
                       degrees(*reading.error) + " - " + degrees(m_result.magnetic->variation) +
                           turnToHalf(*reading.error - m_result.magnetic->variation),
                       shown(*reading.deviation), "°");
        m_working.resultStep(name + ", deviation", "to a tenth of a degree",
                             m_result.deviations[i]);
        if (!m_result.besideCurves[i].empty())
            m_working.resultStep(name + ", beside the book",
                                 "A + B sin C + C cos C + D sin 2C + E cos 2C of the kept lines",
                                 m_result.besideCurves[i]);
    }

    void addTrueHead()
    {
        if (!m_result.worked.trueHead) return;
        for (const CompassReading& reading : m_result.readings) {
            if (!reading.head || !reading.error || reading.byHeads) continue;
            const Degrees sum = *reading.head + *reading.error;
            m_working.step("True head", "head by compass + its error",
                           degrees(*reading.head) + " + " + degrees(*reading.error) +
                               turnToCircle(sum),
                           shown(*m_result.worked.trueHead), "°");
            m_working.resultStep("True head", "to a tenth of a degree", m_result.trueHead);
            return;
        }
    }

    void addSpeedError()
    {
        const auto& worked = m_result.worked;
        if (!worked.speedError) return;
        const std::string V = figure(*worked.speed, 1), C = degrees(*worked.course);
        m_working.step("Speed error of the gyro", "tan e = -V cos C / (900 cos L + V sin C), E +",
                       "-arctan(" + V + " × cos " + C + " / (900 × cos " +
                           degrees(*m_result.latitude) + " + " + V + " × sin " + C + "))",
                       shown(*worked.speedError), "°");
        m_working.resultStep("Speed error of the gyro", "of one without correction",
                             m_result.speedError);
    }

    const CompassResult& m_result;
    Working m_working;
};

} // namespace

std::string turnToCircle(Degrees sum)
{
    if (sum >= NavFunc113::fullTurn) return " - 360";
    return sum < Degrees(0) ? " + 360" : "";
}

std::string turnToHalf(Degrees difference)
{
    if (difference >= NavFunc113::halfTurn) return " - 360";
    return difference < -NavFunc113::halfTurn ? " + 360" : "";
}

std::vector<Working> compassWorkings(const CompassInput& input, const CompassResult& result)
{
    return {BearingWorking(input, result).working(), ErrorWorking(result).working()};
}

std::vector<std::string> compassLimits(const CompassInput& input, const CompassResult& result)
{
    std::vector<std::string> limits = {
        "Place of the body: 0.02' (Sun, stars, Moon, planets), measured against full series",
        "A minute of time changes the bearing by what is given above; a mile of position by its "
        "60th part of tan h at most"};
    if (input.method == CompassMethod::Amplitude)
        limits.emplace_back("Refraction on the horizon is taken as 34'; it is often out by 5', on "
                            "some days by 30': tan L / cos Z times that in bearing");
    if (result.magnetic && result.magnetic->uncertainty)
        limits.push_back("Variation by " + result.magnetic->source +
                         ": its standard deviation stands behind it, the earth's crust in it; "
                         "near magnetic ore it is out by more");
    return limits;
}

} // namespace korvel
