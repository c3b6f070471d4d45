// SPDX-License-Identifier: MIT
#include "app/reading/PositionText.h"

#include "app/reading/Format.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

using NavFunc113::DegMin;
using testing::Golden;
using testing::golden;

TEST(PositionText, echo)
{
    for (const Golden& row : golden("position_echo")) {
        const bool isLatitude = row.text("axis") == "latitude";
        const Echo echo =
            positionEcho(row.text("typed"), isLatitude ? Axis::Latitude : Axis::Longitude);
        EXPECT_EQ(echo.text, row.text("text")) << row;
        EXPECT_EQ(echo.hint, row.text("hint")) << row;
    }
}

TEST(PositionText, copy)
{
    EXPECT_EQ(positionForCopy(DegMin(35.305), DegMin(139.452)), "35°30.5'N 139°45.2'E");
    EXPECT_EQ(positionForCopy(DegMin(-5.5996), DegMin(-0.05)), "06°00.0'S 000°05.0'W")
        << "carried at 60";
    EXPECT_EQ(positionForCopy(DegMin(35.3005), Axis::Latitude), "35°30.1'N")
        << "half away from zero";
}

/// "lat|long" of what was understood, "-" for nothing.
std::string pasted(std::string_view text, Axis box = Axis::Latitude)
{
    const auto position = parsePosition(text, box);
    if (!position) return "-";
    return position->latitude.value_or("") + "|" + position->longitude.value_or("");
}

std::string remarkOn(const std::string& text)
{
    return parsePosition(text, Axis::Latitude).value_or(PastedPosition{}).remark;
}

TEST(PositionText, paste)
{
    for (const Golden& row : golden("pasted_positions")) {
        EXPECT_EQ(pasted(row.text("text")), row.text("understood")) << row;
        EXPECT_EQ(remarkOn(row.text("text")), "") << row;
    }
    for (const Golden& row : golden("doubtful_positions")) {
        EXPECT_EQ(pasted(row.text("text")), row.text("understood")) << row;
        EXPECT_EQ(remarkOn(row.text("text")), row.text("remark")) << row;
    }
    EXPECT_EQ(pasted("139-45.2", Axis::Longitude), "|139.452") << "the box decides the axis";
}

TEST(PositionText, pasteOfBrokenOrEndlessTextIsLeftAlone)
{
    for (const char* text : {"\xEF\xBC", "35°30.5'N\x80"})
        EXPECT_EQ(pasted(text), "-");
    for (const char* piece : {"3", "N", "35-30.5N ", "°", " ", "$,", "\xEF", "-."}) {
        std::string huge;
        while (huge.size() < 1'000'000)
            huge += piece;
        EXPECT_EQ(pasted(huge), "-") << piece;
    }
}

TEST(PositionText, copiedPositionsComeBackThroughPaste)
{
    for (double lat = -89.59; lat < 90; lat += 7.31) {
        for (double lon = -179.55; lon < 180; lon += 13.17) {
            const std::string text = positionForCopy(DegMin(lat), DegMin(lon));
            const auto position = parsePosition(text, Axis::Longitude);
            ASSERT_TRUE(position && position->latitude && position->longitude) << text;
            EXPECT_EQ(positionEcho(*position->latitude, Axis::Latitude).text + "|" +
                          positionEcho(*position->longitude, Axis::Longitude).text,
                      positionEcho(Format(lat, "0.000"), Axis::Latitude).text + "|" +
                          positionEcho(Format(lon, "0.000"), Axis::Longitude).text)
                << text;
        }
    }
}

} // namespace
} // namespace korvel
