// SPDX-License-Identifier: MIT
#include "navlib/weather_terms.h"

#include "tests/navlib/ByNumbers.h"

#include <gtest/gtest.h>

#include <string>

namespace NavFunc113
{
namespace
{

TEST(WeatherTerms, seaStateBoundsCloseAbove)
{
    const struct {
        double height;
        int code;
        std::string_view name;
    } rows[] = {{0, 0, "Calm"},       {-1, 1, "Rippled"},      {0.1, 1, "Rippled"},
                {0.11, 2, "Smooth"},  {0.5, 2, "Smooth"},      {1.25, 3, "Slight"},
                {1.5, 4, "Moderate"}, {2.5, 4, "Moderate"},    {2.51, 5, "Rough"},
                {4, 5, "Rough"},      {6, 6, "Very Rough"},    {9, 7, "High"},
                {14, 8, "Very High"}, {14.01, 9, "Phenomenal"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.height);
        EXPECT_EQ(SeaStateCode(Metres(row.height)), row.code);
        EXPECT_EQ(SeaStateName(Metres(row.height)), row.name);
    }
}

TEST(WeatherTerms, visibilityBoundsCloseBelow)
{
    const struct {
        double visibility;
        int code;
        std::string_view name;
    } rows[] = {{-1, 0, "Dence fog"},
                {0.049, 0, "Dence fog"},
                {0.05, 1, "Thick fog"},
                {0.2, 2, "Fog"},
                {0.5, 3, "Moderate fog"},
                {1, 4, "Thin fog"},
                {2, 5, "Visivility poor"},
                {4, 6, "Visivility moderate"},
                {9.99, 6, "Visivility moderate"},
                {10, 7, "Visivility good"},
                {20, 8, "Visivility very good"},
                {50, 9, "Visivility exceptional"}};
    for (const auto& row : rows) {
        SCOPED_TRACE(row.visibility);
        EXPECT_EQ(VisibilityCode(Kilometres(row.visibility)), row.code);
        EXPECT_EQ(VisibilityName(Kilometres(row.visibility)), row.name);
    }
}

TEST(WeatherTerms, swell)
{
    EXPECT_EQ(SwellTerm(Metres(-1)), "No swell");
    EXPECT_EQ(SwellTerm(Metres(0)), "No swell");
    EXPECT_EQ(SwellTerm(Metres(1.99)), "Slight swell");
    EXPECT_EQ(SwellTerm(Metres(2)), "Mod./Rough swell");
    EXPECT_EQ(SwellTerm(Metres(3.99)), "Mod./Rough swell");
    EXPECT_EQ(SwellTerm(Metres(4)), "Heavy swell");
}

TEST(WeatherTerms, lettersStandInTheOrderOfTheButtonsAndAreFoundByName)
{
    std::string order;
    for (const WeatherLetter& row : WeatherLetters())
        order += std::string(row.letter) + ' ';
    EXPECT_EQ(order, "b bc c d e f g h l m o p q r s t u v w z ");

    EXPECT_EQ(WeatherName("E", "b"), "Blue sky");
    EXPECT_EQ(WeatherName("", "bc"), "Blue sky with clouds");
    EXPECT_EQ(WeatherName("J", "bc"), "晴");
    EXPECT_EQ(WeatherName("J", "h"), "霞");
    EXPECT_EQ(WeatherName("j", "z"), "Haze") << "only the capital letter means Japanese";
    EXPECT_EQ(WeatherName("E", "x"), "-");
    EXPECT_EQ(WeatherName("J", ""), "不明");
    EXPECT_EQ(WeatherName("E", "B"), "-");
}

} // namespace
} // namespace NavFunc113
