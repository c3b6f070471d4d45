// SPDX-License-Identifier: MIT
#include "forms/frmSky/CalculateUnknown.h"

#include "almanac/magnitudes.h"
#include "almanac/sextant.h"
#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"
#include "navlib/angles.h"
#include "navlib/arithmetic_error.h"

#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::DateTime;
using NavFunc113::Degrees;

const Field& unknownField(SkyBox which)
{
    return SkyFields[placeOf(which)];
}

std::string signedAngle(Degrees angle)
{
    const double minutes = std::round(std::fabs(angle.value()) * 60);
    std::string text = angle < Degrees(0) && minutes > 0 ? "-" : "+";
    text +=
        Format(std::floor(minutes / 60), "0") + "°" + Format(std::fmod(minutes, 60), "00") + "'";
    return text;
}

class Unknown
{
public:
    explicit Unknown(const SkyInput& input) : m_input(input) {}

    UnknownResult result()
    {
        if (isUntouched()) return {};
        const auto altitude = readAngleIfTyped(m_input.box(SkyBox::UnknownAltitude),
                                               number(SkyBox::UnknownAltitude), m_remarks);
        const auto bearing = readIfTyped(m_input.box(SkyBox::UnknownBearing),
                                         number(SkyBox::UnknownBearing), m_remarks);
        const auto ship = shipThen();
        if (ship && altitude && bearing) find(*ship, DegMinToDeg(*altitude), Degrees(*bearing));
        m_found.notice = m_remarks.text();
        return m_found;
    }

private:
    bool isUntouched() const
    {
        return isBlank(m_input.box(SkyBox::UnknownAt)) &&
               isBlank(m_input.box(SkyBox::UnknownAltitude)) &&
               isBlank(m_input.box(SkyBox::UnknownBearing));
    }

    static NumberField number(SkyBox which)
    {
        const Field& field = unknownField(which);
        return {field.words, field.low, field.high, field.unit, field.kind};
    }

    /// The ship, with the day of the observation: it need not be the one that is shown.
    std::optional<SkyShip> shipThen()
    {
        auto ship = readShip(m_input, m_remarks);
        if (!ship) return std::nullopt;
        const std::string& box = m_input.box(SkyBox::UnknownAt);
        const DateTime midnight = std::floor(ship->shipsTime(ship->day) + 0.5);
        const auto time = readShipsTime(box, unknownField(SkyBox::UnknownAt), midnight, m_remarks);
        if (!time) return std::nullopt;
        m_found.utc = ship->utcOf(*time);
        if (isWithinReach(*ship)) return ship;
        m_found.utc.reset();
        return std::nullopt;
    }

    bool isWithinReach(const SkyShip& ship)
    {
        constexpr double farthest = 14; // days from the position, as the day that is shown
        if (ship.speed.value() > 0 && std::fabs(*m_found.utc - ship.of) > farthest) {
            m_remarks.fault("Time: more than 14 days from the position");
            return false;
        }
        try {
            almanac::requireAlmanacYears(*m_found.utc);
            if (fabs(ship.at(*m_found.utc).latitude) <= NavFunc113::quarterTurn) return true;
            m_remarks.fault("Course: the ship comes to a pole on the way");
        } catch (const almanac::OutOfRange& fault) {
            m_remarks.fault("Time: " + std::string(fault.what()));
        } catch (const NavFunc113::ArithmeticError&) {
            m_remarks.fault("Course: the ship comes to a pole on the way");
        }
        return false;
    }

    void find(const SkyShip& ship, Degrees shown, Degrees bearing)
    {
        const almanac::Sky sky(*m_found.utc);
        const almanac::Observer observer = ship.at(*m_found.utc);
        // A star's: what is seen of another body lies within the half degree that altitudes are
        // given here.
        const auto terms =
            almanac::correctSextant({}, almanac::Body::Venus, shown - ship.indexError,
                                    almanac::Limb::Lower, meanAir(ship.eye), {});
        m_found.ship = ship;
        m_found.shown = shown;
        m_found.terms = terms;
        m_found.observed = {terms.seen, bearing};
        m_found.likely = almanac::likelyBodies(sky, observer, m_found.observed, likelyCount);
        for (std::size_t i = 0; i < m_found.likely.size(); ++i)
            m_found.lines[i] = lineOf(m_found.likely[i], sky);
        m_found.answer = m_found.lines[0].name;
        m_found.observedText = altitudeText(m_found.observed.altitude);
        m_found.zulu = Format(*m_found.utc, "yyyy/mm/dd hh:mm:ss");
        m_found.where = placeText(observer);
        judge();
    }

    static UnknownLine lineOf(const almanac::LikelyBody& likely, const almanac::Sky& sky)
    {
        const almanac::BodyEntry& entry = almanac::entryOf(likely.body);
        const auto magnitude = almanac::magnitudeOf(likely.body, sky);
        UnknownLine line;
        line.name = entry.name;
        line.number = entry.number > 0 ? std::to_string(entry.number) : "";
        line.magnitude = magnitude ? Format(*magnitude, "0.0") : "";
        line.direction = altitudeText(likely.direction.altitude) + "  " +
                         courseText(likely.direction.azimuth, "000.0");
        line.altitudeOff = signedAngle(likely.altitudeOff);
        line.bearingOff = Format(likely.bearingOff, "+0.0°;-0.0°");
        return line;
    }

    void judge()
    {
        constexpr double far = 6; // 3 degrees of altitude, or 12 at right angles to it
        constexpr double clear = 2;
        const double first = m_found.likely[0].apart, second = m_found.likely[1].apart;
        if (first > far)
            m_remarks.warn("No body of the almanac stood near: check date, TD and position");
        else if (second < first + clear)
            m_remarks.warn(m_found.lines[0].name + " and " + m_found.lines[1].name +
                           " are hardly told apart by this");
    }

    const SkyInput& m_input;
    Remarks m_remarks;
    UnknownResult m_found;
};

} // namespace

UnknownResult CalculateUnknown(const SkyInput& input)
{
    return Unknown(input).result();
}

} // namespace korvel
