// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/day/TideWaters.h"

#include "forms/frmTIDE/day/DrawCurve.h"
#include "forms/frmTIDE/day/TideTables.h"
#include "forms/frmTIDE/paper/TidePaper.h"
#include "forms/frmTIDE/paper/TideWorking.h"
#include "tests/forms/frmTIDE/TideDays.h"
#include "tests/forms/frmTIDE/TideFolder.h"
#include "tests/golden/Golden.h"

#include <cmath>
#include <sstream>

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

/// The sum of a station of constituents.txt for any day, with or without a factors file for it.
tidedata::DayOfAllConstituents sumOf(const std::string& place, const std::string& date)
{
    static const FullConstants constants(TideFolder::shipped());
    const TideStation station = readTideStation(TideFolder::shipped(), place);
    return constants.of(place, station).value().ofDay(TideDates::dateIn(date).value());
}

TEST(AllConstituents, areTheIndependentSum)
{
    for (const Golden& row : golden("all_constituents"))
        for (const auto& [date, sign, heights] : row.pairs("heights")) {
            const auto day = sumOf(row.text("place"), date);
            std::istringstream figures(heights);
            double hours = -1, height = -1;
            figures >> hours >> height;
            EXPECT_NEAR(day.at(Hours(hours)), height, 0.005) << row << date;
            const auto half = static_cast<std::size_t>(hours * 2);
            EXPECT_NEAR(day.halfHourly()[half], day.at(Hours(hours)), 1e-9) << row << date;
        }
}

TEST(AllConstituents, argumentsAreThoseThatTheirSourcesReferTheLagsTo)
{
    for (const Golden& row : golden("tide_arguments")) {
        const tidedata::HarmonicConstant unit[] = {{row.text("constituent"), 1, 0}};
        const tidedata::AllConstituents station(unit, Hours(0), 0);
        const double angle = station.ofDay(37817).waves().front().phase * 180 / std::acos(-1);
        EXPECT_NEAR(std::remainder(angle - row.number("angle"), 360), 0, 0.5) << row;
    }
}

TEST(AllConstituents, turnsAreThoseOfTheIndependentSumToTheMinute)
{
    for (const Golden& row : golden("tide_waters")) {
        const auto day = sumOf(row.text("place"), row.text("date"));
        std::string turns;
        for (const auto& turn : NavFunc113::TurnsOf([&day](Hours t) { return day.at(t); }))
            turns += (turns.empty() ? "" : ", ") + std::string(turn.isHigh ? "High " : "Low ") +
                     clockTime(turn.time) + " " + heightText(turn.value, TideKind::Tide);
        EXPECT_EQ(turns, row.text("waters")) << row;
    }
}

TEST(AllConstituents, areLeftOutBesideAShipsOwnConstants)
{
    const FullConstants constants(TideFolder::shipped());
    const TideStation tokyo = readTideStation(TideFolder::shipped(), "Tokyo");
    const auto with = [&tokyo](auto change) {
        TideStation own = tokyo;
        change(own);
        return own;
    };
    EXPECT_TRUE(constants.of("Tokyo", tokyo));
    EXPECT_FALSE(constants.of("Mina Saud", tokyo)) << "modelled: no record";
    EXPECT_FALSE(constants.of("Kobe", tokyo));
    for (const TideStation& own :
         {with([](TideStation& s) { s.meanLevel += 0.02; }),
          with([](TideStation& s) { s.zone = Hours(8); }),
          with([](TideStation& s) { s.constituents[3].amplitude += 0.002; }),
          with([](TideStation& s) { s.constituents[1].phase += NavFunc113::Degrees(0.2); })})
        EXPECT_FALSE(constants.of("Tokyo", own));
}

