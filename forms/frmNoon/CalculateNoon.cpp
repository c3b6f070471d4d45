// SPDX-License-Identifier: MIT
#include "forms/frmNoon/CalculateNoon.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/PositionText.h"
#include "app/reading/TypedTime.h"
#include "forms/frmPassage/PlanTexts.h"
#include "navlib/arithmetic_error.h"
#include "navlib/datetime.h"
#include "navlib/ship/propulsion.h"

#include <algorithm>
#include <sstream>

namespace korvel
{
namespace
{

using NavFunc113::Hours;
using NavFunc113::Knots;
using NavFunc113::Miles;

bool isBlank(const std::string& text)
{
    return text.find_first_not_of(' ') == std::string::npos;
}

std::string momentWithDay(Instant moment)
{
    const Instant shown = nearestMinute(moment);
    std::string text = minuteText(shown);
    if (!text.empty()) text.insert(0, weekdayOf(shown) + " ");
    return text;
}

/// Works the report out, part by part.
class Noon
{
public:
    explicit Noon(const NoonInput& input)
        : m_input(input), m_record(CalculatePositionRecord(input.record)),
          m_plan(input.plan, {input.record.earth, input.shipsTD})
    {
    }

    NoonResult result()
    {
        if (findFixes()) {
            showRun();
            showSinceAway();
            showDrift();
        }
        findWayToGo();
        showArrivals();
        showSlip();
        showFuel();
        m_shown.notice = m_remarks.text();
        m_shown.mail = mail();
        return std::move(m_shown);
    }

private:
    struct Sum {
        Miles miles;
        Hours hours;
    };

    std::optional<double> number(const std::string& box, const char* name, double low, double high)
    {
        return readIfTyped(box, {name, low, high}, m_remarks);
    }

    /// A fix by the row of the record that a box names.
    std::optional<std::size_t> fixNamed(const std::string& box, const char* name)
    {
        const auto row = number(box, name, 1, positionRowCount);
        if (!row) return std::nullopt;
        for (std::size_t i = 0; i < m_record.fixes.size(); ++i)
            if (m_record.fixes[i].row + 1 == static_cast<std::size_t>(*row)) return i;
        m_remarks.fault(std::string(name) + ": the record has no whole fix there");
        return std::nullopt;
    }

    bool findFixes()
    {
        const auto& fixes = m_record.fixes;
        if (fixes.size() < 2) {
            m_remarks.fault("the position record has no two fixes");
            return false;
        }
        // The last two noons; where there are none, the last two fixes.
        std::vector<std::size_t> noons;
        for (std::size_t i = 0; i < fixes.size(); ++i) {
            const auto time = NavFunc113::TimeOf(fixes[i].smt);
            if (time.hour == 12 && time.minute == 0) noons.push_back(i);
        }
        const bool hasNoons = noons.size() >= 2;
        m_from = hasNoons ? noons[noons.size() - 2] : fixes.size() - 2;
        m_to = hasNoons ? noons.back() : fixes.size() - 1;
        const auto& boxes = m_input.boxes.fixes;
        if (!isBlank(boxes[0])) {
            const auto from = fixNamed(boxes[0], "First fix");
            if (!from) return false;
            m_from = *from;
        }
        if (!isBlank(boxes[1])) {
            const auto to = fixNamed(boxes[1], "Last fix");
            if (!to) return false;
            m_to = *to;
        }
        if (fixes[m_to].utc > fixes[m_from].utc) return m_hasFixes = true;
        m_remarks.fault("the last fix is not later than the first");
        return false;
    }

    std::optional<Sum> sumBetween(std::size_t from, std::size_t to) const
    {
        Sum sum;
        for (std::size_t i = std::min(from, to); i < std::max(from, to); ++i) {
            if (!m_record.legs[i]) return std::nullopt;
            sum.miles += m_record.legs[i]->sailed.distance;
            sum.hours += m_record.legs[i]->hours;
        }
        return sum;
    }

    /// UTC is SMT less TD: what the clocks did between two fixes follows from both.
    std::string clocksBetween() const
    {
        const RecordedFix& from = m_record.fixes[m_from];
        const RecordedFix& to = m_record.fixes[m_to];
        const auto TD = [](const RecordedFix& fix) {
            return instantOf(fix.smt) - instantOf(fix.utc);
        };
        const Span change = TD(to) - TD(from);
        const auto minutes = std::chrono::round<std::chrono::minutes>(change);
        std::string text = "row " + std::to_string(from.row + 1) + " to " +
                           std::to_string(to.row + 1) + ", TD " +
                           Format(hoursOf(TD(from)), "+0.##;-0.##") + " to " +
                           Format(hoursOf(TD(to)), "+0.##;-0.##");
        if (minutes.count() == 0) return text + ": clocks kept";
        return text + ": clocks " + spanText(std::chrono::abs(minutes)) +
               (change > Span(0) ? " forward" : " back");
    }

