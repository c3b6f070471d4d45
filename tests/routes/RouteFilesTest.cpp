// SPDX-License-Identifier: MIT
#include "routes/files/RouteFiles.h"
#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "forms/frmPassage/PlanEdit.h"
#include "forms/frmPassage/PlanRoute.h"
#include "navlib/angles.h"
#include "routes/files/RtzPlaces.h"
#include "routes/files/RtzReader.h"
#include "routes/files/RtzWriter.h"
#include "routes/route/LegWords.h"
#include "routes/route/RouteCsv.h"
#include "tests/SourceFolder.h"
#include "tests/forms/frmPassage/Plans.h"
#include "tests/golden/Golden.h"
#include "tests/routes/RoutesTesting.h"

#include <gmock/gmock.h>

#include <fcntl.h>
#include <sys/stat.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <filesystem>
#include <fstream>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

std::string described(const ReadRoute& read, bool withTimes = false)
{
    if (!read.fault.empty()) return read.fault;
    std::string text;
    for (const RoutePoint& point : read.route.points) {
        text += (text.empty() ? "" : "; ") + (point.name.empty() ? "-" : point.name) + " " +
                Format(point.latitude, "0.0000") + " " + Format(point.longitude, "0.0000");
        if (point.leg != LegKind::Rhumb || point.step != CircleStep{})
            text += " " + legWords(point.leg, point.step, NavFunc113::DegToDegMin(point.limit));
        if (point.speed) text += " " + Format(*point.speed, "0.0##") + " kn";
        if (point.stop) text += " " + Format(*point.stop, "0.##") + " h";
        if (point.zone) text += " zone " + Format(*point.zone, "0.##");
        if (withTimes && point.eta) text += " eta " + isoText(*point.eta);
        if (withTimes && point.etd) text += " etd " + isoText(*point.etd);
    }
    for (const std::string& remark : read.remarks)
        text += "; " + remark;
    return text;
}

TEST(RouteFiles, namesWhatIsWrongAndWhere)
{
    for (const auto& [table, whole] :
         {std::pair{"route_faults", &wholeFile}, {"gpx_faults", &wholeGpx}}) {
        ASSERT_EQ(readRoute(*whole).fault, "");
        for (const Golden& row : golden(table)) {
            const ReadRoute read = readRoute(replaced(*whole, row.text("replace"), row.text("by")));
            const std::string& names = row.text("names");
            if (names.starts_with("takes ")) {
                EXPECT_THAT(described(read), EndsWith(names.substr(6))) << row;
                continue;
            }
            EXPECT_THAT(read.fault, HasSubstr(names)) << row;
            EXPECT_TRUE(read.route.points.empty()) << row;
        }
    }
}

TEST(RouteFiles, listsAreReadAsSpreadsheetsWriteThem)
{
    for (const Golden& row : golden("route_lists"))
        EXPECT_THAT(described(readRoute(row.text("list")),
                              row.text("reads").find(" eta ") != std::string::npos),
                    ::testing::StartsWith(row.text("reads")))
            << row;
    EXPECT_EQ(described(readRoute("\xEF\xBB\xBFname,lat,lon\r\nA,35.5,139.75\r\n")),
              "A 35.5000 139.7500");
    EXPECT_EQ(
        described(readRoute("name,lat,lon\nH\xF6he,35.5,139.75\n")),
        "Höhe 35.5000 139.7500; the list is not UTF-8: its letters were read as Western European");
    std::string many = "name,lat,lon\n";
    for (int i = 0; i < 500; ++i)
        many += "A,1,2\n";
    EXPECT_EQ(readRoute(many).route.points.size(), 500u);
    EXPECT_EQ(readRoute(many + "A,1,2\n").fault, "line 502: more than 500 points");
}

/// As an editor saves it that knows no other code: two bytes a letter behind a mark.
std::string inUtf16(std::string_view text, bool isBigEndian)
{
    std::string bytes = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
    for (const char letter : text)
        bytes.append(isBigEndian ? std::string{'\0', letter} : std::string{letter, '\0'});
    return bytes;
}

TEST(RouteFiles, whateverTheirCodeFilesAreToldByTheirBeginning)
{
    for (const std::string* whole : {&wholeFile, &wholeGpx}) {
        const std::string wanted = described(readRoute(*whole));
        const std::string wide = replaced(*whole, "UTF-8", "UTF-16");
        EXPECT_EQ(described(readRoute(inUtf16(wide, false))), wanted);
        EXPECT_EQ(described(readRoute(inUtf16(wide, true))), wanted);
        EXPECT_EQ(described(readRoute("\xEF\xBB\xBF" + *whole)), wanted);
        EXPECT_EQ(described(readRoute("\r\n\t " + whole->substr(whole->find("<!--")))), wanted);
    }
    EXPECT_EQ(readRoute("").fault, "line 1: it is empty");
    EXPECT_THAT(readRoute("<").fault, ::testing::StartsWith("line 1"));
    EXPECT_EQ(readRoute("<gpx/>").fault, "line 1, gpx: it is no GPX 1.1 file");
}

