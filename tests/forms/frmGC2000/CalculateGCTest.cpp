// SPDX-License-Identifier: MIT
#include "forms/frmGC2000/CalculateGC.h"
#include "forms/frmGC2000/DrawWPs.h"

#include <gmock/gmock.h>

#include <cmath>

namespace korvel
{
namespace
{

using testing::ElementsAre;

std::vector<std::string> longitudes(const GCResult& result)
{
    std::vector<std::string> texts;
    for (const GCRow& row : result.rows)
        if (!row.longitude.empty()) texts.push_back(row.longitude);
    return texts;
}

TEST(CalculateGC, waypointsStandOnEveryTenthMeridian)
{
    const struct {
        const char* fault;
        std::array<std::string, 4> boxes;
        std::vector<std::string> meridians;
    } rows[] = {
        {"no meridian between", {"35", "131.0", "36", "135.0"}, {"131.00'0E", "135.00'0E"}},
        {"westward from a meridian",
         {"35", "140", "36", "125.30"},
         {"140.00'0E", "130.00'0E", "125.30'0E"}},
        {"eastward from a meridian", {"0", "10", "1", "20"}, {"10.00'0E", "20.00'0E"}},
        {"floor of a western longitude",
         {"0", "-5.30", "1", "-21"},
         {"5.30'0W", "10.00'0W", "20.00'0W", "21.00'0W"}},
        {"180 written -180 on the way east",
         {"35", "175.0", "36", "-175.0"},
         {"175.00'0E", "180.00'0W", "175.00'0W"}},
        {"-180 written 180 on the way west",
         {"35", "-175.0", "36", "175.0"},
         {"175.00'0W", "180.00'0E", "175.00'0E"}},
        {"from -180 westward",
         {"35", "-180", "36", "165"},
         {"180.00'0W", "170.00'0E", "165.00'0E"}},
        {"arrival at 180 eastward",
         {"0", "165", "1", "180"},
         {"165.00'0E", "170.00'0E", "180.00'0E"}},
        {"no leg of length 0 at -180",
         {"0", "-165", "1", "-180"},
         {"165.00'0W", "170.00'0W", "180.00'0E"}},
        {"across Greenwich", {"10", "5", "12", "-5"}, {"5.00'0E", "0.00'0E", "5.00'0W"}},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(longitudes(CalculateGC({row.boxes})), row.meridians);
    }
    EXPECT_EQ(longitudes(CalculateGC({{"10", "1", "20", "-178.59"}})).size(), 20U);
}

TEST(CalculateGC, passageAcrossThePacific)
{
    const GCResult result = CalculateGC({{"35.27", "139.39", "37.49", "-122.25"}});
    ASSERT_EQ(result.route.waypoints.size(), 12U);
    // Latitudes by the plane through the two positions and the earth's centre.
    EXPECT_EQ(result.rows[1].lat, "35.39'2N");
    EXPECT_EQ(result.rows[5].lat, "48.05'5N");
    EXPECT_EQ(result.rows[10].lat, "41.18'0N");
    EXPECT_EQ(result.rows[11].course, "") << "no leg leaves the arrival";
    EXPECT_EQ(result.rows[10].course, "<120.7>");
    EXPECT_EQ(result.lblGC2000[0], "4737.'2");
    EXPECT_EQ(result.lblGC2000[1], "4471.'6");
    EXPECT_EQ(result.initialCourse, "<054.3>");
    EXPECT_EQ(result.finalCourse, "<123.2>");
    EXPECT_EQ(result.vertexLat, "48.35'8N");
    EXPECT_EQ(result.vertexLong, "169.14'0W");
    EXPECT_EQ(result.vertexRemark, "on the route");
    EXPECT_EQ(result.saving, "265.'6");
    EXPECT_EQ(result.lblGC2000[2], "4487.'5"); // worked leg by leg

    const GCResult spheroid =
        CalculateGC({{"35.27", "139.39", "37.49", "-122.25"}, NavFunc113::Earth::Spheroid});
    EXPECT_EQ(spheroid.lblGC2000[1], "4471.'6");
    EXPECT_NE(spheroid.lblGC2000[0], "4737.'2");
    EXPECT_EQ(spheroid.saving, result.saving) << "compared on the sphere";
}

TEST(CalculateGC, otherOceans)
{
    const GCResult cape = CalculateGC({{"-33.54", "18.25", "40.42", "-74"}});
    EXPECT_EQ(cape.rows[1].lat, "28.29'8S");
    EXPECT_EQ(cape.rows[9].lat, "39.08'0N");
    const GCResult sydney = CalculateGC({{"-33.51", "151.13", "-33.02", "-71.38"}});
    EXPECT_EQ(sydney.rows[3].lat, "54.23'5S");
    const GCResult meridian = CalculateGC({{"10", "20", "30", "20"}});
    EXPECT_EQ(meridian.rows[1].lat, "30.00'0N") << "the arrival itself";
    EXPECT_EQ(meridian.lblGC2000[2], "1200.'0");
}

TEST(CalculateGC, lastWaypointIsTheArrivalAsTyped)
{
    const auto arrival = [](const GCResult& result) {
        return result.rows[result.route.waypoints.size() - 1].lat;
    };
    EXPECT_EQ(arrival(CalculateGC({{"-46.151", "-155.386", "-35.558", "24.214"}})), "35.55'8S")
        << "rounding hides that the meridians are opposite";
    for (int lat = 1; lat <= 65; ++lat) {
        const std::string typed = std::to_string(lat);
        EXPECT_EQ(arrival(CalculateGC({{"10", "139.39", typed, "-122.25"}})), typed + ".00'0N");
        EXPECT_EQ(arrival(CalculateGC({{"10", "139.39", "-" + typed, "30"}})), typed + ".00'0S");
    }
}

TEST(CalculateGC, outOfRangeBlanksEverything)
{
    EXPECT_FALSE(CalculateGC({{"65", "180", "-65", "-170"}}).route.waypoints.empty());
    const std::array<std::string, 4> rows[] = {{"65.1", "0", "0", "10"},
                                               {"0", "180.01", "0", "10"},
                                               {"0", "0", "-65.001", "10"},
                                               {"0", "0", "10", "E"},
                                               {"-", "0", "10", "20"}};
    for (const auto& boxes : rows) {
        const GCResult result = CalculateGC({boxes});
        EXPECT_TRUE(result.route.waypoints.empty());
        EXPECT_TRUE(longitudes(result).empty());
        EXPECT_THAT(result.lblGC2000, ElementsAre("", "", ""));
        EXPECT_EQ(result.saving + result.initialCourse + result.vertexLat, "");
    }
}

TEST(DrawWPs, noRouteIsTorn)
{
    const struct {
        const char* name;
        std::array<std::string, 4> boxes;
        double first, last, left, right;
    } rows[] = {
        {"across 180 eastward", {"35", "140", "37", "-122.30"}, 140, 237.5, 128, 249.5},
        {"across 180 westward", {"35", "-122.30", "37", "140"}, 237.5, 140, 128, 249.5},
        {"across Greenwich westward", {"-33", "18", "40", "-74"}, 18, -74, -86, 30},
        {"across Greenwich eastward", {"40", "-74", "-33", "18"}, -74, 18, -86, 30},
        {"west of Greenwich", {"20", "-30", "30", "-60"}, 330, 300, 288, 342},
        {"from -180 westward", {"20", "-180", "30", "165"}, 180, 165, 153, 192},
        {"from Greenwich to 180", {"20", "0", "30", "180"}, 0, -180, -192, 12},
        {"from 180 to Greenwich", {"20", "-180", "30", "0"}, 180, 0, -12, 192},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const GCChart chart = DrawWPs(CalculateGC({row.boxes}).route);
        EXPECT_NEAR(chart.route.front().longitude, row.first, 1e-9);
        EXPECT_NEAR(chart.route.back().longitude, row.last, 1e-9);
        EXPECT_NEAR(chart.scale.left, row.left, 1e-9);
        EXPECT_NEAR(chart.scale.right, row.right, 1e-9);
        for (std::size_t i = 1; i < chart.route.size(); ++i)
            EXPECT_LE(std::fabs(chart.route[i].longitude - chart.route[i - 1].longitude), 10);
        EXPECT_EQ(chart.rhumbLine.front().longitude, chart.route.front().longitude);
        EXPECT_EQ(chart.rhumbLine.back().longitude, chart.route.back().longitude);
        for (const ChartPoint& point : chart.route) {
            EXPECT_LE(point.lat, chart.scale.top - 2 + 1e-9);
            EXPECT_GE(point.lat, chart.scale.bottom + 3 - 1e-9);
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
