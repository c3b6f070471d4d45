// SPDX-License-Identifier: MIT
#include "forms/frmSunMoon/CalculateRiseSet.h"

#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;

RiseSetResult calculate(const RiseSetInput& input)
{
    RiseSetRow row;
    return CalculateRiseSet(input, row);
}

TEST(CalculateRiseSet, ageOfTheMoonAtNoon)
{
    const auto row = calculate({"2024/6/21", "Tokyo", "9", "35.393", "139.447"});
    EXPECT_EQ(row.moonAge, "14.4") << "at 12:00 UT, 13 hours before full Moon";
    EXPECT_THAT(moonAgeTip(row.date), ::testing::HasSubstr("15.0 days since new Moon"))
        << "2024-06-06 12:38 UTC";
    EXPECT_EQ(row.notice, "");
}

TEST(CalculateRiseSet, whatBlanksARow)
{
    for (const Golden& row : golden("rise_set_rows")) {
        const auto result = calculate(
            {row.text("date"), "", row.text("TD"), row.text("latitude"), row.text("longitude")});
        const bool shown = row.tick("computed");
        EXPECT_EQ(result.successful, shown) << row;
        EXPECT_EQ(result.moonAge.has_value(), row.tick("age")) << row;
        EXPECT_EQ(result.sunRiseTime.text.empty(), !shown) << row;
        EXPECT_EQ(result.moonSetTime.text.empty() && result.moonSetTime.tip.empty(), !shown) << row;
    }
}

TEST(CalculateRiseSet, acceptedNumbersStayInTheRow)
{
    using namespace NavFunc113;
    RiseSetRow row{Hours(1), DegMin(2), DegMin(3)};
    CalculateRiseSet({"2024/6/21", "", "9", "35.3", "200"}, row);
    EXPECT_EQ(row.TD, Hours(9));
    EXPECT_EQ(row.latitude, DegMin(35.3));
    EXPECT_EQ(row.longitude, DegMin(3)) << "the refused one stays as it was";
    CalculateRiseSet({"2024/6/21", "", "9", "35.3", "139"}, row);
    EXPECT_NEAR(row.latitude.packed(), 35.3 + 4e-10, 1e-14) << "moved once by each search";
}

TEST(CalculateRiseSet, midnightOfADayWithoutMoonriseIsExplained)
{
    int midnight = 0;
    for (int day = 1; day <= 31; ++day) {
        const auto row =
            calculate({"2024/1/" + std::to_string(day), "Yokohama", "9", "35.27", "139.39"});
        if (row.moonRiseTime.text != "0000LT") continue;
        ++midnight;
        EXPECT_FALSE(row.moonRiseTime.tip.empty());
    }
    EXPECT_GE(midnight, 1);
}

TEST(CalculateRiseSet, faultOfTheMoonBlanksItsEventsOnly)
{
    // The Moon's declination went beyond 28 degrees in 2006.
    int faults = 0;
    for (int day = 1; day <= 30; ++day) {
        const auto row = calculate({"2006/9/" + std::to_string(day), "Norway", "1", "63", "10"});
        ASSERT_TRUE(row.successful);
        EXPECT_FALSE(row.sunRiseTime.text.empty());
        EXPECT_FALSE(row.sunSetAz.text.empty());
        if (!row.moonRiseTime.text.empty()) continue;
        ++faults;
        EXPECT_THAT(row.notice, HasSubstr("Norway: "));
        EXPECT_THAT(row.notice, HasSubstr("no moonrise that day at this latitude"));
    }
    EXPECT_GE(faults, 1);
    EXPECT_LE(faults, 14);
}

TEST(CalculateRiseSet, southernWholeDegreesAreTold)
{
    const auto whole = calculate({"2024/12/21", "", "-4", "-55", "-68"});
    EXPECT_THAT(whole.sunRiseAz.tip, HasSubstr("as typed <"));
    const auto aside = calculate({"2024/12/21", "", "-4", "-55.001", "-68"});
    EXPECT_EQ(aside.sunRiseTime.refined, "");
    EXPECT_EQ(whole.sunRiseTime.refined + "LT", aside.sunRiseTime.text);
    EXPECT_EQ(whole.sunRiseTime.tip, "Refined time of sunrise: " + aside.sunRiseTime.text)
        << "what the refined search says is right";
}

TEST(CalculateRiseSet, scrollBarAndDate)
{
    EXPECT_EQ(scrollOffset("2024/3/1", 45350.9, -366, 366), 2) << "45350 is 2024-02-28";
    EXPECT_EQ(scrollOffset("2023/2/26", 45350, -366, 366), std::nullopt);
    EXPECT_EQ(scrollOffset("2024/2/30", 45350, -366, 366), std::nullopt);
    EXPECT_EQ(scrolledDate(45350.9, 2), "2024/3/1");
}

} // namespace
} // namespace korvel
