// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CalculateCompass.h"

#include "app/reading/Format.h"
#include "app/reading/Instant.h"
#include "app/reading/PositionText.h"
#include "app/reading/TypedTime.h"
#include "forms/frmCompass/CompassTexts.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "navlib/sailing/compass.h"

#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using NavFunc113::WithinHalfTurn;

const Field& fieldOf(CompassBox which)
{
    return CompassFields[static_cast<std::size_t>(which)];
}

CompassBox boxOf(CompassBox first, std::size_t compass)
{
    return static_cast<CompassBox>(static_cast<std::size_t>(first) + 2 * compass);
}

/// The steps of one calculation; each fills in what it can.
class Compass
{
public:
    explicit Compass(const CompassInput& input) : m_input(input) {}

    CompassResult result()
    {
        readTimeAndPlace();
        readCompasses();
        if (m_result.ut && m_result.body && m_result.latitude) findBearing();
        findVariation();
        findErrors();
        findSpeedError();
        m_result.notice = m_remarks.text();
        return m_result;
    }

private:
    std::optional<double> filled(CompassBox which)
    {
        return readFilled(m_input.box(which), fieldOf(which), m_remarks);
    }

    void readTimeAndPlace()
    {
        if (const std::string& moment = m_input.box(CompassBox::Moment); !isBlankBox(moment)) {
            const TypedTime typed = readTypedTime(moment, Due::DateAndTime);
            if (typed.value) takeTime(*typed.value);
            m_remarks.fault(typed.remark.empty() ? "" : "Time: " + typed.remark);
        }
        m_result.latitude = coordinate(CompassBox::Latitude);
        m_result.longitude = coordinate(CompassBox::Longitude);
        m_result.body = bodyOfBox(m_input.box(CompassBox::Body));
        if (!m_result.body)
            m_remarks.fault("Body: " + quotation(m_input.box(CompassBox::Body)) +
                            " is not in the almanac");
    }

    void takeTime(NavFunc113::DateTime typed)
    {
        const bool isShips = m_input.clock == CompassClock::ShipsTime;
        const auto ut = isShips ? typed - NavFunc113::DaysOfHours(m_input.TD) : typed;
        try {
            almanac::requireAlmanacYears(ut);
            m_result.ut = NavFunc113::NearestSecond(ut);
        } catch (const almanac::OutOfRange& fault) {
            m_remarks.fault("Time: " + std::string(fault.what()));
        }
    }

    std::optional<Degrees> coordinate(CompassBox which)
    {
        return readCoordinate(m_input.box(which), fieldOf(which), m_remarks);
    }

    void readCompasses()
    {
        for (std::size_t i = 0; i < compassCount; ++i) {
            CompassReading& reading = m_result.readings[i];
            if (const auto bearing = filled(boxOf(CompassBox::GyroBearing, i)))
                reading.bearing = Degrees(*bearing);
            if (const auto head = filled(boxOf(CompassBox::GyroHead, i)))
                reading.head = Degrees(*head);
        }
        m_result.worked.eye = NavFunc113::Metres(filled(CompassBox::HeightOfEye).value_or(0));
    }

    almanac::Observer observer() const
    {
        return {*m_result.latitude, m_result.longitude.value_or(Degrees(0)), m_result.worked.eye};
    }

    void findBearing()
    {
        const almanac::Place place = almanac::Sky(*m_result.ut).place(*m_result.body);
        m_result.worked.place = place;
        if (m_input.method == CompassMethod::Amplitude)
            findAmplitude(place);
        else if (m_result.longitude)
            m_result.seen = azimuthOf(place, observer());
        else if (isBlankBox(m_input.box(CompassBox::Longitude)))
            m_remarks.fault("Longitude: an azimuth needs it");
        if (!m_result.seen) return;
        judgeBearing(*m_result.body, *m_result.seen, m_remarks);
        m_result.trueBearing = courseText(m_result.seen->bearing);
        m_result.altitude = altitudeText(m_result.seen->altitude);
        m_result.change = Format(m_result.seen->change, "0.00°");
    }

    void findAmplitude(const almanac::Place& place)
    {
        const Degrees dip = NavFunc113::DipOfHorizon(m_result.worked.eye);
        m_result.worked.dip = dip;
        if (m_result.longitude) findCrossing(dip);
        const auto rising = isRising();
        if (!rising) return m_remarks.fault("Rise or set: choose which, or fill in the longitude");
        for (std::size_t i = 0; i < m_result.byHorizon.size(); ++i) {
            const auto horizon = static_cast<AmplitudeHorizon>(i);
            const Degrees altitude = altitudeOn(horizon, dip)(place);
            const auto seen = amplitudeOf(place, *m_result.latitude, altitude, *rising);
            if (seen) m_result.byHorizon[i] = courseText(seen->bearing);
            m_result.worked.byHorizon[i] = seen;
            if (horizon == m_input.horizon) m_result.seen = seen;
        }
        if (!m_result.seen) refuseAmplitude();
    }

