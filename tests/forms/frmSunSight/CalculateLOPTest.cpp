// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/CalculateLOP.h"

#include "forms/frmSunSight/MeridianPassage.h"
#include "navlib/angles.h"
#include "tests/forms/frmSunSight/WorkedSights.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace worked;
using testing::HasSubstr;
using testing::Not;

std::string termOf(const LOPResult& result, const std::string& caption)
{
    for (const WorksheetLine& line : result.worksheet)
        if (line.caption == caption) return line.text;
    return "none";
}

TEST(CalculateLOP, worksheetOfAPublishedSight)
{
    const LOPResult first = CalculateLOP(morning2020, track2020);
    EXPECT_EQ(first.UTC, "2020/12/17 11:45:11 UTC");
    EXPECT_EQ(termOf(first, "Hs"), "24.-35'0");
    EXPECT_EQ(termOf(first, "Index error"), "-4.0'");
    EXPECT_EQ(termOf(first, "Dip"), "-3.0'");
    EXPECT_EQ(termOf(first, "Refraction"), "-2.1'");
    EXPECT_EQ(termOf(first, "Semi-diameter of the month"), "+0.5'");
    EXPECT_EQ(termOf(first, "Parallax"), "+0.1'");
    EXPECT_EQ(first.Ho, "24.-42'3");
    EXPECT_EQ(first.GHA, "357.-13'1");
    EXPECT_EQ(first.declination, "-23.-22'6");
    EXPECT_EQ(first.Zn, "124.3");
    EXPECT_THAT(first.intercept, testing::AnyOf("10'.9 T", "11'.0 T", "11'.1 T"));
    EXPECT_EQ(first.notice, "");

    const LOPResult second = CalculateLOP(noon2020, track2020);
    EXPECT_EQ(second.DR, "14-.02'5N 052-.41'9W") << "run on from the time of the DR position";
    EXPECT_THAT(second.intercept, testing::EndsWith(" A"));
    EXPECT_EQ(second.Zn.substr(0, 3), "181");
}

