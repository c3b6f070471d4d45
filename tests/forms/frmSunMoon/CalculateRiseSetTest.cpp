// SPDX-License-Identifier: MIT
#include "forms/frmSunMoon/CalculateRiseSet.h"

#include "forms/frmSunMoon/RiseSetWorking.h"
#include "tests/forms/WorkingLines.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>
#include <vector>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using NavFunc113::DateTime;
using ::testing::HasSubstr;
using ::testing::Not;

RiseSetResult calculate(const RiseSetInput& input)
{
    RiseSetRow row;
    return CalculateRiseSet(input, row);
}

TEST(CalculateRiseSet, ageOfTheMoonAtNoon)
{
    const auto row = calculate({"2024/6/21", "Tokyo", "9", "35.393", "139.447"});
    EXPECT_EQ(row.moonAge, "14.4") << "at 12:00 UT, 13 hours before full Moon";
    EXPECT_THAT(moonAgeTip(row.date), ::testing::HasSubstr("15.0 days since new Moon"))
        << "2024-06-06 12:38 UTC";
    EXPECT_EQ(row.notice, "");
}

TEST(CalculateRiseSet, whatBlanksARow)
{
    for (const Golden& row : golden("rise_set_rows")) {
        const auto result = calculate(
            {row.text("date"), "", row.text("TD"), row.text("latitude"), row.text("longitude")});
        const bool shown = row.tick("computed");
        EXPECT_EQ(result.successful, shown) << row;
        EXPECT_EQ(result.moonAge.has_value(), row.tick("age")) << row;
        EXPECT_TRUE(shown || !result.notice.empty()) << row;
        EXPECT_EQ(result.sunRiseTime.text.empty(), !shown) << row;
        EXPECT_EQ(result.moonSetTime.text.empty() && result.moonSetTime.tip.empty(), !shown) << row;
    }
}

TEST(CalculateRiseSet, acceptedNumbersStayInTheRow)
{
    using namespace NavFunc113;
    RiseSetRow row{Hours(1), DegMin(2), DegMin(3)};
    CalculateRiseSet({"2024/6/21", "", "9", "35.3", "200"}, row);
    EXPECT_EQ(row.TD, Hours(9));
    EXPECT_EQ(row.latitude, DegMin(35.3));
    EXPECT_EQ(row.longitude, DegMin(3)) << "the refused one stays as it was";
    CalculateRiseSet({"2024/6/21", "", "9", "35.3", "139"}, row);
    EXPECT_NEAR(row.latitude.packed(), 35.3 + 4e-10, 1e-14) << "moved once by each search";
}

TEST(CalculateRiseSet, midnightOfADayWithoutMoonriseIsExplained)
{
    int midnight = 0;
    for (int day = 1; day <= 31; ++day) {
        const auto row =
            calculate({"2024/1/" + std::to_string(day), "Yokohama", "9", "35.27", "139.39"});
        if (row.moonRiseTime.text != "0000LT") continue;
        ++midnight;
        EXPECT_FALSE(row.moonRiseTime.tip.empty());
    }
    EXPECT_GE(midnight, 1);
}

TEST(CalculateRiseSet, faultOfTheMoonBlanksItsEventsOnly)
{
    // The Moon's declination went beyond 28 degrees in 2006.
    int faults = 0;
    for (int day = 1; day <= 30; ++day) {
        const auto row = calculate({"2006/9/" + std::to_string(day), "Norway", "1", "63", "10"});
        ASSERT_TRUE(row.successful);
        EXPECT_FALSE(row.sunRiseTime.text.empty());
        EXPECT_FALSE(row.sunSetAz.text.empty());
        if (!row.moonRiseTime.text.empty()) continue;
        ++faults;
        EXPECT_THAT(row.notice, HasSubstr("Norway: "));
        EXPECT_THAT(row.notice, HasSubstr("no moonrise that day at this latitude"));
    }
    EXPECT_GE(faults, 1);
    EXPECT_LE(faults, 14);
}

/// Minutes of the day that a label shows, in the middle of the minute that it is cut to.
double minutesOf(const std::string& hhmm)
{
    return 60 * std::stoi(hhmm.substr(0, 2)) + std::stoi(hhmm.substr(2, 2)) + 0.5;
}

/// What an officer reads of an event: the refined time where one stands beside the label.
/// @param good minutes to which a label without one is good
void expectToRead(const RiseSetLabel& label, const std::string& truth, double good, double within,
                  const Golden& row)
{
    const std::string read = label.refined.empty() ? label.text : label.refined;
    if (truth == "none") {
        EXPECT_TRUE(read == "none" || read == "0000LT" || read.empty()) << row << read;
        EXPECT_THAT(label.tip, HasSubstr("no ")) << row;
        return;
    }
    ASSERT_GE(read.size(), 4U) << row << label.tip;
    const double error = label.refined.empty() ? good : within;
    EXPECT_NEAR(minutesOf(read), std::stod(truth), 0.5 + error + 1e-6) << row << label.tip;
}

