// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/fix/SightFix.h"

#include "app/reading/Reading.h"
#include "forms/frmSunSight/paper/SightWorking.h"
#include "forms/frmSunSight/sight/CalculateLOP.h"
#include "tests/forms/frmSunSight/WorkedSights.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace worked;
using ::testing::HasSubstr;
using ::testing::Not;

SightFixResult fixOf(const SightList& list, const TrackTexts& track,
                     const SightFixOptions& options = {})
{
    return CalculateFix(list, track, options, {});
}

TEST(CalculateFix, publishedRunningFixesFromRawReadings)
{
    const SightFixResult first = fixOf(listOf({noon2020, morning2020}), track2020);
    ASSERT_TRUE(first.fix) << first.notice;
    EXPECT_LT(milesBetween(first.fix->position, 14.060, -52.258), 0.3);
    EXPECT_THAT(first.time, ::testing::StartsWith("R FIX 2020/12/17 15:30:00 UTC, run 0-03:44:49"));
    EXPECT_THAT(first.latitude, ::testing::StartsWith("14-.0"));
    EXPECT_NEAR(readNumber(first.memoLongitude), -52.258, 0.003);
    EXPECT_THAT(first.sigmaText, HasSubstr("assumed, not measured: 1.0 nm"));
    ASSERT_TRUE(first.fix->ellipse);
    EXPECT_NEAR(first.fix->ellipse->semiMajor.value(), 5.28, 0.05) << "with the errors of the run";
    EXPECT_THAT(first.lines[1].text, ::testing::EndsWith(" nm")) << "its residual";
    EXPECT_EQ(first.notice, "");

    const SightFixResult second = fixOf(listOf({morning1990, noon1990}), track1990);
    ASSERT_TRUE(second.fix) << second.notice;
    EXPECT_LT(milesBetween(second.fix->position, 13.423, -45.056), 0.3);
}

TEST(CalculateFix, oneInterceptForOneSight)
{
    TrackTexts timeless = track2020;
    timeless.time = "";
    for (const TrackTexts& track : {track2020, timeless}) {
        const SightList list = listOf({morning2020, noon2020});
        const SightFixResult fix = fixOf(list, track);
        for (const FixLine& line : fix.lines) {
            const LOPResult alone = CalculateLOP(list.sights()[line.index].texts, track,
                                                 {list.lastOn(line.index), {}, {}});
            EXPECT_THAT(line.text, ::testing::StartsWith(alone.intercept + "  Zn " + alone.Zn));
        }
    }
    EXPECT_EQ(fixOf(listOf({morning2020, noon2020}), timeless).DR->latitude,
              NavFunc113::DegMinToDeg(NavFunc113::DegMin(14.02)))
        << "the DR position is that of the last sight";
}

TEST(CalculateFix, sightsSwitchedOffDoNotCount)
{
    SightList list = listOf({morning2020, noon2020});
    list.setOn(0, false);
    const SightFixResult one = fixOf(list, track2020);
    EXPECT_FALSE(one.fix);
    EXPECT_EQ(one.lines.size(), 1U);
    EXPECT_THAT(one.notice, HasSubstr("two lines at least"));

    SightTexts again = noon2020;
    again.time = "15:30:40";
    const SightFixResult parallel = fixOf(listOf({noon2020, again}), track2020);
    EXPECT_TRUE(!parallel.fix || parallel.notice.find("Small cut angle") != std::string::npos);

    TrackTexts none = track2020;
    none.latitude = "";
    const SightFixResult lost = fixOf(listOf({morning2020, noon2020}), none);
    EXPECT_THAT(lost.notice, HasSubstr("No fix: the DR position"));
    EXPECT_TRUE(lost.lines.empty());
    EXPECT_EQ(lost.level, NoticeLevel::Fault);
    // At 15:30 in 88.5 N, at 11:45 75 miles nearer the pole.
    const TrackTexts polar{"88.300", "-52.110", "2020/12/17 15:30:00", "180", "20"};
    const SightFixResult north = fixOf(listOf({morning2020, noon2020}), polar);
    EXPECT_THAT(north.notice, HasSubstr("No fix: the DR position"));
    EXPECT_TRUE(north.lines.empty());
}

