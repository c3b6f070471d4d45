// SPDX-License-Identifier: MIT
#include "app/watch/ShipNow.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "app/records/KeyedLines.h"
#include "navlib/arithmetic_error.h"

#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::DegMin;
using NavFunc113::Degrees;
using NavFunc113::Knots;

constexpr std::string_view kind = "KORVEL2000 ship now ";
// Beyond a day a dead reckoning without a fix says nothing that an officer would use.
constexpr Span longestRun = std::chrono::hours(24);

std::string timeOfDay(Instant moment)
{
    const std::string text = minuteText(nearestMinute(moment)); // yyyy/mm/dd hh:mm
    return text.size() < 16 ? text : text.substr(11, 2) + text.substr(14, 2);
}

std::string number(double value)
{
    return Format(value, "0.#########");
}

/// The figures of a file, as far as they are there.
struct Figures {
    std::optional<double> latitude, longitude, course, speed;
    std::optional<Instant> utc;
    bool isTyped = false;
    bool isShown = false;
};

/// @return false for a line that says nothing sound
bool takeLine(std::string_view key, const std::string& value, Figures& figures)
{
    if (key == "utc") return (figures.utc = readIso(value)).has_value();
    if (key == "source") return (figures.isTyped = value == "typed", true);
    if (key == "shown") return (figures.isShown = value == "yes", true);
    const auto figure = [&](std::optional<double>& into, double low, double high) {
        const auto read = readLeadingNumber(value);
        if (!read || *read < low || *read > high) return false;
        into = read;
        return true;
    };
    if (key == "latitude") return figure(figures.latitude, -90, 90);
    if (key == "longitude") return figure(figures.longitude, -180, 180);
    if (key == "course") return figure(figures.course, 0, 360);
    if (key == "speed") return figure(figures.speed, 0, 100);
    return true; // of a later version
}

} // namespace

bool ShipNow::tellFix(const Fix& fix)
{
    if (m_fix && m_fix->source == Source::Typed && m_fix->utc > fix.utc) return false;
    if (m_fix == fix) return false;
    m_fix = fix;
    return true;
}

bool ShipNow::tellMotion(const std::optional<Motion>& motion)
{
    if (m_motion == motion) return false;
    m_motion = motion;
    return true;
}

std::optional<ShipNow::Position> ShipNow::at(Instant utc, Span zone, NavFunc113::Earth earth) const
{
    if (!m_fix) return std::nullopt;
    const Span age = utc - m_fix->utc;
    const std::string name = m_fix->source == Source::Typed ? "typed" : "fix";
    Position position{m_fix->latitude, m_fix->longitude,
                      name + " of " + timeOfDay(m_fix->utc + zone)};
    if (age < std::chrono::minutes(1)) return position;
    const std::string old = spanText(age) + " old";
    if (!m_motion || age > longestRun) {
        position.how += ", " + old;
        return position;
    }
    try {
        const NavFunc113::Miles run = m_motion->speed * hoursOf(age);
        const auto reached =
            NavFunc113::RunInLatitude(m_fix->latitude, m_motion->course, run, earth);
        position.longitude =
            NavFunc113::RunInLongitude(m_fix->latitude, m_fix->longitude, m_motion->course, run,
                                       earth, reached.reached)
                .reached;
        position.latitude = reached.reached;
        position.how = "DR of " + timeOfDay(utc + zone) + ", " + name + " " + old;
    } catch (const NavFunc113::ArithmeticError&) {
        position.how += ", " + old; // the run crosses a pole
    }
    return position;
}

std::string ShipNow::recordText() const
{
    std::string text = std::string(kind) + "1\n";
    if (m_fix) {
        addKeyedLine(text, "latitude", number(m_fix->latitude.packed()));
        addKeyedLine(text, "longitude", number(m_fix->longitude.packed()));
        addKeyedLine(text, "utc", isoText(m_fix->utc));
        addKeyedLine(text, "source", m_fix->source == Source::Typed ? "typed" : "record");
    }
    if (m_motion) {
        addKeyedLine(text, "course", number(m_motion->course.value()));
        addKeyedLine(text, "speed", number(m_motion->speed.value()));
    }
    addKeyedLine(text, "shown", isShown ? "yes" : "");
    return text;
}

std::string ShipNow::take(const std::string& bytes)
{
    if (!bytes.starts_with(kind)) return "line 1: it is no record of the ship";
    Figures figures;
    std::string damage;
    int line = 0;
    for (const std::string_view each : recordLines(bytes)) {
        if (++line == 1 || each.empty()) continue;
        const std::size_t sign = each.find('=');
        const bool isSound =
            sign != std::string_view::npos &&
            takeLine(each.substr(0, sign), unescapedLine(each.substr(sign + 1)), figures);
        if (!isSound && damage.empty()) damage = "line " + std::to_string(line);
    }
    if (figures.latitude && figures.longitude && figures.utc)
        m_fix = Fix{DegMin(*figures.latitude), DegMin(*figures.longitude), *figures.utc,
                    figures.isTyped ? Source::Typed : Source::LastFix};
    if (figures.course && figures.speed)
        m_motion = Motion{Degrees(*figures.course), Knots(*figures.speed)};
    isShown = figures.isShown;
    return damage;
}

} // namespace korvel
