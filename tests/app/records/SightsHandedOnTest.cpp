// SPDX-License-Identifier: MIT
// Files by which the windows of sights and of the sky hand on what they found.
#include "app/reading/Instant.h"
#include "app/records/ObservedFix.h"
#include "app/records/PlannedSights.h"
#include "navlib/units.h"

#include <gtest/gtest.h>

#include <string>

namespace korvel
{
namespace
{

using NavFunc113::DegMin;
using NavFunc113::Degrees;

const std::string fixesHead = "KORVEL2000 observed fixes 1\n";
const std::string soundFix =
    "fix=1978-02-28T12:20:26Z;35.305;-139.4523;stars;0.5 miles, 0.3 miles\n";

TEST(ObservedFixes, comeBackFromTheirFile)
{
    const ObservedFix fix{DegMin(35.305), DegMin(-139.4523), *readIso("1978-02-28T12:20:26Z"),
                          "stars", "0.5 miles; 0.3 miles"};
    EXPECT_EQ(observedFixesText({fix}), fixesHead + soundFix) << "a semicolon would part the words";
    const auto read = readObservedFixes(observedFixesText({fix}));
    ASSERT_EQ(read.fixes.size(), 1u);
    EXPECT_EQ(read.damage, "");
    EXPECT_EQ(observedFixesText(read.fixes), fixesHead + soundFix);
    EXPECT_EQ(read.fixes[0].utc, fix.utc);
    EXPECT_EQ(observedFixText(read.fixes[0]), "stars; 0.5 miles, 0.3 miles");
    EXPECT_EQ(observedFixText({{}, {}, {}, "sun", ""}), "sun; no ellipse");

    ObservedFixes many(mostObservedFixes, fix);
    EXPECT_EQ(readObservedFixes(observedFixesText(many)).fixes.size(), mostObservedFixes);
    many.push_back(fix);
    many.front().kind = "the oldest";
    many.back().kind = "the latest";
    const auto latest = readObservedFixes(observedFixesText(many)).fixes;
    EXPECT_EQ(latest.size(), mostObservedFixes);
    EXPECT_EQ(latest.front().kind, "stars");
    EXPECT_EQ(latest.back().kind, "the latest");
}

TEST(ObservedFixes, whatIsDamagedIsNamedAndTheRestRead)
{
    for (const char* bad :
         {"fix=", "fix=yesterday;35;139;stars;", "fix=1978-02-28T12:20:26Z;35;139;stars",
          "fix=1978-02-28T12:20:26Z;90.1;139;stars;", "fix=1978-02-28T12:20:26Z;-90.1;139;stars;",
          "fix=1978-02-28T12:20:26Z;35;180.1;stars;", "fix=1978-02-28T12:20:26Z;35;-180.1;stars;",
          "fix=1978-02-28T12:20:26Z;;139;stars;"}) {
        const auto read = readObservedFixes(
            std::string(fixesHead).append(soundFix).append(bad).append("\n").append(soundFix) +
            "later=1\n");
        EXPECT_EQ(read.damage, "line 3") << bad;
        EXPECT_EQ(read.fixes.size(), 2u) << bad;
    }
    for (const char* ends :
         {"fix=1978-02-28T12:20:26Z;90;180;stars;\n", "fix=1978-02-28T12:20:26Z;-90;-180;stars;\n"})
        EXPECT_EQ(readObservedFixes(fixesHead + ends).damage, "");
    EXPECT_EQ(readObservedFixes(soundFix).damage, "line 1: these are no observed fixes");
}

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
          "sight=1978-02-28T12:20:26Z;91;350;Capella", "sight=1978-02-28T12:20:26Z;50;361;Capella",
          "sight=1978-02-28T12:20:26Z;50;;Capella", "sight=1978-02-28T12:20:26Z;50;350;"})
        EXPECT_EQ(lineOf(bad), "line 3") << bad;
    EXPECT_EQ(readPlannedSights(sound).damage, "line 1: these are no planned sights");
}

} // namespace
} // namespace korvel
