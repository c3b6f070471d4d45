// SPDX-License-Identifier: MIT
#include "app/records/ObservedFix.h"
#include "app/reading/Instant.h"
#include "navlib/units.h"

#include <gtest/gtest.h>

#include <string>

namespace korvel
{
namespace
{

using NavFunc113::DegMin;

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

} // namespace
} // namespace korvel