/// A record in a file of its own, with lines in its place that are no records.
TEST(AllConstituents, areThoseOfAWholeRecordAlone)
{
    TideStation station;
    station.meanLevel = 1.2;
    for (std::size_t i = 0; i < 4; ++i)
        station.constituents[i] = {NavFunc113::Degrees(10.0 * static_cast<double>(i)), 0.5};
    const std::string record = "\tM2 0.5 0\tS2 0.5 10\tK1 0.5 20\tO1 0.5 30";
    const auto isKnown = [](const std::string& line, const TideStation& of) {
        TideFolder beside;
        beside.write("constituents.txt", "# place\nXX\t0\t9\n" + line + "\n");
        return FullConstants(beside.files).of("X", of).has_value();
    };
    const std::pair<const char*, bool> lines[] = {
        {"X\t0\t1.2{}\tN2 0.1 5", true},
        {"X\t0\t1.2{}", false}, // five waves at least
        {"X\t0\t1.2{}\tN2 0.1", false},
        {"X\t0\t1.2{}\tN2 0.l 5", false},
        {"X\t0\t1.2{}\tN2 0.1 5x", false},
        {"X\t0\t1.2{}\tQQ9 0.1 5", false},
        {"X\t0.05\t1.2{}\tN2 0.1 5", false},
        {"X\t0\t1.2\tN2 0 0\tP1 0 0\tM4 0 0\tK2 0 0\tQ1 0 0", false},
    };
    for (const auto& [line, known] : lines) {
        std::string written = line;
        if (const std::size_t at = written.find("{}"); at != written.npos)
            written.replace(at, 2, record);
        EXPECT_EQ(isKnown(written, station), known) << line;
    }
    // A station file rounds: hours and degrees to 0.1, levels to 0.01 m, amplitudes to 0.001 m.
    const std::string whole = "X\t0\t1.2" + record + "\tN2 0.1 5";
    for (const double sign : {1.0, -1.0})
        for (const auto& [share, known] : {std::pair(1.0, true), std::pair(1.07, false)}) {
            const double by = sign * share;
            TideStation level = station, amplitude = station, phase = station;
            level.meanLevel += by * 0.005;
            amplitude.constituents[2].amplitude += by * 0.0005;
            phase.constituents[0].phase = NavFunc113::Degrees(by * 0.05 + 360);
            for (const TideStation& rounded : {level, amplitude, phase})
                EXPECT_EQ(isKnown(whole, rounded), known) << by;
        }
}

TEST(TideWaters, turnsAtAnyMinuteAndAtMidnight)
{
    const struct {
        const char* fault;
        double crest;
        std::vector<std::string> lines;
    } rows[] = {
        {"between the half hours",
         4.2,
         {"High 04:12   3.50 m", "Low 10:12   0.50 m", "High 16:12   3.50 m",
          "Low 22:12   0.50 m"}},
        {"00:00 belongs to the day, 24:00 to the next",
         0.001,
         {"High 00:00   3.50 m", "Low 06:00   0.50 m", "High 12:00   3.50 m",
          "Low 18:00   0.50 m"}},
        {"just before midnight",
         11.99,
         {"Low 05:59   0.50 m", "High 11:59   3.50 m", "Low 17:59   0.50 m",
          "High 23:59   3.50 m"}},
    };
    for (const auto& row : rows) {
        std::vector<std::string> lines;
        for (const WaterLine& line : waterLines(plainDay(row.crest, 1.5, 2)))
            lines.push_back(line.four);
        EXPECT_EQ(lines, row.lines) << row.fault;
    }
    EXPECT_TRUE(waterLines(plainDay(0, 0, 2)).empty()) << "no tide at all";
}

TEST(TideWaters, aStreamThatDoesNotTurnSlackens)
{
    const std::pair<double, std::vector<std::string>> rows[] = {
        {0, {"Flood 04:00   1.5 kn", "Ebb 10:00   -1.5 kn"}},
        {-3.9, {"Least ebb 04:00   -2.4 kn", "Ebb 10:00   -5.4 kn"}},
        {3.9, {"Flood 04:00   5.4 kn", "Least flood 10:00   2.4 kn"}},
    };
    for (const auto& [mean, expected] : rows) {
        const TideDayShown day = plainDay(4, 1.5, mean, TideKind::Stream);
        const auto lines = waterLines(day);
        ASSERT_EQ(lines.size(), 4u) << mean;
        EXPECT_EQ(lines[0].four, expected[0]);
        EXPECT_EQ(lines[1].four, expected[1]);
        std::vector<std::string> worked;
        const Working working = heightsWorking({day, {}, {}});
        for (const auto& row : working.tables.back().rows)
            worked.push_back(row.front() + " " + clockTime(Hours(std::stod(row[1]))) + "   " +
                             row.back());
        for (const std::string& line : expected)
            EXPECT_THAT(worked, ::testing::Contains(line));
    }
}

TEST(TideWaters, bothWaysStandInOneLineWithTheirDifference)
{
    const StationDays saintJohn = shippedStation("Saint John NB");
    for (const WaterPair& water : watersOf(saintJohn.day(38000))) {
        ASSERT_TRUE(water.four && water.all);
        EXPECT_EQ(water.four->isHigh, water.all->isHigh);
        EXPECT_LT(fabs(water.four->time - water.all->time), Hours(0.5));
    }
    const TideDayShown tokyo = shippedStation("Tokyo").day(37817);
    const WaterLine line = waterLines(tokyo).front();
    const WaterPair pair = watersOf(tokyo).front();
    EXPECT_THAT(line.all, HasSubstr(clockTime(pair.all->time)));
    EXPECT_THAT(line.all, HasSubstr(pair.all->time > pair.four->time ? "(+" : "(-"));
    EXPECT_EQ(waterLines(shippedStation("Berhala").day(37817)).front().all, "");
    EXPECT_THAT(waterLines(shippedStation("Berhala").day(37817)).front().four, HasSubstr("   ~"));
}

