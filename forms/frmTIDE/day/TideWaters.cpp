// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/day/TideWaters.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"
#include "app/reading/TypedTime.h"
#include "forms/frmTIDE/data/TideDates.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::Hours;
using NavFunc113::TideTurn;

constexpr Hours sameWater(3);

std::vector<TideTurn> turnsOfFour(const TideDayShown& day)
{
    NavFunc113::TenMinutely samples;
    day.four.day->turnOn(-NavFunc113::tenMinutes, NavFunc113::tenMinutes, day.four.level, samples);
    return NavFunc113::TurnsOf([&day](Hours t) { return day.four.at(t); }, samples);
}

std::vector<TideTurn> turnsOfAll(const TideDayShown& day)
{
    if (!day.all) return {};
    NavFunc113::TenMinutely samples;
    day.all->turnOn(-NavFunc113::tenMinutes, NavFunc113::tenMinutes, samples);
    return NavFunc113::TurnsOf([&day](Hours t) { return day.all->at(t); }, samples);
}

std::string lineOf(const TideTurn& turn, const TideDayShown& day)
{
    return clockTime(turn.time) + "   " + markedHeight(turn.value, day);
}

// Every figure of an estimated level says so itself.
std::string markOf(const TideDayShown& day)
{
    return day.isEstimated ? "~" : "";
}

long minutesOf(Hours time)
{
    return std::lround(time.value() * 60);
}

std::string signedText(double value, const std::string& format)
{
    return value == 0 ? Format(0, format) : Format(value, "+" + format + ";-" + format);
}

// Of the figures as they are shown: whoever subtracts them finds the same.
std::string differenceText(const WaterPair& water)
{
    const auto centimetres = [](double value) { return std::round(value * 100); };
    const auto minutes = minutesOf(water.all->time) - minutesOf(water.four->time);
    const double height = centimetres(water.all->value) - centimetres(water.four->value);
    return "   (" + signedText(static_cast<double>(minutes), "0") + " min, " +
           signedText(height / 100, "0.00") + " m)";
}

Hours timeOf(const WaterPair& water)
{
    return water.four ? water.four->time : water.all->time;
}

} // namespace

std::string clockTime(Hours time)
{
    // By hand, because 24:00 is a time of this curve and of no clock.
    const long minutes = minutesOf(time);
    const auto twoDigits = [](long value) {
        return std::string{static_cast<char>('0' + value / 10),
                           static_cast<char>('0' + value % 10)};
    };
    return twoDigits(minutes / 60) + ":" + twoDigits(minutes % 60);
}

std::vector<HoursSpan> spansAbove(const NavFunc113::TideCurve& curve, double level,
                                  const std::vector<NavFunc113::TidePassage>& passages)
{
    constexpr Hours dayEnd(24);
    if (passages.empty() && !(curve(Hours(0)) > level)) return {};
    std::vector<HoursSpan> spans;
    std::optional<Hours> from;
    if (passages.empty() || !passages.front().isRising) from = Hours(0);
    for (const NavFunc113::TidePassage& passage : passages) {
        if (passage.isRising) {
            from = passage.time;
        } else {
            spans.push_back({from.value_or(passage.time), passage.time});
            from.reset();
        }
    }
    if (from) spans.push_back({*from, dayEnd});
    return spans;
}

std::string spansText(const std::vector<HoursSpan>& spans, const std::string& mark)
{
    const auto isMidnight = [](Hours time) { return time == Hours(0) || time == Hours(24); };
    if (spans.empty()) return mark + "never";
    if (spans.size() == 1 && isMidnight(spans[0].from) && isMidnight(spans[0].to))
        return mark + "all day";
    std::string text;
    for (const HoursSpan& span : spans) {
        if (!text.empty()) text += ", ";
        // What the day begins and ends with is not decided by the level.
        text.append(isMidnight(span.from) ? "" : mark).append(clockTime(span.from));
        text.append(" to ").append(isMidnight(span.to) ? "" : mark).append(clockTime(span.to));
    }
    return text;
}

std::string waterName(const TideTurn& turn, TideKind kind)
{
    if (kind == TideKind::Tide) return turn.isHigh ? "High" : "Low";
    // A stream that does not turn only slackens where another reaches its greatest rate.
    if (turn.isHigh) return turn.value < 0 ? "Least ebb" : "Flood";
    return turn.value > 0 ? "Least flood" : "Ebb";
}

std::string plainFigure(double value, TideKind kind)
{
    const std::string figures = Format(value, kind == TideKind::Tide ? "0.00" : "0.0");
    const bool isZero = figures.find_first_of("123456789") == figures.npos;
    return isZero ? figures.substr(std::min(figures.find('0'), figures.size())) : figures;
}

