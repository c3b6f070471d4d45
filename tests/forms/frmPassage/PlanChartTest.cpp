// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanChart.h"

#include "navlib/angles.h"
#include "tests/forms/frmPassage/Plans.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace korvel::testing;

PlanReckoning reckoningOf(const std::string& rows)
{
    PassagePlan plan;
    plan.rows = planRows(rows);
    return {plan, {}};
}

PlanChart chartOf(const std::string& rows)
{
    return PlanChartMaker().chartOf(reckoningOf(rows));
}

TEST(PlanChart, goesAcross180InOnePiece)
{
    for (const char* rows : {"A 35 170 / B 35 -170 gc / C 35 -120", "A 35 -170 / B 35 170 gc",
                             "A 0 180 / B 10 -180 / C 0 -179", "A 35 170 / B - - / C 35 -170"}) {
        const PlanChart chart = chartOf(rows);
        for (const PlanChart::Leg& leg : chart.legs)
            for (std::size_t i = 1; i < leg.points.size(); ++i)
                EXPECT_LT(std::fabs(leg.points[i].x - leg.points[i - 1].x), 60) << rows;
        for (std::size_t i = 1; i < chart.marks.size(); ++i)
            EXPECT_LT(std::fabs(chart.marks[i].at.x - chart.marks[i - 1].at.x), 60) << rows;
    }
}

TEST(PlanChart, curvesAreThoseOfTheirLegs)
{
    const auto highest = [](const std::string& rows) {
        double y = -90;
        const PlanChart chart = chartOf(rows);
        for (const ChartSpot& spot : chart.legs.at(0).points)
            y = std::max(y, spot.y);
        return latitudeAtY(y).value();
    };
    EXPECT_NEAR(highest("A 41 -72 / B 41 0"), 41, 1e-9);
    EXPECT_NEAR(highest("A 41 -72 / B 41 0 co:44"), 44, 1e-6);
    // tan vertex = tan 41 / cos 36
    EXPECT_NEAR(highest("A 41 -72 / B 41 0 gc"), 47.05, 0.02);
}

TEST(PlanChart, isMadeAnewWhereThePlanChanged)
{
    PlanChartMaker maker;
    const auto lastY = [&](const std::string& rows) {
        return maker.chartOf(reckoningOf(rows)).legs.back().points.back().y;
    };
    EXPECT_NEAR(lastY("A 41 -72 / B 41 0 gc"), mercatorY(NavFunc113::Degrees(41)), 1e-9);
    EXPECT_NEAR(lastY("A 41 -72 / B 42 0 gc"), mercatorY(NavFunc113::Degrees(42)), 1e-9);
    EXPECT_EQ(maker.chartOf(reckoningOf("A 40 -72 / B 42 0 gc")).legs.back().points.front().y,
              mercatorY(NavFunc113::Degrees(40)));
    const auto highest = [&](const std::string& rows) {
        double y = -90;
        const PlanChart chart = maker.chartOf(reckoningOf(rows));
        for (const ChartSpot& spot : chart.legs.at(0).points)
            y = std::max(y, spot.y);
        return latitudeAtY(y).value();
    };
    EXPECT_NEAR(highest("A 41 -72 / B 41 0 co:44"), 44, 1e-6);
    EXPECT_NEAR(highest("A 41 -72 / B 41 0 co:46"), 46, 1e-6) << "another limit";
    EXPECT_EQ(maker.chartOf(reckoningOf("A 41 -72 / B 42 0")).legs.back().points.size(), 2u);
    EXPECT_TRUE(maker.chartOf(reckoningOf("")).isEmpty());
}

TEST(PlanChart, viewShowsAllAndKeepsWhatIsUnderThePointer)
{
    const PlanChart chart = chartOf("A 35 170 / B 10 -170 gc");
    const ChartView all = ChartView::ofAll(chart, 0.75);
    for (const PlanChart::Mark& mark : chart.marks) {
        EXPECT_LT(std::fabs(mark.at.x - all.centre.x), all.halfWidth);
        EXPECT_LT(std::fabs(mark.at.y - all.centre.y), all.halfWidth * 0.75);
    }
    const ChartSpot held = chart.marks[0].at;
    const ChartView near = all.zoomed(0.5, held);
    EXPECT_NEAR((held.x - near.centre.x) / near.halfWidth, (held.x - all.centre.x) / all.halfWidth,
                1e-9);
    EXPECT_NEAR((held.y - near.centre.y) / near.halfWidth, (held.y - all.centre.y) / all.halfWidth,
                1e-9);
    EXPECT_EQ(near.halfWidth, all.halfWidth / 2);
    EXPECT_GT(ChartView::ofAll(chartOf("A 35 170"), 1).halfWidth, 0);
}

TEST(PlanChart, graticuleHasRoundFigures)
{
    const auto texts = [](const std::vector<GraticuleLine>& lines) {
        std::string all;
        for (const GraticuleLine& line : lines)
            all += line.text + " ";
        return all;
    };
    EXPECT_EQ(texts(meridiansOf(165, 205, 5)), "170°E 180° 170°W 160°W ");
    EXPECT_EQ(texts(meridiansOf(-0.6, 0.6, 4)), "0°30'W 0° 0°30'E ");
    EXPECT_EQ(texts(parallelsOf(mercatorY(NavFunc113::Degrees(-12)),
                                mercatorY(NavFunc113::Degrees(12)), 5)),
              "10°S 5°S 0° 5°N 10°N ");
    // 1, 2, 5 and their tens; never longer than there is room for.
    double shorter = 0.1;
    for (const double tens : {0.1, 1.0, 10.0, 100.0, 1000.0})
        for (const double each : {1.0, 2.0, 5.0}) {
            const double round = each * tens;
            if (round < 0.2 || round > 2000) continue;
            EXPECT_DOUBLE_EQ(milesOfScaleBar(round), round);
            EXPECT_DOUBLE_EQ(milesOfScaleBar(round * 0.99), shorter);
            shorter = round;
        }
    EXPECT_EQ(milesOfScaleBar(9999), 2000);
}

} // namespace
} // namespace korvel
