// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/GCWorking.h"

#include "app/reading/PositionText.h"
#include "app/working/SailingWorking.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

using NavFunc113::ChangeOfLongitude;
using NavFunc113::DegMin;
using NavFunc113::Degrees;
using NavFunc113::Earth;

constexpr int decimals = 6; // of a degree
constexpr int milesDecimals = 4;

std::string degrees(Degrees angle)
{
    return angleTerm(angle, decimals);
}

struct EndTexts {
    explicit EndTexts(const std::array<DegMin, 4>& ends)
        : phi1(degrees(DegMinToDeg(ends[0]))), phi2(degrees(DegMinToDeg(ends[2]))),
          change(ChangeOfLongitude(ends[1], ends[3])), dLambda(degrees(change))
    {
    }
    std::string phi1, phi2;
    Degrees change;
    std::string dLambda;
};

void addDistance(Working& working, const GCResult& result, const EndTexts& ends)
{
    working.step("Great-circle distance, 1' of arc = 1 mile",
                 "D = 60 arccos(sin φ1 sin φ2 + cos φ1 cos φ2 cos Δλ)",
                 "60 × arccos(sin " + ends.phi1 + " × sin " + ends.phi2 + " + cos " + ends.phi1 +
                     " × cos " + ends.phi2 + " × cos " + ends.dLambda + ")",
                 figure(result.figures->greatCircle, milesDecimals), "miles");
    working.resultStep("Great circle", "D rounded to 0.1", result.lblGC2000[1], "miles");
}

void addVertex(Working& working, const GCResult& result, const EndTexts& ends)
{
    const NavFunc113::GreatCircleTrack& track = *result.figures->track;
    const NavFunc113::Vertex& vertex = *track.vertex;
    const std::string course = degrees(track.initialCourse);
    const bool isSouthern = vertex.lat < DegMin(0);
    working.step("Latitude of the vertex",
                 isSouthern ? "cos φv = |sin C| cos φ1, the southern one lies ahead"
                            : "cos φv = |sin C| cos φ1",
                 std::string(isSouthern ? "-" : "") + "arccos(|sin " + course + "| × cos " +
                     ends.phi1 + ")",
                 figure(DegMinToDeg(vertex.lat), decimals), "°");
    working.step("Longitude of the vertex",
                 "tan(λv - λ1) = cos C / (|sin C| sin φ1) in the direction of travel; the southern "
                 "vertex lies 180° further",
                 "arctan(cos " + course + " / (|sin " + course + "| × sin " + ends.phi1 +
                     ")) from " + degrees(DegMinToDeg(result.figures->ends[1])),
                 figure(DegMinToDeg(vertex.longitude), decimals), "°");
    working.resultStep("Vertex, latitude", "degrees and minutes of φv", result.vertexLat);
    working.resultStep("Vertex, longitude", "degrees and minutes of λv", result.vertexLong);
    working.resultStep("Vertex", "whether λv lies between λ1 and λ2", result.vertexRemark);
}

void addTrack(Working& working, const GCResult& result, const EndTexts& ends)
{
    const NavFunc113::GreatCircleTrack& track = *result.figures->track;
    working.step("Initial course", "tan C = sin Δλ cos φ2 / (cos φ1 sin φ2 - sin φ1 cos φ2 cos Δλ)",
                 "arctan(sin " + ends.dLambda + " × cos " + ends.phi2 + " / (cos " + ends.phi1 +
                     " × sin " + ends.phi2 + " - sin " + ends.phi1 + " × cos " + ends.phi2 +
                     " × cos " + ends.dLambda + "))",
                 figure(track.initialCourse, decimals), "°");
    working.resultStep("Initial course", "C rounded to 0.1°", result.initialCourse, "degrees true");
    working.step("Final course", "tan C' = sin Δλ cos φ1 / (sin φ2 cos φ1 cos Δλ - cos φ2 sin φ1)",
                 "arctan(sin " + ends.dLambda + " × cos " + ends.phi1 + " / (sin " + ends.phi2 +
                     " × cos " + ends.phi1 + " × cos " + ends.dLambda + " - cos " + ends.phi2 +
                     " × sin " + ends.phi1 + "))",
                 figure(track.finalCourse, decimals), "°");
    working.resultStep("Final course", "C' rounded to 0.1°", result.finalCourse, "degrees true");
    if (track.vertex) addVertex(working, result, ends);
}

PaperTable latitudes(const GCResult& result)
{
    const GCFigures& figures = *result.figures;
    PaperTable table{
        "Latitude on the circle: tan φ = (sin φ1 cos Δ + cot A sin Δ) / cos φ1, Δ the change of "
        "longitude from the departure",
        {"", "λ °", "Δ °", "φ °", "Latitude shown", "Longitude shown"},
        {}};
    const auto& waypoints = result.route.waypoints;
    for (std::size_t i = 0; i < waypoints.size(); ++i) {
        const Degrees run = fabs(ChangeOfLongitude(figures.ends[1], waypoints[i].longitude));
        table.rows.push_back(
            {waypointName(result.route, i), figure(DegMinToDeg(waypoints[i].longitude), decimals),
             figure(run, decimals), figure(DegMinToDeg(waypoints[i].lat), decimals),
             result.rows[i].lat, result.rows[i].longitude});
    }
    return table;
}