TEST(CalculateRiseSet, eventsOfAHundredYearsByFullTheory)
{
    constexpr const char* names[] = {"sunrise", "sunset", "moonrise", "moonset"};
    constexpr double sunWithin = 0.03, moonSearch = 5; // minutes
    int searchedMoons = 0, farOut = 0;
    for (const Golden& row : golden("rise_set_events")) {
        const auto result = calculate(
            {row.text("date"), "", row.text("TD"), row.text("latitude"), row.text("longitude")});
        const RiseSetLabel* labels[] = {&result.sunRiseTime, &result.sunSetTime,
                                        &result.moonRiseTime, &result.moonSetTime};
        for (std::size_t i = 0; i < 4; ++i) {
            const bool sun = i < 2;
            const double within = sun ? sunWithin : row.number("within");
            const std::string& truth = row.text(names[i]);
            expectToRead(*labels[i], truth, within + (sun ? 1 : moonSearch), within, row);
            const RiseSetFigures& figures = result.figures->events[i];
            ASSERT_EQ(figures.refined.has_value(), truth != "none") << row << names[i];
            EXPECT_EQ(figures.calendarEnds, false) << row;
            // A refined figure stands beside a label that is out by more than it is held to be good
            // to: the Sun's by a minute, the Moon's by five.
            const double out = (figures.found.value_or(0) - figures.refined.value_or(0)) * 1440;
            const bool isTold =
                figures.refined ? std::fabs(out) > (sun ? 1 : 5) : figures.found.value_or(0) != 0;
            EXPECT_EQ(labels[i]->refined.empty(), !isTold) << row << names[i];
            if (!figures.refined) continue;
            const DateTime event = result.date + std::stod(truth) / 1440;
            EXPECT_NEAR((*figures.refined - event) * 1440, 0, within) << row << names[i];
            const double searchedOut = std::fabs(figures.found.value_or(0) - event) * 1440;
            if (row.text("fault") != "place or year") continue;
            searchedMoons += !sun;
            farOut += searchedOut > (sun ? within : moonSearch);
        }
    }
    EXPECT_LE(farOut, 0.05 * searchedMoons) << "no Sun, and one Moon in twenty";
}

TEST(CalculateRiseSet, southernWholeDegreesAreTold)
{
    const auto whole = calculate({"2024/12/21", "", "-4", "-55", "-68"});
    EXPECT_THAT(whole.sunRiseAz.tip, HasSubstr("as typed <"));
    const auto aside = calculate({"2024/12/21", "", "-4", "-55.001", "-68"});
    EXPECT_EQ(aside.sunRiseTime.refined, "");
    EXPECT_EQ(whole.sunRiseTime.refined + "LT", aside.sunRiseTime.text);
    EXPECT_EQ(whole.sunRiseTime.tip, "Refined time of sunrise: " + aside.sunRiseTime.text)
        << "what the refined search says is right";
}

TEST(CalculateRiseSet, theEndOfTheCalendarIsNoPolarNight)
{
    int beyond = 0;
    for (const std::string date : {"9999/12/29", "9999/12/30", "9999/12/31"}) {
        for (const std::string TD : {"-12", "0", "12"}) {
            const auto row = calculate({date, "", TD, "35", "0"});
            EXPECT_THAT(row.notice, Not(HasSubstr("no sun"))) << date << " " << TD;
            for (std::size_t i = 0; i < 2; ++i)
                EXPECT_EQ(row.figures->events[i].calendarEnds,
                          (i ? row.sunSetTime : row.sunRiseTime).tip.find("calendar") !=
                              std::string::npos)
                    << date << " " << TD;
            for (const auto& label : {row.sunRiseTime, row.sunSetTime}) {
                EXPECT_NE(label.refined, "none") << date << " " << TD << " " << label.tip;
                if (!label.text.empty()) continue;
                ++beyond;
                EXPECT_NE(date, "9999/12/29") << "the searches look two days ahead";
                EXPECT_THAT(label.tip, HasSubstr("beyond the calendar"));
                EXPECT_THAT(row.notice, HasSubstr(label.tip));
            }
        }
    }
    EXPECT_GE(beyond, 1);
}

