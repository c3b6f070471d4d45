// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/day/TideTables.h"

#include "forms/frmTIDE/day/StationLines.h"
#include "forms/frmTIDE/day/TideWaters.h"
#include "forms/frmTIDE/paper/TidePaper.h"
#include "tests/forms/WorkingLines.h"
#include "tests/forms/frmTIDE/TideDays.h"
#include "tests/forms/frmTIDE/TideFolder.h"
#include "tests/golden/Golden.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <sstream>
#include <type_traits>

namespace korvel
{
namespace
{

using korvel::testing::Golden;
using korvel::testing::golden;
using korvel::testing::plainDay;
using korvel::testing::shippedStation;
using NavFunc113::Hours;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

/// What the paper of a day of 2003-07-15 in zone 9 says beside its figures.
TEST(TidePaper, tellsTheDayOfATideAndOfAStream)
{
    const auto paperOf = [](TideKind kind) {
        TideDayShown day = plainDay(4, 1.5, 0, kind);
        day.four.title = "Example";
        day.four.station.zone = Hours(9);
        day.four.lblTD = "9.0hE";
        day.four.lblTideInfo = "the highest and the lowest";
        day.four.station.meanLevel = 0.4;
        if (kind == TideKind::Stream) day.four.lblCuDirection = {"+ : East", "- : West"};
        WorkingPaper paper;
        tellDay(paper, "Brothers", {day, heightAt(day, "4:00"), timesOfHeight(day, "0.75")},
                {"the station", "its uncertainty", "", "its accuracy", "its source"});
        return paper;
    };
    const auto asText = [](const auto& rows) {
        std::string text;
        for (const auto& row : rows) {
            if constexpr (std::is_same_v<std::decay_t<decltype(row)>, std::string>)
                text += row + "; ";
            else
                text += row.name + ": " + row.value + "; ";
        }
        return text;
    };
    const WorkingPaper tide = paperOf(TideKind::Tide), stream = paperOf(TideKind::Stream);
    EXPECT_EQ(tide.kind, "Tide of the day");
    EXPECT_EQ(stream.kind, "Tidal stream of the day");
    EXPECT_EQ(tide.place, "Brothers");
    EXPECT_EQ(asText(tide.inputs),
              "Place: Brothers; Station: Example; Date: 2003-07-15; Zone time: 9.0hE; ");
    EXPECT_THAT(
        asText(tide.results),
        ::testing::MatchesRegex(
            "Highest and lowest of the half-hourly values, hours.minutes: the highest and "
            "the lowest; Range and Moon: Range 3.00 m, springs .*; At the time asked for: "
            "1.50 m; At the height asked for or above it: 02:00 to 06:00, 14:00 to 18:00; "));
    EXPECT_THAT(asText(stream.results),
                ::testing::MatchesRegex(".*; Direction of the flood stream: .* : East; "
                                        "Direction of the ebb stream: - : West; Slack and "
                                        "Moon: Slack 01:00, 07:00, 13:00, 19:00; springs .*; At "
                                        "the time asked for: 1.5 kn; At the rate asked for or "
                                        "above it: 02:00 to 06:00, 14:00 to 18:00; "));
    EXPECT_THAT(asText(tide.limits), ::testing::StartsWith("the station; its uncertainty; its "
                                                           "accuracy; its source; Weather"));
    ASSERT_EQ(tide.list->rows.size(), 49u);
    EXPECT_THAT(tide.list->headings, ElementsAre("zone time", "UTC", "height (metres)"));
    EXPECT_THAT(stream.list->headings, ElementsAre("zone time", "UTC", "rate (knots)"));
    EXPECT_THAT(tide.list->rows[1], ElementsAre("2003-07-15T00:30", "2003-07-14T15:30Z", "-0.388"));
    EXPECT_THAT(tide.list->rows[48],
                ElementsAre("2003-07-16T00:00", "2003-07-15T15:00Z", "-0.750"));
    ASSERT_EQ(tide.tables.size(), 2u);
    EXPECT_EQ(tide.tables[0].rows.size(), 4u);
    EXPECT_THAT(tide.tables[1].headings, ElementsAre("Zone time 9.0hE", "Height m"));
    EXPECT_EQ(stream.tables[1].headings[1], "Rate kn");
    EXPECT_THAT(tide.tables[1].rows[7], ElementsAre("03:30", "1.45"));
    EXPECT_THAT(stream.tables[0].title, ::testing::StartsWith("Floods and ebbs"));

    // Each instant of which a figure is shown has its waves and its sum, in one order.
    const auto namesIn = [](const PaperTable& table) {
        std::string names;
        for (const auto& row : table.rows)
            names += row.front() + ", ";
        return names;
    };
    ASSERT_EQ(tide.workings.size(), 2u);
    const auto& [waves, sums] = std::tie(tide.workings[1].tables[0], tide.workings[1].tables[1]);
    EXPECT_EQ(namesIn(sums), "Lowest half-hourly value, High water, Low water, High water, Low "
                             "water, Time asked for, Height asked for is passed, Height asked for "
                             "is passed, Height asked for is passed, Height asked for is passed, ");
    EXPECT_EQ(waves.rows.size(), sums.rows.size());
    // The search for the highest begins at nothing, that for the lowest at five.
    for (const auto& [level, name] : {std::pair{0.0, "Lowest"}, {5.0, "Highest"}}) {
        TideDayShown still = plainDay(0, 0, level);
        still.four.extremes.highest = still.four.extremes.lowest = level;
        WorkingPaper paper;
        tellDay(paper, "Still", {still, heightAt(still, ""), timesOfHeight(still, "")}, {});
        EXPECT_EQ(namesIn(paper.workings[1].tables[1]), std::string(name) + " half-hourly value, ");
    }
    EXPECT_EQ(waves.headings.size(), 9u);
    EXPECT_EQ(sums.headings[7], "h m");
    EXPECT_THAT(sums.rows[5], ElementsAre("Time asked for", "4.00000", "1.50000", "0.00000",
                                          "0.00000", "0.00000", "0.00000", "1.50000", "1.50 m"));
    EXPECT_THAT(waves.rows[5],
                ElementsAre("4.00000", "0.00000", ::testing::_, "1.50000", ::testing::_, "0.00000",
                            ::testing::_, "0.00000", ::testing::_));
    std::vector<std::string> steps;
    for (const Working& working : stream.workings)
        std::ranges::copy(testing::linesOf(working), std::back_inserter(steps));
    EXPECT_THAT(steps, ::testing::Contains(HasSubstr("Mean stream: 0.4 = 0.0")));
    const PaperTable& sumsOfStream = stream.workings[1].tables[1];
    EXPECT_EQ(sumsOfStream.headings[7], "h kn");
    EXPECT_THAT(namesIn(sumsOfStream), HasSubstr("Flood, Ebb, Flood, Ebb, Slack, Slack, Slack, "
                                                 "Slack, Time asked for, Rate asked for"));
}

TEST(TideTables, whatTheWaterDoesNow)
{
    const StationDays tokyo = shippedStation("Tokyo");
    const auto now = [&tokyo](double utc, bool withAll) {
        return nowText(tokyo, Hours(9), TideDates(), utc, withAll);
    };
    // 24:00 of one day is 00:00 of the next, by whichever day it is read.
    EXPECT_THAT(now(37816.625, true),
                ::testing::MatchesRegex("Now 2003/07/15 00:00   .* m (rising|falling)   all "
                                        "constituents .* m (rising|falling)"));
    EXPECT_THAT(now(37816.625, false), ::testing::Not(HasSubstr("all constituents")));
    EXPECT_THAT(now(37816.62, true), HasSubstr("Now 2003/07/14 23:5"));
    EXPECT_EQ(now(38717.63, true), "") << "beyond the last day";
    TideFolder beside;
    beside.write("AF2005.txt", TideFolder::shippedFactors().replace(46u * 287 + 10, 1, "x"));
    beside.write(tideFileName("Tokyo"), TideFolder::shipped().files.at(tideFileName("Tokyo")));
    const StationList list(TideFolder::shipped());
    const FullConstants constants(TideFolder::shipped());
    const StationDays damaged(beside.files, TideKind::Tide, "Tokyo", list, constants);
    EXPECT_EQ(nowText(damaged, Hours(9), TideDates(), 37816.75, true), "");
}

TEST(TideTables, weekAndMonthEndWhereTheDatesDo)
{
    const StationDays tokyo = shippedStation("Tokyo");
    const TideDates dates;
    const auto week = weekFrom(tokyo, 37817, dates);
    ASSERT_EQ(week.size(), 7u);
    EXPECT_EQ(week.back().date, "2003-07-21");
    EXPECT_EQ(week[0].waters.size(), 3u);
    EXPECT_EQ(weekFrom(tokyo, 38715, dates).size(), 3u) << "to 2005/12/31";

    const std::string july = monthTable(tokyo, "Tokyo", 37817, dates);
    EXPECT_THAT(july, HasSubstr("\r\n2003-07-01,"));
    EXPECT_THAT(july, HasSubstr("2003-07-31,"));
    EXPECT_EQ(july.find("2003-08"), july.npos);
    EXPECT_EQ(july.find("2003-06"), july.npos);
    const std::string first = week[0].waters[0].four; // "Low 00:46   0.12 m"
    EXPECT_THAT(july, HasSubstr("2003-07-15," + first.substr(first.find(' ') + 1, 5)));
    EXPECT_THAT(july, HasSubstr(",m,four,\r\n"));
    EXPECT_THAT(july, HasSubstr(",m,all,\r\n"));
    EXPECT_THAT(monthTable(shippedStation("Berhala"), "Berhala", 37817, dates),
                HasSubstr(",four,estimated level\r\n"));
    EXPECT_THAT(monthTable(tokyo, "Tokyo", 38717, dates), HasSubstr("2005-12-31"));
    EXPECT_EQ(monthFileName("Tokyo", TideKind::Tide, 37817), "Tide Tokyo 2003-07.csv");
    EXPECT_EQ(monthFileName("Brothers", TideKind::Stream, 37817), "Stream Brothers 2003-07.csv");
}

/// The next water of a month's table by one of the sums: date, time, water, height.
std::vector<std::string> nextWater(const std::string& table, const std::string& sum,
                                   std::size_t& at)
{
    const std::size_t end = table.find(",m," + sum, at);
    if (end == table.npos) return {};
    at = end + 1;
    std::istringstream line(table.substr(table.rfind('\n', end) + 1, at));
    std::vector<std::string> cells(4);
    for (std::string& cell : cells)
        std::getline(line, cell, ',');
    return cells;
}

/// "2003-07-01" as the program's dates are typed.
std::string slashed(std::string date)
{
    std::ranges::replace(date, '-', '/');
    return date;
}

TEST(TideTables, areTheIndependentSumsWaterByWater)
{
    std::map<std::string, std::string> months;
    std::map<std::pair<std::string, std::string>, std::size_t> read;
    std::string week;
    for (const Golden& row : golden("tide_days")) {
        const std::string& place = row.text("place");
        const std::int64_t serial = TideDates::dateIn(row.text("date")).value();
        std::string& month = months[place];
        if (month.empty()) {
            const StationDays station = shippedStation(place);
            month = monthTable(station, place, serial, {});
            week.clear();
            for (const WeekDay& day : weekFrom(station, serial, {}))
                for (const WaterLine& water : day.waters)
                    week += water.four + "  " + water.all;
        }
        for (const std::string sum : {"four", "all"}) {
            const bool isFour = sum == "four";
            for (const testing::GoldenPair& wanted : row.pairs(sum)) {
                const auto water = nextWater(month, sum, read[{place, sum}]);
                ASSERT_EQ(water.size(), 4u) << row;
                EXPECT_EQ(TideDates::dateIn(slashed(water[0])), serial) << row;
                EXPECT_EQ(water[2], wanted.name) << row;
                const double minutes = 60 * std::stoi(water[1]) + std::stoi(water[1].substr(3));
                EXPECT_NEAR(minutes, std::stod(wanted.text), isFour ? 0.51 : 0.8) << row;
                EXPECT_NEAR(std::stod(water[3]),
                            std::stod(wanted.text.substr(wanted.text.find(' '))),
                            isFour ? 0.0051 : 0.007)
                    << row;
                if (row.text("date").substr(8) <= "07") {
                    EXPECT_THAT(week, HasSubstr(water[1] + "   " + water[3] + " m")) << row;
                }
            }
        }
    }
    for (auto& [key, at] : read)
        EXPECT_TRUE(nextWater(months[key.first], key.second, at).empty()) << key.first;
}

TEST(TideTables, answersAreThoseOfTheIndependentSums)
{
    for (const Golden& row : golden("tide_answers")) {
        const TideDayShown day =
            shippedStation(row.text("place")).day(TideDates::dateIn(row.text("date")).value());
        const auto ask = row.text("question") == "time" ? heightAt : timesOfHeight;
        const CurveAnswer answer = ask(day, row.text("typed"));
        EXPECT_EQ(answer.text, row.text("four")) << row;
        EXPECT_EQ(answer.all, row.text("all")) << row;
    }
    EXPECT_EQ(heightText(-0.004, TideKind::Tide), "0.00 m") << "neither above nor below";
}

TEST(StationLines, gradeErrorAndEstimatesOfTheMonth)
{
    const StationList list(TideFolder::shipped());
    const auto linesOf = [&list](const std::string& place) {
        return describeStation(shippedStation(place).day(37817).four, list.notesOf(place),
                               list.errorOf(place));
    };
    const StationLines tokyo = linesOf("Tokyo");
    EXPECT_EQ(tokyo.accuracy, "Method against the sum of all constituents (2003 to 2005): heights "
                              "0.03 m, highest 0.03 m, 7 min, lowest 0.03 m, 6 min.");
    EXPECT_EQ(tokyo.estimates, "");
    EXPECT_THAT(linesOf("Berhala").estimates,
                HasSubstr("the mean level and the correction of month 7"));
    EXPECT_THAT(linesOf("Berhala").accuracy, HasSubstr("not measured"));
    StationNotes notes = *list.notesOf("Tokyo");
    const auto estimatesOf = [&](bool level, bool months) {
        notes.isLevelEstimated = level;
        notes.areMonthsEstimated = months;
        return describeStation(shippedStation("Tokyo").day(37817).four, &notes, {}).estimates;
    };
    EXPECT_EQ(estimatesOf(true, false), "~ estimated: the mean level.");
    EXPECT_EQ(estimatesOf(false, true),
              "~ estimated: the correction of month 7, from other places.");
    notes.grade = "none";
    EXPECT_EQ(estimatesOf(true, true), "");
    const auto own = describeStation(shippedStation("Tokyo").day(37817).four, nullptr, {});
    EXPECT_EQ(own.accuracy, "");
    EXPECT_THAT(own.source, HasSubstr("ship's own"));
}

} // namespace
} // namespace korvel
