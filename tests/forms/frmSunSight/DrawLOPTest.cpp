// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/fix/DrawLOP.h"

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

// By hand: the foot 11.1 miles from the middle towards 124.3, the arrow six miles further.
TEST(DrawLOP, footArrowAndEllipseAreThoseOfLineAndFix)
{
    const SightFixResult fix = fixOf({morning2020, noon2020}, track2020);
    const SightPlot plot = DrawLOP(fix);
    const PlotLine& morning = plot.lines[0];
    EXPECT_NEAR(morning.foot.x, 9.17, 0.05);
    EXPECT_NEAR(morning.foot.y, -6.25, 0.05);
    EXPECT_NEAR(morning.arrowTo.x, 14.13, 0.05);
    EXPECT_NEAR(morning.arrowTo.y, -9.64, 0.05);
    EXPECT_EQ(plot.lines[1].index, 1U);
    for (const PlotLine& line : plot.lines)
        EXPECT_TRUE(isInside(line.labelAt)) << line.label;

    // From the DR position at the time of the fix, 30 miles west of 14-02 N 52-11 W.
    const Position& middle = *plot.middle;
    EXPECT_EQ(plot.DRLabel, "DR 1530");
    EXPECT_NEAR(plot.fix->at.y, (fix.fix->position.latitude - middle.latitude).value() * 60, 1e-9);
    EXPECT_NEAR(
        plot.fix->at.x,
        (fix.fix->position.longitude - middle.longitude).value() * 60 * cos(middle.latitude), 1e-9);
    const ErrorEllipse& ellipse = *fix.fix->ellipse;
    double longest = 0, shortest = 100, axis = 0;
    for (const PlotPoint& point : plot.fix->ellipse) {
        const double x = point.x - plot.fix->at.x, y = point.y - plot.fix->at.y;
        shortest = std::min(shortest, std::hypot(x, y));
        if (std::hypot(x, y) <= longest) continue;
        longest = std::hypot(x, y);
        axis = std::atan2(x, y) * 180 / 3.14159265358979;
    }
    EXPECT_NEAR(longest, ellipse.semiMajor.value(), 1e-6);
    EXPECT_NEAR(shortest, ellipse.semiMinor.value(), 1e-6);
    EXPECT_NEAR(std::remainder(axis - ellipse.majorAxis.value(), 180), 0, 1e-6);
    EXPECT_NEAR(plot.fix->ellipse.front().x, plot.fix->ellipse.back().x, 1e-9) << "closed";
}

// A line is said to be advanced when the ship moves and it is more than a minute older than the
// fix.
TEST(DrawLOP, labelsTellWhatWasRunOn)
{
    const Position place{Degrees(14), Degrees(-52)};
    const struct {
        const char *speed, *first, *label;
    } cases[] = {{"8", "12:31:30", "1231-1233"},
                 {"8", "12:32:10", "1232"},
                 {"0.5", "12:31:30", "1231-1233"},
                 {"0", "12:31:30", "1231"}};
    for (const auto& each : cases) {
        const SightPlot plot = DrawLOP(fixOf(
            {seenFrom(place, "2020/12/17", each.first), seenFrom(place, "2020/12/17", "12:33:00")},
            {"14", "-52", "", "271", each.speed}));
        EXPECT_EQ(plot.lines[0].label, each.label) << each.speed;
        EXPECT_EQ(plot.lines[1].label, "1233");
    }
}

// The widest steps of round minutes that leave ten lines at most, by hand: what is seen of the
// longitude is twice half / cos latitude.
TEST(DrawLOP, gridStandsOnRoundMinutes)
{
    const struct {
        double latitude, half;
        int parallels, meridians; // minutes from one to the next
    } cases[] = {{0, 2, 1, 1},      {0, 5, 1, 2},       {0, 10, 2, 5},      {0, 10.1, 5, 5},
                 {0, 25.1, 10, 10}, {0, 40, 10, 10},    {60, 40, 10, 20},   {60, 60, 20, 30},
                 {60, 90, 20, 60},  {60, 160, 60, 120}, {80, 180, 60, 300}, {85, 200, 60, 600}};
    for (const auto& each : cases) {
        SightFixResult fix;
        fix.DR = Position{Degrees(each.latitude + 0.01), Degrees(20.01)};
        const SightPlot plot = DrawLOP(fix, {{3, -2}, each.half});
        std::vector<double> norths, easts;
        for (const PlotGridLine& line : plot.grid) {
            const bool isMeridian = line.from.x == line.to.x;
            const double middle = isMeridian ? 3 : -2;
            const PlotPoint& from = line.from;
            EXPECT_LE(std::fabs((isMeridian ? from.x : from.y) - middle), each.half + 1e-9);
            EXPECT_NEAR(isMeridian ? line.to.y - from.y : line.to.x - from.x, 2 * each.half, 1e-9);
            EXPECT_NEAR(isMeridian ? from.y + 2 : from.x - 3, -each.half, 1e-9);
            (isMeridian ? easts : norths)
                .push_back(isMeridian ? from.x / cos(fix.DR->latitude) + 20.01 * 60
                                      : from.y + fix.DR->latitude.value() * 60);
        }
        const auto expectSteps = [&](const std::vector<double>& minutes, int step, double wide) {
            ASSERT_FALSE(minutes.empty());
            EXPECT_GE(minutes.size(), std::floor(wide / step)) << each.latitude << " " << each.half;
            for (std::size_t i = 0; i < minutes.size(); ++i) {
                EXPECT_NEAR(std::remainder(minutes[i], step), 0, 1e-6) << each.half;
                EXPECT_NEAR(minutes[i], minutes[0] + double(i) * step, 1e-6) << each.half;
            }
        };
        expectSteps(easts, each.meridians, 2 * each.half / cos(fix.DR->latitude));
        if (each.latitude + each.half / 60 < 90)
            expectSteps(norths, each.parallels, 2 * each.half);
        else
            EXPECT_NEAR(norths.back(), 90 * 60, 1e-6) << "none beyond the pole";
    }
    SightFixResult polar;
    polar.DR = Position{Degrees(89), Degrees(0)};
    const SightPlot plot = DrawLOP(polar, {{}, 100});
    EXPECT_EQ(plot.grid.back().label, "90-.00'0N");
    EXPECT_EQ(cursorTexts(plot, {0, 59}).latitude, "  89.-59'0N");
    EXPECT_EQ(cursorTexts(plot, {0, 61}).latitude, "") << "beyond the pole";
}

TEST(DrawLOP, viewOfAllHoldsFeetArrowsAndFix)
{
    SightPlot plot;
    EXPECT_EQ(viewOfAll(plot).half, 2) << "the least";
    plot.lines.emplace_back();
    plot.lines[0].foot = {10, 4};
    plot.lines[0].arrowTo = {16, 4};
    plot.fix = PlotFix{{0, -30}, {}, ""};
    // From 0 to 16 and from -30 to 4, with a rim of a fifth.
    PlotView all = viewOfAll(plot);
    EXPECT_EQ(all.centre.x, 8);
    EXPECT_EQ(all.centre.y, -13);
    EXPECT_NEAR(all.half, 20.4, 1e-9);
    plot.lines[0].arrowTo = {16, 30};
    plot.lines[0].foot = {-40, 4};
    all = viewOfAll(plot);
    EXPECT_EQ(all.centre.x, -12);
    EXPECT_EQ(all.centre.y, 0);
    EXPECT_NEAR(all.half, 36, 1e-9);
    plot.lines[0].foot = {900, 0};
    EXPECT_EQ(viewOfAll(plot).half, 200) << "the most";
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
