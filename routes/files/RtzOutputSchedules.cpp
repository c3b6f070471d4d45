// SPDX-License-Identifier: MIT
#include "routes/files/RtzOutput.h"

#include "app/reading/Format.h"
#include "routes/files/RtzPlaces.h"
#include "routes/route/KeptParts.h"

#include <algorithm>

/// The schedule of an RTZ file: what was typed as set by hand, the times as calculated.
namespace korvel
{
namespace
{

constexpr const char* numberFormat = "0.0#####";

} // namespace

bool RtzOutput::hasSchedule() const
{
    return keptText(m_route.kept, rtz::inSchedule) || keptText(m_route.kept, "rtz schedule@id") ||
           std::ranges::any_of(m_route.points, [](const RoutePoint& point) {
               return point.speed || point.stop || point.eta;
           });
}

void RtzOutput::writeSchedules()
{
    const bool hasOwn = hasSchedule();
    if (!hasOwn && !keptText(m_route.kept, rtz::inSchedules)) return;
    m_xml.start("schedules");
    if (hasOwn) writeSchedule();
    writeElements(m_route.kept, rtz::inSchedules);
    m_xml.end();
}

void RtzOutput::writeSchedule()
{
    m_xml.start("schedule");
    if (!keptText(m_route.kept, "rtz schedule@id")) m_xml.attribute("id", "1");
    writeKept(m_route.kept, rtz::schedule);
    m_xml.start("manual");
    for (std::size_t i = 0; i < m_route.points.size(); ++i)
        writeManual(i);
    writeElements(m_route.kept, rtz::inManual);
    m_xml.end();
    m_xml.start("calculated");
    for (std::size_t i = 0; i < m_route.points.size(); ++i)
        writeCalculated(i);
    writeElements(m_route.kept, rtz::inCalculated);
    m_xml.end();
    writeElements(m_route.kept, rtz::inSchedule);
    m_xml.end();
}

void RtzOutput::startScheduleElement(std::int64_t id)
{
    m_xml.start("scheduleElement");
    m_xml.attribute("waypointId", std::to_string(id));
}

void RtzOutput::writeManual(std::size_t i)
{
    const RoutePoint& point = m_route.points[i];
    for (const auto& [id, arrival] : m_tangentIds)
        if (arrival == &point && point.speed) {
            startScheduleElement(id);
            m_xml.attribute("speed", Format(*point.speed, numberFormat));
            m_xml.end();
        }
    startScheduleElement(m_ids[i]);
    if (i == 0 && point.etd) m_xml.attribute("etd", isoText(*point.etd));
    if (point.stop) writeStay(*spanOf(*point.stop));
    if (i > 0 && point.speed) m_xml.attribute("speed", Format(*point.speed, numberFormat));
    writeKept(point.kept, rtz::manual);
    writeElements(point.kept, rtz::inManualElement);
    m_xml.end();
}

void RtzOutput::writeStay(Span stay)
{
    const std::string text = stayText(stay, m_version);
    if (text.empty())
        remark("RTZ 1.0 cannot say a stay of 24 hours and more: times of arrival and departure "
               "do");
    else
        m_xml.attribute("stay", text);
}

void RtzOutput::writeCalculated(std::size_t i)
{
    const RoutePoint& point = m_route.points[i];
    startScheduleElement(m_ids[i]);
    if (i > 0 && point.eta) m_xml.attribute("eta", isoText(*point.eta));
    if (point.etd && (i == 0 || point.stop)) m_xml.attribute("etd", isoText(*point.etd));
    writeKept(point.kept, rtz::calculated);
    writeElements(point.kept, rtz::inCalculatedElement);
    m_xml.end();
}

} // namespace korvel
