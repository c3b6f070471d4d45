// SPDX-License-Identifier: MIT
#include "app/reading/Instant.h"
#include "navlib/units.h"
#include "routes/files/RtzPlaces.h"
#include "routes/files/RtzReader.h"
#include "routes/files/RtzValues.h"
#include "routes/files/RtzWriter.h"
#include "routes/route/Route.h"
#include "tests/SourceFolder.h"
#include "tests/routes/RoutesTesting.h"
#include <chrono>

#include <gmock/gmock.h>

#include <optional>
#include <string>
#include <utility>

namespace korvel
{
namespace
{

using korvel::testing::replaced;
using korvel::testing::wholeFile;
using NavFunc113::Degrees;
using NavFunc113::Hours;
using NavFunc113::Knots;
using NavFunc113::Miles;
using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::Not;

/// One of every kind: a place with a zone, a circle with its step, a composite leg, a rhumb line.
Route everyKind()
{
    Route route;
    route.points.resize(4);
    auto& p = route.points;
    const double places[][2] = {{41, -72}, {41, 180}, {-0.25, 0}, {0, 1}};
    for (std::size_t i = 0; i < p.size(); ++i) {
        p[i].latitude = Degrees(places[i][0]);
        p[i].longitude = Degrees(places[i][1]);
    }
    p[0].name = "Pilot";
    p[0].zone = Hours(-4.5);
    p[0].remark = "clear";
    p[1].name = "B";
    p[3].zone = Hours(2);
    p[0].etd = readIso("2026-11-10T08:00:00Z");
    p[1].leg = LegKind::Composite;
    p[1].limit = Degrees(44);
    p[1].speed = Knots(12.5);
    p[1].stop = Hours(30.25);
    p[1].eta = readIso("2026-11-20T08:00:00Z");
    p[1].etd = readIso("2026-11-21T14:15:00Z");
    p[2].leg = LegKind::GreatCircle;
    p[2].step.miles = Miles(60.5);
    p[2].eta = readIso("2026-12-01T00:00:00Z");
    p[2].etd = readIso("2026-12-01T00:00:01Z");
    p[3].speed = Knots(9);
    return route;
}

// By the published rules of the format: ids count from 1, tangent points behind them; a leg stands
// with the waypoint that it leads to; what was typed is set by hand, times are calculated. The
// circle from 41 N touches 44 N after 25.819213830 degrees: cos = tan 41 / tan 44.
TEST(RtzOutput, aRouteIsWrittenToTheByte)
{
    const WrittenRoute written = writeRtz(everyKind(), RtzVersion::V1_2);
    EXPECT_EQ(written.fault, "");
    EXPECT_THAT(written.remarks,
                ElementsAre("composite legs were written as their tangent points"));
    EXPECT_EQ(written.bytes, replaced(contentOf(sourceFile("tests/routes/everykind.rtz")),
                                      "<!-- SPDX-License-Identifier: MIT -->\n", ""));
    const WrittenRoute older = writeRtz(everyKind(), RtzVersion::V1_0);
    EXPECT_THAT(older.remarks, ElementsAre("composite legs were written as their tangent points",
                                           HasSubstr("cannot say a stay of 24 hours and more")));
    EXPECT_THAT(older.bytes, Not(HasSubstr("stay=")));
    EXPECT_THAT(older.bytes, Not(HasSubstr("revision")));
    EXPECT_THAT(older.bytes, HasSubstr("id=\"5\" name=\"Tangent point\""));
    EXPECT_EQ(writeRtz(everyKind()).bytes, writeRtz(everyKind(), RtzVersion::V1_1).bytes);
    for (const std::size_t few : {0U, 1U}) {
        Route route = everyKind();
        route.points.resize(few);
        EXPECT_EQ(writeRtz(route).fault,
                  "an RTZ file needs two waypoints, the route has " + std::to_string(few));
    }
}

TEST(RtzOutput, aPositionIsThatOfTheFileUntilItIsMoved)
{
    const struct {
        double north, east;
        bool isTheFiles;
    } cases[] = {{0, 0, true},         {1.95e-7, 0, true},  {0, 1.95e-7, true},
                 {-2.05e-7, 0, false}, {0, 2.05e-7, false}, {0, -2.05e-7, false},
                 {0, 360, true}};
    for (const auto& each : cases) {
        Route route = readRtz(wholeFile).route;
        RoutePoint& last = route.points.back();
        last.latitude += Degrees(each.north);
        last.longitude += Degrees(each.east);
        const std::string bytes = writeRtz(route).bytes;
        EXPECT_THAT(bytes, HasSubstr(each.isTheFiles ? "id=\"43\" revision=\"1\""
                                                     : "id=\"43\" revision=\"2\""))
            << each.north << ' ' << each.east;
        EXPECT_EQ(bytes.find("lat=\"-41.5\" lon=\"-179.99999\"") != bytes.npos, each.isTheFiles);
    }
}

TEST(RtzOutput, idsAreKeptWhereTheyCanBe)
{
    for (const auto& [id, written] : {std::pair{"999999999", "id=\"999999999\" revision=\"1\""},
                                      {"+44", "id=\"44\" revision=\"1\""},
                                      {"1000000000", "id=\"12\" revision=\"1\""}}) {
        std::string file = wholeFile;
        for (int i = 0; i < 3; ++i)
            file = replaced(file, "\"43\"", "\"" + std::string(id) + "\"");
        EXPECT_THAT(writeRtz(readRtz(file).route).bytes, HasSubstr(written));
    }
    Route twice = readRtz(wholeFile).route;
    twice.points.push_back(twice.points[1]);
    const std::string bytes = writeRtz(twice).bytes;
    EXPECT_EQ(readRtz(bytes).fault, "");
    EXPECT_THAT(bytes, HasSubstr("id=\"44\" revision=\"0\" name=\"Off the cape\""));
}

TEST(RtzValues, staysAreReadInBothFormsAndNothingElseIs)
{
    const struct {
        const char* text;
        std::optional<Span> stay;
    } cases[] = {
        {"06:30:00", minutes(390)},
        {" 23:59:59\n", seconds(86399)},
        {"PT6H30M", minutes(390)},
        {"P1DT30M", minutes(1470)},
        {"P2D", minutes(2880)},
        {"PT1.5S", milliseconds(1500)},
        {"PT0S", seconds(0)},
        // Cut off, without a number, out of order, twice, on the wrong side of the T, of no length.
        {"P", {}},
        {"PT", {}},
        {"P1DT", {}},
        {"PT5", {}},
        {"PTH", {}},
        {"PT1.2.3H", {}},
        {"PT5M6H", {}},
        {"PT5M6M", {}},
        {"P5H", {}},
        {"PT5D", {}},
        {"PTT5H", {}},
        {"P1Y", {}},
        {"P1M", {}},
        {"-PT5H", {}},
        {"25:00:00", {}},
        {"", {}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(readStay(each.text), each.stay) << each.text;
}

TEST(RtzValues, staysAreWrittenAsEachVersionHasThem)
{
    const struct {
        Span stay;
        const char *asTime, *asDuration;
    } cases[] = {
        {seconds(0), "00:00:00", "PT0S"},
        {seconds(59), "00:00:59", "PT59S"},
        {minutes(390), "06:30:00", "PT6H30M"},
        {milliseconds(3599600), "01:00:00", "PT1H"},
        {seconds(86399), "23:59:59", "PT23H59M59S"},
        {seconds(86400), "", "PT24H"}, // no time of day is that long
    };
    for (const auto& each : cases) {
        EXPECT_EQ(stayText(each.stay, RtzVersion::V1_0), each.asTime);
        EXPECT_EQ(stayText(each.stay, RtzVersion::V1_1), each.asDuration);
    }
}

} // namespace
} // namespace korvel