std::string heightText(double value, TideKind kind)
{
    return plainFigure(value, kind) + (kind == TideKind::Tide ? " m" : " kn");
}

std::string markedFigure(double value, const TideDayShown& day)
{
    return markOf(day) + plainFigure(value, day.four.kind);
}

std::string markedHeight(double value, const TideDayShown& day)
{
    return markOf(day) + heightText(value, day.four.kind);
}

std::vector<WaterPair> watersOf(const TideDayShown& day)
{
    std::vector<WaterPair> waters;
    for (const TideTurn& turn : turnsOfFour(day))
        waters.push_back({turn, {}});
    for (const TideTurn& turn : turnsOfAll(day)) {
        const auto same = std::ranges::find_if(waters, [&turn](const WaterPair& water) {
            return water.four && !water.all && water.four->isHigh == turn.isHigh &&
                   fabs(water.four->time - turn.time) < sameWater;
        });
        if (same != waters.end())
            same->all = turn;
        else
            waters.push_back({{}, turn});
    }
    std::ranges::sort(waters, std::less{}, timeOf);
    return waters;
}

std::vector<std::size_t> nextWaters(const std::vector<WaterPair>& waters, std::optional<Hours> now)
{
    std::vector<std::size_t> next;
    for (const bool isHigh : {true, false}) {
        const auto found = std::ranges::find_if(waters, [&](const WaterPair& water) {
            return now && water.four && water.four->isHigh == isHigh && water.four->time >= *now;
        });
        if (found != waters.end()) next.push_back(static_cast<std::size_t>(found - waters.begin()));
    }
    return next;
}

std::vector<WaterLine> waterLines(const TideDayShown& day)
{
    std::vector<WaterLine> lines;
    for (const WaterPair& water : watersOf(day)) {
        const TideTurn& named = water.four ? *water.four : *water.all;
        WaterLine line{waterName(named, day.four.kind) + " ", {}};
        line.four += water.four ? lineOf(*water.four, day) : "none";
        if (water.all) {
            line.all = lineOf(*water.all, day);
            if (water.four) line.all += differenceText(water);
        } else if (day.all) {
            line.all = "none";
        }
        lines.push_back(std::move(line));
    }
    return lines;
}

MoonAtNoon::MoonAtNoon(std::int64_t serial, Hours zone)
    : noon(static_cast<double>(serial) + 0.5 - NavFunc113::DaysOfHours(zone)),
      phase(NavFunc113::PhaseOfMoon(noon)), elongation(12 * phase.age),
      newMoon(NavFunc113::LastNewMoon(noon))
{
}

std::string springOrNeap(NavFunc113::Degrees elongation)
{
    // New and full Moon at 0 and 180, the quarters between.
    const double fromSyzygy = std::remainder(elongation.value(), 180);
    if (std::fabs(fromSyzygy) <= 30) return "springs";
    if (std::fabs(fromSyzygy) >= 60) return "neaps";
    return fromSyzygy > 0 ? "springs to neaps" : "neaps to springs";
}

DaysRange rangeOf(const TideDayShown& day)
{
    const auto [low, high] = std::ranges::minmax_element(day.four.values);
    DaysRange range{*high, *low};
    for (const TideTurn& turn : turnsOfFour(day)) {
        range.highest = std::max(range.highest, turn.value);
        range.lowest = std::min(range.lowest, turn.value);
    }
    return range;
}

std::vector<Hours> slackTimesOf(const TideDayShown& day)
{
    std::vector<Hours> times;
    for (const NavFunc113::TidePassage& passage :
         NavFunc113::PassagesOf([&day](Hours t) { return day.four.at(t); }, 0))
        times.push_back(passage.time);
    return times;
}

std::string rangeText(const TideDayShown& day)
{
    const MoonAtNoon at(day.four.serial, day.four.station.zone);
    const std::string moon =
        springOrNeap(at.elongation) + " (Moon's age " + Format(at.age(), "0.0") + " days)";
    if (day.four.kind == TideKind::Stream) {
        std::string slack;
        for (const Hours time : slackTimesOf(day))
            slack += (slack.empty() ? "" : ", ") + clockTime(time);
        return "Slack " + (slack.empty() ? "never" : slack) + "; " + moon;
    }
    const DaysRange range = rangeOf(day);
    return "Range " + heightText(range.highest - range.lowest, TideKind::Tide) + ", " + moon;
}