    void showRun()
    {
        const auto sum = sumBetween(m_from, m_to);
        if (!sum) return m_remarks.fault("a leg between the fixes cannot be calculated");
        const double stopped = number(m_input.boxes.stopped, "Stopped", 0, 1000).value_or(0);
        m_day = Sum{sum->miles, sum->hours - Hours(stopped)};
        const RecordedFix& to = m_record.fixes[m_to];
        m_shown.position = positionForCopy(to.latitude, to.longitude);
        m_shown.between = clocksBetween();
        m_shown.run = Format(m_day->miles, "0.0");
        m_shown.hours = spanText(spanOf(m_day->hours).value_or(Span(0)));
        if (m_day->hours > Hours(0)) {
            m_average = m_day->miles / m_day->hours;
            m_shown.average = Format(*m_average, "0.00");
            m_shown.isWhole = true;
        } else {
            m_remarks.fault("Stopped: no time is left under way");
        }
    }

    void showSinceAway()
    {
        const auto away = fixNamed(m_input.boxes.fullAway, "Full away");
        if (!away || *away >= m_to) return;
        const auto sum = sumBetween(*away, m_to);
        if (!sum || !(sum->hours > Hours(0))) return;
        m_shown.sinceAway = Format(sum->miles, "0.0") + " nm in " +
                            spanText(spanOf(sum->hours).value_or(Span(0))) + ", " +
                            Format(sum->miles / sum->hours, "0.00") + " kn";
    }

    void showDrift()
    {
        if (!m_record.current || m_to + 1 != m_record.fixes.size()) return;
        m_shown.setAndDrift = (m_record.set.empty() ? "" : m_record.set + "°, ") + m_record.drift;
    }

    void findWayToGo()
    {
        if (const auto typed = number(m_input.boxes.toGo, "To go", 0, 30000)) {
            m_toGo = Miles(*typed);
            m_shown.by = "as typed";
        } else if (m_hasFixes) {
            followPlan();
        }
        if (m_toGo) m_shown.toGo = Format(*m_toGo, "0.0");
    }

    /// From the fix to the waypoint that comes next, then by the plan.
    void followPlan()
    {
        const RecordedFix& fix = m_record.fixes[m_to];
        std::optional<std::size_t> next;
        if (const auto row = number(m_input.boxes.next, "Next waypoint", 1, 500))
            next = static_cast<std::size_t>(*row) - 1;
        for (std::size_t i = 0; !next && i < m_plan.size(); ++i)
            if (m_plan.figures(i).eta && *m_plan.figures(i).eta > instantOf(fix.utc)) next = i;
        if (!next || *next >= m_plan.size()) return;
        const auto& position = m_plan.read(*next).position;
        const auto& rest = m_plan.figures(*next).toGo;
        if (!position || !rest) return m_remarks.fault("the plan has no way to go from its row");
        try {
            const auto leg =
                NavFunc113::RhumbCourseAndDistance(fix.latitude, fix.longitude, position->lat,
                                                   position->longitude, m_input.record.earth);
            m_toGo = leg.distance + *rest;
            m_shown.by =
                "rhumb line to row " + std::to_string(*next + 1) + " of the plan, then by it";
        } catch (const NavFunc113::ArithmeticError&) {
            m_remarks.fault("no rhumb line leads to the next waypoint");
        }
    }

    Span portZone()
    {
        if (const auto typed = number(m_input.boxes.portTD, "TD of the port", -12, 14))
            return spanOf(Hours(*typed)).value_or(Span(0));
        const auto last = m_plan.lastRow();
        if (last) return m_plan.figures(*last).zone;
        return spanOf(m_input.shipsTD).value_or(Span(0));
    }

    void showArrivals()
    {
        if (!m_toGo || !m_hasFixes) return;
        const Span zone = portZone();
        const Instant fix = instantOf(m_record.fixes[m_to].utc);
        for (std::size_t i = 0; i < m_shown.eta.size(); ++i) {
            const auto typed = number(m_input.boxes.speeds[i], "Speed", 0, 100);
            const std::optional<Knots> speed = typed    ? std::optional(Knots(*typed))
                                               : i == 0 ? m_average
                                                        : std::nullopt;
            if (!speed || !(*speed > Knots(0))) continue;
            const auto way = spanOf(*m_toGo / *speed);
            if (!way) continue;
            const std::string utc = momentWithDay(fix + *way);
            const std::string port = zoneText(zone);
            m_shown.eta[i] = Format(*speed, "0.00") + " kn: " + momentWithDay(fix + *way + zone) +
                             " " + port.substr(0, port.find(" (")) + "; UTC " + utc.substr(0, 4) +
                             utc.substr(utc.rfind(' ') + 1);
        }
        if (isBlank(m_input.boxes.wanted)) return;
        const TypedTime wanted = readTypedTime(m_input.boxes.wanted, Due::DateAndTime);
        if (!wanted.value) return m_remarks.fault("Wanted arrival: " + wanted.remark);
        const Span left = instantOf(*wanted.value) - zone - fix;
        if (left <= Span(0)) return m_remarks.fault("Wanted arrival: it lies before the fix");
        m_shown.speedNeeded = Format(*m_toGo / hoursOf(left), "0.00");
    }

