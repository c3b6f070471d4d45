// SPDX-License-Identifier: MIT
#include "app/watch/clock/LocalTime.h"
#include "app/watch/clock/MakeComputerClock.h"
#include "navlib/datetime.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdlib>
#include <ctime>

namespace korvel
{
namespace
{

// Central European summer time holds from the last Sunday of March to that of October.
TEST(LocalTime, aClockIsSetToWhatItsZoneWillShow)
{
    const struct {
        NavFunc113::CivilDate date;
        int second;
        double hoursAhead;
    } rows[] = {{{2026, 1, 15}, 43200, 1},
                {{2026, 7, 15}, 43200, 2},
                {{2005, 12, 31}, 86399, 1},
                {{1900, 1, 1}, 3723, 1},
                {{9999, 12, 31}, 0, 1}};
    setenv("TZ", "CET-1CEST,M3.5.0,M10.5.0/3", 1);
    for (const auto& [date, second, hoursAhead] : rows) {
        const auto days = NavFunc113::DaySerial(date) - NavFunc113::DaySerial({1970, 1, 1});
        EXPECT_EQ(static_cast<double>(instantOfLocalTime(NavFunc113::MakeDateTime(date, second))),
                  static_cast<double>(days) * 86400 + second - hoursAhead * 3600)
            << date.year;
    }
    unsetenv("TZ");
}

TEST(LocalTime, readsTheComputersClockByWhateverZoneItHasNow)
{
    const auto clock = makeComputerClock();
    const struct {
        const char* zone;
        double ahead;
    } rows[] = {{"UTC0", 0}, {"JST-9", 9}, {"NST3:30", -3.5}, {"NPT-5:45", 5.75}};
    for (const auto& row : rows) {
        setenv("TZ", row.zone, 1);
        const double utc = NavFunc113::MakeDateTime({1970, 1, 1}, double(std::time(nullptr)));
        EXPECT_EQ(clock->hoursAheadOfUTC(), row.ahead) << row.zone;
        EXPECT_NEAR((clock->now() - utc) * 86400, row.ahead * 3600, 2) << row.zone;
    }
    unsetenv("TZ");
    EXPECT_NE(clock->set(0), std::nullopt) << "a trial sets no clock";
}

} // namespace
} // namespace korvel
