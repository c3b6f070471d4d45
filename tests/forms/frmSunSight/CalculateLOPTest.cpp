// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/CalculateLOP.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmSunSight/paper/SightWorking.h"
#include "forms/frmSunSight/sight/MeridianPassage.h"
#include "forms/frmSunSight/sight/SightFields.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "tests/forms/WorkingLines.h"
#include "tests/forms/frmSunSight/WorkedSights.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace worked;
using namespace korvel::testing;
using ::testing::HasSubstr;

std::string termOf(const LOPResult& result, const std::string& caption)
{
    for (const WorksheetLine& line : result.worksheet)
        if (line.caption == caption) return line.text;
    return "none";
}

/// A shown angle, "24.-42'3" or "14-.06'0S", in tenths of minutes.
int tenthsOf(const std::string& shown)
{
    std::string digits;
    for (const char c : shown)
        if (c >= '0' && c <= '9') digits += c;
    const int number = std::stoi(digits);
    const int tenths = number / 1000 * 600 + number % 1000;
    return shown.ends_with('S') || shown.ends_with('W') ? -tenths : tenths;
}

/// The sight of a row: one of the published ones with some boxes typed anew.
SightTexts typed(const Golden& row)
{
    static const std::map<std::string, SightTexts> sights = {
        {"morning", morning2020}, {"noon", noon2020}, {"none", {}}};
    static const std::map<std::string, std::string SightTexts::*> boxes = {
        {"time", &SightTexts::time},
        {"TD", &SightTexts::TD},
        {"Hs", &SightTexts::Hs},
        {"eye", &SightTexts::heightOfEye}};
    SightTexts sight = sights.at(row.text("sight"));
    for (const GoldenPair& box : row.pairs("typed"))
        if (box.name == "SMT")
            sight.SMT = true;
        else if (box.name == "upper limb")
            sight.upperLimb = true;
        else
            sight.*boxes.at(box.name) = box.text;
    return sight;
}

TEST(CalculateLOP, whatASightShows)
{
    const double taken = 44182 + (11 + 45 / 60.0 + 11 / 3600.0) / 24; // of the morning sight
    for (const Golden& row : golden("worked_sights")) {
        SightContext known;
        if (row.has("minutes")) known.now = taken + row.number("minutes") / 1440;
        if (row.has("TD")) known.shipsTD = row.hours("TD");
        const LOPResult lop =
            CalculateLOP(typed(row), row.text("sight") == "none" ? TrackTexts{} : track2020, known);
        std::map<std::string, std::string> texts = {
            {"UTC", lop.UTC}, {"Ho", lop.Ho},
            {"GHA", lop.GHA}, {"declination", lop.declination},
            {"Zn", lop.Zn},   {"intercept", lop.intercept},
            {"DR", lop.DR},   {"notice", lop.notice}};
        for (const WorksheetLine& line : lop.worksheet)
            texts["worksheet"] += line.caption + " " + line.text + "|";
        expectTexts(row, "shows", texts);
    }
}

TEST(CalculateLOP, aTimeOfDRAloneIsTheOneNearestToTheSight)
{
    const auto midnight = static_cast<double>(NavFunc113::DaySerial({2020, 12, 17}));
    Remarks remarks;
    for (const auto& [typed, sight, hours] :
         {std::tuple("11:45:11", 15.5, 11.753), {"23:50", 0.2, -0.1667}, {"0:10", 23.9, 24.1667}}) {
        const TrackTexts texts{"14.020", "-52.110", typed, "271", "8"};
        const Track track = readTrack(texts, midnight + sight / 24, true, remarks);
        ASSERT_TRUE(track.UTC) << typed;
        EXPECT_NEAR((*track.UTC - midnight) * 24, hours, 1e-3) << typed;
    }
    EXPECT_EQ(remarks.text(), "");
    readTrack({"14.020", "-52.110", "11:45:11", "", ""}, {}, true, remarks);
    EXPECT_THAT(remarks.text(), HasSubstr("Time of the DR position")) << "of no day";
}

TEST(CalculateLOP, worksheetAddsUp)
{
    bool rounded = false;
    for (int i = 0; i < 200; ++i) {
        SightTexts sight = noon2020;
        sight.Hs = std::to_string(11 + i % 70) + "." + std::to_string(10 + i % 45);
        sight.heightOfEye = std::to_string(1 + i % 23);
        sight.upperLimb = i % 3 == 0;
        sight.air = std::to_string(i % 40 - 10) + ".3";
        sight.sea = "10";
        const LOPResult result = CalculateLOP(sight, track2020, {});
        ASSERT_GE(result.worksheet.size(), 11U);
        int sum = tenthsOf(result.worksheet.front().text);
        for (const WorksheetLine& line : result.worksheet)
            if (line.text.ends_with("'"))
                sum += static_cast<int>(std::lround(10 * readNumber(line.text)));
        EXPECT_EQ(sum, tenthsOf(result.Ho)) << sight.Hs;
        rounded = rounded || termOf(result, "Rounding of the above") != "none";
        const int apart = tenthsOf(result.Ho) - tenthsOf(result.Hc);
        EXPECT_EQ(result.intercept,
                  Format(std::abs(apart) / 10.0, "0'.0") + (apart < 0 ? " A" : " T"));
    }
    EXPECT_TRUE(rounded);
    EXPECT_EQ(termOf(CalculateLOP(morning2020, track2020, {}), "Rounding of the above"), "none");
}

