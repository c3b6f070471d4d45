// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/paper/TideWorking.h"

#include "app/reading/Format.h"
#include "app/records/KORVEL2000Actions.h"
#include "navlib/angles.h"
#include "navlib/datetime.h"

namespace korvel
{
namespace
{

using NavFunc113::Hours;

constexpr int angleDecimals = 4; // of a degree
constexpr int heightDecimals = 5;
constexpr int hoursDecimals = 5;
constexpr std::array<const char*, 4> constituentNames = {"M2", "S2", "K1", "O1"};

const char* unitOf(const TideDayShown& day)
{
    return day.four.kind == TideKind::Tide ? "m" : "kn";
}

/// An instant of the day of which a figure is shown.
struct Instant {
    std::string name;
    Hours time;
    std::string shown;
};

std::vector<Instant> instantsOf(const TideAsked& asked)
{
    const TidePrediction& four = asked.day.four;
    const bool isTide = four.kind == TideKind::Tide;
    const char* format = isTide ? "0.00m" : "0.0kn";
    std::vector<Instant> instants;
    if (four.extremes.highest > 0)
        instants.push_back({"Highest half-hourly value", four.extremes.timeHigh,
                            Format(four.extremes.highest, format)});
    if (four.extremes.lowest < 5)
        instants.push_back({"Lowest half-hourly value", four.extremes.timeLow,
                            Format(four.extremes.lowest, format)});
    for (const WaterPair& water : watersOf(asked.day))
        if (water.four)
            instants.push_back({waterName(*water.four, four.kind) + (isTide ? " water" : ""),
                                water.four->time, markedHeight(water.four->value, asked.day)});
    if (!isTide)
        for (const Hours time : slackTimesOf(asked.day))
            instants.push_back({"Slack", time, clockTime(time)});
    for (const Hours time : asked.height.times)
        instants.push_back({"Time asked for", time, asked.height.text});
    for (const Hours time : asked.times.times)
        instants.push_back({isTide ? "Height asked for is passed" : "Rate asked for is passed",
                            time, clockTime(time)});
    return instants;
}

/// The four waves at the instants.
PaperTable wavesAt(const TideDayShown& day, const std::vector<Instant>& instants)
{
    PaperTable table{
        "Waves: R = (f0 + t (f1 - f0) / 24) H, ψ = ψ0 - n t; t in hours of zone time", {"t h"}, {}};
    for (const char* name : constituentNames) {
        table.headings.push_back(std::string("R ") + name);
        table.headings.push_back(std::string("ψ ") + name + " °");
    }
    for (const Instant& each : instants) {
        const NavFunc113::TideSteps steps = day.four.day->stepsAt(each.time);
        std::vector<std::string> row = {figure(each.time, hoursDecimals)};
        for (const NavFunc113::TideSteps::Wave& wave : steps.waves) {
            row.push_back(figure(wave.amplitude, heightDecimals));
            row.push_back(figure(wave.phase, angleDecimals));
        }
        table.rows.push_back(std::move(row));
    }
    return table;
}

/// What the heights at the instants add up from.
PaperTable sumsAt(const TideDayShown& day, const std::vector<Instant>& instants)
{
    const std::string unit = unitOf(day);
    PaperTable table{
        "Heights: C = ΣR cos ψ and S = ΣR sin ψ of M2 and S2, D = ΣR cos ψ of K1 and O1, q = k4 "
        "((C² - S²) cos θ4 - 2 C S sin θ4), s = k6 ((C³ - 3 C S²) cos θ6 - (3 C² S - S³) sin θ6), "
        "h = D + C + q + s + Z",
        {"", "t h", "C", "S", "D", "q", "s", "h " + unit, "Shown"},
        {}};
    for (const Instant& each : instants) {
        const NavFunc113::TideSteps steps = day.four.day->stepsAt(each.time);
        table.rows.push_back(
            {each.name, figure(each.time, hoursDecimals), figure(steps.cosine, heightDecimals),
             figure(steps.sine, heightDecimals), figure(steps.diurnal, heightDecimals),
             figure(steps.quarter, heightDecimals), figure(steps.sixth, heightDecimals),
             figure(steps.sum + day.four.level, heightDecimals), each.shown});
    }
    return table;
}

PaperTable constantsOf(const TideDayShown& day)
{
    const TidePrediction& four = day.four;
    const std::string unit = unitOf(day);
    PaperTable table{
        "ψ0 = angle of the day + phase lag; n = (angle of the day - angle of the next "
        "day + whole turns) / 24, the turns until it is above 600° for M2 and S2, "
        "above 300° for K1 and O1; factors f0 of the day, f1 of the next",
        {"", "H " + unit, "Phase lag °", "Angle °", "Angle next °", "f0", "f1", "ψ0 °", "n °/h"},
        {}};
    const NavFunc113::TideSteps midnight = four.day->stepsAt(Hours(0));
    for (std::size_t j = 0; j < constituentNames.size(); ++j) {
        const NavFunc113::TideConstituent& constant = four.station.constituents[j];
        const NavFunc113::DailyFactor& today = four.factors.thisDay[j];
        const NavFunc113::DailyFactor& next = four.factors.nextDay[j];
        table.rows.push_back({constituentNames[j], memoText(constant.amplitude),
                              memoText(constant.phase), memoText(today.angle), memoText(next.angle),
                              memoText(today.factor), memoText(next.factor),
                              figure(midnight.waves[j].phaseAtMidnight, angleDecimals),
                              figure(midnight.waves[j].speed, 6)});
    }
    return table;
}

void addRange(Working& working, const TideDayShown& day)
{
    const MoonAtNoon moon(day.four.serial, day.four.station.zone);
    constexpr const char* instant = "yyyy-mm-dd hh:mm";
    working.step("Elongation of the Moon from the Sun at noon of the day", "λm - λs",
                 figure(moon.phase.moonLongitude, angleDecimals) + " - " +
                     figure(moon.phase.sunLongitude, angleDecimals),
                 figure(moon.elongation, angleDecimals), "°");
    working.step("Moon's age at noon of the day", "since the last new Moon, UTC",
                 Format(moon.noon, instant) + " - " + Format(moon.newMoon, instant),
                 figure(moon.age(), 2), "days");
    if (day.four.kind == TideKind::Tide) {
        const DaysRange range = rangeOf(day);
        working.step("Range", "highest - lowest of the day, 00:00 and 24:00 included",
                     term(range.highest, heightDecimals) + " - " +
                         term(range.lowest, heightDecimals),
                     figure(range.highest - range.lowest, heightDecimals), "m");
    }
    const bool isTide = day.four.kind == TideKind::Tide;
    working.resultStep(
        isTide ? "Range and Moon" : "Slack and Moon",
        std::string(isTide ? "" : "slack where h is 0; ") +
            "springs up to 30° of elongation from new or full Moon, neaps from 60° on",
        rangeText(day));
}

} // namespace

Working constituentsWorking(const TideDayShown& day)
{
    const TidePrediction& four = day.four;
    const bool isTide = four.kind == TideKind::Tide;
    Working working{
        isTide ? "Constituents and level of the day" : "Constituents and mean stream of the day",
        {"Harmonic prediction by four constituents, M2 and S2 semidiurnal, K1 and O1 diurnal: "
         "h = Z + Σ f H cos ψ, with quarter- and sixth-diurnal terms made of the combined "
         "semidiurnal wave",
         "Angles and factors of the day and of the next from the factors file AF2005.txt; between "
         "them the factors run evenly",
         "Times are the station's zone time, " + four.lblTD},
        {}};
    const std::string unit = unitOf(day);
    if (isTide) {
        const auto month =
            static_cast<std::size_t>(NavFunc113::DateOfSerial(four.serial).month - 1);
        working.step("Level", "Z = Z0 + correction of the month",
                     memoText(four.station.meanLevel) + " + " +
                         memoText(four.station.monthlyCorrections[month]),
                     figure(four.level, heightDecimals), unit);
    } else {
        working.step("Mean stream", "Z = Z0, of the station's record",
                     memoText(four.station.meanLevel), figure(four.level, heightDecimals), unit);
        const std::string flood = memoText(four.floodDirection.value()) + "°";
        working.resultStep("Direction of the flood stream, +", "compass point of " + flood,
                           four.lblCuDirection[0]);
        working.resultStep("Direction of the ebb stream, -",
                           "compass point of " + flood + " + 180°", four.lblCuDirection[1]);
    }
    const NavFunc113::ShallowWaterTerms& shallow = four.station.shallowWater;
    working.step("Quarter-diurnal term", "k4, θ4", "of the station's record",
                 memoText(shallow.quarterCoefficient) + ", " + memoText(shallow.quarterPhase) +
                     "°");
    working.step("Sixth-diurnal term", "k6, θ6", "of the station's record",
                 memoText(shallow.sixthCoefficient) + ", " + memoText(shallow.sixthPhase) + "°");
    working.tables = {constantsOf(day)};
    return working;
}

Working heightsWorking(const TideAsked& asked)
{
    const TidePrediction& four = asked.day.four;
    const std::vector<Instant> instants = instantsOf(asked);
    Working working{
        four.kind == TideKind::Tide ? "Heights" : "Rates",
        {"Highest and lowest: of the half-hourly values from 00:30 to 24:00, the earliest of equal "
         "ones. The search begins at 0 and at 5",
         "Waters: where the curve turns, by parabolas through three heights, to the second"},
        {}};
    working.resultStep("Highest and lowest", "half-hourly values, hours.minutes", four.lblTideInfo);
    for (const WaterLine& line : waterLines(asked.day))
        working.resultStep("Water", "rounded to the minute and 0.01 m or 0.1 kn", line.four);
    addRange(working, asked.day);
    if (!asked.height.text.empty())
        working.resultStep("At the time asked for", "h of the table", asked.height.text);
    if (!asked.times.text.empty())
        working.resultStep(four.kind == TideKind::Tide ? "At the height asked for or above it"
                                                       : "At the rate asked for or above it",
                           "between the times of the table at which it is passed",
                           asked.times.text);
    working.tables = {wavesAt(asked.day, instants), sumsAt(asked.day, instants)};
    return working;
}

std::vector<Working> allConstituentsWorking(const TideAsked& asked)
{
    if (!asked.day.all) return {};
    const tidedata::DayOfAllConstituents& all = *asked.day.all;
    Working working{"All constituents",
                    {"Harmonic sum of every constituent of the station's record, h = Z0 + Σ A cos "
                     "(ψ0 + n t), A = f H with the node factor of noon, ψ0 = V + u - phase lag at "
                     "00:00 of zone time"},
                    {}};
    working.step("Mean level", "Z0", "of the station's record", memoText(all.level()), "m");
    for (const WaterLine& line : waterLines(asked.day))
        if (!line.all.empty())
            working.resultStep("Water", "time and height, difference to the four constituents",
                               line.all);
    for (const CurveAnswer* answer : {&asked.height, &asked.times})
        if (!answer->all.empty())
            working.resultStep("What is asked", "by all constituents", answer->all);
    PaperTable waves{"Constituents", {"", "A m", "ψ0 °", "n °/h"}, {}};
    for (const auto& wave : all.waves())
        waves.rows.push_back(
            {wave.name, figure(wave.amplitude, heightDecimals),
             figure(NavFunc113::RadToDeg(NavFunc113::Radians(wave.phase)), angleDecimals),
             figure(NavFunc113::RadToDeg(NavFunc113::Radians(wave.speed)), 6)});
    working.tables = {waves};
    return {working};
}

} // namespace korvel
