// SPDX-License-Identifier: MIT
#include "routes/files/RtzFile.h"

#include "app/reading/Remarks.h"
#include "navlib/angles.h"
#include "routes/files/RtzPlaces.h"
#include "routes/files/RtzReader.h"
#include "routes/route/LegPoints.h"
#include "routes/route/LegWords.h"

#include <algorithm>

namespace korvel
{
namespace
{

using NavFunc113::DegMin;
using NavFunc113::Degrees;
using NavFunc113::DegToDegMin;
using NavFunc113::GeoPoint;

constexpr std::size_t fewestWaypoints = 2;
constexpr Degrees sameAngle(1e-5); // a metre: nobody moves a waypoint by less

bool isAt(const RoutePoint& point, const GeoPoint& place)
{
    const Degrees aside = point.longitude - DegMinToDeg(place.longitude);
    return fabs(point.latitude - DegMinToDeg(place.lat)) < sameAngle &&
           fabs(NavFunc113::WithinHalfTurn(aside)) < sameAngle;
}

} // namespace

ReadRoute readRtz(std::string_view bytes)
{
    return RtzFile(bytes).read();
}

ReadRoute RtzFile::read()
{
    if (m_xml.nextChild()) readRoute();
    while (!m_xml.isRefused() && m_xml.nextChild())
        m_xml.skip();
    if (m_xml.isRefused()) return {{}, m_xml.fault(), {}};
    applyDefaults();
    applySchedules();
    foldComposites();
    return std::move(m_read);
}

void RtzFile::keepElement(Kept& kept, const char* place)
{
    kept.push_back({place, m_xml.element()});
}

void RtzFile::keepAttributes(Kept& kept, const std::string& element,
                             std::initializer_list<const char*> taken)
{
    for (auto& [name, value] : m_xml.attributes())
        if (std::ranges::find(taken, name) == taken.end())
            kept.push_back({std::string(element).append("@").append(name), std::move(value)});
}

void RtzFile::readRoute()
{
    const auto version = versionOfNamespace(m_xml.namespaceUri());
    if (!m_xml.isNamed("route") || !version)
        return m_xml.refuse("it is no route in a namespace of RTZ 1.0, 1.1 or 1.2");
    m_version = *version;
    std::string number;
    if (!m_xml.attribute("version", number)) return m_xml.refuse("no version");
    if (number != numberOf(m_version))
        return m_xml.refuse("version " + quotation(number) + " in the namespace of " +
                            numberOf(m_version));
    Kept& kept = m_read.route.kept;
    kept.push_back({rtz::version, number});
    keepAttributes(kept, rtz::route, {"version"});
    bool hasInfo = false;
    while (m_xml.nextChild()) {
        if (m_xml.isNamed("routeInfo"))
            readRouteInfo(), hasInfo = true;
        else if (m_xml.isNamed("waypoints"))
            readWaypoints();
        else if (m_xml.isNamed("schedules"))
            readSchedules();
        else
            keepElement(kept, rtz::inRoute);
    }
    if (!hasInfo) m_xml.refuse("no routeInfo");
    if (!m_hasWaypoints) m_xml.refuse("no waypoints");
}

void RtzFile::readRouteInfo()
{
    if (!m_xml.attribute("routeName", m_read.route.name)) m_xml.refuse("no routeName");
    keepAttributes(m_read.route.kept, rtz::routeInfo, {"routeName"});
    while (m_xml.nextChild())
        keepElement(m_read.route.kept, rtz::inRouteInfo);
}

void RtzFile::readWaypoints()
{
    if (m_hasWaypoints) return m_xml.refuse("waypoints stand there twice");
    m_hasWaypoints = true;
    while (m_xml.nextChild()) {
        if (m_xml.isNamed("waypoint"))
            readWaypoint();
        else if (m_xml.isNamed("defaultWaypoint"))
            readDefaultWaypoint();
        else
            keepElement(m_read.route.kept, rtz::inWaypoints);
    }
    if (m_waypoints.size() < fewestWaypoints) m_xml.refuse("fewer than two waypoints");
}

void RtzFile::readDefaultWaypoint()
{
    const int line = m_xml.line();
    Kept& kept = m_read.route.kept;
    keepElement(kept, rtz::defaultWaypoint);
    if (m_xml.isRefused()) return;
    // It goes back as a whole; of what is in it only the kind of leg matters here.
    GuardedXml copy(kept.back().text);
    if (!copy.nextChild()) return;
    while (copy.nextChild()) {
        std::string geometry;
        if (copy.isNamed("leg") && copy.attribute("geometryType", geometry)) {
            if (geometry != "Loxodrome" && geometry != "Orthodrome")
                return m_xml.refuse("geometryType " + quotation(geometry) + " of line " +
                                    std::to_string(line) + " is neither Loxodrome nor Orthodrome");
            m_defaultLeg = geometry == "Orthodrome" ? LegKind::GreatCircle : LegKind::Rhumb;
        }
        copy.skip();
    }
}

void RtzFile::readWaypointAttributes(Waypoint& waypoint)
{
    std::string text;
    if (!m_xml.attribute("id", text)) return m_xml.refuse("no id");
    const auto id = readIdentifier(text);
    if (!id) return m_xml.refuse("id " + quotation(text) + " is no whole number");
    const auto [known, isNew] = m_lineOfId.emplace(*id, m_xml.line());
    if (!isNew)
        return m_xml.refuse("id " + text + " is that of line " + std::to_string(known->second) +
                            " too");
    const bool hasRevision = m_xml.attribute("revision", text);
    if (!hasRevision && m_version == RtzVersion::V1_2)
        return m_xml.refuse("no revision, which 1.2 requires");
    if (hasRevision && !readIdentifier(text))
        return m_xml.refuse("revision " + quotation(text) + " is no whole number");
    waypoint.id = *id;
    m_xml.attribute("name", waypoint.point.name);
    keepAttributes(waypoint.point.kept, rtz::waypoint, {"name"});
}

void RtzFile::readWaypoint()
{
    if (m_waypoints.size() == 2 * mostRoutePoints)
        return m_xml.refuse("more than " + std::to_string(mostRoutePoints) + " waypoints");
    Waypoint waypoint;
    readWaypointAttributes(waypoint);
    bool hasPosition = false;
    while (m_xml.nextChild()) {
        if (m_xml.isNamed("position"))
            readPosition(waypoint.point), hasPosition = true;
        else if (m_xml.isNamed("leg"))
            readLeg(waypoint);
        else if (m_xml.isNamed("extensions"))
            readExtensions(waypoint.point.kept, rtz::waypointExtension, &waypoint);
        else
            keepElement(waypoint.point.kept, rtz::inWaypoint);
    }
    if (!hasPosition) m_xml.refuse("no position");
    m_waypoints.push_back(std::move(waypoint));
}

void RtzFile::readPosition(RoutePoint& point)
{
    std::string lat, lon;
    if (!m_xml.attribute("lat", lat)) return m_xml.refuse("no lat");
    if (!m_xml.attribute("lon", lon)) return m_xml.refuse("no lon");
    const auto latitude = readDecimal(lat);
    const auto longitude = readDecimal(lon);
    if (!latitude) return m_xml.refuse("lat " + quotation(lat) + " is no number");
    if (!longitude) return m_xml.refuse("lon " + quotation(lon) + " is no number");
    if (!(*latitude >= -90 && *latitude <= 90))
        return m_xml.refuse("lat " + lat + " is not within -90 to 90");
    if (*longitude == 180) return m_xml.refuse("lon 180 is not allowed, it is written -180");
    if (!(*longitude >= -180 && *longitude < 180))
        return m_xml.refuse("lon " + lon + " is not within -180 to below 180");
    point.latitude = Degrees(*latitude);
    point.longitude = Degrees(*longitude);
    point.kept.push_back({rtz::position, lat + " " + lon});
    m_xml.skip();
}

void RtzFile::readLeg(Waypoint& waypoint)
{
    std::string geometry;
    if (m_xml.attribute("geometryType", geometry)) {
        if (geometry != "Loxodrome" && geometry != "Orthodrome")
            return m_xml.refuse("geometryType " + quotation(geometry) +
                                " is neither Loxodrome nor Orthodrome");
        waypoint.point.leg = geometry == "Orthodrome" ? LegKind::GreatCircle : LegKind::Rhumb;
        waypoint.namesItsLeg = true;
    }
    m_xml.attribute("legNote2", waypoint.point.remark);
    keepAttributes(waypoint.point.kept, rtz::leg, {"geometryType", "legNote2"});
    while (m_xml.nextChild()) {
        if (m_xml.isNamed("extensions"))
            readExtensions(waypoint.point.kept, rtz::legExtension, nullptr);
        else
            keepElement(waypoint.point.kept, rtz::inLeg);
    }
}

void RtzFile::readExtensions(Kept& kept, const char* place, Waypoint* waypoint)
{
    while (m_xml.nextChild())
        if (!waypoint || !takeOwnExtension(*waypoint)) keepElement(kept, place);
}

bool RtzFile::takeOwnExtension(Waypoint& waypoint)
{
    std::string manufacturer, name, text;
    m_xml.attribute("manufacturer", manufacturer);
    m_xml.attribute("name", name);
    if (manufacturer != rtz::ownManufacturer) return false;
    if (name != rtz::ownTangent && name != rtz::ownPlan) return false;
    waypoint.isTangent = name == rtz::ownTangent;
    m_xml.attribute("leg", waypoint.legWords);
    if (m_xml.attribute("zone", text)) {
        const auto zone = readDecimal(text);
        if (!zone || !(*zone >= -12 && *zone <= 14))
            m_xml.refuse("zone " + quotation(text) + " is not within -12 to 14 hours");
        else
            waypoint.point.zone = NavFunc113::Hours(*zone);
    }
    m_xml.skip();
    return true;
}

void RtzFile::applyDefaults()
{
    for (Waypoint& waypoint : m_waypoints) {
        if (!waypoint.namesItsLeg) waypoint.point.leg = m_defaultLeg;
        const auto words = readLegWords(waypoint.legWords);
        // Another program may have changed the kind of leg: then our words hold no longer.
        if (words && words->kind == LegKind::GreatCircle && waypoint.point.leg == words->kind)
            waypoint.point.step = words->step;
    }
    m_waypoints.front().point.leg = LegKind::Rhumb; // no leg leads there
}

bool RtzFile::takeAsComposite(const std::vector<Waypoint*>& tangents, Waypoint& arrival)
{
    const auto words = readLegWords(arrival.legWords);
    if (!words || words->kind != LegKind::Composite || m_read.route.points.empty()) return false;
    const auto points = pointsOfLeg(geoPoint(m_read.route.points.back()), geoPoint(arrival.point),
                                    LegKind::Composite, {}, DegToDegMin(words->limit));
    if (points.size() != tangents.size() + 1 || points.back().leg != arrival.point.leg)
        return false;
    for (std::size_t i = 0; i < tangents.size(); ++i)
        if (!isAt(tangents[i]->point, points[i].at) || tangents[i]->point.leg != points[i].leg)
            return false;
    arrival.point.leg = LegKind::Composite;
    arrival.point.limit = words->limit;
    arrival.point.step = words->step;
    return true;
}

void RtzFile::foldComposites()
{
    std::vector<Waypoint*> tangents;
    auto& points = m_read.route.points;
    for (Waypoint& waypoint : m_waypoints) {
        if (waypoint.isTangent) {
            tangents.push_back(&waypoint);
            continue;
        }
        if (!takeAsComposite(tangents, waypoint))
            for (Waypoint* tangent : tangents)
                points.push_back(std::move(tangent->point));
        tangents.clear();
        points.push_back(std::move(waypoint.point));
    }
    for (Waypoint* tangent : tangents)
        points.push_back(std::move(tangent->point));
    if (points.size() > mostRoutePoints)
        m_read = {{}, "waypoints: more than " + std::to_string(mostRoutePoints) + " waypoints", {}};
}

} // namespace korvel