TEST(RouteFiles, everyCutOfAFileIsRefusedOrWhole)
{
    const std::size_t end = wholeFile.find("</route>");
    for (std::size_t length = 0; length < end + 8; length += length < 200 ? 1 : 37)
        EXPECT_NE(readRtz(wholeFile.substr(0, length)).fault, "") << length;
}

TEST(RouteFiles, hostileFilesAreRefusedAtOnce)
{
    std::string deep = "<?xml version=\"1.0\"?>";
    for (int i = 0; i < 200000; ++i)
        deep += "<a>";
    const std::string inExtension =
        replaced(wholeFile, "<yard:b>whole", deep.substr(deep.find("<a>")));
    // Three are there already; half of a file's waypoints may be tangent points, which fold.
    const auto withMore = [](int count) {
        std::string points;
        for (int i = 100; i < 100 + count; ++i)
            points += "<waypoint id=\"" + std::to_string(i) +
                      "\" revision=\"0\"><position lat=\"1\" lon=\"2\"/></waypoint>";
        return readRoute(
            replaced(wholeFile, "<waypoint id=\"43\"", points + "<waypoint id=\"43\""));
    };
    const auto nested = [](int levels) {
        std::string text;
        for (int i = 0; i < levels; ++i)
            text += "<a>";
        for (int i = 0; i < levels; ++i)
            text += "</a>";
        return readRoute(replaced(wholeGpx, "<sym>", text + "<sym>")).fault;
    };
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THAT(readRoute(deep).fault, HasSubstr("line 1"));
    EXPECT_THAT(readRoute(inExtension).fault, HasSubstr("nested too deeply"));
    EXPECT_EQ(nested(29), "") << "behind gpx, rte and rtept";
    EXPECT_EQ(nested(30), "line 9, a: elements are nested too deeply");
    EXPECT_EQ(withMore(497).route.points.size(), 500u);
    EXPECT_EQ(withMore(498).fault, "waypoints: more than 500 waypoints");
    EXPECT_EQ(withMore(997).fault, "waypoints: more than 500 waypoints");
    EXPECT_EQ(withMore(998).fault, "line 19, waypoint: more than 500 waypoints");
    EXPECT_THAT(readRoute(std::string(mostRouteBytes + 1, ' ')).fault,
                HasSubstr("larger than 8 MB"));
    EXPECT_THAT(readRoute(replaced(wholeFile, "Off the cape", "\xff\xfe")).fault,
                HasSubstr("line"));
    EXPECT_THAT(readRoute(std::string(100, '\0')).fault, HasSubstr("line 1"));
    const auto folder =
        std::filesystem::temp_directory_path() / ("routes " + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    mkfifo((folder / "pipe").c_str(), 0600);
    std::ofstream(folder / "large") << "<";
    std::filesystem::resize_file(folder / "large", std::uintmax_t{100} * 1000 * 1000);
    for (const auto& file : {std::filesystem::path("/dev/zero"), folder / "pipe", folder})
        EXPECT_EQ(readRouteFile(file).fault, "it is no ordinary file") << file;
    EXPECT_EQ(readRouteFile(folder / "none").fault, "there is no such file");
    EXPECT_EQ(readRouteFile(folder / "large").fault, "it is larger than 8 MB, which no route is");
    // The last byte that a file may have counts too.
    const std::string last = "A,35.5,139.75";
    std::ofstream(folder / "full") << std::string(mostRouteBytes - last.size(), '\n') << last;
    EXPECT_EQ(described(readRouteFile(folder / "full")), "A 35.5000 139.7500");
    std::ofstream(folder / "full", std::ios::app) << '5';
    EXPECT_THAT(readRouteFile(folder / "full").fault, HasSubstr("larger than 8 MB"));
    EXPECT_EQ(readRouteFile(sourceFile("tests/routes/whole.rtz")).fault, "");
    std::filesystem::remove_all(folder);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(60))
        << "a limit for hangs alone";
}

