// SPDX-License-Identifier: MIT
#include "app/position_text.h"

#include "app/Format.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

using testing::Golden;
using testing::golden;

using NavFunc113::DegMin;

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

TEST(PositionText, pasteOfWhatHasOneMeaning)
{
    for (const Golden& row : golden("pasted_positions")) {
        EXPECT_EQ(pasted(row.text("text")), row.text("understood")) << row;
        const auto position = parsePosition(row.text("text"), Axis::Latitude);
        EXPECT_EQ(position.value_or(PastedPosition{}).remark, "") << row;
    }
    EXPECT_EQ(pasted("139-45.2", Axis::Longitude), "|139.452") << "the box decides the axis";
}

TEST(PositionText, pasteOfWhatCouldMeanTwoThingsIsRemarked)
{
    const struct {
        const char* text;
        const char* understood;
        const char* remark;
    } rows[] = {
        {"S 35.305", "-35.305|",
         "taken as degrees.minutes: 35°30.5'S; as decimal degrees it would be 35°18.3'S"},
        {"５．３Ｎ", "5.3|",
         "taken as degrees.minutes: 05°30.0'N; as decimal degrees it would be 05°18.0'N"},
        {"35.305, -139.4523", "35.305|-139.4523",
         "taken as degrees.minutes: 35°30.5'N 139°45.2'W; as decimal degrees it would be "
         "35°18.3'N 139°27.1'W"},
        // 75 minutes are none: both numbers are decimal degrees
        {"35.5083 N 139.75 E", "35.305|139.45", "taken as decimal degrees: 35°30.5'N 139°45.0'E"},
        {"35.61 N", "35.366|", "taken as decimal degrees: 35°36.6'N"},
        {"35 30.5", "35.305|", "taken as degrees and minutes"},
        // a lone number keeps its meaning, but what it probably is is named
        {"35.50833", "35.50833|",
         "taken as degrees.minutes: 35°50.8'N; as decimal degrees it would be 35°30.5'N"},
        {"-35.75", "-35.75|",
         "taken as degrees.minutes: 36°15.0'S; as decimal degrees it would be 35°45.0'S"},
        {"35-30.5, 139-45.2", "35.305|139.452", "taken as latitude, then longitude"}};
    for (const auto& [text, understood, remark] : rows) {
        EXPECT_EQ(pasted(text), understood) << text;
        EXPECT_EQ(parsePosition(text, Axis::Latitude).value_or(PastedPosition{}).remark, remark);
    }
}

TEST(PositionText, pasteLeavesEverythingElseAlone)
{
    const char* texts[] = {"35.305",
                           "139.4523",
                           " 35.305 ",
                           "-",
                           "",
                           "N E",
                           "abc",
                           "35.305 m high",
                           "12:30",
                           "2005/03/14",
                           "35-60.0N",
                           "35-30-60N",
                           "90-00.1N",
                           "91N",
                           "180-00.1E",
                           "35-30N 36-30N",
                           "35-30.5N 139-45.2",
                           "-35-30.5N",
                           "35°30.5'N 139°",
                           "35°30.5'N 139°45.2'E 12",
                           "Lat 35-30.5E",
                           "12.5'",
                           "35° 30\"",
                           "35D30M30S",
                           "1,234",
                           "35,305",
                           "$GPGGA,,,,,",
                           "$",
                           "35305N",
                           "35-30-30-30N",
                           "03-1234-5678",
                           "N35°-",
                           "\xF0\x9F\x98\x80",
                           "\xEF\xBC",
                           "35°30.5'N\x80",
                           "99999999999999999999999°N",
                           "0.00000000000000000000001°"};
    for (const char* text : texts) {
        EXPECT_EQ(pasted(text), "-") << text;
    }
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
