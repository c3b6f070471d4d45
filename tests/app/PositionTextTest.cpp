// SPDX-License-Identifier: MIT
#include "app/position_text.h"

#include "app/Format.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

using NavFunc113::DegMin;

TEST(PositionText, echo)
{
    const struct {
        const char* typed;
        Axis axis;
        const char* text;
        const char* hint;
    } rows[] = {
        {"35.305", Axis::Latitude, "35°30.5' N", ""},
        {"-139.4523", Axis::Longitude, "139°45.23' W", ""},
        {"35.30051234", Axis::Latitude, "35°30.0512' N", ""},
        {"-0.305", Axis::Longitude, "000°30.5' W", ""},
        {"-0", Axis::Latitude, "00°00.0' N", ""},
        {"35.75", Axis::Latitude, "36°15.0' N", "minutes 75"},
        {"35.6", Axis::Latitude, "36°00.0' N", "minutes 60"},
        {"35.59999999", Axis::Latitude, "36°00.0000' N", ""},
        {"89.61", Axis::Latitude, "90°01.0' N", "minutes 61; beyond 90°"},
        {"-90.001", Axis::Latitude, "90°00.1' S", "beyond 90°"},
        {"180", Axis::Longitude, "180°00.0' E", ""},
        {"180.3", Axis::Longitude, "180°30.0' E", "beyond 180°"},
        {"99999999999999999999", Axis::Longitude, "", "beyond 180°"},
        {"３５．３０５", Axis::Latitude, "35°30.5' N", ""},
        {"35.305N", Axis::Latitude, "35°30.5' N", ""},
        {"35,305", Axis::Latitude, "35°00.0' N", "only 35 was read, write 35.305"},
        {"139 45.2", Axis::Longitude, "139°00.0' E", "only 139 was read, write 139.452"},
        {"35.75S", Axis::Latitude, "36°15.0' N", "only 35.75 was read, write -35.45; minutes 75"},
        {"90.3,5", Axis::Latitude, "90°30.0' N", "beyond 90°"},
        {"", Axis::Latitude, "", ""},
        {"abc", Axis::Latitude, "", ""}};
    for (const auto& row : rows) {
        const Echo echo = positionEcho(row.typed, row.axis);
        EXPECT_EQ(echo.text, row.text) << row.typed;
        EXPECT_EQ(echo.hint, row.hint) << row.typed;
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
    const struct {
        const char* text;
        const char* understood;
    } rows[] = {// one coordinate
                {"35-30.5N", "35.305|"},
                {"N35 30.5", "35.305|"},
                {"35 30 30 N", "35.305|"},
                {"35º30′30″S", "-35.305|"},
                {"35d30m30sS", "-35.305|"},
                {"35 deg 30.5 min S", "-35.305|"},
                {"３５°３０．５’Ｎ", "35.305|"},
                {"35ﾟ30.5'N", "35.305|"},
                {"35゜30'.5N", "35.305|"},
                {"35° 30' 30.25'' N", "35.3050417|"},
                {"35-30-20N", "35.30333|"},
                {"35:30:30 S", "-35.305|"},
                {"-35°30.5'", "-35.305|"},
                {"−35°30.5′", "-35.305|"},
                {"-35-30.5", "-35.305|"},
                {"35°30,5'S", "-35.305|"},
                {"S 0-05.2", "-0.052|"},
                {"0°0'S", "0.00|"},
                {"35°59'59.9999\"N", "35.599999983|"},
                {"90°00.0'S", "-90.000|"},
                {"W 180", "|-180"},
                {"北緯35度30.5分", "35.305|"},
                {"3530.5N", "35.305|"},
                {"0353030W", "|-35.305"},
                // what the program's own labels show
                {"35.30'5N", "35.305|"},
                {"139.-45'2W", "|-139.452"},
                // decimal degrees that say so
                {"35.508333°N", "35.305|"},
                {"35.999999°", "35.599999|"},
                {"-0.5° ", "-0.30|"},
                // pairs
                {"35°30.5'N 139°45.2'E", "35.305|139.452"},
                {"35-30.5S - 139-45.2W", "-35.305|-139.452"},
                {"35°30,5'N, 139°45,2'E", "35.305|139.452"},
                {"Lat: 35-30.5N  Long: 139-45.2E", "35.305|139.452"},
                {"Latitude 35 30.5 South\r\nLongitude 139 45.2 West\r\n", "-35.305|-139.452"},
                {"LAT=-35°30.5' LON=139°45.2'", "-35.305|139.452"},
                {"35.508333°N 139.75°E", "35.305|139.45"},
                {"E139°45.2' N35°30.5'", "35.305|139.452"},
                {"3530.5,N,13945.2,E", "35.305|139.452"},
                {"$GPGGA,123519,3530.500,N,13945.200,W,1,08,0.9,545.4,M,46.9,M,,*47",
                 "35.30500|-139.45200"},
                {"(35°30'30\"N, 139°45'12\"E)", "35.305|139.452"},
                {"東経139度45.2分、南緯35度30.5分", "-35.305|139.452"}};
    for (const auto& [text, understood] : rows) {
        EXPECT_EQ(pasted(text), understood) << text;
        EXPECT_EQ(parsePosition(text, Axis::Latitude).value_or(PastedPosition{}).remark, "");
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