TEST(CalculateLOP, watchScaleAndDate)
{
    const struct {
        const char* fault;
        const char *date, *time;
        bool SMT;
        const char *TD, *watchError, *UTC;
    } rows[] = {
        {"date goes back across midnight", "2024/03/01", "05:30:00", true, "9", "",
         "2024/02/29 20:30:00 UTC"},
        {"west, next year", "2024/12/31", "22:00:00", true, "-5", "", "2025/01/01 03:00:00 UTC"},
        {"fast watch taken off", "2024/3/1", "0:00:02", false, "9", "4", "2024/02/29 23:59:58 UTC"},
        {"slow watch added; TD of a UTC watch ignored", "2024/3/1", "12:00", false, "9", "-30",
         "2024/03/01 12:00:30 UTC"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        SightTexts texts = morning2020;
        texts.date = row.date;
        texts.time = row.time;
        texts.SMT = row.SMT;
        texts.TD = row.TD;
        texts.watchError = row.watchError;
        EXPECT_EQ(CalculateLOP(texts, track2020).UTC, row.UTC);
        Mark(texts, 45000.123456);
        const std::string now = CalculateLOP(texts, track2020).UTC;
        EXPECT_EQ(now, "2023/03/15 02:57:47 UTC") << "marked, whatever the watch";
    }
}

TEST(CalculateLOP, everyUnusableInputIsNamedAndTheRestShown)
{
    using S = SightTexts&;
    using T = TrackTexts&;
    const struct {
        const char* box;
        void (*spoil)(S, T);
        bool sun, Ho, Hc;
    } rows[] = {
        {"the sight: \"2020/12/17 25:00\"", [](S s, T) { s.time = "25:00"; }, false, false, false},
        {"of the sight: empty", [](S s, T) { s.date = s.time = ""; }, false, false, false},
        {"TD: not within", [](S s, T) { s.SMT = true, s.TD = "13"; }, false, false, false},
        {"Sextant altitude: empty", [](S s, T) { s.Hs = ""; }, true, false, true},
        {"Sextant altitude: not within 0 to 90", [](S s, T) { s.Hs = "91"; }, true, false, true},
        {"eye: not within 0 to 100", [](S s, T) { s.heightOfEye = "-1"; }, true, false, true},
        {"Pressure: \"-\" is no number", [](S s, T) { s.pressure = "-"; }, true, false, true},
        {"DR latitude: empty", [](S, T t) { t.latitude = ""; }, true, true, false},
        {"Course: \"north\" is no number", [](S, T t) { t.course = "north"; }, true, true, false},
        {"DR position: \"noon\" is none", [](S, T t) { t.time = "noon"; }, true, true, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.box);
        SightTexts sight = noon2020;
        TrackTexts track = track2020;
        row.spoil(sight, track);
        const LOPResult result = CalculateLOP(sight, track);
        EXPECT_THAT(result.notice, HasSubstr(row.box));
        EXPECT_EQ(!result.GHA.empty(), row.sun);
        EXPECT_EQ(!result.Ho.empty(), row.Ho);
        EXPECT_EQ(!result.Hc.empty(), row.Hc);
        EXPECT_TRUE(result.intercept.empty());
    }
}

TEST(CalculateLOP, warnings)
{
    const auto notice = [](const char* Hs) {
        SightTexts sight = noon2020;
        sight.Hs = Hs;
        return CalculateLOP(sight, track2020).notice;
    };
    EXPECT_THAT(notice("9.59"), HasSubstr("below 10"));
    EXPECT_THAT(notice("10"), Not(HasSubstr("below 10")));
    EXPECT_THAT(notice("85.01"), HasSubstr("above 85"));
    EXPECT_THAT(notice("52.72"), HasSubstr("read as 53.-12'0"));
    EXPECT_THAT(notice("52,2"), HasSubstr("\"52,2\" is read as 52"));
}

TEST(CalculateLOP, upperLimbIsADiameterLower)
{
    SightTexts sight = noon2020;
    const LOPResult lower = CalculateLOP(sight, track2020);
    sight.upperLimb = true;
    const LOPResult upper = CalculateLOP(sight, track2020);
    EXPECT_EQ(termOf(lower, "Upper limb: less the diameter"), "none");
    EXPECT_EQ(termOf(upper, "Upper limb: less the diameter"), "-32.5'");
    EXPECT_EQ(lower.Ho, "52.-30'6");
    EXPECT_EQ(upper.Ho, "51.-58'1");
}

TEST(CalculateLOP, azimuthOnTheMeridianAndThePrimeVertical)
{
    const auto azimuth = [](double GHA, double declination, double latitude, double longitude) {
        using namespace NavFunc113;
        return azimuthOfSun(DegMin(GHA), DegMin(declination),
                            {Degrees(latitude), Degrees(longitude)})
            .value();
    };
    EXPECT_NEAR(azimuth(0, 20, 35, 0), 180, 1e-5);
    EXPECT_NEAR(azimuth(0, 20, 10, 0), 0, 1e-5);
    EXPECT_NEAR(azimuth(270, 0, 0, 30), 90, 1e-9);
}

TEST(MeridianPassage, noonOfTheMovingShip)
{
    const MeridianResult noon = CalculateMeridian(noon2020, track2020);
    EXPECT_THAT(noon.noon, testing::StartsWith("2020/12/17 15:2"));
    EXPECT_THAT(noon.note, HasSubstr("after the meridian"));
    EXPECT_THAT(noon.latitude, testing::StartsWith("14-.0")) << "close to the fix";
    const MeridianResult morning = CalculateMeridian(morning2020, track2020);
    EXPECT_EQ(morning.noon, noon.noon) << "the same noon from either sight";
    EXPECT_EQ(morning.latitude, "");
    EXPECT_EQ(CalculateMeridian({}, track2020).noon, "");
}

} // namespace
} // namespace korvel