/// A day's round from a ship at anchor; one sight out by some miles.
SightList roundWith(double miles, int sights = 5)
{
    const NavFunc113::Position place{NavFunc113::Degrees(14), NavFunc113::Degrees(-52)};
    const char* times[] = {"12:00:00", "13:40:00", "15:00:00", "16:30:00", "18:30:00"};
    SightList list;
    for (int i = 0; i < sights; ++i)
        list.record(seenFrom(place, "2020/12/17", times[i], i == 1 ? miles : 0));
    return list;
}
const TrackTexts atAnchor{"14.05", "-52.02", "", "", ""};

TEST(CalculateFix, aSightThatDoesNotFitIsNamed)
{
    const SightFixResult good = fixOf(roundWith(0), atAnchor);
    EXPECT_EQ(good.notice, "");
    EXPECT_TRUE(good.fix->ellipse);
    EXPECT_EQ(good.withoutText, "");

    const SightFixResult bad = fixOf(roundWith(-12), atAnchor);
    EXPECT_THAT(bad.notice, HasSubstr("The sight of 13:40:00 by 12.0 miles away does not fit"));
    EXPECT_FALSE(bad.fix->ellipse);
    EXPECT_THAT(bad.ellipseText, HasSubstr("No ellipse"));
    EXPECT_THAT(bad.lines[1].text, ::testing::EndsWith("does not fit: -12.0 nm"));
    const PaperTable residuals = fixWorking(bad).tables.back();
    for (std::size_t i = 0; i < residuals.rows.size(); ++i)
        EXPECT_EQ(residuals.rows[i].back(), i == 1 ? "does not fit" : "") << i;
    EXPECT_NEAR(std::stod(residuals.rows[1][5]), -12, 0.1) << "its own misfit";
    EXPECT_THAT(bad.lines[1].text, Not(HasSubstr("residual"))) << "there is room for one";
    EXPECT_THAT(bad.lines[0].text, HasSubstr("residual"));
    EXPECT_EQ(bad.level, NoticeLevel::Remark);
    ASSERT_EQ(bad.without.size(), 1U);
    EXPECT_LT(milesBetween(bad.without[0].position, 14.0, -52.0), 0.1);
    EXPECT_THAT(bad.withoutText,
                ::testing::StartsWith("Without 13:40:00: 14-.00'0N 052-.00'0W, 95 %"));
    EXPECT_EQ(bad.without[0].label, "without 1340");

    EXPECT_EQ(fixOf(roundWith(-12), atAnchor, {"8", "", "", false}).notice, "")
        << "lines that rough may";
    const SightFixResult scaled = fixOf(roundWith(-12), atAnchor, {"", "", "", true});
    EXPECT_TRUE(scaled.fix->ellipse) << "made as wide as the residuals";
    EXPECT_THAT(scaled.notice, HasSubstr("13:40:00"));

    const SightFixResult three = fixOf(roundWith(20, 3), atAnchor);
    EXPECT_THAT(three.notice, HasSubstr("cannot tell which sight is out: "));
    EXPECT_EQ(three.without.size(), 3U);
    for (const char* time : {"12:00:00", "13:40:00 by 20.0 miles towards", "15:00:00"})
        EXPECT_THAT(three.notice, HasSubstr(time));
}