/// Holds bytes against the schema of a version. @return what is wrong; empty when nothing is
std::string schemaFaults(const std::string& bytes, RtzVersion version)
{
    std::string schema = contentOf(sourceFile("tests/routes/rtz.xsd.in"));
    const std::map<std::string, std::string> values = {
        {"@URI@", namespaceOf(version)},
        {"@VERSION@", numberOf(version)},
        {"@STAY@", version == RtzVersion::V1_0 ? "xs:time" : "xs:duration"},
        {"@REVISION@", version == RtzVersion::V1_2 ? "required" : "optional"},
        {"@LEG@", version == RtzVersion::V1_2 ? "<xs:group ref=\"r:tail\"/>" : ""}};
    for (const auto& [name, value] : values)
        for (std::size_t at = schema.find(name); at != schema.npos; at = schema.find(name, at))
            schema.replace(at, name.size(), value);
    const auto folder =
        std::filesystem::temp_directory_path() / ("rtz schema " + std::to_string(getpid()));
    std::filesystem::create_directories(folder);
    std::ofstream(folder / "rtz.xsd") << schema;
    std::ofstream(folder / "route.rtz") << bytes;
    const std::string command =
        "cd '" + folder.string() +
        "' && xmllint --nonet --noout --schema rtz.xsd route.rtz >faults 2>&1";
    const bool isValid = std::system(command.c_str()) == 0;
    const std::string faults = contentOf(folder / "faults");
    std::filesystem::remove_all(folder);
    return isValid ? "" : faults;
}

PassagePlan oceanPassage()
{
    PassagePlan plan{
        "Yokohama to \"the\" coast & back", planTimes("dep ship 2026/11/10 08:00"), {}, {}};
    plan.rows =
        planRows("Pilot 35.155 139.45 td=9 / Cape 34.53 139.54 v=12.5 stop=10.5 note=traffic / . / "
                 "- 40 -175 gc:10 v=14 td=-11 / A 41 170.00001 / B 42 -150 co:44N v=14.25 / C 43 "
                 "180 gc:300nm / "
                 "D -41 -170 td=-10 stop=0.5 / E -45 -72.3 co:50S td=-5 / F -44.59999 -72 stop=2");
    // On to 40 waypoints along the coast.
    for (int i = 1; i <= 31; ++i) {
        PlanRow row =
            planRows("Coast " + std::to_string(30 - i / 2) + (i % 2 ? ".305" : ".12345") + " -71.4")
                .front();
        std::swap(row.name, row.remark);
        if (i == 20) row.zone = "-4.5";
        plan.rows.push_back(row);
    }
    return plan;
}

TEST(RouteFiles, aPlanComesBackFromRtzAsItWas)
{
    const PlanConditions conditions;
    const PassagePlan plan = oceanPassage();
    const PlanReckoning reckoning(plan, conditions);
    const RouteOfPlan route = routeOfPlan(plan, reckoning);
    ASSERT_EQ(route.fault, "");
    std::vector<PlanRow> wanted = plan.rows;
    std::erase_if(wanted, [](const PlanRow& row) { return row.isEmpty(); });
    // What is written in its shortest form comes back in the full one, and 180 as the legal -180.
    for (PlanRow& row : wanted) {
        row.latitude = packedText(DegMinToDeg(NavFunc113::DegMin(std::stod(row.latitude))));
        row.longitude = packedText(DegMinToDeg(NavFunc113::DegMin(std::stod(row.longitude))));
        if (row.longitude == "180.0") row.longitude = "-180.0";
        if (row.leg == LegKind::Composite) row.limit.insert(2, ".0");
    }
    for (const RtzVersion version : {RtzVersion::V1_0, RtzVersion::V1_1, RtzVersion::V1_2}) {
        SCOPED_TRACE(numberOf(version));
        const WrittenRoute written = writeRtz(route.route, version);
        EXPECT_EQ(schemaFaults(written.bytes, version), "");
        const ReadRoute read = readRtz(written.bytes);
        ASSERT_EQ(read.fault, "");
        const PlanOfRoute back = planOfRoute(read.route, conditions);
        EXPECT_THAT(back.remarks, ::testing::IsEmpty());
        EXPECT_EQ(rowsText(back.plan.rows), rowsText(wanted));
        EXPECT_EQ(back.plan.name, plan.name);
        EXPECT_EQ(back.plan.times.time, "2026/11/9 23:00:00") << "in UTC";
        const PlanReckoning again(back.plan, conditions);
        EXPECT_EQ(again.totals().distance->value(), reckoning.totals().distance->value());
        // Speeds are written to a millionth of a knot.
        EXPECT_LT(std::chrono::abs(*again.totals().elapsed - *reckoning.totals().elapsed),
                  std::chrono::seconds(1));
    }
}

