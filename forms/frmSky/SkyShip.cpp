// SPDX-License-Identifier: MIT
#include "forms/frmSky/SkyShip.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/PositionText.h"
#include "app/reading/Reading.h"
#include "app/reading/TypedTime.h"
#include "navlib/angles.h"
#include "navlib/arithmetic_error.h"
#include "navlib/datetime.h"
#include "navlib/sailing/compass.h"

#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::DateTime;
using NavFunc113::DegMin;
using NavFunc113::Degrees;

const Field& fieldOf(SkyBox which)
{
    return SkyFields[placeOf(which)];
}

/// Minutes since day 0, as times are shown.
double wholeMinutes(DateTime time)
{
    return std::floor(time * 1440 + 0.5);
}

class ShipReader
{
public:
    ShipReader(const SkyInput& input, Remarks& remarks) : m_input(input), m_remarks(remarks) {}

    std::optional<SkyShip> ship()
    {
        m_ship.earth = m_input.earth;
        m_ship.TD = NavFunc113::Hours(figure(SkyBox::TD).value_or(m_input.TD.value()));
        m_ship.course = Degrees(figure(SkyBox::Course).value_or(0));
        m_ship.speed = NavFunc113::Knots(figure(SkyBox::Speed).value_or(0));
        m_ship.eye = NavFunc113::Metres(figure(SkyBox::HeightOfEye).value_or(0));
        m_ship.indexError = Degrees(figure(SkyBox::IndexError).value_or(0) / 60);
        const bool isPlaced = readPosition(), isTimed = readDay();
        if (!isPlaced || !isTimed || !m_isWhole || !isWithinYears() || !isClearOfPoles())
            return std::nullopt;
        return m_ship;
    }

private:
    /// A box that may be empty. What cannot be used spoils the ship: nobody wants the times of
    /// another speed than the one typed.
    std::optional<double> figure(SkyBox which)
    {
        const Field& field = fieldOf(which);
        const std::size_t faults = m_remarks.faults.size();
        const auto value = readIfTyped(m_input.box(which),
                                       {field.words, field.low, field.high, field.unit}, m_remarks);
        m_isWhole = m_isWhole && m_remarks.faults.size() == faults;
        return value;
    }

    std::optional<DegMin> coordinate(SkyBox which)
    {
        const Field& field = fieldOf(which);
        const std::size_t faults = m_remarks.faults.size();
        const auto packed = readAngleIfTyped(
            m_input.box(which), {field.words, field.low, field.high, field.unit, field.kind},
            m_remarks);
        if (!packed && m_remarks.faults.size() == faults)
            m_remarks.fault(std::string(field.words) + ": nothing entered");
        return packed;
    }

    bool readPosition()
    {
        const auto latitude = coordinate(SkyBox::Latitude);
        const auto longitude = coordinate(SkyBox::Longitude);
        if (!latitude || !longitude) return false;
        m_ship.position = {*latitude, *longitude};
        return true;
    }

    bool readDay()
    {
        const Field& field = fieldOf(SkyBox::Moment);
        const std::string& box = m_input.box(SkyBox::Moment);
        const auto time = readShipsTime(box, field, {}, m_remarks);
        if (isBlank(box)) m_remarks.fault(std::string(field.words) + ": nothing entered");
        const auto day =
            readShipsTime(m_input.box(SkyBox::Day), fieldOf(SkyBox::Day), {}, m_remarks);
        if (!time || (!day && !isBlank(m_input.box(SkyBox::Day)))) return false;
        m_ship.of = m_ship.utcOf(*time);
        m_ship.day = m_ship.utcOf(std::floor(day.value_or(*time)));
        return true;
    }

