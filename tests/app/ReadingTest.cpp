// SPDX-License-Identifier: MIT
#include "app/reading.h"

#include "app/Format.h"

#include <gtest/gtest.h>

#include <clocale>
#include <cmath>

namespace korvel
{
namespace
{

TEST(Reading, leadingNumbers)
{
    const struct {
        const char* text;
        double value;
    } rows[] = {
        {"35.305", 35.305}, {"", 0},        {"abc", 0},   {"-", 0},           {".", 0},
        {"  12", 12},       {"1e3", 1},     {"1,234", 1}, {"-.5", -0.5},      {"+7", 7},
        {"35 30", 35},      {"3.5.7", 3.5}, {"35N", 35},  {"３５．５", 35.5}, {"－１２", -12},
        {"−4", -4},         {"0x10", 0},    {"12.", 12},  {"inf", 0},         {"nan", 0}};
    for (const auto& [text, value] : rows)
        EXPECT_EQ(readNumber(text), value) << text;
    EXPECT_TRUE(std::isinf(readNumber(std::string(400, '9'))));
    EXPECT_EQ(readNumber("0." + std::string(400, '0') + "1"), 0);
}

TEST(Reading, isTheSameInEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* commaLocale : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"}) {
        std::setlocale(LC_ALL, commaLocale);
        EXPECT_EQ(readNumber("35.5"), 35.5);
        EXPECT_EQ(Format(35.5, "0.0"), "35.5");
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(Reading, ranges)
{
    EXPECT_TRUE(IsInRange("90", "-90", "90"));
    EXPECT_FALSE(IsInRange("90.001", "-90", "90"));
    EXPECT_TRUE(IsInRange("", "-90", "90")) << "an empty box counts as 0";
    EXPECT_FALSE(IsInRange("", "1", "90"));
    EXPECT_FALSE(IsInRange("abc", "-90", "90")) << "no number is in no range";
    EXPECT_TRUE(IsInRange("12abc", "-90", "90"));
    EXPECT_TRUE(isNumeric(" -9.5 "));
    EXPECT_FALSE(isNumeric("9h"));
}

TEST(Reading, datesAndTimes)
{
    const struct {
        const char* text;
        const char* shown; ///< as yyyy/mm/dd hh:mm:ss; empty when refused
    } rows[] = {{"05/03/14 23:30", "2005/03/14 23:30:00"},
                {"2005/3/4", "2005/03/04 00:00:00"},
                {"2004/2/29 6:05:07", "2004/02/29 06:05:07"},
                {"２００５／３／１４　９：３０", "2005/03/14 09:30:00"},
                {"2005/2/29", ""},
                {"2005/3/4 24:00", ""},
                {"2005-03-04", ""},
                {"205/3/4", ""},
                {"2005/3/4 noon", ""},
                {"", ""}};
    for (const auto& [text, shown] : rows) {
        const auto value = readDateTime(text);
        EXPECT_EQ(value ? Format(*value, "yyyy/mm/dd hh:mm:ss") : "", shown) << text;
    }
    EXPECT_DOUBLE_EQ(readDateTime("6:00").value(), 0.25) << "a time alone has no date";
}

} // namespace
} // namespace korvel
