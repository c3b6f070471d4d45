// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/SightFix.h"

#include "app/reading.h"
#include "forms/frmSunSight/DrawLOP.h"
#include "tests/forms/frmSunSight/WorkedSights.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace worked;
using testing::HasSubstr;

TEST(CalculateFix, publishedRunningFixesFromRawReadings)
{
    const SightFixResult first = CalculateFix(listOf({noon2020, morning2020}), track2020, {});
    ASSERT_TRUE(first.fix) << first.notice;
    EXPECT_LT(milesBetween(*first.fix, 14.060, -52.258), 0.3);
    EXPECT_THAT(first.time, testing::StartsWith("R FIX 2020/12/17 15:30:00 UTC, run 0-03:44:49"));
    EXPECT_THAT(first.latitude, testing::StartsWith("14-.0"));
    EXPECT_NEAR(readNumber(first.memoLongitude), -52.258, 0.003);
    EXPECT_THAT(first.sigmaText, HasSubstr("assumed, not measured: 1.0 nm"));
    EXPECT_NEAR(first.ellipse.semiMajor.value(), 5.28, 0.05) << "with the errors of the run";
    EXPECT_EQ(first.notice, "");

    const SightFixResult second = CalculateFix(listOf({morning1990, noon1990}), track1990, {});
    ASSERT_TRUE(second.fix) << second.notice;
    EXPECT_LT(milesBetween(*second.fix, 13.423, -45.056), 0.3);
}

TEST(CalculateFix, sightsSwitchedOffDoNotCount)
{
    SightList list = listOf({morning2020, noon2020});
    list.setOn(0, false);
    const SightFixResult one = CalculateFix(list, track2020, {});
    EXPECT_FALSE(one.fix);
    EXPECT_EQ(one.lines.size(), 1U);
    EXPECT_THAT(one.notice, HasSubstr("two lines at least"));

    SightTexts again = noon2020;
    again.time = "15:30:40";
    const SightFixResult parallel = CalculateFix(listOf({noon2020, again}), track2020, {});
    EXPECT_TRUE(!parallel.fix || parallel.notice.find("Small cut angle") != std::string::npos);

    TrackTexts none = track2020;
    none.latitude = "";
    EXPECT_THAT(CalculateFix(listOf({morning2020, noon2020}), none, {}).notice,
                HasSubstr("No fix: the DR position"));
}

TEST(CalculateFix, sigmaIsCalledWhatItIs)
{
    SightTexts third = noon2020;
    third.time = "13:30:00";
    third.Hs = "44.10";
    const SightList list = listOf({morning2020, third, noon2020});
    const SightFixResult assumed = CalculateFix(list, track2020, {"0.5", "", "", false});
    const SightFixResult measured = CalculateFix(list, track2020, {"0.5", "", "", true});
    EXPECT_THAT(assumed.sigmaText, HasSubstr("assumed, not measured: 0.5 nm"));
    EXPECT_THAT(assumed.sigmaText, HasSubstr("the residuals say"));
    EXPECT_THAT(measured.sigmaText, HasSubstr("measured from the residuals of 3 lines"));
    EXPECT_NE(assumed.ellipse.semiMajor, measured.ellipse.semiMajor);
    const SightFixResult two =
        CalculateFix(listOf({morning2020, noon2020}), track2020, {"", "", "", true});
    EXPECT_THAT(two.sigmaText, HasSubstr("three lines at least"));
    EXPECT_THAT(CalculateFix(list, track2020, {"0", "", "", false}).notice,
                HasSubstr("Sigma of a line: not within"));
}

TEST(DrawLOP, linesGridAndReadOut)
{
    const SightFixResult fix = CalculateFix(listOf({morning2020, noon2020}), track2020, {});
    const SightPlot plot = DrawLOP(fix);
    ASSERT_EQ(plot.lines.size(), 2U);
    EXPECT_EQ(plot.lines[0].label, "1145-1530");
    EXPECT_EQ(plot.lines[1].label, "1530");
    EXPECT_EQ(plot.fixLabel, "R FIX 1530");
    EXPECT_TRUE(plot.lines[1].circle) << "at 52 degrees the line bends more than 0.3 miles";
    EXPECT_FALSE(plot.lines[0].circle);
    // Both drawn lines pass through the drawn fix.
    for (const PlotLine& line : plot.lines) {
        double nearest = 99;
        for (std::size_t i = 1; i < line.points.size(); ++i) {
            const PlotPoint a = line.points[i - 1], b = line.points[i];
            const double length = std::hypot(b.x - a.x, b.y - a.y);
            const double s =
                ((plot.fix->x - a.x) * (b.x - a.x) + (plot.fix->y - a.y) * (b.y - a.y)) /
                (length * length);
            if (s < 0 || s > 1) continue;
            nearest = std::min(nearest, std::fabs((plot.fix->x - a.x) * (b.y - a.y) -
                                                  (plot.fix->y - a.y) * (b.x - a.x)) /
                                            length);
        }
        EXPECT_LT(nearest, 0.3);
        EXPECT_TRUE(line.visible);
    }
    EXPECT_EQ(plot.grid.size(), 16U) << "eight each way, ten minutes apart";
    for (const PlotGridLine& line : plot.grid) {
        EXPECT_LE(std::fabs(line.from.x), SightPlot::half);
        EXPECT_THAT(line.label, HasSubstr("0'0"));
    }
    const CursorTexts cursor = cursorTexts(plot, *plot.fix);
    EXPECT_THAT(cursor.latitude, testing::StartsWith("  14.-0"));
    EXPECT_THAT(cursor.longitude, testing::StartsWith("052.-2"));
    EXPECT_EQ(cursorTexts(plot, {0, 41}).latitude, "");
    EXPECT_TRUE(DrawLOP(CalculateFix({}, track2020, {})).lines.empty());
}

TEST(DrawLOP, acrossTheDateLine)
{
    SightFixResult fix;
    fix.UTC = 45000;
    fix.DR = NavFunc113::Position{NavFunc113::Degrees(0.1), NavFunc113::Degrees(179.9)};
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
    const SightPlot plot = DrawLOP(CalculateFix(listOf({morning2020, noon2020}), far, {}));
    EXPECT_THAT(plot.notice, HasSubstr("outside the plot"));
}

} // namespace
} // namespace korvel