TEST(CalculateLOP, watchScaleAndDate)
{
    for (const Golden& row : golden("sight_times")) {
        SightTexts texts = morning2020;
        texts.date = row.text("date");
        texts.time = row.text("time");
        texts.SMT = row.text("scale") == "SMT";
        texts.TD = row.text("TD");
        texts.watchError = row.text("error");
        EXPECT_EQ(CalculateLOP(texts, track2020, {}).UTC, row.text("UTC")) << row;
        Mark(texts, 45000.123456);
        const std::string now = CalculateLOP(texts, track2020, {}).UTC;
        EXPECT_EQ(now, "2023/03/15 02:57:47 UTC") << "marked, whatever the watch; " << row;
    }
}

TEST(CalculateLOP, everyUnusableInputIsNamedAndTheRestShown)
{
    for (const Golden& row : golden("sight_inputs")) {
        SightTexts sight = noon2020;
        TrackTexts track = track2020;
        const auto box = static_cast<std::size_t>(row.integer("box"));
        sight.SMT = box == SightField::TD;
        if (box < SightField::ofSight)
            sight.*sightMembers[box] = row.text("typed");
        else
            track.*trackMembers[box - SightField::ofSight] = row.text("typed");
        const LOPResult result = CalculateLOP(sight, track, {});
        if (row.has("notice"))
            EXPECT_THAT(result.notice, HasSubstr(row.text("notice"))) << row;
        else
            EXPECT_THAT(result.notice, ::testing::Not(HasSubstr("refraction"))) << row;
        EXPECT_EQ(!result.GHA.empty(), row.tick("sun")) << row;
        EXPECT_EQ(!result.Ho.empty(), row.tick("Ho")) << row;
        EXPECT_EQ(!result.Hc.empty(), row.tick("Hc")) << row;
        EXPECT_EQ(!result.intercept.empty(), row.tick("Ho") && row.tick("Hc")) << row;
    }
}

TEST(CalculateLOP, azimuthOnTheMeridianAndThePrimeVertical)
{
    using namespace NavFunc113;
    const auto azimuth = [](double GHA, double declination, double latitude, double longitude) {
        return azimuthOfSun(DegMin(GHA), DegMin(declination),
                            {Degrees(latitude), Degrees(longitude)})
            .value();
    };
    EXPECT_NEAR(azimuth(0, 20, 35, 0), 180, 1e-5);
    EXPECT_NEAR(azimuth(0, 20, 10, 0), 0, 1e-5);
    EXPECT_NEAR(azimuth(270, 0, 0, 30), 90, 1e-9);
    LOPResult line = CalculateLOP(morning2020, track2020, {});
    line.figures.isByQuotient = false;
    const auto workings = sightWorkings(morning2020, line);
    EXPECT_THAT(
        linesOf(workings.back()),
        ::testing::Contains(::testing::MatchesRegex(
            "Azimuth, on the meridian or the prime vertical: arctan\\(-cos .* = 124\\.[0-9]+ °")));
}

TEST(CalculateLOP, anglesAndSpansInWords)
{
    using namespace NavFunc113;
    EXPECT_EQ(angleInFull(DegMin(-23.226)), "-23°22.6'");
    EXPECT_EQ(angleInFull(DegMin(9.05)), "9°05.0'");
    EXPECT_EQ(spanText(Hours(24)), "1.0 days");
    EXPECT_EQ(spanText(Hours(-23.95)), "24.0 h");
    EXPECT_EQ(spanText(Hours(1)), "1.0 h");
    EXPECT_EQ(spanText(Hours(0.98)), "59 min");
}

TEST(MeridianPassage, noonOfTheMovingShip)
{
    const MeridianResult noon = CalculateMeridian(noon2020, track2020, {});
    EXPECT_THAT(noon.noon, ::testing::StartsWith("2020/12/17 15:2"));
    const MeridianResult morning = CalculateMeridian(morning2020, track2020, {});
    EXPECT_EQ(morning.noon, noon.noon) << "the same noon from either sight";
    EXPECT_EQ(morning.latitude, "");
    EXPECT_EQ(CalculateMeridian({}, track2020, {}).noon, "");
}

TEST(MeridianPassage, latitudeBySightsNearNoon)
{
    for (const Golden& row : golden("meridian_sights")) {
        const SightTexts sight =
            worked::sight("2020/12/17", "15:30:00", row.text("Hs").c_str(), "", "");
        const MeridianResult result = CalculateMeridian(
            sight, {row.text("DRLatitude"), row.text("DRLongitude"), "", "", ""}, {});
        EXPECT_THAT(result.note, HasSubstr(row.text("note"))) << row;
        if (!result.exMeridian.empty()) {
            EXPECT_EQ(linesOf(*meridianWorking(result)).rbegin()[1],
                      "Reduction to the meridian: φ = χ ± ζ, tan χ = tan δ / cos t, less δ ± "
                      "(90° - Ho); up to 30 minutes = " +
                          result.exMeridian);
        }
        const std::size_t split = result.latitude.find(" or ");
        const std::string shown[] = {
            result.latitude.substr(0, split),
            split == std::string::npos ? std::string() : result.latitude.substr(split + 4)};
        const char* columns[] = {"first", "second"};
        for (std::size_t i = 0; i < 2; ++i) {
            ASSERT_EQ(shown[i].empty(), !row.has(columns[i])) << row << result.latitude;
            if (shown[i].empty()) continue;
            const double expected = NavFunc113::DegMinToDeg(row.degMin(columns[i])).value() * 600;
            EXPECT_NEAR(tenthsOf(shown[i]), expected, 3) << row << shown[i];
        }
    }
}

} // namespace
} // namespace korvel