TEST(TideWaters, aWaterOfOneSumAloneIsSaidToBeNone)
{
    // What one sum has and the other has not stands at its time all the same.
    TideDayShown flat = plainDay(0, 0, 2);
    flat.all = shippedStation("Tokyo").day(37817).all;
    const auto flatLines = waterLines(flat);
    const auto byAll = NavFunc113::TurnsOf([&flat](Hours t) { return flat.all->at(t); });
    ASSERT_EQ(flatLines.size(), byAll.size());
    for (std::size_t i = 0; i < byAll.size(); ++i) {
        EXPECT_EQ(flatLines[i].four, byAll[i].isHigh ? "High none" : "Low none");
        EXPECT_EQ(flatLines[i].all,
                  clockTime(byAll[i].time) + "   " + heightText(byAll[i].value, TideKind::Tide));
    }
    // Low waters of Tokyo near the high waters of the other: nothing belongs together.
    TideDayShown opposite = plainDay(byAll[0].time.value() + (byAll[0].isHigh ? 6 : 0), 1.5, 2);
    opposite.all = flat.all;
    std::string times;
    for (const WaterLine& line : waterLines(opposite)) {
        EXPECT_EQ(line.four.ends_with(" none"), line.all != "none") << line.four;
        const std::string& shown = line.all == "none" ? line.four : line.all;
        const std::string time = shown.substr(shown.find(':') - 2, 5);
        EXPECT_GE(time, times) << "by their times";
        times = time;
    }
    EXPECT_EQ(waterLines(opposite).size(), 4u + byAll.size());
}

TEST(TideWaters, whatIsAskedOfAStreamIsARateInKnots)
{
    const TideDayShown stream = plainDay(4, 1.5, 0, TideKind::Stream);
    EXPECT_EQ(heightAt(stream, "4:00").text, "1.5 kn");
    EXPECT_EQ(timesOfHeight(stream, "0.75").text, "02:00 to 06:00, 14:00 to 18:00");
    EXPECT_THAT(timesOfHeight(stream, "21").remark,
                ::testing::AllOf(::testing::StartsWith("Rate"), HasSubstr("knots")));
    EXPECT_THAT(timesOfHeight(plainDay(4, 1.5, 0), "21").remark,
                ::testing::AllOf(::testing::StartsWith("Height"), HasSubstr("metres")));
    TideDayShown there = stream;
    there.four.station.zone = Hours(9);
    EXPECT_EQ(nowText(there, 37816.75), "Now 2003/07/15 03:00   1.3 kn")
        << "neither rises nor falls";
    EXPECT_EQ(rangeText(plainDay(4, 1.5, 2, TideKind::Stream)).substr(0, 12), "Slack never;");
}

TEST(TideWaters, questionsOfTheOfficer)
{
    for (const Golden& row : golden("tide_questions")) {
        const TideDayShown day = plainDay(row.number("crest"), 1.5, 2);
        const bool isTime = row.text("question") == "time";
        const std::string& typed = row.text("typed");
        const CurveAnswer answer = isTime ? heightAt(day, typed) : timesOfHeight(day, typed);
        EXPECT_EQ(answer.text, row.text("answer")) << row;
        EXPECT_EQ(answer.times.size(), row.integer("marks")) << row;
        EXPECT_EQ(answer.remark.empty(), typed.empty() || row.has("answer")) << row;
        EXPECT_EQ(answer.level.has_value(), !isTime && row.has("answer")) << row;
    }
    TideDayShown both = plainDay(4, 1.5, 2);
    both.all = shippedStation("Tokyo").day(37817).all;
    EXPECT_THAT(heightAt(both, "4:00").all, HasSubstr("all constituents "));
    EXPECT_THAT(timesOfHeight(both, "9").all, HasSubstr("all constituents never"));
}

TEST(TideWaters, theNextHighAndTheNextLowWater)
{
    const auto water = [](double hour, bool isHigh) {
        return WaterPair{NavFunc113::TideTurn{Hours(hour), 1, isHigh}, {}};
    };
    const WaterPair byAllAlone{{}, NavFunc113::TideTurn{Hours(8), 1, true}};
    const std::vector<WaterPair> waters = {water(1, false), water(7, true), byAllAlone,
                                           water(13, false), water(19.5, true)};
    using ::testing::ElementsAre;
    using ::testing::IsEmpty;
    EXPECT_THAT(nextWaters(waters, Hours(0)), ElementsAre(1, 0));
    EXPECT_THAT(nextWaters(waters, Hours(7)), ElementsAre(1, 3)) << "at its very time";
    EXPECT_THAT(nextWaters(waters, Hours(7.5)), ElementsAre(4, 3));
    EXPECT_THAT(nextWaters(waters, Hours(14)), ElementsAre(4)) << "no low water any more";
    EXPECT_THAT(nextWaters(waters, Hours(23)), IsEmpty());
    EXPECT_THAT(nextWaters(waters, {}), IsEmpty()) << "of another day";
    EXPECT_NEAR(hourOf(37816, Hours(9), 37815.75)->value(), 3, 1e-6);
    EXPECT_FALSE(hourOf(37816, Hours(9), 37815.6)) << "the day before";
    EXPECT_FALSE(hourOf(37816, Hours(9), 37816.625)) << "the day after";
}

