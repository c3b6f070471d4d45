// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/day/PredictTide.h"
#include "navlib/sea/tide_turns.h"
#include "navlib/sky/ephemeris.h"
#include "tidedata/all_constituents.h"

#include <optional>
#include <string>
#include <vector>

/// The high and low waters of a day to the minute, by the four constituents and by all of them, and
/// the answers to an officer's questions about the day's curve.
namespace korvel
{

/// A day as the window shows it: the prediction of the labels and, where the constants are known,
/// the sum of all constituents beside it.
struct TideDayShown {
    TidePrediction four;
    std::optional<tidedata::DayOfAllConstituents> all;
    bool isEstimated = false; ///< the mean level or its correction of the month is an estimate
};

/// A high or low water by both ways; one of them may lack it.
struct WaterPair {
    std::optional<NavFunc113::TideTurn> four;
    std::optional<NavFunc113::TideTurn> all;
};

/// The waters of the day in order of time. Those of the two curves that are of one kind and less
/// than three hours apart are one water.
std::vector<WaterPair> watersOf(const TideDayShown& day);

/// Which of the waters are the next high and the next low one, by the four constituents.
/// @param now an hour of their day; nothing: on no other day is a water the next one
std::vector<std::size_t> nextWaters(const std::vector<WaterPair>& waters,
                                    std::optional<NavFunc113::Hours> now);

/// A line of the list: the water by the four constituents, and by all with its difference.
struct WaterLine {
    std::string four; ///< "High 05:12   1.88 m"; heights of an estimated level begin with "~"
    std::string all;  ///< "05:20   1.91 m   +8 min, +0.03 m"
};
std::vector<WaterLine> waterLines(const TideDayShown& day);

/// The highest and the lowest water of a day, its ends included.
struct DaysRange {
    double highest{}; ///< metres
    double lowest{};
};
DaysRange rangeOf(const TideDayShown& day);

/// When the water of a stream is slack.
std::vector<NavFunc113::Hours> slackTimesOf(const TideDayShown& day);

/// "Range 1.90 m, springs (Moon's age 14.9 days)"; streams: when the water is slack.
std::string rangeText(const TideDayShown& day);

/// The Moon at noon of a day of a zone.
struct MoonAtNoon {
    MoonAtNoon(std::int64_t serial, NavFunc113::Hours zone);

    NavFunc113::DateTime noon; ///< UTC
    NavFunc113::MoonPhase phase;
    NavFunc113::Degrees elongation; ///< from the Sun, 0 to below 360
    NavFunc113::DateTime newMoon;   ///< the last one, UTC

    double age() const { return noon - newMoon; } ///< days
};

/// "springs", "neaps" or what lies between, by the Moon's elongation from the Sun.
std::string springOrNeap(NavFunc113::Degrees elongation);

/// hh:mm of a day, rounded to the minute; 24:00 is a time of it.
std::string clockTime(NavFunc113::Hours time);

/// Hours of a day from one time to another.
struct HoursSpan {
    NavFunc113::Hours from; ///< 0 <= from <= to <= 24
    NavFunc113::Hours to;
};

/// When a curve stands at a level or above it.
/// @param passages of the curve through the level
std::vector<HoursSpan> spansAbove(const NavFunc113::TideCurve& curve, double level,
                                  const std::vector<NavFunc113::TidePassage>& passages);

/// "00:00 to 04:12, 09:51 to 24:00", "all day", "never".
/// @param mark before each time that the level decides: "~" for one of an estimate
std::string spansText(const std::vector<HoursSpan>& spans, const std::string& mark = {});

/// "High" or "Low"; of a stream "Flood" or "Ebb", and "Least ebb" or "Least flood" where it
/// slackens without turning.
std::string waterName(const NavFunc113::TideTurn& turn, TideKind kind);

/// "1.88" or "1.2"; one that rounds to 0 has no sign: neither flood nor ebb.
std::string plainFigure(double value, TideKind kind);

/// "1.88 m" or "1.2 kn".
std::string heightText(double value, TideKind kind);

/// The same, beginning with "~" when the level or its correction of the month is an estimate.
std::string markedFigure(double value, const TideDayShown& day);
std::string markedHeight(double value, const TideDayShown& day);

/// An answer and where it is marked in the picture.
struct CurveAnswer {
    std::string text;                          ///< by the four constituents
    std::string all = {};                      ///< by all of them, named so; empty without them
    std::string remark = {};                   ///< why there is no answer, for the notice line
    std::vector<NavFunc113::Hours> times = {}; ///< marked on the curve
    std::optional<double> level = {};          ///< marked across it
};

/// The height at a typed time of the day.
CurveAnswer heightAt(const TideDayShown& day, const std::string& typedTime);

/// The heights, metres, and rates, knots, that can be asked for.
inline constexpr double lowestAsked = -20, highestAsked = 20;

/// When the tide stands at a typed height or more: the question of the water under the keel.
CurveAnswer timesOfHeight(const TideDayShown& day, const std::string& typedHeight);

/// The hour of an instant on a day of a zone; nothing when it is on another day.
std::optional<NavFunc113::Hours> hourOf(std::int64_t serial, NavFunc113::Hours zone,
                                        NavFunc113::DateTime utc);

/// What the water does at an instant, "1.23 m rising   all constituents 1.20 m rising".
/// @param day of the station that holds the instant in its zone time
std::string waterText(const TideDayShown& day, NavFunc113::DateTime utc);

/// What the water does at this moment: its time in the station's zone, then the same.
/// @param utc the present
/// @param day of the station that holds the present in its zone time
std::string nowText(const TideDayShown& day, NavFunc113::DateTime utc);

} // namespace korvel