PaperTable legs(const GCResult& result)
{
    PaperTable table{
        "Legs: tan C = 60 Δλ / (M2 - M1), D = |60 Δφ / cos C|; along a parallel D = 60 "
        "|Δλ| cos φ",
        {"from", "M1 '", "M2 '", "Δλ °", "Δφ °", "C °", "D miles", "Course shown", "Miles shown"},
        {}};
    for (std::size_t i = 0; i < result.route.legs.size(); ++i) {
        const NavFunc113::RhumbLeg& leg = result.route.legs[i];
        table.rows.push_back({waypointName(result.route, i), figure(leg.steps.parts1, 3),
                              figure(leg.steps.parts2, 3), figure(leg.steps.changeOfLongitude, 5),
                              figure(leg.steps.changeOfLatitude, 5), figure(leg.course, 4),
                              figure(leg.distance, 3), result.rows[i].course,
                              result.rows[i].distance});
    }
    return table;
}

} // namespace

std::string waypointName(const GCRoute& route, std::size_t waypoint)
{
    if (waypoint == 0) return "Dep.";
    return waypoint + 1 == route.waypoints.size() ? "Arr." : std::to_string(waypoint);
}

Working greatCircleWorking(const GCResult& result, Earth earth)
{
    Working working{"Great circle and rhumb line",
                    {"Great circle on the sphere by spherical trigonometry, 1' of arc = 1 mile"},
                    {}};
    for (const std::string& sentence : sailingMethod(earth))
        working.method.push_back("Rhumb line: " + sentence);
    if (!result.figures) {
        working.whyNone = "Nothing was entered, or the remarks say why there is no result.";
        return working;
    }
    const GCFigures& figures = *result.figures;
    const EndTexts ends(figures.ends);
    addRhumbLeg(working, figures.ends, figures.rhumbLine, earth);
    working.resultStep("Rhumb line", "D rounded to 0.1", result.lblGC2000[0], "miles");
    addDistance(working, result, ends);
    if (figures.track) addTrack(working, result, ends);
    working.step("Saving", "rhumb line on the sphere - great circle",
                 figure(figures.rhumbLineOnSphere, milesDecimals) + " - " +
                     figure(figures.greatCircle, milesDecimals),
                 figure(figures.rhumbLineOnSphere - figures.greatCircle, milesDecimals), "miles");
    working.resultStep("Saves", "rounded to 0.1, never below 0", result.saving, "miles");
    return working;
}

Working waypointsWorking(const GCResult& result, Earth earth)
{
    Working working{"Waypoints and legs", sailingMethod(earth), {}};
    const EndTexts ends(result.figures->ends);
    working.step("Angle at the departure",
                 "tan A = sin |Δλ| / (cos φ1 tan φ2 - sin φ1 cos Δλ), from north on either side",
                 "arctan(sin |" + ends.dLambda + "| / (cos " + ends.phi1 + " × tan " + ends.phi2 +
                     " - sin " + ends.phi1 + " × cos " + ends.dLambda + "))",
                 figure(NavFunc113::RadToDeg(result.route.initialAngle), decimals), "°");
    working.tables = {latitudes(result), legs(result)};
    std::string sum;
    for (const NavFunc113::RhumbLeg& leg : result.route.legs)
        sum += (sum.empty() ? "" : " + ") + figure(leg.distance, 3);
    working.step("Sum of the legs", "ΣD of the table of legs", sum,
                 figure(result.figures->sumOfLegs, 3), "miles");
    working.resultStep("Sum of the legs", "rounded to 0.1", result.lblGC2000[2], "miles");
    return working;
}

PaperTable waypointTable(const GCResult& result)
{
    PaperTable table{
        "Waypoints",
        {"", "Latitude", "Longitude", "Course °", "Miles to the next", "In the window"},
        {}};
    const auto& waypoints = result.route.waypoints;
    for (std::size_t i = 0; i < waypoints.size(); ++i) {
        const GCRow& row = result.rows[i];
        table.rows.push_back({waypointName(result.route, i),
                              positionForCopy(waypoints[i].lat, Axis::Latitude),
                              positionForCopy(waypoints[i].longitude, Axis::Longitude), row.course,
                              row.distance, row.lat + "  " + row.longitude});
    }
    return table;
}

ExportTable waypointList(const GCResult& result)
{
    ExportTable list{{"waypoint", "latitude (degrees)", "longitude (degrees)",
                      "course to the next (degrees true)", "distance to the next (nautical miles)"},
                     {}};
    const auto& [waypoints, legs, eastward, angle] = result.route;
    for (std::size_t i = 0; i < waypoints.size(); ++i) {
        const bool isLast = i == legs.size();
        list.rows.push_back(
            {waypointName(result.route, i), figure(DegMinToDeg(waypoints[i].lat), decimals),
             figure(DegMinToDeg(waypoints[i].longitude), decimals),
             isLast ? "" : figure(legs[i].course, 3), isLast ? "" : figure(legs[i].distance, 3)});
    }
    return list;
}

ExportLine routeOf(const GCResult& result)
{
    ExportLine line{ExportLine::Kind::Route, "Great circle", {}};
    const auto& waypoints = result.route.waypoints;
    for (std::size_t i = 0; i < waypoints.size(); ++i)
        line.points.push_back({DegMinToDeg(waypoints[i].lat), DegMinToDeg(waypoints[i].longitude),
                               waypointName(result.route, i)});
    return line;
}

} // namespace korvel
