// SPDX-License-Identifier: MIT
#include "routes/files/RtzOutput.h"

#include "routes/files/RtzWriter.h"

#include "app/reading/Format.h"
#include "app/records/DelimitedText.h"
#include "app/working/Working.h"
#include "navlib/angles.h"
#include "routes/files/RouteXml.h"
#include "routes/files/RtzPlaces.h"
#include "routes/route/KeptParts.h"
#include "routes/route/LegPoints.h"
#include "routes/route/LegWords.h"

#include <algorithm>
#include <array>
#include <set>

namespace korvel
{
namespace
{

using NavFunc113::DegMinToDeg;
using NavFunc113::Degrees;
using NavFunc113::DegToDegMin;
using NavFunc113::GeoPoint;
using Kept = std::vector<KeptPart>;

constexpr int rtzDecimals = 9; // a tenth of a millimetre
// Packed texts keep a position to 2 cm: what is nearer to the file's is the file's.
constexpr Degrees unmoved(2e-7);

/// A position as the file has it that the point came from; nothing when somebody has moved it
/// since, and for a new one.
std::optional<std::array<std::string, 2>> positionOfFile(const RoutePoint& point)
{
    const std::string* text = keptText(point.kept, rtz::position);
    const std::size_t blank = text ? text->find(' ') : std::string::npos;
    if (blank == std::string::npos) return std::nullopt;
    const std::array texts{text->substr(0, blank), text->substr(blank + 1)};
    const auto latitude = readDecimal(texts[0]);
    const auto longitude = readDecimal(texts[1]);
    if (!latitude || !longitude) return std::nullopt;
    const Degrees apart = NavFunc113::WithinHalfTurn(point.longitude - Degrees(*longitude));
    if (fabs(point.latitude - Degrees(*latitude)) > unmoved || fabs(apart) > unmoved)
        return std::nullopt;
    return texts;
}

bool hasMoved(const RoutePoint& point)
{
    return keptText(point.kept, rtz::position) && !positionOfFile(point);
}

} // namespace

WrittenRoute RtzOutput::write()
{
    giveIds();
    m_xml.start("route");
    m_xml.attribute("xmlns", namespaceOf(m_version));
    writeKept(m_route.kept, rtz::route);
    m_xml.attribute("version", numberOf(m_version));
    writeRouteInfo();
    writeWaypoints();
    writeSchedules();
    writeElements(m_route.kept, rtz::inRoute);
    m_xml.end();
    m_written.bytes = m_xml.bytes();
    if (std::ranges::any_of(m_route.points, [](const RoutePoint& point) {
            return hasOtherParts(point.kept, "rtz");
        }))
        remark("RTZ has no place for what a GPX file holds beside the route");
    return std::move(m_written);
}

void RtzOutput::remark(const std::string& sentence)
{
    if (std::ranges::find(m_written.remarks, sentence) == m_written.remarks.end())
        m_written.remarks.push_back(sentence);
}

void RtzOutput::giveIds()
{
    std::set<std::int64_t> used;
    for (const RoutePoint& point : m_route.points) {
        const std::string* text = keptText(point.kept, rtz::waypointId);
        const auto id = text ? readIdentifier(*text) : std::nullopt;
        const bool isFree = id && *id < 1000000000 && used.insert(*id).second;
        m_ids.push_back(isFree ? *id : -1);
    }
    m_nextId = used.empty() ? 1 : *used.rbegin() + 1;
    for (std::int64_t& id : m_ids)
        if (id < 0) id = m_nextId++;
}

void RtzOutput::writeKept(const Kept& kept, const char* element)
{
    const std::string* from = keptText(m_route.kept, rtz::version);
    const bool isOtherVersion = !from || *from != numberOf(m_version);
    forKeptAttributes(kept, element, [&](const std::string& name, const std::string& value) {
        if (isOtherVersion && name == "xsi:schemaLocation") return; // of the other version
        std::string text = value;
        const bool isSpan = name.ends_with("WindowBefore") || name.ends_with("WindowAfter");
        if (isOtherVersion && isSpan)
            if (const auto span = readStay(value)) text = stayText(*span, m_version);
        if (!text.empty() || !isSpan) m_xml.attribute(name, text);
    });
}

void RtzOutput::writeElements(const Kept& kept, std::string_view place)
{
    for (const KeptPart& part : kept)
        if (part.place == place) m_xml.element(inVersion(part.text));
}

std::string RtzOutput::inVersion(std::string element) const
{
    const std::string to = namespaceOf(m_version);
    for (const RtzVersion other : {RtzVersion::V1_0, RtzVersion::V1_1, RtzVersion::V1_2}) {
        const std::string quoted = "\"" + namespaceOf(other) + "\"";
        for (std::size_t at = element.find(quoted); other != m_version && at != element.npos;
             at = element.find(quoted, at))
            element.replace(at, quoted.size(), "\"" + to + "\"");
    }
    return element;
}

void RtzOutput::writeRouteInfo()
{
    m_xml.start("routeInfo");
    m_xml.attribute("routeName", m_route.name.empty() ? "Passage plan" : m_route.name);
    writeKept(m_route.kept, rtz::routeInfo);
    writeElements(m_route.kept, rtz::inRouteInfo);
    m_xml.end();
}

void RtzOutput::writeWaypoints()
{
    m_xml.start("waypoints");
    writeElements(m_route.kept, rtz::defaultWaypoint);
    for (std::size_t i = 0; i < m_route.points.size(); ++i) {
        LegKind leg = m_route.points[i].leg;
        if (i > 0 && leg == LegKind::Composite) leg = writeTangents(i);
        writeWaypoint(i, leg);
    }
    writeElements(m_route.kept, rtz::inWaypoints);
    m_xml.end();
}

LegKind RtzOutput::writeTangents(std::size_t i)
{
    const RoutePoint& point = m_route.points[i];
    const auto points = pointsOfLeg(geoPoint(m_route.points[i - 1]), geoPoint(point),
                                    LegKind::Composite, {}, DegToDegMin(point.limit));
    for (const LegPoint& each : points)
        if (each.isTangent) writeTangent(each, point);
    if (points.size() > 1) remark("composite legs were written as their tangent points");
    return points.back().leg;
}

void RtzOutput::writeTangent(const LegPoint& tangent, const RoutePoint& arrival)
{
    m_xml.start("waypoint");
    m_tangentIds.push_back({m_nextId, &arrival});
    m_xml.attribute("id", std::to_string(m_nextId++));
    if (m_version == RtzVersion::V1_2) m_xml.attribute("revision", "0");
    m_xml.attribute("name", "Tangent point");
    writePosition(DegMinToDeg(tangent.at.lat), DegMinToDeg(tangent.at.longitude));
    m_xml.start("leg");
    writeGeometry(tangent.leg);
    m_xml.end();
    m_xml.start("extensions");
    startOwnExtension(rtz::ownTangent);
    m_xml.end();
    m_xml.end();
    m_xml.end();
}

void RtzOutput::startOwnExtension(const char* name)
{
    m_xml.start("extension");
    m_xml.attribute("manufacturer", rtz::ownManufacturer);
    m_xml.attribute("name", name);
    m_xml.attribute("version", "1");
}

void RtzOutput::writeGeometry(LegKind leg)
{
    m_xml.attribute("geometryType", leg == LegKind::GreatCircle ? "Orthodrome" : "Loxodrome");
}

void RtzOutput::writePosition(const std::string& lat, const std::string& lon)
{
    m_xml.start("position");
    m_xml.attribute("lat", lat);
    m_xml.attribute("lon", lon);
    m_xml.end();
}

void RtzOutput::writePosition(Degrees latitude, Degrees longitude)
{
    std::string lon = figure(longitude, rtzDecimals);
    if (lon.starts_with("180.")) lon.insert(0, "-");
    writePosition(figure(latitude, rtzDecimals), lon);
}

void RtzOutput::writeIdentity(std::size_t i)
{
    const RoutePoint& point = m_route.points[i];
    m_xml.attribute("id", std::to_string(m_ids[i]));
    const std::string* text = keptText(point.kept, rtz::waypointRevision);
    const auto revision = text ? readIdentifier(*text) : std::nullopt;
    if (revision)
        m_xml.attribute("revision", std::to_string(*revision + (hasMoved(point) ? 1 : 0)));
    else if (m_version == RtzVersion::V1_2)
        m_xml.attribute("revision", "0");
    if (!point.name.empty()) m_xml.attribute("name", point.name);
    forKeptAttributes(point.kept, rtz::waypoint, [&](const auto& name, const auto& value) {
        if (name != "id" && name != "revision") m_xml.attribute(name, value);
    });
}

void RtzOutput::writeWaypoint(std::size_t i, LegKind leg)
{
    const RoutePoint& point = m_route.points[i];
    m_xml.start("waypoint");
    writeIdentity(i);
    if (const auto texts = positionOfFile(point))
        writePosition((*texts)[0], (*texts)[1]);
    else
        writePosition(point.latitude, point.longitude);
    writeLeg(point, leg, i == 0);
    writeExtensions(point);
    writeElements(point.kept, rtz::inWaypoint);
    m_xml.end();
}

void RtzOutput::writeLeg(const RoutePoint& point, LegKind leg, bool isFirst)
{
    bool hasKept = false;
    for (const KeptPart& part : point.kept)
        hasKept = hasKept || part.place.starts_with(rtz::leg);
    if (isFirst && !hasKept && point.remark.empty()) return; // no leg leads there
    m_xml.start("leg");
    if (!isFirst) writeGeometry(leg);
    writeKept(point.kept, rtz::leg);
    if (!point.remark.empty()) m_xml.attribute("legNote2", point.remark);
    if (m_version == RtzVersion::V1_2 && keptText(point.kept, rtz::legExtension)) {
        m_xml.start("extensions");
        writeElements(point.kept, rtz::legExtension);
        m_xml.end();
    }
    writeElements(point.kept, rtz::inLeg);
    m_xml.end();
}

void RtzOutput::writeExtensions(const RoutePoint& point)
{
    const bool hasWords = point.leg == LegKind::Composite || point.step != CircleStep{};
    const bool hasOwn = hasWords || point.zone;
    const bool takesLegs = m_version != RtzVersion::V1_2 && keptText(point.kept, rtz::legExtension);
    if (!hasOwn && !takesLegs && !keptText(point.kept, rtz::waypointExtension)) return;
    m_xml.start("extensions");
    writeElements(point.kept, rtz::waypointExtension);
    if (takesLegs) {
        writeElements(point.kept, rtz::legExtension);
        remark("extensions of legs, which are legal from 1.2 on, were written into their "
               "waypoints");
    }
    if (hasOwn) {
        startOwnExtension(rtz::ownPlan);
        if (hasWords)
            m_xml.attribute("leg", legWords(point.leg, point.step, DegToDegMin(point.limit)));
        if (point.zone) m_xml.attribute("zone", Format(*point.zone, "0.0###"));
        m_xml.end();
    }
    m_xml.end();
}

WrittenRoute writeRtz(const Route& route, std::optional<RtzVersion> version)
{
    if (route.points.size() < 2)
        return {{},
                {},
                "an RTZ file needs two waypoints, the route has " +
                    std::to_string(route.points.size())};
    const std::string* from = keptText(route.kept, rtz::version);
    if (!version && from) version = versionOfNumber(*from);
    return RtzOutput(route, version.value_or(RtzVersion::V1_1)).write();
}

} // namespace korvel