TEST(RouteFiles, whatWasNotUnderstoodGoesBackIntoTheFile)
{
    const ReadRoute read = readRtz(wholeFile);
    ASSERT_EQ(read.fault, "");
    EXPECT_EQ(described(read),
              "Pilot 35.2500 139.7500; Off the cape 34.8833 139.9000 12.5 kn 6.5 h; "
              "- -41.5000 -180.0000 great circle 15.0 kn");
    const PlanOfRoute taken = planOfRoute(read.route, {});
    const RouteOfPlan route = routeOfPlan(taken.plan, PlanReckoning(taken.plan, {}));
    for (const RtzVersion version : {RtzVersion::V1_2, RtzVersion::V1_1, RtzVersion::V1_0}) {
        SCOPED_TRACE(numberOf(version));
        const std::string bytes = writeRtz(route.route, version).bytes;
        EXPECT_EQ(schemaFaults(bytes, version), "");
        for (const char* text : {"id=\"11\" revision=\"3\"",
                                 "id=\"43\" revision=\"1\"",
                                 "vesselIMO=\"9074729\"",
                                 "radius=\"0.7\"",
                                 "speedMax=\"18\"",
                                 "portsideXTD=\"0.25\"",
                                 "legInfo=\"traffic\"",
                                 "legNote2=\"report to the centre\"",
                                 "lat=\"35.2500\"",
                                 "lon=\"-179.99999\"",
                                 "xmlns:yard=\"urn:a-yard\"",
                                 "yard:mark=\"7\"",
                                 "yard:squat value=\"0.4\"",
                                 "<path xmlns=\"\"><id value=\"1\"/></path>",
                                 "Note=\"drift\"",
                                 "windDirection=\"165\"",
                                 "fuel=\"500.5\"",
                                 "name=\"second\"",
                                 "name=\"points\"",
                                 "name=\"arrival\"",
                                 "name=\"planned\"",
                                 "name=\"reckoned\"",
                                 "name=\"route\"",
                                 "kept <yard:b>whole</yard:b>",
                                 "id=\"42\" name=\"first\""})
            EXPECT_THAT(bytes, HasSubstr(text));
        EXPECT_THAT(bytes, HasSubstr("<tag xmlns=\"" + namespaceOf(version) + "\"/>"));
        EXPECT_EQ(bytes.find("xsi:schemaLocation") != bytes.npos, version == RtzVersion::V1_2);
        EXPECT_THAT(bytes, HasSubstr(version == RtzVersion::V1_0 ? "etaWindowBefore=\"01:30:00\""
                                                                 : "etaWindowBefore=\"PT1H30M\""));
        const ReadRoute again = readRtz(bytes);
        ASSERT_EQ(again.fault, "");
        EXPECT_EQ(described(again), described(read));
        EXPECT_EQ(writeRtz(again.route).bytes, bytes) << "nothing grows from file to file";
    }
    PassagePlan moved = taken.plan;
    moved.rows[0].latitude = "35.16";
    apply(moved, *insertedRows(moved.rows, 1, planRows("New 35 139.50")));
    const std::string bytes = writeRtz(routeOfPlan(moved, PlanReckoning(moved, {})).route).bytes;
    EXPECT_EQ(schemaFaults(bytes, RtzVersion::V1_2), "")
        << "new waypoints have ids and revisions of their own";
    EXPECT_THAT(bytes, HasSubstr("id=\"11\" revision=\"4\"")) << "a waypoint that was moved";
    EXPECT_THAT(bytes, HasSubstr("id=\"44\" revision=\"0\" name=\"New\""));
}

TEST(RouteFiles, keptElementsStandForThemselvesAndWhatWasSetByHandGoesFirst)
{
    // Rows that are put into another plan take their elements along, not its declarations.
    Route alone = readRtz(wholeFile).route;
    alone.kept.clear();
    EXPECT_EQ(readRtz(writeRtz(alone).bytes).fault, "");
    const std::string both =
        replaced(wholeFile, "windDirection=\"165\"", "speed=\"9\" windDirection=\"165\"");
    EXPECT_EQ(described(readRtz(both)), described(readRtz(wholeFile)));
}

TEST(RouteFiles, aPositionKeptInADamagedRecordIsWrittenFromTheRow)
{
    for (const char* damaged : {"35.25", "north east", "35.25 east", "north 139"}) {
        Route route = readRtz(wholeFile).route;
        for (KeptPart& part : route.points[0].kept)
            if (part.place == rtz::position) part.text = damaged;
        const ReadRoute again = readRtz(writeRtz(route).bytes);
        EXPECT_EQ(again.fault, "") << damaged;
        EXPECT_NEAR(again.route.points[0].latitude.value(), 35.25, 1e-8) << damaged;
    }
}

