// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/CalculateGC.h"
#include "forms/frmGC2000/DrawWPs.h"

#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <string>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::ElementsAre;

GCResult routeOf(const Golden& row)
{
    return CalculateGC({{row.text("lat1"), row.text("long1"), row.text("lat2"), row.text("long2")},
                        row.has("earth") ? row.earth() : NavFunc113::Earth::Sphere});
}

std::map<std::string, std::string> shown(const GCResult& result)
{
    std::map<std::string, std::string> texts = {
        {"waypoints", std::to_string(result.route.waypoints.size())},
        {"rhumb", result.lblGC2000[0]},
        {"great", result.lblGC2000[1]},
        {"legs", result.lblGC2000[2]},
        {"initial", result.initialCourse},
        {"final", result.finalCourse},
        {"vertexLat", result.vertexLat},
        {"vertexLong", result.vertexLong},
        {"vertex", result.vertexRemark},
        {"saving", result.saving},
        {"notice", result.notice},
        {"arrival",
         result.route.waypoints.empty() ? "" : result.rows[result.route.waypoints.size() - 1].lat},
    };
    for (std::size_t i = 0; i < GCResult::rowCount; ++i) {
        const GCRow& row = result.rows[i];
        texts[std::to_string(i + 1) + ".lat"] = row.lat;
        texts[std::to_string(i + 1) + ".course"] = row.course;
        texts["longitudes"] += row.longitude + (row.longitude.empty() ? "" : " ");
    }
    return texts;
}

TEST(CalculateGC, waypointsAndFigures)
{
    for (const Golden& row : golden("great_circle_routes"))
        expectTexts(row, "shows", shown(routeOf(row)));
}

TEST(CalculateGC, everyBoxHasItsRange)
{
    const std::array<const char*, 4> good = {"10", "20", "30", "40"};
    const struct {
        std::size_t box;
        const char* name;
        const char* within[2];
        const char* beyond[2];
        const char* range;
    } rows[] = {
        {0, "Departure latitude", {"-65", "65"}, {"-65.001", "65.001"}, "-65 to 65 degrees"},
        {1, "Departure longitude", {"-180", "180"}, {"-180.001", "180.001"}, "-180 to 180 degrees"},
        {2, "Arrival latitude", {"-65", "65"}, {"-65.001", "65.001"}, "-65 to 65 degrees"},
        {3, "Arrival longitude", {"-180", "180"}, {"-180.001", "180.001"}, "-180 to 180 degrees"},
    };
    for (const auto& row : rows) {
        const auto resultOf = [&](const char* typed) {
            GCInput input{{good[0], good[1], good[2], good[3]}};
            input.txtGC[row.box] = typed;
            return CalculateGC(input);
        };
        for (const char* typed : row.within)
            EXPECT_EQ(resultOf(typed).notice, "") << row.name << " " << typed;
        for (const char* typed : row.beyond) {
            EXPECT_EQ(resultOf(typed).notice, std::string(row.name) + ": not within " + row.range);
            EXPECT_TRUE(resultOf(typed).route.waypoints.empty());
        }
    }
}

TEST(CalculateGC, lastWaypointIsTheArrivalAsTyped)
{
    for (int lat = 1; lat <= 65; ++lat)
        for (const auto& [sign, hemisphere, longitude] :
             {std::tuple("", "N", "-122.25"), {"-", "S", "30"}}) {
            const std::string typed = std::to_string(lat);
            EXPECT_EQ(shown(CalculateGC({{"10", "139.39", sign + typed, longitude}}))["arrival"],
                      typed + ".00'0" + hemisphere);
        }
}

/// Along a meridian both lines are one, and their last bits differ either way.
TEST(CalculateGC, nothingIsSavedAlongAMeridian)
{
    for (int lat = -65; lat < 65; ++lat)
        EXPECT_EQ(CalculateGC({{std::to_string(lat), "20", std::to_string(lat + 1), "20"}}).saving,
                  "0.'0")
            << lat;
}

TEST(DrawWPs, noRouteIsTorn)
{
    for (const Golden& row : golden("great_circle_charts")) {
        const GCChart chart = DrawWPs(routeOf(row).route);
        EXPECT_NEAR(chart.route.front().longitude, row.number("first"), 1e-9) << row;
        EXPECT_NEAR(chart.route.back().longitude, row.number("last"), 1e-9) << row;
        EXPECT_NEAR(chart.scale.left, row.number("left"), 1e-9) << row;
        EXPECT_NEAR(chart.scale.right, row.number("right"), 1e-9) << row;
        for (std::size_t i = 1; i < chart.route.size(); ++i)
            EXPECT_LE(std::fabs(chart.route[i].longitude - chart.route[i - 1].longitude), 10);
        EXPECT_EQ(chart.rhumbLine.front().longitude, chart.route.front().longitude) << row;
        EXPECT_EQ(chart.rhumbLine.back().longitude, chart.route.back().longitude) << row;
        for (const ChartPoint& point : chart.route) {
            EXPECT_LE(point.lat, chart.scale.top - 2 + 1e-9) << row;
            EXPECT_GE(point.lat, chart.scale.bottom + 3 - 1e-9) << row;
        }
    }
}

TEST(DrawWPs, rhumbLineIsACurveAndTheGridIsLabelled)
{
    const GCChart chart = DrawWPs(CalculateGC({{"0", "170", "60", "-170"}}).route);
    const ChartPoint& middle = chart.rhumbLine[chart.rhumbLine.size() / 2];
    // Meridional parts: 1876.67 at 30, 4507.36 at 60 degrees.
    EXPECT_NEAR(middle.lat, 30, 1e-9);
    EXPECT_NEAR(middle.longitude, 170 + 20 * 1876.67 / 4507.36, 0.01);
    std::vector<std::string> texts;
    for (const ChartLabel& label : chart.meridianLabels)
        texts.push_back(label.text);
    EXPECT_THAT(texts, ElementsAre("160°E", "170°E", "180°", "170°W", "160°W"));
    texts.clear();
    for (const ChartLabel& label : chart.parallelLabels)
        texts.push_back(label.text);
    EXPECT_THAT(texts, ElementsAre("0°", "10°N", "20°N", "30°N", "40°N", "50°N", "60°N"));
    EXPECT_EQ(chart.grid.size(), 73U + 15U);
    EXPECT_TRUE(DrawWPs({}).route.empty());
}

} // namespace
} // namespace korvel
