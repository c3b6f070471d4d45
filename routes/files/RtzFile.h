// SPDX-License-Identifier: MIT
#pragma once

#include "routes/files/GuardedXml.h"
#include "routes/files/RtzValues.h"
#include "routes/route/Route.h"

#include <cstdint>
#include <map>

namespace korvel
{

/// Reads one RTZ file, element by element.
class RtzFile
{
public:
    explicit RtzFile(std::string_view bytes) : m_xml(bytes) {}

    ReadRoute read();

private:
    /// A waypoint as the file has it, tangent points too.
    struct Waypoint {
        RoutePoint point;
        std::int64_t id;
        bool isTangent = false;
        bool namesItsLeg = false;
        std::string legWords; ///< as this program wrote them
    };
    using Kept = std::vector<KeptPart>;
    /// What a scheduleElement says.
    struct Planned {
        std::optional<Instant> eta, etd;
        std::optional<Span> stay;
        std::optional<double> speed;
        Kept kept;
    };
    /// manual or calculated
    struct Schedule {
        std::map<std::int64_t, Planned> elements;
    };

    void readRoute();
    void readRouteInfo();
    void readWaypoints();
    void readDefaultWaypoint();
    void readWaypoint();
    void readWaypointAttributes(Waypoint& waypoint);
    void readPosition(RoutePoint& point);
    void readLeg(Waypoint& waypoint);
    void readExtensions(Kept& kept, const char* place, Waypoint* waypoint);
    bool takeOwnExtension(Waypoint& waypoint);
    void readSchedules();
    void readSchedule();
    void readElements(Schedule& schedule, const char* place, const char* within,
                      const char* inElement);
    void readScheduleElement(Schedule& schedule, const char* place, const char* inElement);
    void takePlanned(Planned& planned, const char* place);
    void keepElement(Kept& kept, const char* place);
    void keepAttributes(Kept& kept, const std::string& element,
                        std::initializer_list<const char*> taken);
    std::optional<Instant> momentOf(const std::string& name, const std::string& text);

    void applyDefaults();
    void applySchedules();
    void foldComposites();
    bool takeAsComposite(const std::vector<Waypoint*>& tangents, Waypoint& arrival);

    GuardedXml m_xml;
    ReadRoute m_read;
    RtzVersion m_version = RtzVersion::V1_0;
    std::vector<Waypoint> m_waypoints;
    std::map<std::int64_t, int> m_lineOfId;
    LegKind m_defaultLeg = LegKind::Rhumb;
    Schedule m_manual;
    Schedule m_calculated;
    bool m_hasWaypoints = false;
    bool m_hasSchedule = false;
};

} // namespace korvel