    bool isWithinYears()
    {
        try {
            almanac::requireAlmanacYears(m_ship.day);
            almanac::requireAlmanacYears(m_ship.day + 1);
            almanac::requireAlmanacYears(m_ship.of);
        } catch (const almanac::OutOfRange& fault) {
            m_remarks.fault("Day: " + std::string(fault.what()));
            return false;
        }
        constexpr double longestRun = 14; // days; beyond, nobody holds one course
        if (std::fabs(m_ship.day - m_ship.of) <= longestRun || m_ship.speed.value() == 0)
            return true;
        m_remarks.fault("Day: more than 14 days from the position, on one course");
        return false;
    }

    bool isClearOfPoles()
    {
        try {
            for (const DateTime end : {m_ship.day - 0.5, m_ship.day + 1.5}) {
                const Degrees latitude = m_ship.at(end).latitude;
                if (fabs(latitude) > NavFunc113::quarterTurn)
                    throw NavFunc113::ArithmeticError(
                        NavFunc113::ArithmeticError::Condition::InvalidArgument);
            }
            return true;
        } catch (const NavFunc113::ArithmeticError&) {
            m_remarks.fault("Course: the ship comes to a pole on this day");
            return false;
        }
    }

    const SkyInput& m_input;
    Remarks& m_remarks;
    SkyShip m_ship;
    bool m_isWhole = true;
};

} // namespace

almanac::Observer SkyShip::at(DateTime utc) const
{
    const double hours = (utc - of) * 24;
    const Degrees way = hours < 0 ? Degrees(std::fmod(course.value() + 180, 360)) : course;
    const auto run = speed * NavFunc113::Hours(std::fabs(hours));
    NavFunc113::GeoPoint reached = position;
    if (run.value() > 0) {
        reached.lat = NavFunc113::DRLatitude(position.lat, way, run, earth);
        reached.longitude =
            NavFunc113::DRLongitude(position.lat, position.longitude, way, run, earth, reached.lat);
    }
    return {DegMinToDeg(reached.lat), DegMinToDeg(reached.longitude), eye};
}

almanac::Track SkyShip::track() const
{
    return [ship = *this](DateTime utc) { return ship.at(utc); };
}

Degrees SkyShip::dip() const
{
    return NavFunc113::DipOfHorizon(eye);
}

std::optional<SkyShip> readShip(const SkyInput& input, Remarks& remarks)
{
    return ShipReader(input, remarks).ship();
}

std::optional<DateTime> readShipsTime(std::string_view box, const Field& field,
                                      std::optional<DateTime> day, Remarks& remarks)
{
    if (isBlank(box)) return std::nullopt;
    const auto typed = readDateTime(box);
    if (typed && *typed >= 1) {
        const bool isDateAlone = box.find(':') == std::string_view::npos &&
                                 asciiForms(box).find(':') == std::string::npos;
        return isDateAlone ? *typed + 0.5 : *typed;
    }
    if (typed && day) return *day + *typed;
    const TypedTime reading = readTypedTime(box, day ? Due::TimeOfDay : Due::DateAndTime);
    remarks.fault(std::string(field.words) + ": " +
                  (reading.remark.empty() ? quotation(box) + " cannot be used" : reading.remark));
    return std::nullopt;
}

std::string timeOfDayText(DateTime time)
{
    const double minutes = wholeMinutes(time);
    return Format(minutes / 1440, "hh:mm");
}

std::string dayAndTimeText(DateTime time)
{
    return Format(wholeMinutes(time) / 1440, "mm/dd hh:mm");
}

std::string dayText(DateTime day)
{
    return weekdayOf(instantOf(day)) + " " + Format(day, "yyyy/mm/dd");
}

std::string presetText(Degrees altitude)
{
    const double rounded = std::round(altitude.value() * 60);
    const double minutes = std::fabs(rounded);
    const double whole = std::floor(minutes / 60);
    std::string text = rounded < 0 ? "-" : "";
    text += Format(whole, "00") + "°" + Format(minutes - 60 * whole, "00") + "'";
    return text;
}

std::string placeText(const almanac::Observer& observer)
{
    return positionForCopy(DegToDegMin(observer.latitude), DegToDegMin(observer.longitude));
}

} // namespace korvel
