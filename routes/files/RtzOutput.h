// SPDX-License-Identifier: MIT
#pragma once

#include "routes/files/RouteXml.h"
#include "routes/files/RtzValues.h"
#include "routes/files/WrittenRoute.h"
#include "routes/route/LegPoints.h"
#include "routes/route/Route.h"

#include <cstdint>
#include <string_view>

namespace korvel
{

/// Writes one RTZ file, element by element.
class RtzOutput
{
public:
    RtzOutput(const Route& route, RtzVersion version) : m_route(route), m_version(version) {}

    WrittenRoute write();

private:
    void remark(const std::string& sentence);

    /// Ids of the file as far as each is there once; new ones beyond the greatest.
    void giveIds();
    void writeKept(const std::vector<KeptPart>& kept, const char* element);
    void writeElements(const std::vector<KeptPart>& kept, std::string_view place);

    /// An element that names the namespace of another version is moved to the one that is written.
    std::string inVersion(std::string element) const;
    void writeRouteInfo();
    void writeWaypoints();

    /// @return the kind of the last piece
    LegKind writeTangents(std::size_t i);
    void writeTangent(const LegPoint& tangent, const RoutePoint& arrival);
    void startOwnExtension(const char* name);
    void writeGeometry(LegKind leg);
    void writePosition(const std::string& lat, const std::string& lon);
    void writePosition(NavFunc113::Degrees latitude, NavFunc113::Degrees longitude);
    void writeIdentity(std::size_t i);
    void writeWaypoint(std::size_t i, LegKind leg);
    void writeLeg(const RoutePoint& point, LegKind leg, bool isFirst);
    void writeExtensions(const RoutePoint& point);
    bool hasSchedule() const;
    void writeSchedules();
    void writeSchedule();
    void startScheduleElement(std::int64_t id);
    void writeManual(std::size_t i);
    void writeStay(Span stay);
    void writeCalculated(std::size_t i);
    struct TangentId {
        std::int64_t id;
        const RoutePoint* arrival;
    };
    const Route& m_route;
    RtzVersion m_version;
    RouteXml m_xml;
    WrittenRoute m_written;
    std::vector<std::int64_t> m_ids;
    std::vector<TangentId> m_tangentIds;
    std::int64_t m_nextId = 1;
};

} // namespace korvel