/// h:mm, and as a watch is read: 0730, 730, 7, and 7.5 hours; to 24:00. A second decimal may be of
/// minutes or of an hour, so it is asked about.
TypedTime timeOfThisDay(const std::string& typedTime)
{
    std::string typed = asciiForms(typedTime);
    std::erase_if(typed, [](char c) { return c == ' ' || c == '\t'; });
    const auto areDigits = [](std::string_view text) {
        return !text.empty() && text.find_first_not_of("0123456789") == text.npos;
    };
    const std::size_t point = typed.size() > 2 ? typed.size() - 2 : typed.npos;
    const bool isHours = areDigits(typed) && typed.size() <= 2;
    const bool isInDecimals = point < 3 && typed[point] == '.' &&
                              areDigits(typed.substr(0, point)) &&
                              areDigits(typed.substr(point + 1));
    double hours = -1;
    if (isHours || isInDecimals)
        hours = readNumber(typed);
    else if (areDigits(typed) && typed.size() <= 4 && typed[typed.size() - 2] < '6')
        hours = readNumber(typed.substr(0, point)) + readNumber(typed.substr(point)) / 60;
    else if (typed == "24:00")
        hours = 24; // the end of this day, which no clock shows
    if (hours >= 0 && hours <= 24) return {hours / 24, {}};
    return readTypedTime(typedTime, Due::TimeOfDay);
}

CurveAnswer heightAt(const TideDayShown& day, const std::string& typedTime)
{
    if (typedTime.empty()) return {};
    const std::string prefix = "Time of a height: ";
    const TypedTime typed = timeOfThisDay(typedTime);
    if (!typed.value) return {.text = {}, .remark = prefix + typed.remark};
    const Hours time(*typed.value * 24);
    CurveAnswer answer{.text = markedHeight(day.four.at(time), day), .times = {time}};
    if (day.all) answer.all = "all constituents " + markedHeight(day.all->at(time), day);
    return answer;
}

CurveAnswer timesOfHeight(const TideDayShown& day, const std::string& typedHeight)
{
    if (typedHeight.empty()) return {};
    const bool tide = day.four.kind == TideKind::Tide;
    NumberField field;
    field.name = tide ? "Height" : "Rate";
    field.low = lowestAsked;
    field.high = highestAsked;
    field.unit = tide ? "metres" : "knots";
    Remarks remarks;
    const std::optional<double> level = readField(typedHeight, field, remarks);
    CurveAnswer answer{.text = {}, .remark = remarks.text()};
    if (!level) return answer;
    const NavFunc113::TideCurve four = [&day](Hours t) { return day.four.at(t); };
    const auto passages = NavFunc113::PassagesOf(four, *level);
    answer.text = spansText(spansAbove(four, *level, passages), markOf(day));
    answer.level = level;
    for (const NavFunc113::TidePassage& passage : passages)
        answer.times.push_back(passage.time);
    if (day.all) {
        const NavFunc113::TideCurve all = [&day](Hours t) { return day.all->at(t); };
        const auto spans = spansAbove(all, *level, NavFunc113::PassagesOf(all, *level));
        answer.all = "all constituents " + spansText(spans, markOf(day));
    }
    return answer;
}

std::optional<Hours> hourOf(std::int64_t serial, Hours zone, NavFunc113::DateTime utc)
{
    const double days = utc + NavFunc113::DaysOfHours(zone) - static_cast<double>(serial);
    if (days < 0 || days >= 1) return std::nullopt;
    return Hours(days * 24);
}

std::string waterText(const TideDayShown& day, NavFunc113::DateTime utc)
{
    const double zoneTime = utc + NavFunc113::DaysOfHours(day.four.station.zone);
    const Hours time((zoneTime - static_cast<double>(day.four.serial)) * 24);
    const auto state = [&](const NavFunc113::TideCurve& curve) {
        const Hours minute(1.0 / 60);
        const bool isRising = curve(time + minute) > curve(time - minute);
        return markedHeight(curve(time), day) + (day.four.kind == TideKind::Stream ? ""
                                                 : isRising                        ? " rising"
                                                                                   : " falling");
    };
    std::string text = state([&day](Hours t) { return day.four.at(t); });
    if (day.all) text += "   all constituents " + state([&day](Hours t) { return day.all->at(t); });
    return text;
}

std::string nowText(const TideDayShown& day, NavFunc113::DateTime utc)
{
    const double zoneTime = utc + NavFunc113::DaysOfHours(day.four.station.zone);
    return "Now " + Format(zoneTime, "yyyy/mm/dd hh:mm") + "   " + waterText(day, utc);
}

} // namespace korvel
