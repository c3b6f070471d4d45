// SPDX-License-Identifier: MIT
#include "app/records/PlannedSights.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;

PlannedSight planned(const char* body, const char* utc, double altitude, double azimuth)
{
    return {body, readIso(utc).value(), Degrees(altitude), Degrees(azimuth)};
}

TEST(PlannedSights, comeBackFromTheirFile)
{
    const PlannedSights sights = {planned("Capella", "1978-02-28T12:20:26Z", 50.10667, 350.25),
                                  planned("Al Na'ir; west=1", "1978-02-28T12:27:17Z", 90, 0)};
    const auto read = readPlannedSights(plannedSightsText(sights));
    EXPECT_EQ(read.sights, sights);
    EXPECT_EQ(read.damage, "");
    EXPECT_TRUE(readPlannedSights(plannedSightsText({})).sights.empty());
    const PlannedSights many(mostPlannedSights + 1, sights[0]);
    EXPECT_EQ(readPlannedSights(plannedSightsText(many)).sights.size(), mostPlannedSights);
}

TEST(PlannedSights, whatIsDamagedIsNamedAndTheRestRead)
{
    const std::string head = "KORVEL2000 planned sights 1\n";
    const std::string sound = "sight=1978-02-28T12:20:26Z;50;350;Capella\n";
    const auto lineOf = [&](const std::string& bad) {
        const auto read = readPlannedSights(head + sound + bad + "\n" + sound + "later=1\n");
        EXPECT_EQ(read.sights.size(), 2u) << bad;
        return read.damage;
    };
    for (const char* bad :
         {"sight=", "sight=yesterday;50;350;Capella", "sight=1978-02-28;50;350",
          "sight=1978-02-28T12:20:26Z;91;350;Capella", "sight=1978-02-28T12:20:26Z;50;;Capella",
          "sight=1978-02-28T12:20:26Z;50;350;"})
        EXPECT_EQ(lineOf(bad), "line 3") << bad;
    EXPECT_EQ(readPlannedSights(sound).damage, "line 1: these are no planned sights");
}

} // namespace
} // namespace korvel
