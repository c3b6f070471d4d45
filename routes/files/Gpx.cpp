// SPDX-License-Identifier: MIT
#include "routes/files/Gpx.h"

#include "app/reading/Remarks.h"
#include "routes/files/GpxPlaces.h"
#include "routes/files/GuardedXml.h"
#include "routes/files/RtzValues.h"

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

class GpxReader
{
public:
    explicit GpxReader(std::string_view bytes) : m_xml(bytes) {}

    ReadRoute read()
    {
        if (m_xml.nextChild()) readFile();
        while (!m_xml.isRefused() && m_xml.nextChild())
            m_xml.skip();
        if (m_xml.isRefused()) return {{}, m_xml.fault(), {}};
        if (!m_others.empty())
            m_read.remarks.push_back("the file has more routes, not taken: " + m_others);
        m_read.remarks.emplace_back("GPX does not say what its legs are: taken as rhumb lines");
        return std::move(m_read);
    }

private:
    void readFile()
    {
        const std::string uri = m_xml.namespaceUri();
        if (!m_xml.isNamed("gpx") || (uri != gpx::ofVersion11 && uri != gpx::ofVersion10))
            return m_xml.refuse("it is no GPX 1.1 file");
        bool hasTrack = false;
        while (m_xml.nextChild()) {
            hasTrack = hasTrack || m_xml.isNamed("trk");
            m_xml.isNamed("rte") ? readRoute() : m_xml.skip();
        }
        if (m_read.route.points.empty())
            m_xml.refuse(hasTrack ? "it has no route with points, only a track"
                                  : "it has no route with points");
    }

    void readRoute()
    {
        Route route;
        while (m_xml.nextChild()) {
            if (m_xml.isNamed("name"))
                route.name = m_xml.text();
            else if (m_xml.isNamed("rtept"))
                readPoint(route);
            else
                route.kept.push_back({gpx::inRoute + m_xml.name(), m_xml.element()});
        }
        if (m_read.route.points.empty())
            m_read.route = std::move(route);
        else
            m_others += (m_others.empty() ? "" : ", ") + quotation(route.name);
    }

    void readAngle(const char* name, double most, Degrees& angle)
    {
        std::string text;
        if (!m_xml.attribute(name, text)) return m_xml.refuse(std::string("no ") + name);
        const auto value = readDecimal(text);
        if (!value) return m_xml.refuse(name + (" " + quotation(text)) + " is no number");
        if (most == 180 && *value == 180)
            return m_xml.refuse("lon 180 is not allowed, it is written -180");
        if (!(*value >= -most && *value <= most))
            return m_xml.refuse(
                name + (" " + text) +
                (most == 90 ? " is not within -90 to 90" : " is not within -180 to below 180"));
        angle = Degrees(*value);
    }

    void readPoint(Route& route)
    {
        if (route.points.size() == mostRoutePoints)
            return m_xml.refuse("more than " + std::to_string(mostRoutePoints) + " points");
        RoutePoint point;
        readAngle("lat", 90, point.latitude);
        readAngle("lon", 180, point.longitude);
        while (m_xml.nextChild()) {
            if (m_xml.isNamed("name"))
                point.name = m_xml.text();
            else if (m_xml.isNamed("desc"))
                point.remark = m_xml.text();
            else if (m_xml.isNamed("time"))
                readTime(point);
            else
                point.kept.push_back({gpx::inPoint + m_xml.name(), m_xml.element()});
        }
        route.points.push_back(std::move(point));
    }

    void readTime(RoutePoint& point)
    {
        const std::string text = m_xml.text();
        point.eta = readIso(text);
        if (!point.eta) m_xml.refuse("time " + quotation(text) + " is none");
    }

    GuardedXml m_xml;
    ReadRoute m_read;
    std::string m_others;
};

} // namespace

ReadRoute readGpx(std::string_view bytes)
{
    return GpxReader(bytes).read();
}

} // namespace korvel
