// SPDX-License-Identifier: MIT
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
