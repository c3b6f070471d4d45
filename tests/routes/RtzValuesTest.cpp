// SPDX-License-Identifier: MIT
#include "routes/files/RtzValues.h"

#include <gmock/gmock.h>

#include <chrono>

namespace korvel
{
namespace
{

using std::chrono::milliseconds;
using std::chrono::minutes;
using std::chrono::seconds;

TEST(RtzValues, staysAreReadInBothFormsAndNothingElseIs)
{
    const struct {
        const char* text;
        std::optional<Span> stay;
    } cases[] = {
        {"06:30:00", minutes(390)},
        {" 23:59:59\n", seconds(86399)},
        {"PT6H30M", minutes(390)},
        {"P1DT30M", minutes(1470)},
        {"P2D", minutes(2880)},
        {"PT1.5S", milliseconds(1500)},
        {"PT0S", seconds(0)},
        // Cut off, without a number, out of order, twice, on the wrong side of the T, of no length.
        {"P", {}},
        {"PT", {}},
        {"P1DT", {}},
        {"PT5", {}},
        {"PTH", {}},
        {"PT1.2.3H", {}},
        {"PT5M6H", {}},
        {"PT5M6M", {}},
        {"P5H", {}},
        {"PT5D", {}},
        {"PTT5H", {}},
        {"P1Y", {}},
        {"P1M", {}},
        {"-PT5H", {}},
        {"25:00:00", {}},
        {"", {}},
    };
    for (const auto& each : cases)
        EXPECT_EQ(readStay(each.text), each.stay) << each.text;
}

TEST(RtzValues, staysAreWrittenAsEachVersionHasThem)
{
    const struct {
        Span stay;
        const char *asTime, *asDuration;
    } cases[] = {
        {seconds(0), "00:00:00", "PT0S"},
        {seconds(59), "00:00:59", "PT59S"},
        {minutes(390), "06:30:00", "PT6H30M"},
        {milliseconds(3599600), "01:00:00", "PT1H"},
        {seconds(86399), "23:59:59", "PT23H59M59S"},
        {seconds(86400), "", "PT24H"}, // no time of day is that long
    };
    for (const auto& each : cases) {
        EXPECT_EQ(stayText(each.stay, RtzVersion::V1_0), each.asTime);
        EXPECT_EQ(stayText(each.stay, RtzVersion::V1_1), each.asDuration);
    }
}

} // namespace
} // namespace korvel
