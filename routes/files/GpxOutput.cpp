// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "app/working/Working.h"
#include "navlib/angles.h"
#include "routes/files/Gpx.h"
#include "routes/files/GpxPlaces.h"
#include "routes/files/RouteXml.h"
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

constexpr int gpxDecimals = 7; // of a degree: a centimetre
constexpr NavFunc113::Miles denseStep(60);

// The elements of a point stand in this order, extensions behind them.
constexpr std::array pointOrder{"ele",  "time", "magvar", "geoidheight", "name",          "cmt",
                                "desc", "src",  "link",   "sym",         "type",          "fix",
                                "sat",  "hdop", "vdop",   "pdop",        "ageofdgpsdata", "dgpsid"};

void startFile(RouteXml& xml, const std::string& creator)
{
    xml.start("gpx");
    xml.attribute("xmlns", gpx::ofVersion11);
    xml.attribute("version", "1.1");
    xml.attribute("creator", creator);
}

void startPoint(RouteXml& xml, const char* element, Degrees latitude, Degrees longitude)
{
    xml.start(element);
    xml.attribute("lat", figure(latitude, gpxDecimals));
    // The format wants a longitude below 180.
    std::string lon = figure(longitude, gpxDecimals);
    if (lon.starts_with("180.")) lon.insert(0, "-");
    xml.attribute("lon", lon);
}

class GpxWriter
{
public:
    explicit GpxWriter(const Route& route) : m_route(route) {}

    WrittenRoute write(const std::string& creator)
    {
        startFile(m_xml, creator);
        m_xml.start("rte");
        m_xml.textElement("name", m_route.name.empty() ? "Passage plan" : m_route.name);
        for (const KeptPart& part : m_route.kept)
            if (part.place.starts_with(gpx::inRoute)) m_xml.element(part.text);
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
    void writePointsBetween(const RoutePoint& from, const RoutePoint& to)
    {
        if (to.leg == LegKind::Rhumb) return;
        m_hasCircles = true;
        const CircleStep step = to.step == CircleStep{} ? CircleStep{{}, denseStep} : to.step;
        auto points =
            pointsOfLeg(geoPoint(from), geoPoint(to), to.leg, step, DegToDegMin(to.limit));
        points.pop_back();
        for (const LegPoint& point : points) {
            startPoint(m_xml, "rtept", DegMinToDeg(point.at.lat), DegMinToDeg(point.at.longitude));
            m_xml.textElement("type",
                              point.isTangent ? "tangent point" : "point of a great circle");
            m_xml.end();
        }
    }

    void writePoint(const RoutePoint& point)
    {
        startPoint(m_xml, "rtept", point.latitude, point.longitude);
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
            if (part.place.starts_with(gpx::inPoint) &&
                isDue(std::string_view(part.place).substr(std::string_view(gpx::inPoint).size())))
                m_xml.element(part.text);
    }

    const Route& m_route;
    RouteXml m_xml;
    WrittenRoute m_written;
    bool m_hasCircles = false;
};

/// The names of the points, each once.
std::vector<std::string> namesOf(const ExportLine& line, const std::string& stamp)
{
    std::vector<std::string> names;
    for (std::size_t i = 0; i < line.points.size(); ++i) {
        const std::string number = std::to_string(i + 1);
        const std::string& own = line.points[i].name;
        std::string name = own.empty() ? "WP " + number : own;
        name.append(" ").append(stamp);
        if (std::ranges::find(names, name) != names.end()) name += " no. " + number;
        names.push_back(std::move(name));
    }
    return names;
}

} // namespace

WrittenRoute writeGpx(const Route& route, const std::string& creator)
{
    return GpxWriter(route).write(creator);
}

std::string writeGpx(const ExportLine& line, const std::string& creator, NavFunc113::DateTime SMT)
{
    const std::vector<std::string> names = namesOf(line, Format(SMT, "yymmdd-hhmm"));
    const bool isRoute = line.kind == ExportLine::Kind::Route;
    RouteXml xml;
    startFile(xml, creator);
    xml.start(isRoute ? "rte" : "trk");
    xml.textElement("name", line.name + ' ' + Format(SMT, "yyyy-mm-dd hh:mm"));
    if (!isRoute) xml.start("trkseg");
    for (std::size_t i = 0; i < line.points.size(); ++i) {
        const ExportLine::Point& point = line.points[i];
        startPoint(xml, isRoute ? "rtept" : "trkpt", point.latitude, point.longitude);
        if (point.UTC) xml.textElement("time", Format(*point.UTC, "yyyy-mm-ddThh:mm:ss") + 'Z');
        xml.textElement("name", names[i]);
        xml.end();
    }
    return xml.bytes();
}

} // namespace korvel
