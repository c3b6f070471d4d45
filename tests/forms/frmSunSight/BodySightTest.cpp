// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/BodySight.h"

#include "almanac/sextant.h"
#include "forms/frmSunSight/sight/CalculateLOP.h"
#include "forms/frmSunSight/sight/MeridianPassage.h"
#include "forms/frmSunSight/sight/SightBodies.h"
#include "tests/forms/frmSunSight/WorkedSights.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace worked;
using ::testing::HasSubstr;

/// A latitude as the window shows it, "36-.17'9N", in minutes.
double milesOf(const std::string& shown)
{
    return 60 * std::stod(shown.substr(0, 2)) + std::stod(shown.substr(4, 2)) +
           std::stod(shown.substr(7, 1)) / 10;
}

SightTexts bodySight(const char* body, const char* date, const char* time, const char* Hs,
                     const char* indexError, const char* eye)
{
    SightTexts texts = sight(date, time, Hs, indexError, eye);
    texts.body = body;
    return texts;
}

// source: a round of four stars of 1978 with its published fix
const SightList round1978 =
    listOf({bodySight("Capella", "1978/2/28", "12:20:26", "50.060", "0", "23"),
            bodySight("Procyon", "1978/2/28", "12:27:17", "51.064", "0", "23"),
            bodySight("Canopus", "1978/2/28", "12:28:31", "28.512", "0", "23"),
            bodySight("Hamal", "1978/2/28", "12:33:04", "43.238", "0", "23")});
const TrackTexts track1978{"6.025", "90.400", "1978/2/28 12:30:00", "110", "16"};

TEST(BodySight, publishedRoundOfFourStars)
{
    const SightFixResult fix = CalculateFix(round1978, track1978, {}, {});
    ASSERT_TRUE(fix.fix) << fix.notice;
    EXPECT_LT(milesBetween(fix.fix->position, 6.097, 90.302), 0.5)
        << fix.latitude << fix.longitude << fix.notice;
    EXPECT_EQ(fix.lines[0].body, "Capella");
    EXPECT_THAT(fix.time, HasSubstr("FIX 1978/02/28 12:30:00 UTC"))
        << "the time of the DR position";
    TrackTexts before = track1978;
    before.time = "1978/2/28 12:00:00";
    EXPECT_THAT(CalculateFix(round1978, before, {}, {}).time, HasSubstr("12:33:04 UTC"));
}

// source: an almanac's example of 1981, its latitude by the tables of Polaris
TEST(BodySight, latitudeByPolaris)
{
    const SightTexts polaris =
        bodySight("polaris", "1981/1/17", "02:03:48", "37.164", "1.5", "18.288");
    for (const char* latitude : {"36.20", "35.40", "37.00"}) {
        const MeridianResult found =
            CalculateMeridian(polaris, {latitude, "-124.36", "", "", ""}, {});
        EXPECT_NEAR(milesOf(found.latitude), milesOf("36-.17'9N"), 0.2) << found.latitude;
        EXPECT_THAT(found.note, HasSubstr("By Polaris"));
    }
}

/// Every body above the horizon of a ship at midnight and at noon, as her sextant shows it.
TEST(BodySight, whatStandsThereIsObservedWithoutAnIntercept)
{
    const TrackTexts ship{"-35.200", "151.300", "", "", ""};
    const almanac::Observer eye{NavFunc113::Degrees(-35 - 20.0 / 60), NavFunc113::Degrees(151.5),
                                NavFunc113::Metres(18)};
    int seen = 0;
    for (const char* time : {"02:10:00", "09:00:00", "14:00:00", "18:30:00"}) {
        SightTexts texts = sight("2026/11/22", time, "", "-2", "18");
        texts.air = "28";
        texts.sea = "21.5";
        texts.pressure = "987";
        Remarks unheard;
        texts.Hs = "30";
        const auto UTC = *readObservation(texts, unheard).UTC;
        for (const almanac::BodyEntry& entry : almanac::bodies()) {
            if (entry.body == almanac::Body::Sun) continue;
            texts.body = entry.name;
            const auto limb = seen % 2 ? almanac::Limb::Upper : almanac::Limb::Lower;
            texts.upperLimb = seen % 2;
            const auto preset =
                almanac::sextantAltitude(almanac::Sky(UTC).place(entry.body), entry.body, limb,
                                         {NavFunc113::Metres(18), 28, 21.5, 987}, eye);
            if (!preset || *preset < NavFunc113::Degrees(1) || *preset > NavFunc113::Degrees(89))
                continue;
            ++seen;
            texts.Hs = Format(NavFunc113::DegToDegMin(*preset - NavFunc113::Degrees(2.0 / 60)),
                              "0.000000");
            const LOPResult line = CalculateLOP(texts, ship, {});
            EXPECT_THAT(line.intercept, ::testing::StartsWith("0'.0"))
                << texts.body << " " << time << " " << line.notice;
        }
    }
    EXPECT_GT(seen, 150);
}

TEST(BodySight, aBodyThatCanHardlyBeItIsDoubted)
{
    struct Case {
        const char *body, *time, *Hs, *why, *likely;
    };
    for (const Case& each :
         {Case{"Capella", "12:20:26", "50.060", "", ""},
          Case{"Sirius", "12:20:26", "50.060", "Sirius should stand", "Capella"},
          Case{"Vega", "12:20:26", "50.060", "Vega is below the horizon", "Capella"},
          Case{"Capella", "09:00:00", "50.060", "Capella by day", ""},
          Case{"Capella", "12:20:26", "", "", ""}}) {
        const BodyDoubt doubt =
            CalculateLOP(bodySight(each.body, "1978/2/28", each.time, each.Hs, "0", "23"),
                         track1978, {})
                .doubt;
        EXPECT_THAT(doubt.why, ::testing::StartsWith(each.why));
        EXPECT_EQ(doubt.why.empty(), *each.why == 0) << doubt.why;
        EXPECT_THAT(doubt.likely, ::testing::StartsWith(each.likely)) << each.body;
    }
    const auto noticeOf = [](const char* body) {
        return CalculateLOP(bodySight(body, "1978/2/28", "12:20:26", "50.060", "0", "23"),
                            track1978, {})
            .notice;
    };
    EXPECT_THAT(noticeOf("al"), HasSubstr("\"al\" may be Alpheratz"));
    EXPECT_THAT(noticeOf("Pluto"), HasSubstr("\"Pluto\" is not in the almanac"));
    EXPECT_EQ(noticeOf("12"), "");
    EXPECT_THAT(
        CalculateLOP(bodySight("12", "1949/2/28", "12:20:26", "50.060", "0", "23"), track1978, {})
            .notice,
        HasSubstr("Date of the sight: "));
}

TEST(BodySight, bodiesComeBackFromTheirFile)
{
    SightSettings settings;
    settings.sight = bodySight("Moon", "1978/2/28", "12:40:00", "", "", "");
    settings.list = round1978;
    settings.list.record(noon2020);
    settings.list.setOn(1, false);
    const std::string bytes = sightBodiesText(settings);
    SightSettings read = settingsOf(recordOf(settings));
    EXPECT_EQ(read.list.sights()[0].texts.body, "") << "the record has no place for it";
    EXPECT_EQ(takeSightBodies(bytes, read), "");
    EXPECT_EQ(read.list.sights(), settings.list.sights());
    EXPECT_EQ(read.sight.body, "Moon");
    EXPECT_EQ(takeSightBodies(bytes + "sight=Capella\n", read), "line 7");
    EXPECT_EQ(takeSightBodies("nonsense", read), "line 1: these are no bodies of sights");
}

} // namespace
} // namespace korvel