TEST(CalculateFix, sightsOfAnotherDayAreNamed)
{
    const SightFixResult same = fixOf(listOf({morning1990, noon1990}), track1990);
    EXPECT_THAT(same.notice, Not(HasSubstr("check the date")));
    SightTexts dayBefore = morning2020;
    dayBefore.date = "2020/12/16";
    EXPECT_THAT(fixOf(listOf({dayBefore, noon2020}), track2020).notice,
                HasSubstr("The sight of 2020/12/16 11:45:11 UTC lies 1.2 days before the fix"));
    SightTexts exactly = noon2020;
    exactly.date = "2020/12/16";
    EXPECT_THAT(fixOf(listOf({exactly, noon2020}), track2020).notice,
                Not(HasSubstr("before the fix")));
    const double noon = 44182 + 15.5 / 24;
    const auto noticeAt = [&](double now) {
        return CalculateFix(listOf({morning2020, noon2020}), track2020, {}, now).notice;
    };
    EXPECT_EQ(noticeAt(noon), "");
    EXPECT_THAT(noticeAt(noon - 2.0 / 24),
                HasSubstr("The sight of 2020/12/17 15:30:00 UTC lies 2.0 h in the future"));
    EXPECT_THAT(noticeAt(noon - 1),
                HasSubstr("The sight of 2020/12/17 11:45:11 UTC and 1 more lie 20.3 h in the"));
}

TEST(CalculateFix, sightsOfAnotherDayAreNamedWithIt)
{
    const NavFunc113::Position place{NavFunc113::Degrees(14), NavFunc113::Degrees(-52)};
    SightList list = roundWith(0);
    list.record(seenFrom(place, "2020/12/16", "19:00:00", -15));
    EXPECT_THAT(fixOf(list, atAnchor).notice,
                HasSubstr("The sight of 2020/12/16 19:00:00 by 15.0 miles away does not fit the "
                          "others ("));
    list.record(seenFrom(place, "2020/12/17", "19:30:00", 30));
    const SightFixResult two = fixOf(list, atAnchor);
    EXPECT_THAT(two.withoutText,
                ::testing::StartsWith("Without 19:30:00 and 2020/12/16 19:00:00: "))
        << two.notice;
    EXPECT_EQ(two.without[0].label, "without 1930 1900");
}

// Weak geometry is told below 30 degrees, a fix far from where the ship was thought to be beyond 40
// miles: neither before.
TEST(CalculateFix, weakCutsAndFarFixesAreTold)
{
    const NavFunc113::Position place{NavFunc113::Degrees(14), NavFunc113::Degrees(-52)};
    int weak = 0, strong = 0;
    for (int minute = 0; minute < 60; minute += 3) {
        const std::string time =
            "14:" + std::to_string(minute / 10) + std::to_string(minute % 10) + ":00";
        const SightFixResult fix = fixOf(listOf({seenFrom(place, "2020/12/17", "12:40:00"),
                                                 seenFrom(place, "2020/12/17", time.c_str())}),
                                         atAnchor);
        const double cut = fabs(fix.lines[1].line.azimuth - fix.lines[0].line.azimuth).value();
        if (std::fabs(cut - 30) < 0.4) continue;
        (cut < 30 ? weak : strong) += 1;
        EXPECT_EQ(fix.notice.find("Small cut angle of ") == 0, cut < 30) << cut << fix.notice;
        EXPECT_EQ(fix.notice.find(" of " + Format(cut, "0") + " degrees") != std::string::npos,
                  cut < 30);
    }
    EXPECT_GT(weak, 1);
    EXPECT_GT(strong, 1);
    for (const char* latitude : {"13.15", "13.22", "14.38", "14.45"})
        for (const char* longitude : {"-52", "-52.30"}) {
            const SightFixResult fix = fixOf(roundWith(0), {latitude, longitude, "", "", ""});
            const double miles = std::hypot((fix.DR->latitude - place.latitude).value() * 60,
                                            (fix.DR->longitude - place.longitude).value() * 60 *
                                                cos(place.latitude));
            EXPECT_EQ(fix.notice, miles > 40 ? "The fix is " + Format(miles, "0") +
                                                   " miles from the DR position"
                                             : std::string());
        }
}

TEST(CalculateFix, linesThatDoNotMeetAreNoFix)
{
    SightTexts higher = noon2020;
    higher.Hs = "52.300";
    EXPECT_EQ(fixOf(listOf({noon2020, higher}), track2020).notice,
              "No fix: the lines are parallel");
    SightTexts low = noon2020;
    low.Hs = "8.00";
    EXPECT_THAT(fixOf(listOf({morning2020, low}), track2020).notice,
                HasSubstr("Sight of 2020/12/17 15:30:00 UTC: Altitude below 10 degrees"));
}

