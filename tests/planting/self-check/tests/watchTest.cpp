// SPDX-License-Identifier: MIT
#include "room/watch.h"

#include <gtest/gtest.h>

TEST(Watches, beginAndForget)
{
    Watches watches;
    watches.begin(23);
    watches.begin(24);
    watches.begin(8);
    EXPECT_EQ(watches.count(), 2);
    EXPECT_EQ(watches.hourOf(0), 23);
    EXPECT_EQ(watches.hourOf(1), 8);
    watches.forget();
    EXPECT_EQ(watches.count(), 0);
}

TEST(Watch, night)
{
    EXPECT_FALSE(isNight(20, false));
    EXPECT_TRUE(isNight(21, false));
    EXPECT_TRUE(isNight(12, true));
}

TEST(Watch, figures)
{
    EXPECT_EQ(endOfWatch(5), 8);
    EXPECT_EQ(endOfWatch(100), -1);
    EXPECT_EQ(endOfSecond(12), 20);
    EXPECT_EQ(ofTwoDays(9), 4.5);
    EXPECT_EQ(later(2, 3), 3);
    EXPECT_EQ(smaller(2, 3), 2);
    EXPECT_EQ(smaller(3, 2), 2);
}