TEST(TideWaters, rangeMoonAndNow)
{
    const std::pair<double, const char*> elongations[] = {{0, "springs"},
                                                          {30, "springs"},
                                                          {31, "springs to neaps"},
                                                          {60, "neaps"},
                                                          {90, "neaps"},
                                                          {120, "neaps"},
                                                          {121, "neaps to springs"},
                                                          {150, "springs"},
                                                          {210, "springs"},
                                                          {211, "springs to neaps"},
                                                          {264, "neaps"},
                                                          {329, "neaps to springs"},
                                                          {359, "springs"}};
    for (const auto& [elongation, name] : elongations)
        EXPECT_EQ(springOrNeap(NavFunc113::Degrees(elongation)), name) << elongation;
    // New Moon 2003-06-29 18:39, full Moon 2003-07-13 19:21 UTC (almanac).
    EXPECT_NEAR(MoonAtNoon(37815, Hours(0)).age(), 13.72, 0.01);
    EXPECT_NEAR(MoonAtNoon(37815, Hours(9)).age(), 13.35, 0.01);
    EXPECT_NEAR(MoonAtNoon(37815, Hours(-7.35)).elongation.value(), 180, 0.1);
    EXPECT_THAT(rangeText(plainDay(4, 1.5, 2)), HasSubstr("springs (Moon's age 15.7 days)"));
    EXPECT_THAT(rangeText(plainDay(4.2, 1.5, 2)), ::testing::StartsWith("Range 3.00 m, springs"));
    EXPECT_THAT(rangeText(plainDay(4, 2, 0.5, TideKind::Stream)),
                ::testing::StartsWith("Slack 00:31, 07:29, 12:31, 19:29;"));
    TideDayShown day = plainDay(4, 1.5, 2);
    day.four.station.zone = Hours(9);
    EXPECT_EQ(nowText(day, 37816.75), "Now 2003/07/15 03:00   3.30 m rising");
    EXPECT_EQ(nowText(day, 37816.875), "Now 2003/07/15 06:00   2.75 m falling");
}

TEST(TideWaters, everyFigureOfAnEstimatedLevelIsMarked)
{
    TideDayShown day = plainDay(4, 1.5, 2);
    day.four.station.zone = Hours(9);
    day.isEstimated = true;
    EXPECT_EQ(nowText(day, 37816.75), "Now 2003/07/15 03:00   ~3.30 m rising");
    EXPECT_EQ(waterLines(day).front().four, "High 04:00   ~3.50 m");
    EXPECT_EQ(heightAt(day, "4:00").text, "~3.50 m");
    EXPECT_EQ(timesOfHeight(day, "2.75").text, "~02:00 to ~06:00, ~14:00 to ~18:00");
    EXPECT_EQ(timesOfHeight(day, "9").text, "~never");
    EXPECT_EQ(readCurve(day.four, 4, "~")->text, "04:00  ~3.50m");
    WorkingPaper paper;
    tellDay(paper, "Berhala", {day, {}, {}}, {});
    for (const auto& row : paper.tables.back().rows)
        EXPECT_THAT(row.back(), ::testing::StartsWith("~"));
    EXPECT_EQ(paper.list->headings.back(), "height (metres, estimated level)");
    EXPECT_EQ(paper.workings.back().tables.back().rows.back().back(), "~0.50 m");
}

TEST(TideWaters, whatMidnightBeginsAndEndsIsNotWhatTheLevelDecides)
{
    EXPECT_EQ(spansText({{Hours(0), Hours(24)}}, "~"), "~all day");
    EXPECT_EQ(spansText({{Hours(0), Hours(5)}, {Hours(20), Hours(24)}}, "~"),
              "00:00 to ~05:00, ~20:00 to 24:00");
    EXPECT_EQ(spansText({{Hours(0), Hours(5)}}, ""), "00:00 to 05:00");
    EXPECT_EQ(spansText({{Hours(5), Hours(24)}}, ""), "05:00 to 24:00");
}

} // namespace
} // namespace korvel
