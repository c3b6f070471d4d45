// SPDX-License-Identifier: MIT
#include "forms/frmWeather/CalculateWeather.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

TEST(CalculateWeather, captionsFollowTheBox)
{
    EXPECT_EQ(CalculateSeaState("1.5"), "4-Moderate");
    EXPECT_EQ(CalculateSeaState(""), "0-Calm");
    EXPECT_EQ(CalculateSwell("2"), "Mod./Rough swell");
    EXPECT_EQ(CalculateSwell("abc"), "No swell");
    EXPECT_EQ(CalculateWeatherTerm(1), "bc Blue sky with clouds 晴");
    EXPECT_EQ(CalculateWeatherTerm(20), "");
}

TEST(CalculateWeather, visibilityAlsoInMiles)
{
    const struct {
        const char* typed;
        const char* term;
        const char* miles;
    } rows[] = {
        {"1.852", "4-Thin fog", "1 nm"},       {"0.05", "1-Thick fog", "0 nm"},
        {"10", "7-Visivility good", "5.4 nm"}, {"50", "9-Visivility exceptional", "27 nm"},
        {"", "0-Dence fog", "0 nm"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.typed);
        const auto [term, miles] = CalculateVisibility(row.typed);
        EXPECT_EQ(term, row.term);
        EXPECT_EQ(miles, row.miles);
    }
}

} // namespace
} // namespace korvel
