// SPDX-License-Identifier: MIT
#include "app/reading/PositionText.h"

#include "app/reading/Format.h"
#include "app/reading/PackedText.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <utility>

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

TEST(PositionText, pasteReadsSoMuchAndNoMore)
{
    const std::string pair = "35-30N,139-45E"; // nine signs and numbers
    const std::string field = ",3530.5,N,13945.2,E";
    const auto sentence = [&](int before) {
        std::string text = "$X";
        for (int i = 0; i < before; ++i)
            text += ",x";
        return text + field;
    };
    const struct {
        std::string most, tooMuch;
    } rows[] = {{"35.5000000000000N", "35.50000000000000N"}, // fifteen digits
                {pair + std::string(31, ','), pair + std::string(32, ',')},
                {std::string(386, ' ') + pair, std::string(387, ' ') + pair},
                {sentence(25), sentence(26)}};
    for (const auto& [most, tooMuch] : rows) {
        EXPECT_NE(pasted(most), "-") << most;
        EXPECT_EQ(pasted(tooMuch), "-") << tooMuch;
    }
}

TEST(PositionText, anglesAreWrittenInTenthsOfMinutesAndPacked)
{
    const struct {
        double degrees;
        const char *altitude, *packed;
    } rows[] = {{35.508333333333, "35°30.5'", "35.305"}, {-0.5, "-0°30.0'", "-0.3"},
                {-0.0008, "0°00.0'", "-0.00048"},        {-0.0009, "-0°00.1'", "-0.00054"},
                {59.99999999, "60°00.0'", "60.0"},       {9.9992, "10°00.0'", "9.59952"},
                {-0.00000000001, "0°00.0'", "0.0"}};
    for (const auto& each : rows) {
        EXPECT_EQ(altitudeText(NavFunc113::Degrees(each.degrees)), each.altitude) << each.degrees;
        EXPECT_EQ(packedText(NavFunc113::Degrees(each.degrees)), each.packed) << each.degrees;
    }
    EXPECT_EQ(positionInFull(DegMin(-5.3), Axis::Longitude), "005°30.0' W");
    for (const double beyond : {100000.0, -100000.0, std::nan("")}) {
        EXPECT_EQ(positionInFull(DegMin(beyond), Axis::Latitude), "");
        EXPECT_EQ(positionForCopy(DegMin(beyond), Axis::Latitude), "");
    }
    EXPECT_EQ(positionForCopy(DegMin(99999), Axis::Latitude), "99999°00.0'N");
    for (const auto& [shown, plain] : {std::pair{"  35.30'5N ", "35°30.5' N"},
                                       {"< 4730'.0 >", " 4730.0 "},
                                       {"<>", "<>"},
                                       {"<a>b", "<a>b"}})
        EXPECT_EQ(plainForm(shown), plain);
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
