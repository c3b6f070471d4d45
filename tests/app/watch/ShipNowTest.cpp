// SPDX-License-Identifier: MIT
#include "app/watch/ShipNow.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using NavFunc113::DegMin;
using NavFunc113::Degrees;
using NavFunc113::Earth;
using NavFunc113::Knots;

constexpr Span nine = std::chrono::hours(9);

Instant utc(const char* text)
{
    return readIso(text).value();
}

ShipNow ship(Degrees course, Knots speed)
{
    ShipNow now;
    now.tellFix({DegMin(35), DegMin(142), utc("2026-11-20T23:00:00Z")});
    now.tellMotion(ShipNow::Motion{course, speed});
    return now;
}

TEST(ShipNow, runsTheFixOn)
{
    const ShipNow now = ship(Degrees(0), Knots(12));
    const auto at = now.at(utc("2026-11-21T00:40:00Z"), nine, Earth::Sphere);
    EXPECT_NEAR(at->latitude.packed(), 35.2, 1e-9) << "20 miles north in 1 h 40 m";
    EXPECT_EQ(at->longitude, DegMin(142));
    EXPECT_EQ(at->how, "DR of 0940, fix 01 h 40 m old");
    EXPECT_EQ(now.at(utc("2026-11-20T22:00:00Z"), nine, Earth::Sphere)->how, "fix of 0800");
    const auto late = now.at(utc("2026-11-22T00:00:00Z"), nine, Earth::Sphere);
    EXPECT_EQ(late->latitude, DegMin(35)) << "beyond a day the fix itself";
    EXPECT_EQ(late->how, "fix of 0800, 1 d 01 h 00 m old");
    const auto aDay = now.at(utc("2026-11-21T23:00:00Z"), nine, Earth::Sphere);
    EXPECT_NEAR(aDay->latitude.packed(), 39.48, 1e-9) << "a day is run on";
    EXPECT_EQ(now.at(utc("2026-11-20T23:00:59Z"), nine, Earth::Sphere)->how, "fix of 0800");
    EXPECT_EQ(now.at(utc("2026-11-20T23:01:00Z"), nine, Earth::Sphere)->how,
              "DR of 0801, fix 00 h 01 m old");
    ShipNow still;
    still.tellFix(*now.fix());
    EXPECT_EQ(still.at(utc("2026-11-21T00:00:00Z"), nine, Earth::Sphere)->how,
              "fix of 0800, 01 h 00 m old");
    EXPECT_TRUE(still.tellMotion(now.motion()));
    EXPECT_FALSE(still.tellMotion(now.motion()));
    EXPECT_FALSE(ShipNow().at(utc("2026-11-22T00:00:00Z"), nine, Earth::Sphere));
    const ShipNow polar = ship(Degrees(0), Knots(100));
    EXPECT_NO_THROW(polar.at(utc("2026-11-21T22:00:00Z"), nine, Earth::Sphere));
}

TEST(ShipNow, aTypedPositionHoldsUntilALaterFix)
{
    ShipNow now = ship(Degrees(90), Knots(10));
    now.typeFix({DegMin(10), DegMin(20), utc("2026-11-21T02:00:00Z"), ShipNow::Source::Typed});
    EXPECT_FALSE(now.tellFix({DegMin(35), DegMin(142), utc("2026-11-21T01:00:00Z")}));
    EXPECT_EQ(now.fix()->latitude, DegMin(10));
    EXPECT_TRUE(now.tellFix({DegMin(36), DegMin(142), utc("2026-11-21T03:00:00Z")}));
    EXPECT_FALSE(now.tellFix({DegMin(36), DegMin(142), utc("2026-11-21T03:00:00Z")}));
}

TEST(ShipNow, comesBackFromItsFile)
{
    ShipNow now = ship(Degrees(73.5), Knots(14.25));
    now.typeFix(
        {DegMin(-35.30512), DegMin(-142.031), utc("2026-11-21T02:00:00Z"), ShipNow::Source::Typed});
    now.isShown = true;
    ShipNow again;
    EXPECT_EQ(again.take(now.recordText()), "");
    EXPECT_EQ(again.fix(), now.fix());
    EXPECT_EQ(again.motion(), now.motion());
    EXPECT_TRUE(again.isShown);
    const std::string head = "KORVEL2000 ship now 1\n";
    for (const auto& [bytes, damage] : std::vector<std::pair<std::string, std::string>>{
             {"nonsense", "line 1: it is no record of the ship"},
             {head + "latitude=95\nlongitude=0\nutc=2026-11-21T02:00:00Z\n", "line 2"},
             {head + "latitude=9\nlongitude\n", "line 3"},
             {head + "utc=yesterday\n", "line 2"},
             {head + "course=0\nspeed=-0.5\n", "line 3"},
             {head + "course=-0.5\nspeed=0\n", "line 2"},
             {head + "latitude=-90.5\nutc=2026-11-21T02:00:00Z\n", "line 2"},
             {head + "longitude=180.5\n\nlatitude=x\n", "line 2"},
             {head + "longitude=-180.5\n", "line 2"},
             {head + "course=360.5\n", "line 2"},
             {head + "speed=100.5\n", "line 2"},
             {head + "later=1\n", ""}}) {
        ShipNow broken;
        EXPECT_EQ(broken.take(bytes), damage);
        EXPECT_FALSE(broken.fix());
        EXPECT_FALSE(broken.motion());
    }
    EXPECT_EQ(now.recordText(), head + "latitude=-35.30512\nlongitude=-142.031\n"
                                       "utc=2026-11-21T02:00:00Z\nsource=typed\n"
                                       "course=73.5\nspeed=14.25\nshown=yes\n");
    for (const char* ends : {"latitude=90\nlongitude=180\nutc=2026-11-21T02:00:00Z\nsource=record\n"
                             "course=360\nspeed=100\n",
                             "latitude=-90\nlongitude=-180\nutc=2026-11-21T02:00:00Z\n"
                             "source=record\ncourse=0\nspeed=0\n"}) {
        ShipNow kept;
        EXPECT_EQ(kept.take(head + ends), "");
        EXPECT_EQ(kept.recordText(), head + ends);
    }
}

} // namespace
} // namespace korvel