    void refuseAmplitude()
    {
        m_remarks.fault("In this latitude " + bodyInSentence(*m_result.body) +
                        " neither rises nor sets on this horizon");
    }

    void findCrossing(Degrees dip)
    {
        m_result.crossing = crossingNear(*m_result.body, *m_result.ut, observer(),
                                         altitudeOn(m_input.horizon, dip), m_input.side);
        if (!m_result.crossing) return;
        const auto& [instant, rising] = *m_result.crossing;
        m_result.riseOrSet = std::string(rising ? "Rise " : "Set ") +
                             Format(instant, "yyyy/mm/dd hh:mm:ss") + " UTC";
        const double minutes = (*m_result.ut - instant) * 1440;
        constexpr double farAway = 5; // minutes: the Sun moves by about its diameter and more
        if (std::fabs(minutes) > farAway)
            m_remarks.warn("Time: " + Format(std::fabs(minutes), "0") + " minutes " +
                           (minutes > 0 ? "after" : "before") + " the " +
                           (rising ? "rise" : "set") + " that was found");
    }

    std::optional<bool> isRising() const
    {
        if (m_input.side != AmplitudeSide::Nearest) return m_input.side == AmplitudeSide::Rising;
        if (m_result.crossing) return m_result.crossing->rising;
        for (const CompassReading& reading : m_result.readings)
            if (reading.bearing) return *reading.bearing < NavFunc113::halfTurn;
        return std::nullopt;
    }

    void findVariation()
    {
        if (!m_input.usesModel) {
            const auto typed = readEastWest(m_input.box(CompassBox::Variation),
                                            fieldOf(CompassBox::Variation), m_remarks);
            if (typed) m_result.magnetic = CompassVariation{*typed};
        } else if (m_result.ut && m_result.latitude && m_result.longitude) {
            m_result.magnetic = variationOf(modelFor(*m_input.model, *m_result.ut), *m_result.ut,
                                            *m_result.latitude, *m_result.longitude, m_remarks);
        }
        if (m_result.magnetic) m_result.variation = m_result.magnetic->text();
    }

    void findErrors()
    {
        for (CompassReading& reading : m_result.readings)
            if (m_result.seen && reading.bearing)
                reading.error = WithinHalfTurn(m_result.seen->bearing - *reading.bearing);
        findTrueHead();
        for (CompassReading& reading : m_result.readings) {
            if (reading.bearing || !reading.head || !m_result.worked.trueHead) continue;
            reading.error = WithinHalfTurn(*m_result.worked.trueHead - *reading.head);
            reading.byHeads = true;
        }
        for (std::size_t i = 0; i < compassCount; ++i)
            tellErrors(i);
    }

    void findTrueHead()
    {
        for (const CompassReading& reading : m_result.readings) {
            if (m_result.worked.trueHead || !reading.error || !reading.head) continue;
            const Degrees head = *reading.head + *reading.error;
            m_result.worked.trueHead = NavFunc113::CourseOfParts(sin(head), cos(head));
            m_result.trueHead = courseText(*m_result.worked.trueHead);
        }
    }

    void tellErrors(std::size_t i)
    {
        CompassReading& reading = m_result.readings[i];
        if (!reading.error) return;
        const bool isGyro = i == static_cast<std::size_t>(CompassKind::Gyro);
        m_result.errors[i] = isGyro ? gyroErrorText(*reading.error) : eastWestText(*reading.error);
        if (!isGyro && m_result.magnetic) {
            reading.deviation = WithinHalfTurn(*reading.error - m_result.magnetic->variation);
            m_result.deviations[i] = eastWestText(*reading.deviation);
        }
        constexpr Degrees doubtful(30);
        if (fabs(*reading.error) > doubtful &&
            (isGyro || !reading.deviation || fabs(*reading.deviation) > doubtful))
            m_remarks.warn(std::string(compassNames[i]) + ": an error of " +
                           eastWestText(*reading.error) + ", is the bearing of this body?");
    }

    void findSpeedError()
    {
        const auto speed = filled(CompassBox::Speed);
        const auto& gyroHead = m_result.readings[0].head;
        const auto course = m_result.worked.trueHead ? m_result.worked.trueHead : gyroHead;
        if (!speed || !course || !m_result.latitude) return;
        try {
            m_result.worked.speed = NavFunc113::Knots(*speed);
            m_result.worked.course = course;
            m_result.worked.speedError =
                NavFunc113::GyroSpeedError(*course, NavFunc113::Knots(*speed), *m_result.latitude);
            m_result.speedError = gyroErrorText(*m_result.worked.speedError);
        } catch (const NavFunc113::ArithmeticError&) {
            m_remarks.warn("A gyro does not point so near to the pole");
        }
    }

    const CompassInput& m_input;
    CompassResult m_result;
    Remarks m_remarks;
};

} // namespace

CompassResult CalculateCompass(const CompassInput& input)
{
    return Compass(input).result();
}

} // namespace korvel