// Twenty minutes: below that nobody calls it a running fix.
TEST(CalculateFix, isCalledARunningFixAfterTwentyMinutes)
{
    const NavFunc113::Position place{NavFunc113::Degrees(14), NavFunc113::Degrees(-52)};
    for (const auto& [time, kind] :
         {std::pair("15:20:00", "FIX 2020/12/17 15:20:00 UTC, run 0-00:20:00"),
          {"15:20:01", "R FIX 2020/12/17 15:20:01 UTC, run 0-00:20:01"}}) {
        const SightFixResult fix = fixOf(listOf({seenFrom(place, "2020/12/17", "15:00:00"),
                                                 seenFrom(place, "2020/12/17", time)}),
                                         atAnchor);
        EXPECT_EQ(fix.time, kind);
        EXPECT_EQ(fix.fix->label, std::string(kind).substr(0, std::string(kind).find(" 20")) +
                                      " 15" + std::string(time).substr(3, 2));
        const auto sent = fixForRecord(fix);
        ASSERT_TRUE(sent);
        EXPECT_EQ(sent->kind,
                  std::string(*kind == 'R' ? "Running fix" : "Fix") + ", 2 lines: Sun, Sun");
        EXPECT_NEAR(sent->latitude.packed(), 14, 0.002);
        EXPECT_NEAR(sent->longitude.packed(), -52, 0.002);
        EXPECT_EQ(sent->ellipse, fix.ellipseText);
    }
    EXPECT_FALSE(fixForRecord(fixOf({}, atAnchor)));
}

// Only a round of other bodies is referred to the time of the DR position, and only within it.
TEST(CalculateFix, timeOfTheFixOfTheSunIsThatOfTheLastSight)
{
    TrackTexts between = track2020;
    between.time = "2020/12/17 13:00:00";
    EXPECT_THAT(fixOf(listOf({morning2020, noon2020}), between).time, HasSubstr("15:30:00 UTC"));
}

TEST(CalculateFix, sigmaIsCalledWhatItIs)
{
    const SightFixResult assumed = fixOf(roundWith(1), atAnchor, {"0.5", "", "", false});
    const SightFixResult measured = fixOf(roundWith(1), atAnchor, {"0.5", "", "", true});
    const double scale = measured.fix->ellipse->scale;
    EXPECT_NE(scale, 1);
    EXPECT_NEAR(measured.fix->ellipse->sigmaNorth / assumed.fix->ellipse->sigmaNorth, scale, 1e-9);
    EXPECT_NEAR(measured.fix->ellipse->sigmaEast / assumed.fix->ellipse->sigmaEast, scale, 1e-9);
    EXPECT_THAT(assumed.sigmaText,
                HasSubstr("the residuals say " + Format(scale / 2, "0.0#") + " nm"));
    EXPECT_THAT(assumed.sigmaText, HasSubstr("assumed, not measured: 0.5 nm"));
    EXPECT_THAT(assumed.sigmaText, HasSubstr("the residuals say"));
    EXPECT_THAT(measured.sigmaText, HasSubstr("measured from the residuals of 5 lines"));
    EXPECT_NE(assumed.ellipseText, measured.ellipseText);
    const SightFixResult two =
        fixOf(listOf({morning2020, noon2020}), track2020, {"", "", "", true});
    EXPECT_THAT(two.sigmaText, HasSubstr("three lines at least"));
    const std::pair<SightFixOptions, const char*> faults[] = {
        {{"0.09", "", "", false}, "Sigma of a line: not within 0.1 to 20 nautical miles"},
        {{"", "101", "", false}, "Error of the run: not within 0 to 100"},
        {{"", "", "1,5", false}, "Error of the course made good: only 1 was read, write 1.5"}};
    for (const auto& [options, fault] : faults)
        EXPECT_THAT(fixOf(roundWith(0), atAnchor, options).notice, HasSubstr(fault));
}

} // namespace
} // namespace korvel