    void showSlip()
    {
        const NoonBoxes& boxes = m_input.boxes;
        const auto pitch = number(boxes.pitch, "Pitch", 0, 20);
        const auto first = number(boxes.counter[0], "First counter", 0, 1e9);
        const auto last = number(boxes.counter[1], "Last counter", 0, 1e9);
        if (!pitch || !first || !last || !m_day) return;
        const Miles engine = NavFunc113::EngineMiles(NavFunc113::Metres(*pitch), *last - *first);
        if (!(engine > Miles(0)))
            return m_remarks.fault("Slip: the propeller has not turned between the counters");
        m_shown.engine = Format(engine, "0.0");
        m_shown.apparentSlip = Format(100 * NavFunc113::ApparentSlip(engine, m_day->miles), "0.00");
        if (const auto wake = number(boxes.wake, "Wake fraction", 0, 0.99))
            m_shown.realSlip =
                Format(100 * NavFunc113::RealSlip(engine, m_day->miles, *wake), "0.00");
        // A slip without its mile is worth nothing: the engine's are of 1852 m.
        if (m_input.record.earth == NavFunc113::Earth::Sphere)
            m_remarks.warn(
                "slip: the run is in minutes of latitude, the engine's miles have 1852 m");
    }

    void showFuel()
    {
        for (std::size_t i = 0; i < m_shown.fuel.size(); ++i) {
            const auto before = number(m_input.boxes.before[i], "Fuel before", 0, 99999);
            const auto onBoard = number(m_input.boxes.onBoard[i], "Fuel on board", 0, 99999);
            if (!before || !onBoard) continue;
            m_shown.fuel[i] = Format(*before - *onBoard, "0.0") + " t";
            if (*onBoard > *before) m_remarks.warn("more fuel than the day before: bunkered?");
            if (m_day && m_day->miles > Miles(0))
                m_shown.fuel[i] += ", " +
                                   Format((*before - *onBoard) / m_day->miles.value(), "0.0000") +
                                   " t per nm";
        }
    }

    /// A line of the mail; empty where there is nothing to say.
    std::string field(const std::string& name) const
    {
        const auto line = [](const char* caption, const std::string& text, const char* unit = "") {
            return isBlank(text) ? std::string() : std::string(caption) + ": " + text + unit + "\n";
        };
        if (name == "date" && m_hasFixes)
            return line("UTC", minuteText(nearestMinute(instantOf(m_record.fixes[m_to].utc))));
        if (name == "position") return line("Position", m_shown.position);
        if (name == "hours") return line("Steaming time", m_shown.hours);
        if (name == "run")
            return line("Run", m_shown.run, " nm") + line("Since full away", m_shown.sinceAway);
        if (name == "speed") return line("Average", m_shown.average, " kn");
        if (name == "togo") return line("To go", m_shown.toGo, " nm");
        if (name == "eta")
            return line("ETA", m_shown.eta[0]) + line("ETA", m_shown.eta[1]) +
                   line("ETA", m_shown.eta[2]);
        if (name == "wanted")
            return line("Speed for the wanted arrival", m_shown.speedNeeded, " kn");
        if (name == "drift") return line("Set and drift", m_shown.setAndDrift);
        if (name == "slip")
            return line("Engine miles of 1852 m", m_shown.engine) +
                   line("Slip, apparent", m_shown.apparentSlip, " %") +
                   line("Slip, real", m_shown.realSlip, " %");
        if (name == "fuel") {
            std::string text;
            for (std::size_t i = 0; i < m_shown.fuel.size(); ++i)
                text +=
                    line(("ROB " + std::to_string(i + 1)).c_str(), m_input.boxes.onBoard[i], " t") +
                    line(("Consumed " + std::to_string(i + 1)).c_str(), m_shown.fuel[i]);
            return text;
        }
        if (name == "weather") return line("Weather", m_input.boxes.weather);
        if (name == "remark") return line("Remark", m_input.boxes.remark);
        return {};
    }

    std::string mail() const
    {
        if (!m_shown.isWhole) return {};
        std::istringstream order(isBlank(m_input.boxes.order) ? usualOrder : m_input.boxes.order);
        std::string text = "NOON REPORT\n";
        for (std::string name; order >> name;)
            text += field(name);
        return text;
    }

    const NoonInput& m_input;
    PositionRecordResult m_record;
    PlanReckoning m_plan;
    NoonResult m_shown;
    Remarks m_remarks;
    std::size_t m_from = 0;
    std::size_t m_to = 0;
    bool m_hasFixes = false;
    std::optional<Sum> m_day;
    std::optional<Knots> m_average;
    std::optional<Miles> m_toGo;
};

} // namespace

NoonResult CalculateNoon(const NoonInput& input)
{
    return Noon(input).result();
}

} // namespace korvel
