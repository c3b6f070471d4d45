// SPDX-License-Identifier: MIT
#include "forms/frmUKC/KeelTide.h"

#include "navlib/datetime.h"
#include "tests/forms/frmTIDE/TideFolder.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using NavFunc113::Hours;

TEST(TideWeeks, theDaysAreThoseOfTheStationAndOfItsFiles)
{
    korvel::testing::FakeFiles files = TideFolder::shipped();
    TideWeeks weeks(files);
    const TideBoxes boxes{"", "yokoh", "", ""};
    const NavFunc113::DateTime midnight =
        static_cast<double>(NavFunc113::DaySerial({2005, 5, 5})) - 9.0 / 24; // there, in UTC
    EXPECT_EQ(weeks.week(boxes, midnight - 1.0 / 1440).days.front().four.serial,
              NavFunc113::DaySerial({2005, 5, 4}));
    EXPECT_EQ(weeks.week(boxes, midnight + 1.0 / 1440).days.front().four.serial,
              NavFunc113::DaySerial({2005, 5, 5}));
    weeks.forget();
    files.files.erase("AF2005.txt");
    EXPECT_FALSE(weeks.week(boxes, midnight + 1.0 / 1440).isThere());
    files.files["AF2005.txt"] = TideFolder::shippedFactors();
    weeks.forget();
    EXPECT_TRUE(weeks.week(boxes, midnight + 1.0 / 1440).isThere());
}

TEST(TideWeeks, aDayByFourConstituentsSaysSo)
{
    TideWeek week;
    EXPECT_FALSE(week.isOfAll());
    week.days.emplace_back();
    EXPECT_STREQ(week.method(), "four constituents");
}

TEST(TideWeeks, aMomentIsNoTimeToPass)
{
    TideWeeks weeks(TideFolder::shipped());
    const TideWeek& week = weeks.week({"", "yokoh", "2005/5/5", ""}, 38000);
    int highest = 1;
    for (int minute = 1; minute < 24 * 60; ++minute)
        if (week.at(0, Hours(minute / 60.0)) > week.at(0, Hours(highest / 60.0))) highest = minute;
    const double top = week.at(0, Hours(highest / 60.0));
    for (const double below : {1e-9, 1e-6, 3e-6, 1e-5, 2e-5, 5e-5}) // about one minute alone
        for (const HoursSpan& span : hoursAbove(week, 0, top - below))
            EXPECT_LT(span.from, span.to) << below;
    const auto spans = hoursAbove(week, 0, top - 0.01);
    ASSERT_EQ(spans.size(), 1U);
    EXPECT_LT(spans[0].from, Hours(highest / 60.0));
    EXPECT_GT(spans[0].to, Hours(highest / 60.0));
}

} // namespace
} // namespace korvel
