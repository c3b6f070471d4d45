// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/fix/DrawLOP.h"

#include "forms/frmSunSight/sight/CalculateLOP.h"
#include "tests/forms/frmSunSight/WorkedSights.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <sstream>

namespace korvel
{
namespace
{

using namespace worked;
using namespace NavFunc113;
using testing::golden;
using testing::Golden;
using ::testing::HasSubstr;

SightFixResult fixOf(std::initializer_list<SightTexts> sights, const TrackTexts& track)
{
    return CalculateFix(listOf(sights), track, {}, {});
}

Position onChart(const SightPlot& plot, const PlotPoint& point)
{
    const Degrees north = ArcOfMiles(Miles(point.y));
    const Degrees east = ArcOfMiles(Miles(point.x / cos(plot.middle->latitude)));
    return {plot.middle->latitude + north, plot.middle->longitude + east};
}

bool isInside(const PlotPoint& point)
{
    return std::fabs(point.x) <= 40 && std::fabs(point.y) <= 40;
}

/// The worst miss of a drawn line on the plot, between its points as well as at them.
double worstMiss(const SightPlot& plot, const PlotLine& drawn, const FixLine& line,
                 const Motion& motion)
{
    double worst = 0;
    for (const std::vector<PlotPoint>& run : drawn.runs)
        for (std::size_t i = 1; i < run.size(); ++i)
            for (const double part : {0.0, 0.5, 1.0}) {
                const PlotPoint at{run[i - 1].x + part * (run[i].x - run[i - 1].x),
                                   run[i - 1].y + part * (run[i].y - run[i - 1].y)};
                if (!isInside(at)) continue;
                const Position then = Advanced(onChart(plot, at), motion, line.sight.sinceFix);
                const Degrees seen =
                    PlaceAboveHorizon(line.sight.GHA, line.sight.declination, then).altitude;
                const Miles miss = MilesOfArc(fabs(seen - line.sight.observedAltitude));
                worst = std::max(worst, miss.value());
            }
    return worst;
}

TEST(DrawLOP, linesLieOnTheirCirclesAtEveryLatitude)
{
    for (const Golden& row : golden("plot_lines")) {
        const Position ship{row.degrees("latitude"), row.degrees("longitude")};
        SightList list;
        std::istringstream times(row.text("times"));
        for (std::string time; times >> time;)
            list.record(seenFrom(ship, row.text("date").c_str(), time.c_str(), 12));
        const TrackTexts track{Format(DegToDegMin(ship.latitude), "0.000"),
                               Format(DegToDegMin(ship.longitude), "0.000"), "", row.text("course"),
                               row.text("speed")};
        const SightFixResult fix = CalculateFix(list, track, {}, {});
        const SightPlot plot = DrawLOP(fix);
        ASSERT_EQ(plot.lines.size(), list.sights().size()) << row << fix.notice;
        for (std::size_t i = 0; i < plot.lines.size(); ++i) {
            const bool near = fabs(fix.lines[i].line.intercept) < Miles(40);
            EXPECT_TRUE(plot.lines[i].visible || !near) << row << plot.lines[i].label;
            for (const std::vector<PlotPoint>& run : plot.lines[i].runs) {
                const PlotPoint from = run.front(), to = run.back();
                const bool closed = std::hypot(from.x - to.x, from.y - to.y) < 0.1;
                EXPECT_TRUE(closed || !(isInside(from) || isInside(to)))
                    << row << "ends on the plot";
            }
            EXPECT_LT(worstMiss(plot, plot.lines[i], fix.lines[i], fix.motion), 0.3)
                << row << plot.lines[i].label;
        }
    }
}

TEST(DrawLOP, labelsGridAndReadOut)
{
    const SightPlot plot = DrawLOP(fixOf({morning2020, noon2020}, track2020));
    ASSERT_EQ(plot.lines.size(), 2U);
    EXPECT_EQ(plot.lines[0].label, "1145-1530");
    EXPECT_EQ(plot.lines[1].label, "1530");
    ASSERT_TRUE(plot.fix);
    EXPECT_EQ(plot.fix->label, "R FIX 1530");
    EXPECT_EQ(plot.fix->ellipse.size(), 73U);
    EXPECT_EQ(plot.grid.size(), 16U) << "eight each way, ten minutes apart";
    for (const PlotGridLine& line : plot.grid) {
        EXPECT_LE(std::fabs(line.from.x), 40);
        EXPECT_THAT(line.label, HasSubstr("0'0"));
    }
    const CursorTexts cursor = cursorTexts(plot, plot.fix->at);
    EXPECT_THAT(cursor.latitude, ::testing::StartsWith("  14.-0"));
    EXPECT_THAT(cursor.longitude, ::testing::StartsWith("052.-2"));
    EXPECT_EQ(cursorTexts(plot, {0, 41}).latitude, "");
    EXPECT_TRUE(DrawLOP(fixOf({}, track2020)).lines.empty());
    EXPECT_FALSE(DrawLOP(fixOf({}, {})).middle);
}

TEST(DrawLOP, acrossTheDateLine)
{
    SightFixResult fix;
    fix.UTC = 45000;
    fix.DR = Position{Degrees(0.1), Degrees(179.9)};
    const SightPlot plot = DrawLOP(fix);
    bool west = false, south = false;
    for (const PlotGridLine& line : plot.grid) {
        west = west || line.label.ends_with("W");
        south = south || line.label.ends_with("S");
    }
    EXPECT_TRUE(west && south);
    EXPECT_EQ(cursorTexts(plot, {30, -30}).longitude, "179.-36'0W");
    EXPECT_EQ(cursorTexts(plot, {30, -30}).latitude, "  00.-24'0S");
}

TEST(DrawLOP, whatLiesOutsideIsSaid)
{
    TrackTexts far = track2020;
    far.latitude = "15.30";
    const SightPlot plot = DrawLOP(fixOf({morning2020, noon2020}, far));
    EXPECT_THAT(plot.notice, ::testing::StartsWith("The fix lies outside the plot; Line"));

    // The scale that fits all lines shows them, with a grid that can still be read.
    const PlotView all = viewOfAll(plot);
    const SightPlot seen = DrawLOP(fixOf({morning2020, noon2020}, far), all);
    EXPECT_EQ(seen.notice, "");
    EXPECT_TRUE(all.shows(seen.fix->at) && all.shows({}) && seen.lines[1].visible);
    EXPECT_LE(seen.grid.size(), 24u);
    EXPECT_NE(cursorTexts(seen, seen.fix->at).latitude, "");
}

TEST(DrawLOP, zoomKeepsThePointUnderThePointer)
{
    const PlotPoint held{12, -30};
    const PlotView near = zoomed({}, 0.5, held);
    EXPECT_EQ(near.half, 20);
    EXPECT_EQ((held.x - near.centre.x) / near.half, 12.0 / 40);
    EXPECT_EQ((held.y - near.centre.y) / near.half, -30.0 / 40);
    EXPECT_EQ(zoomed(near, 1e-6, held).half, 2);
    EXPECT_EQ(zoomed(near, 1e6, held).half, 200);
    const SightPlot plot = DrawLOP(fixOf({morning2020}, track2020), zoomed({}, 0.1, {}));
    EXPECT_GE(plot.grid.size(), 8u);
}

} // namespace
} // namespace korvel
