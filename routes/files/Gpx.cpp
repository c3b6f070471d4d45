// SPDX-License-Identifier: MIT
#include "routes/files/Gpx.h"

#include "app/reading/Remarks.h"
#include "app/working/Working.h"
#include "navlib/angles.h"
#include "routes/files/GuardedXml.h"
#include "routes/files/RouteXml.h"
#include "routes/files/RtzValues.h"
#include "routes/route/KeptParts.h"
#include "routes/route/LegPoints.h"

#include <algorithm>
#include <array>

namespace korvel
{
namespace
{

using NavFunc113::DegMinToDeg;
using NavFunc113::Degrees;
using NavFunc113::DegToDegMin;

constexpr const char* gpxNamespace = "http://www.topografix.com/GPX/1/1";
constexpr const char* olderNamespace = "http://www.topografix.com/GPX/1/0";
constexpr int gpxDecimals = 7; // a centimetre
constexpr NavFunc113::Miles denseStep(60);

// The elements of a point stand in this order, extensions behind them.
constexpr std::array pointOrder{"ele",  "time", "magvar", "geoidheight", "name",          "cmt",
                                "desc", "src",  "link",   "sym",         "type",          "fix",
                                "sat",  "hdop", "vdop",   "pdop",        "ageofdgpsdata", "dgpsid"};

const std::string inPoint = "gpx point/";

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
        if (!m_xml.isNamed("gpx") || (uri != gpxNamespace && uri != olderNamespace))
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
                route.kept.push_back({"gpx route/" + m_xml.name(), m_xml.element()});
        }
        if (m_read.route.points.empty())
            m_read.route = std::move(route);
        else
            m_others += (m_others.empty() ? "" : ", ") + quotation(route.name);
    }

    Degrees angle(const char* name, double most)
    {
        std::string text;
        if (!m_xml.attribute(name, text))
            return m_xml.refuse(std::string("no ") + name), Degrees(0);
        const auto value = readDecimal(text);
        if (!value)
            m_xml.refuse(name + (" " + quotation(text)) + " is no number");
        else if (most == 180 && *value == 180)
            m_xml.refuse("lon 180 is not allowed, it is written -180");
        else if (!(*value >= -most && *value <= most))
            m_xml.refuse(
                name + (" " + text) +
                (most == 90 ? " is not within -90 to 90" : " is not within -180 to below 180"));
        return Degrees(value.value_or(0));
    }

    void readPoint(Route& route)
    {
        if (route.points.size() == mostRoutePoints)
            return m_xml.refuse("more than " + std::to_string(mostRoutePoints) + " points");
        RoutePoint point;
        point.latitude = angle("lat", 90);
        point.longitude = angle("lon", 180);
        while (m_xml.nextChild()) {
            if (m_xml.isNamed("name"))
                point.name = m_xml.text();
            else if (m_xml.isNamed("desc"))
                point.remark = m_xml.text();
            else if (m_xml.isNamed("time"))
                readTime(point);
            else
                point.kept.push_back({inPoint + m_xml.name(), m_xml.element()});
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

class GpxWriter
{
public:
    explicit GpxWriter(const Route& route) : m_route(route) {}

    WrittenRoute write(const std::string& creator)
    {
        m_xml.start("gpx");
        m_xml.attribute("xmlns", gpxNamespace);
        m_xml.attribute("version", "1.1");
        m_xml.attribute("creator", creator);
        m_xml.start("rte");
        m_xml.textElement("name", m_route.name.empty() ? "Passage plan" : m_route.name);
        for (const KeptPart& part : m_route.kept)
            if (part.place.starts_with("gpx route/")) m_xml.element(part.text);
        for (std::size_t i = 0; i < m_route.points.size(); ++i) {
            if (i > 0) writePointsBetween(m_route.points[i - 1], m_route.points[i]);
            writePoint(m_route.points[i]);
        }
        m_written.bytes = m_xml.bytes();
        if (std::ranges::any_of(m_route.points, [](const RoutePoint& point) {
                return point.speed || point.stop || point.zone || hasOtherParts(point.kept, "gpx");
            }))
            m_written.remarks.emplace_back("GPX has no place for speeds, stops, zones and what "
                                           "other formats hold beside them");
        if (m_hasCircles)
            m_written.remarks.emplace_back("GPX knows no circles: they were written as points on "
                                           "them, and are read as rhumb lines");
        return std::move(m_written);
    }

private:
    void startPoint(Degrees latitude, Degrees longitude)
    {
        m_xml.start("rtept");
        m_xml.attribute("lat", figure(latitude, gpxDecimals));
        std::string lon = figure(longitude, gpxDecimals);
        if (lon.starts_with("180.")) lon.insert(0, "-");
        m_xml.attribute("lon", lon);
    }

    void writePointsBetween(const RoutePoint& from, const RoutePoint& to)
    {
        if (to.leg == LegKind::Rhumb) return;
        m_hasCircles = true;
        const CircleStep step = to.step == CircleStep{} ? CircleStep{{}, denseStep} : to.step;
        auto points =
            pointsOfLeg(geoPoint(from), geoPoint(to), to.leg, step, DegToDegMin(to.limit));
        points.pop_back();
        for (const LegPoint& point : points) {
            startPoint(DegMinToDeg(point.at.lat), DegMinToDeg(point.at.longitude));
            m_xml.textElement("type",
                              point.isTangent ? "tangent point" : "point of a great circle");
            m_xml.end();
        }
    }

    void writePoint(const RoutePoint& point)
    {
        startPoint(point.latitude, point.longitude);
        for (const std::string_view name : pointOrder) {
            if (name == "time" && point.eta) m_xml.textElement("time", isoText(*point.eta));
            if (name == "name" && !point.name.empty()) m_xml.textElement("name", point.name);
            if (name == "desc" && !point.remark.empty()) m_xml.textElement("desc", point.remark);
            writeKept(point, [&](std::string_view kept) { return kept == name; });
        }
        writeKept(point, [](std::string_view kept) {
            return std::ranges::find(pointOrder, kept) == pointOrder.end();
        });
        m_xml.end();
    }

    template <typename IsDue>
    void writeKept(const RoutePoint& point, IsDue isDue)
    {
        for (const KeptPart& part : point.kept)
            if (part.place.starts_with(inPoint) &&
                isDue(std::string_view(part.place).substr(inPoint.size())))
                m_xml.element(part.text);
    }

    const Route& m_route;
    RouteXml m_xml;
    WrittenRoute m_written;
    bool m_hasCircles = false;
};

} // namespace

ReadRoute readGpx(std::string_view bytes)
{
    return GpxReader(bytes).read();
}

WrittenRoute writeGpx(const Route& route, const std::string& creator)
{
    return GpxWriter(route).write(creator);
}

} // namespace korvel
