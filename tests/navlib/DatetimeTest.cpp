// SPDX-License-Identifier: MIT
#include "navlib/datetime.h"

#include "navlib/arithmetic_error.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace NavFunc113
{
namespace
{

TEST(Datetime, serialsOfKnownDates)
{
    const struct {
        CivilDate date;
        std::int64_t serial;
    } rows[] = {{{1899, 12, 30}, 0},    {{1900, 1, 1}, 2},       {{2000, 2, 29}, 36585},
                {{2002, 10, 1}, 37530}, {{2005, 12, 31}, 38717}, {{1899, 12, 29}, -1}};
    for (const auto& [date, serial] : rows) {
        EXPECT_EQ(DaySerial(date), serial);
        const CivilDate back = DateOfSerial(serial);
        EXPECT_EQ(back.year, date.year);
        EXPECT_EQ(back.month, date.month);
        EXPECT_EQ(back.day, date.day);
    }
    EXPECT_FALSE(IsCivilDate({2001, 2, 29}));
    EXPECT_FALSE(IsCivilDate({2001, 13, 1}));
    EXPECT_FALSE(IsCivilDate({2001, 4, 31}));
    EXPECT_TRUE(IsCivilDate({2000, 2, 29}));
}

TEST(Datetime, everyMinuteOfADaySurvivesItsFraction)
{
    for (int minute = 0; minute < 1440; ++minute) {
        const TimeOfDay time = TimeOf(38000 + minute / 1440.0);
        ASSERT_EQ(time.hour * 60 + time.minute, minute);
        ASSERT_EQ(time.second, 0);
    }
    EXPECT_EQ(DateOf(38716.9999999).day, 31) << "a hair before midnight belongs to the new day";
    EXPECT_EQ(TimeOf(-0.25).hour, 18) << "days before the first one count their time forwards";
    EXPECT_THROW(TimeOf(1e300), ArithmeticError);
}

} // namespace
} // namespace NavFunc113
