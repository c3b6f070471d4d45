// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/BodySight.h"

#include "almanac/horizon.h"
#include "almanac/sextant.h"
#include "app/reading/TypedTime.h"
#include "forms/frmSunSight/paper/SightWorking.h"
#include "forms/frmSunSight/sight/CalculateLOP.h"
#include "forms/frmSunSight/sight/MeridianPassage.h"
#include "forms/frmSunSight/sight/SightBodies.h"
#include "forms/frmSunSight/sight/SightBody.h"
#include "navlib/sky/ephemeris.h"
#include "tests/forms/WorkingLines.h"
#include "tests/forms/frmSunSight/WorkedSights.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <set>

namespace korvel
{
namespace
{

using namespace worked;
using ::testing::ContainsRegex;
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
/// A function: bodies are recognised by tables that other files set up at the start.
SightList round1978()
{
    return listOf({bodySight("Capella", "1978/2/28", "12:20:26", "50.060", "0", "23"),
                   bodySight("Procyon", "1978/2/28", "12:27:17", "51.064", "0", "23"),
                   bodySight("Canopus", "1978/2/28", "12:28:31", "28.512", "0", "23"),
                   bodySight("Hamal", "1978/2/28", "12:33:04", "43.238", "0", "23")});
}
const TrackTexts track1978{"6.025", "90.400", "1978/2/28 12:30:00", "110", "16"};

TEST(BodySight, publishedRoundOfFourStars)
{
    const SightFixResult fix = CalculateFix(round1978(), track1978, {}, {});
    ASSERT_TRUE(fix.fix) << fix.notice;
    EXPECT_LT(milesBetween(fix.fix->position, 6.097, 90.302), 0.5)
        << fix.latitude << fix.longitude << fix.notice;
    EXPECT_EQ(fix.lines[0].body, "Capella");
    EXPECT_THAT(fix.time, HasSubstr("FIX 1978/02/28 12:30:00 UTC"))
        << "the time of the DR position";
    TrackTexts before = track1978;
    before.time = "1978/2/28 12:00:00";
    EXPECT_THAT(CalculateFix(round1978(), before, {}, {}).time, HasSubstr("12:33:04 UTC"));
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
        // 49 minutes from the pole, which are one degree of azimuth there.
        EXPECT_THAT(found.note, ContainsRegex("By Polaris.*bearing (359|000|001)\\."));
    }
}

TEST(BodySight, aLowAltitudeIsNamedBelowTenDegreesAndDoubtedMoreBelowThree)
{
    const struct {
        double Hs;
        const char* said;
    } rows[] = {
        {10.01, ""}, {10, ""}, {9.599, "some tenths"}, {3, "some tenths"}, {2.599, "minutes"}};
    for (const auto& [Hs, said] : rows) {
        SightCorrections corrections;
        corrections.observed = NavFunc113::DegMin(Hs);
        corrections.ofBody.emplace().refraction = -5.3;
        Remarks remarks;
        warnOfLowBody(corrections, remarks);
        EXPECT_EQ(remarks.text(),
                  *said ? "Altitude below 10 degrees: the refraction of 5.3' may be out by " +
                              std::string(said)
                        : "")
            << Hs;
    }
}

using NavFunc113::DateTime;
using NavFunc113::Degrees;
using NavFunc113::Position;

/// Altitude over a ship under way, by a place of the almanac, of the Sun by the short series.
Degrees altitudeOver(almanac::Body body, DateTime UTC, const Position& ship)
{
    using namespace NavFunc113;
    if (body == almanac::Body::Sun) {
        const SunFigures sun = FiguresOfSun(UTC);
        return PlaceAboveHorizon(DegMinToDeg(sun.GHA), DegMinToDeg(sun.declination), ship).altitude;
    }
    const almanac::Place place = almanac::Sky(UTC).place(body);
    return PlaceAboveHorizon(place.gha, place.declination, ship).altitude;
}

Degrees hourAngleOver(almanac::Body body, DateTime UTC, const Position& ship)
{
    using namespace NavFunc113;
    const Degrees GHA = body == almanac::Body::Sun ? DegMinToDeg(FiguresOfSun(UTC).GHA)
                                                   : almanac::Sky(UTC).place(body).gha;
    return WithinHalfTurn(GHA + ship.longitude);
}

/// Seconds after an instant at which a body stands highest (lowest) over the moving ship, by
/// halving.
double extremeAfter(almanac::Body body, DateTime passage, const Position& atSight, DateTime sight,
                    const NavFunc113::Motion& motion, double sign)
{
    const auto altitudeAt = [&](double seconds) {
        const DateTime then = passage + seconds / 86400;
        const Position ship = Advanced(atSight, motion, NavFunc113::Hours((then - sight) * 24));
        return sign * altitudeOver(body, then, ship).value();
    };
    double from = -3000, to = 3000;
    while (to - from > 2) {
        const double third = (to - from) / 3;
        if (altitudeAt(from + third) < altitudeAt(to - third))
            from += third;
        else
            to -= third;
    }
    return (from + to) / 2;
}

// Where the body stands at the passage that is told, and when it stands highest, are searched for
// with the almanac and the ship's run alone.
TEST(BodySight, passagesOfTheMovingShip)
{
    const struct {
        const char *body, *time, *latitude, *longitude, *course, *speed, *caption, *extreme;
    } cases[] = {
        {"Moon", "20:00", "35.00", "-40.00", "020", "20", "Upper passage", "greatest"},
        {"Moon", "21:30", "-50.00", "-35.00", "160", "24", "Upper passage", "greatest"},
        {"Saturn", "20:49", "27.00", "-45.00", "245", "15", "Upper passage", "greatest"},
        {"Dubhe", "18:00", "60.00", "30.00", "000", "30", "Lower passage", "least"},
        {"Dubhe", "18:00", "60.00", "30.00", "090", "30", "Lower passage", "least"},
        {"Vega", "16:00", "10.00", "10.00", "180", "30", "Upper passage", "greatest"},
        {"Canopus", "12:00", "20.00", "10.00", "180", "20", "Upper passage", "greatest"},
        {"Canopus", "12:00", "50.00", "10.00", "180", "20", "Upper passage", "below the horizon"},
        {"", "14:37", "13.42", "-44.55", "200", "25", "", "greatest"},
        {"", "14:37", "-60.42", "-44.55", "340", "25", "", "greatest"},
        {"", "09:37", "-30.00", "-44.55", "340", "25", "", "greatest"},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(std::string(each.body) + " " + each.latitude + " " + each.course);
        SightTexts texts = bodySight(each.body, "2026/11/22", each.time, "30", "", "");
        const TrackTexts track{each.latitude, each.longitude, "", each.course, each.speed};
        Remarks unheard;
        const Observation seen = readObservation(texts, unheard);
        const Track run = readTrack(track, seen.UTC, true, unheard);
        const MeridianResult found = CalculateMeridian(texts, track, {});
        EXPECT_EQ(found.caption, each.caption);
        const auto passage = readTypedTime(found.noon.substr(0, 19), Due::DateAndTime).value;
        ASSERT_TRUE(passage) << found.noon;
        EXPECT_LT(std::fabs(*passage - *seen.UTC), 1.0);
        const Position then =
            Advanced(*run.position, *run.motion, NavFunc113::Hours((*passage - *seen.UTC) * 24));
        if (!*each.body) {
            EXPECT_NEAR((found.figures.atNoon.latitude - then.latitude).value(), 0, 1e-4);
        }
        const bool isLower = *each.extreme == 'l';
        const Degrees off = hourAngleOver(seen.body, *passage, then) +
                            (isLower ? NavFunc113::halfTurn : Degrees(0));
        EXPECT_NEAR(NavFunc113::WithinHalfTurn(off).value() * 240, 0, 1) << found.noon;
        ASSERT_THAT(found.greatest, ::testing::StartsWith(each.extreme));
        if (*each.extreme == 'b') continue;
        EXPECT_GT(altitudeOver(seen.body, *passage, then), Degrees(0));
        const double later = extremeAfter(seen.body, *passage, *run.position, *seen.UTC,
                                          *run.motion, isLower ? -1 : 1);
        const double said = std::stod(found.greatest.substr(found.greatest.find("altitude ") + 9)) *
                            (found.greatest.ends_with("earlier") ? -1 : 1);
        EXPECT_NEAR(said, later, 2 + 0.04 * std::fabs(later)) << found.greatest;

        // By the clock of a watch that keeps ship's mean time, three hours behind.
        texts.SMT = true;
        texts.TD = "-3";
        texts.time = Format(*seen.UTC - 3.0 / 24, "hh:mm:ss");
        texts.date = Format(*seen.UTC - 3.0 / 24, "yyyy/mm/dd");
        EXPECT_EQ(CalculateMeridian(texts, track, {}).noon,
                  found.noon + ", " + Format(*passage - 3.0 / 24, "MM/dd hh:mm:ss") + " SMT");
    }
}

// From a ship on the other side of a body near the zenith its altitude is the same.
TEST(BodySight, latitudeByABodyNearTheMeridian)
{
    const struct {
        const char* fault;
        double latitude, longitude;
        const char *body, *time, *note;
        bool isInDoubt;
    } cases[] = {
        {"south of the zenith", 20, 10, "Diphda", "20:04:00",
         " after the upper meridian at the sight", false},
        {"below the pole", 60, 30, "Dubhe", "18:25:00", " after the lower meridian at the sight",
         false},
        {"right in the zenith", -17.7, 10, "Diphda", "19:20:00",
         "; first with it to the south, then to the north", true},
    };
    for (const auto& each : cases) {
        SCOPED_TRACE(each.fault);
        // Where the body is on the meridian then, and a degree of longitude off it.
        const DateTime UTC =
            *readTypedTime(std::string("2026/11/22 ") + each.time, Due::DateAndTime).value;
        const almanac::Body body = *almanac::findBody(each.body);
        const Degrees meridian = -hourAngleOver(body, UTC, {}) +
                                 (each.latitude > 50 ? NavFunc113::halfTurn : Degrees(0));
        const Position ship{Degrees(each.latitude),
                            NavFunc113::WithinHalfTurn(meridian + Degrees(0.02))};
        const SightTexts texts = seenFrom(ship, "2026/11/22", each.time, 0, each.body);
        const MeridianResult found =
            CalculateMeridian(texts,
                              {Format(DegToDegMin(ship.latitude + Degrees(0.1)), "0.0000"),
                               Format(DegToDegMin(ship.longitude), "0.0000"), "", "", ""},
                              {});
        EXPECT_THAT(found.note, HasSubstr(each.note));
        EXPECT_EQ(found.note.find("first with it") != std::string::npos, each.isInDoubt);
        const auto latitudeOf = [](const std::string& shown) {
            return Degrees(milesOf(shown) / 60 * (shown.ends_with('S') ? -1 : 1));
        };
        const std::size_t split = found.latitude.find(" or ");
        ASSERT_EQ(split != std::string::npos, each.isInDoubt) << found.latitude;
        if (!each.isInDoubt) {
            EXPECT_NEAR((latitudeOf(found.latitude) - ship.latitude).value() * 60, 0, 0.11);
            continue;
        }
        const Degrees south = latitudeOf(found.latitude.substr(0, split));
        const Degrees north = latitudeOf(found.latitude.substr(split + 4));
        EXPECT_GT(south, north) << "the body to the south: the ship north of it";
        Remarks unheard;
        const Degrees Ho = DegMinToDeg(readObservation(texts, unheard).corrections->Ho);
        for (const Degrees latitude : {south, north})
            EXPECT_NEAR((altitudeOver(body, UTC, {latitude, ship.longitude}) - Ho).value() * 60, 0,
                        0.11);
    }
}

// Where almanac or calendar end, nothing is shown of a passage beyond.
TEST(BodySight, passagesBeyondTheEndAreNotShown)
{
    const auto noonOf = [](const char* body, const char* date, const char* longitude) {
        const MeridianResult found =
            CalculateMeridian(bodySight(body, date, "23:50:00", "30", "", ""),
                              {"14.00", longitude, "", "90", "10"}, {});
        return found.noon.substr(0, 16) + found.caption + found.greatest + "|" + found.note;
    };
    EXPECT_EQ(noonOf("Vega", "2100/12/31", "20"), "|") << "it would be in 2101";
    EXPECT_EQ(noonOf("Vega", "1940/5/5", "20"), "|");
    EXPECT_EQ(noonOf("", "9999/12/31", "20"), "|Meridian passage: overflow");
    EXPECT_THAT(noonOf("", "9999/12/31", "-150"), ::testing::StartsWith("9999/12/31 22:0"));
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
          Case{"Moon", "12:20:26", "50.060", "The Moon ", "Capella"},
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
    // How far off it is, by the line of position that is shown.
    const LOPResult sirius = CalculateLOP(
        bodySight("Sirius", "1978/2/28", "12:20:26", "50.060", "0", "23"), track1978, {});
    const double off = (milesOf(sirius.Ho) - milesOf(sirius.Hc)) / 60;
    EXPECT_THAT(sirius.doubt.why, HasSubstr("stand " + Format(std::fabs(off), "0.0") + "° " +
                                            (off > 0 ? "lower" : "higher") + " than was observed"));
    EXPECT_THAT(testing::linesOf(bodyAltitudeWorking(sirius)),
                ::testing::IsSupersetOf({HasSubstr("Air - sea: 0.2 × (10.0 - 10.0) = "),
                                         HasSubstr("Air temperature: 0.8")})); // cot 50.2°
    EXPECT_THAT(testing::linesOf(bodyAltitudeWorking(sirius)),
                Not(::testing::Contains(HasSubstr("Semi-diameter"))));
    EXPECT_EQ(bodyPlaceWorking(sirius).steps[5].formula, "δ");
    const LOPResult venus = CalculateLOP(
        bodySight("Venus", "1978/2/28", "12:20:26", "50.060", "0", "23"), track1978, {});
    EXPECT_EQ(bodyPlaceWorking(venus).steps[4].formula, "δ, of her centre of light");
    EXPECT_EQ((BodyDoubt{"Vega by day", ""}).remark(), "Vega by day");
    const auto noticeOf = [](const char* body) {
        return CalculateLOP(bodySight(body, "1978/2/28", "12:20:26", "50.060", "0", "23"),
                            track1978, {})
            .notice;
    };
    EXPECT_EQ(noticeOf("cap"), "Body of the sight: \"cap\" may be Capella, Caph");
    EXPECT_THAT(noticeOf("al"), HasSubstr("\"al\" may be Al"));
    EXPECT_EQ(std::ranges::count(noticeOf("al"), ','), 3) << "four of them are named";
    EXPECT_THAT(noticeOf("al"), ::testing::EndsWith(" .."));
    EXPECT_EQ(noticeOf(" capella\t "), "");
    EXPECT_THAT(noticeOf("Pluto"), HasSubstr("\"Pluto\" is not in the almanac"));
    EXPECT_EQ(noticeOf("12"), "");
    EXPECT_THAT(
        CalculateLOP(bodySight("12", "1949/2/28", "12:20:26", "50.060", "0", "23"), track1978, {})
            .notice,
        HasSubstr("Date of the sight: "));
}

// A body is likely within a degree of what was seen; a quarter of a degree weighs as a magnitude.
TEST(BodySight, likelyBodiesAreNearBrightAndAboveTheHorizon)
{
    using almanac::Body;
    const Position ship{Degrees(6), Degrees(90.6)};
    std::set<Body> byDay;
    int found = 0, full = 0;
    for (int hour = 0; hour < 24; ++hour) {
        const almanac::Sky sky(28549 + (hour + 0.5) / 24); // 1978 February 28
        const bool isDay = hour < 12;                      // the Sun sets at 12:07 UTC there
        EXPECT_EQ(isByDay(sky, ship), isDay) << hour;
        for (double altitude = 1; altitude < 90; altitude += 0.5) {
            const auto likely = likelyBodies(sky, Degrees(altitude), ship, Body::Mars);
            EXPECT_LE(likely.size(), 3U);
            full += likely.size() == 3;
            double last = -100;
            for (const LikelyBody& each : likely) {
                ++found;
                if (isDay) byDay.insert(each.body);
                EXPECT_NE(each.body, Body::Mars);
                EXPECT_TRUE(isDay || each.body != Body::Sun);
                const auto stands =
                    almanac::seenFrom(sky.place(each.body), {ship.latitude, ship.longitude, {}});
                EXPECT_LE(fabs(each.off), Degrees(1));
                EXPECT_GE(stands.direction.altitude, Degrees(0));
                EXPECT_EQ(each.azimuth, stands.direction.azimuth);
                const double limb = almanac::hasLimbs(each.body) ? stands.semiDiameter.value() : 0;
                EXPECT_NEAR(
                    fabs(each.off).value(),
                    std::fabs(std::fabs(altitude - stands.direction.altitude.value()) - limb),
                    1e-9);
                const auto& entry = almanac::entryOf(each.body);
                const double usual = each.body == Body::Saturn    ? 0.6
                                     : each.body == Body::Jupiter ? -2
                                                                  : -4;
                const double rank =
                    std::pow(each.off.value() * 4, 2) + entry.magnitude.value_or(usual);
                EXPECT_GE(rank, last - 1e-9) << entry.name;
                last = rank;
            }
        }
    }
    EXPECT_GT(found, 500);
    EXPECT_GT(full, 50);
    EXPECT_EQ(byDay, (std::set{Body::Sun, Body::Moon, Body::Venus}));
    EXPECT_EQ(bodyFacts(*almanac::findBody("Polaris")), "mag. 2.0");
    EXPECT_EQ(bodyFacts(Body::Venus), "");
}

TEST(BodySight, bodiesComeBackFromTheirFile)
{
    SightSettings settings;
    settings.options.series = true;
    settings.sight = bodySight("Moon", "1978/2/28", "12:40:00", "", "", "");
    settings.list = round1978();
    settings.list.record(noon2020);
    settings.list.setOn(1, false);
    const std::string bytes = sightBodiesText(settings);
    SightSettings read = settingsOf(recordOf(settings));
    EXPECT_EQ(read.list.sights()[0].texts.body, "") << "the record has no place for it";
    EXPECT_EQ(takeSightBodies(bytes, read), "");
    EXPECT_EQ(read.list.sights(), settings.list.sights());
    EXPECT_EQ(read.sight.body, "Moon");
    EXPECT_TRUE(read.options.series);
    EXPECT_EQ(takeSightBodies(bytes + "shape=round\n\nsight=Capella\nsight=Pluto;x\n", read),
              "line 10");
    settings.options.series = false;
    EXPECT_EQ(takeSightBodies(sightBodiesText(settings), read), "");
    EXPECT_TRUE(read.options.series) << "nothing is said of it";
    EXPECT_EQ(takeSightBodies("nonsense", read), "line 1: these are no bodies of sights");
}

} // namespace
} // namespace korvel
