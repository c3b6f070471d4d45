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
    EXPECT_EQ(CalculateSeaState("14.01"), "9-Phenomenal");
    EXPECT_EQ(CalculateSwell("2"), "Mod./Rough swell");
    EXPECT_EQ(CalculateSwell("abc"), "No swell");
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

TEST(CalculateWeather, everyLetterInBothLanguages)
{
    const char* const expected[] = {
        "b Blue sky 快晴",
        "bc Blue sky with clouds 晴",
        "c Cloudy 薄曇",
        "d Drizzling rain 細雨",
        "e Wet 湿潤",
        "f Fog 霧",
        "g Gloomy 陰鬱",
        "h Hail 霞",
        "l Lightening 電光",
        "m Mist もや",
        "o Overcast sky 雲",
        "p Passing shower 時雨",
        "q Squall 早手",
        "r Rain 雨",
        "s Snow 雪",
        "t Thunder 雷",
        "u Ugly weather 天候険悪",
        "v Unusual visibility 空気透明",
        "w Dew 露",
        "z Haze 煙霧",
    };
    for (std::size_t i = 0; i < std::size(expected); ++i)
        EXPECT_EQ(CalculateWeatherTerm(i), expected[i]);
    EXPECT_EQ(CalculateWeatherTerm(20), "");
}

} // namespace
} // namespace korvel
