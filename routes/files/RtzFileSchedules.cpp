// SPDX-License-Identifier: MIT
#include "routes/files/RtzFile.h"

#include "app/reading/Remarks.h"
#include "routes/files/RtzPlaces.h"

/// The schedules of an RTZ file: the first is taken, the others are kept.
namespace korvel
{

void RtzFile::readSchedules()
{
    while (m_xml.nextChild()) {
        if (m_xml.isNamed("schedule") && !m_hasSchedule)
            readSchedule();
        else
            keepElement(m_read.route.kept, rtz::inSchedules);
    }
}

void RtzFile::readSchedule()
{
    m_hasSchedule = true;
    Kept& kept = m_read.route.kept;
    keepAttributes(kept, rtz::schedule, {});
    while (m_xml.nextChild()) {
        if (m_xml.isNamed("manual"))
            readElements(m_manual, rtz::manual, rtz::inManual, rtz::inManualElement);
        else if (m_xml.isNamed("calculated"))
            readElements(m_calculated, rtz::calculated, rtz::inCalculated,
                         rtz::inCalculatedElement);
        else
            keepElement(kept, rtz::inSchedule);
    }
}

void RtzFile::readElements(Schedule& schedule, const char* place, const char* within,
                           const char* inElement)
{
    while (m_xml.nextChild()) {
        // The published schema of 1.0 leaves a letter out.
        if (m_xml.isNamed("scheduleElement") || m_xml.isNamed("sheduleElement"))
            readScheduleElement(schedule, place, inElement);
        else
            keepElement(m_read.route.kept, within);
    }
}

std::optional<Instant> RtzFile::momentOf(const std::string& name, const std::string& text)
{
    const auto moment = readIso(text);
    if (!moment)
        m_xml.refuse(name + " " + quotation(text) +
                     " is no date and time of the form 2026-11-21T16:00:00Z");
    return moment;
}

void RtzFile::takePlanned(Planned& planned, const char* place)
{
    std::string text;
    if (m_xml.attribute("eta", text)) planned.eta = momentOf("eta", text);
    if (m_xml.attribute("etd", text)) planned.etd = momentOf("etd", text);
    if (m_xml.attribute("stay", text)) {
        planned.stay = readStay(text);
        if (!planned.stay)
            m_xml.refuse("stay " + quotation(text) +
                         (m_version == RtzVersion::V1_0 ? " is no time, 06:00:00"
                                                        : " is no duration, PT6H"));
    }
    if (m_xml.attribute("speed", text)) {
        planned.speed = readDecimal(text);
        if (!planned.speed || *planned.speed < 0)
            m_xml.refuse("speed " + quotation(text) + " is no speed");
    }
    keepAttributes(planned.kept, place, {"waypointId", "eta", "etd", "stay", "speed"});
}

void RtzFile::readScheduleElement(Schedule& schedule, const char* place, const char* inElement)
{
    std::string text;
    if (!m_xml.attribute("waypointId", text)) return m_xml.refuse("no waypointId");
    const auto id = readIdentifier(text);
    if (!id || !m_lineOfId.contains(*id))
        return m_xml.refuse("waypointId " + quotation(text) + " is that of no waypoint");
    const auto [element, isNew] = schedule.elements.emplace(*id, Planned{});
    if (!isNew) return m_xml.refuse("waypointId " + text + " stands there twice");
    takePlanned(element->second, place);
    while (m_xml.nextChild())
        keepElement(element->second.kept, inElement);
}

void RtzFile::applySchedules()
{
    for (Waypoint& waypoint : m_waypoints) {
        RoutePoint& point = waypoint.point;
        // What was set by hand goes first.
        for (const Schedule* schedule : {&m_manual, &m_calculated}) {
            const auto found = schedule->elements.find(waypoint.id);
            if (found == schedule->elements.end()) continue;
            const Planned& planned = found->second;
            if (!point.eta) point.eta = planned.eta;
            if (!point.etd) point.etd = planned.etd;
            if (!point.stop && planned.stay) point.stop = hoursOf(*planned.stay);
            if (!point.speed && planned.speed && *planned.speed > 0)
                point.speed = NavFunc113::Knots(*planned.speed);
            point.kept.insert(point.kept.end(), planned.kept.begin(), planned.kept.end());
        }
    }
}

} // namespace korvel