// For a spreadsheet: times in full, what is missing empty; on paper as the window shows it.
TEST(CalculateRiseSet, listAndTable)
{
    const RiseSetInput typed[] = {{"2024/6/21", "Tokyo", "9", "35.393", "139.447"},
                                  {"2024/6/21", "Ushuaia", "-4", "-55", "-68"},
                                  {"2024/6/21", "Beyond", "1", "70", "20"},
                                  {"2024/6/21", "Hammerfest", "1", "63", "20"},
                                  {"2024/1/4", "Yokohama", "9", "35.27", "139.39"}};
    std::vector<RiseSetResult> results;
    for (const RiseSetInput& each : typed)
        results.push_back(calculate(each));
    std::vector<RiseSetTableRow> rows;
    for (std::size_t i = 0; i < results.size(); ++i)
        rows.push_back({i + 1, typed[i], &results[i], {}});
    const ExportTable list = riseSetList(rows);
    ASSERT_EQ(list.rows.size(), 4U) << "those that are calculated";
    for (const auto& row : list.rows)
        EXPECT_EQ(row.size(), list.headings.size());
    const auto cell = [&](std::size_t row, const std::string& heading) {
        const auto at = std::ranges::find(list.headings, heading) - list.headings.begin();
        return list.rows.at(row).at(static_cast<std::size_t>(at));
    };
    using ::testing::StartsWith;
    EXPECT_EQ(cell(0, "row") + cell(0, "place") + cell(0, "date (local)"), "1Tokyo2024-06-21");
    EXPECT_THAT(cell(0, "sunrise (local time)"), StartsWith("2024-06-21T04:25:"));
    EXPECT_THAT(cell(0, "sunset (local time)"), StartsWith("2024-06-21T19:00:"));
    EXPECT_THAT(cell(0, "moonset (local time)"), StartsWith("2024-06-21T03:05:"));
    EXPECT_EQ(cell(1, "time difference (hours)"), "-4.0000");
    EXPECT_EQ(cell(1, "latitude (degrees)"), "-55.000000");
    EXPECT_THAT(cell(1, "sunrise refined (local time)"), StartsWith("2024-06-21T08:58:"));
    EXPECT_THAT(cell(1, "sunset azimuth (degrees true)"), StartsWith("314."));
    EXPECT_EQ(cell(2, "moonrise (local time)"), "") << "no such event";
    const bool isNone = results[4].moonRiseTime.text == "0000LT";
    EXPECT_EQ(cell(3, "moonrise (local time)").empty(), isNone);

    const PaperTable table = riseSetTable(rows);
    ASSERT_EQ(table.rows.size(), rows.size());
    EXPECT_THAT(table.rows[0],
                ::testing::ElementsAre("1", "Tokyo", "9", "35°39.3'N", "139°44.7'E", "0425LT",
                                       "<060.7>", "1900LT", "<299.3>", "1834LT", "0305LT"));
    EXPECT_EQ(table.rows[1][5], results[1].sunRiseTime.text + ", refined 0858");
    EXPECT_THAT(table.rows[2],
                ::testing::ElementsAre("3", "Beyond", "1", "70", "20", "", "", "", "", "", ""));
    EXPECT_EQ(table.rows[3][9], "") << "no moonrise";
}

TEST(CalculateRiseSet, thePaperSaysWhyThereIsNone)
{
    enum { Sunrise = 1, Moonrise = 3, Azimuths = 5 };
    const auto workingsOf = [](const RiseSetInput& input) {
        RiseSetResult result = calculate(input);
        result.figures->azimuths[1].azimuth.reset(); // nowhere within the limits
        return riseSetWorkings({1, input, &result, {}});
    };
    EXPECT_EQ(workingsOf({"9999/12/31", "", "9", "35.393", "139.447"})[Sunrise].whyNone,
              "The calendar ends before the search does.");
    EXPECT_EQ(workingsOf({"2024/1/4", "", "9", "35.27", "139.39"})[Moonrise].whyNone,
              "Neither search finds a moonrise on this date.");
    const auto bergen = workingsOf({"2024/6/21", "", "1.7", "60.235", "5.193"});
    EXPECT_EQ(bergen[Moonrise].whyNone, "");
    EXPECT_EQ(linesOf(bergen[Moonrise]).back(),
              "Refined time: no start leads to an event on the date = none");
    EXPECT_THAT(linesOf(bergen[Azimuths]).back(),
                ::testing::MatchesRegex("Azimuth of sunset: sin 23\\..* / cos 60\\..* = none"));
}

TEST(CalculateRiseSet, scrollBarAndDate)
{
    EXPECT_EQ(scrollOffset("2024/3/1", 45350.9, -366, 366), 2) << "45350 is 2024-02-28";
    EXPECT_EQ(scrollOffset("2023/2/26", 45350, -366, 366), std::nullopt);
    EXPECT_EQ(scrollOffset("2023/2/27", 45350, -366, 366), -366);
    EXPECT_EQ(scrollOffset("2025/2/28", 45350, -366, 366), 366);
    EXPECT_EQ(scrollOffset("2025/3/1", 45350, -366, 366), std::nullopt);
    EXPECT_EQ(scrollOffset("2024/2/30", 45350, -366, 366), std::nullopt);
    EXPECT_EQ(scrolledDate(45350.9, 2), "2024/3/1");
}

} // namespace
} // namespace korvel