TEST(RouteFiles, prefixesAndOlderSpellingsAreRead)
{
    std::string prefixed = wholeFile;
    for (const char* name : {"route", "routeInfo", "waypoints", "waypoint", "position", "schedules",
                             "schedule", "manual", "scheduleElement"})
        for (const std::string sign : {"<", "</"})
            for (const char end : {' ', '>'})
                for (std::size_t at; (at = prefixed.find(sign + name + end)) != prefixed.npos;)
                    prefixed.insert(at + sign.size(), "r:");
    prefixed = replaced(prefixed, "xmlns=\"http", "xmlns:r=\"http");
    const ReadRoute read = readRtz(prefixed);
    ASSERT_EQ(read.fault, "");
    EXPECT_EQ(read.route.points.size(), 3u);
    EXPECT_EQ(readRtz(writeRtz(read.route).bytes).fault, "");

    std::string older = wholeFile;
    for (const auto& [from, to] :
         {std::pair{"RTZ/1/2", "RTZ/1/0"},
          {"version=\"1.2\">\n  <routeInfo", "version=\"1.0\">\n  <routeInfo"},
          {"PT6H30M", "06:30:00"},
          {"<scheduleElement waypointId=\"2\" speed=\"12.5\"",
           "<sheduleElement waypointId=\"2\" speed=\"12.5\""},
          {" revision=\"3\"", ""}})
        older = replaced(older, from, to);
    EXPECT_EQ(described(readRtz(older)), described(readRtz(wholeFile)));
}

TEST(RouteFiles, aMovedTangentPointIsAWaypoint)
{
    const PassagePlan plan{"", {}, planRows("A 41 -72 / B 41 0 co:44N"), {}};
    const std::string bytes = writeRtz(routeOfPlan(plan, PlanReckoning(plan, {})).route).bytes;
    EXPECT_EQ(readRtz(bytes).route.points.size(), 2u);
    EXPECT_EQ(readRtz(replaced(bytes, "lat=\"44.000000000\"", "lat=\"43.9\"")).route.points.size(),
              4u);
    EXPECT_EQ(readRtz(replaced(bytes, "lat=\"41.000000000\"", "lat=\"40.5\"")).route.points.size(),
              4u);
    // A metre is no move: 0.00001 degrees.
    for (const auto& [lat, points] :
         {std::pair{"43.9999905", 2u}, {"44.0000095", 2u}, {"43.9999895", 4u}, {"44.0000105", 4u}})
        EXPECT_EQ(
            readRtz(replaced(bytes, "lat=\"44.000000000\"", "lat=\"" + std::string(lat) + "\""))
                .route.points.size(),
            points)
            << lat;
    EXPECT_EQ(readRtz(replaced(bytes, "composite 44", "composite 60")).route.points.size(), 4u)
        << "a limit that the circle does not reach";
    // Another program may leave our remarks out.
    EXPECT_EQ(readRtz(replaced(bytes, "leg=\"composite", "leg=\"great circle")).route.points.size(),
              4u);
}

TEST(RouteFiles, timesAloneBecomeSpeedsAndStops)
{
    const ReadRoute read = readRoute(
        "name,lat,lon,eta,etd\nA,0,0,,2026-11-10T00:00:00Z\nB,2,0,2026-11-10 "
        "10:00,2026-11-10 16:00\nC,3.5,0,2026-11-11 01:00Z,\nD,3.55,0,2026-11-11 07:00Z,\n");
    ASSERT_EQ(read.fault, "");
    const PlanOfRoute plan = planOfRoute(read.route, {});
    EXPECT_EQ(rowsText(plan.plan.rows),
              "A 0.0 0.0 / B 2.0 0.0 v=12 stop=6 / C 3.3 0.0 v=10 / D 3.33 0.0 v=0.5");
    EXPECT_THAT(plan.remarks, ::testing::ElementsAre(HasSubstr("worked out from the times")));

    // A file whose times are not those of its speeds.
    const ReadRoute other =
        readRoute("name,lat,lon,speed,eta\nA,0,0,,2026-11-10 00:00\nB,2,0,10,2026-11-10 10:00\n");
    EXPECT_THAT(planOfRoute(other.route, {}).remarks,
                ::testing::ElementsAre(HasSubstr("the plan's speeds lead to 2026/11/10 12:00")));
}

} // namespace
} // namespace korvel
