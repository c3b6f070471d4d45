// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/data/FullConstants.h"
#include "forms/frmTIDE/day/TideWaters.h"
#include "forms/frmTIDE/stations/StationList.h"

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace korvel
{

/// The boxes about the tide, as typed.
struct TideBoxes {
    std::string tide; ///< metres; typed, it comes before every station
    std::string station;
    std::string day;  ///< of the station's zone; empty: today
    std::string time; ///< of the station's zone

    bool operator==(const TideBoxes&) const = default;
};

/// A station's tide of a day and the six that follow, as far as the factors file reaches.
struct TideWeek {
    static constexpr std::size_t mostDays = 7;

    std::string place;              ///< empty: no station is wanted, or none was found
    std::string fault;              ///< why there are no days
    std::vector<std::string> notes; ///< what the officer should know of the figures
    std::string accuracy;           ///< of the station, for papers
    std::vector<TideDayShown> days;

    bool isThere() const { return !days.empty(); }
    /// The sum of all constituents where they are known, else the four.
    bool isOfAll() const { return isThere() && days.front().all.has_value(); }
    bool isEstimated() const { return isThere() && days.front().isEstimated; }
    /// "all constituents" or "four constituents".
    const char* method() const { return isOfAll() ? "all constituents" : "four constituents"; }
    /// Height in metres at a time of one of the days.
    double at(std::size_t day, NavFunc113::Hours time) const;
    NavFunc113::TideCurve curve(std::size_t day) const;
};

/// The lowest water of a day, its ends included.
NavFunc113::TideTurn lowestOf(const TideWeek& week, std::size_t day);

/// When a day's tide is high enough: to whole minutes, rounded inwards.
std::vector<HoursSpan> hoursAbove(const TideWeek& week, std::size_t day, double level);

/// Reads the weeks that are asked for; the last one is kept.
class TideWeeks
{
public:
    explicit TideWeeks(FileStore& files) : m_files(files) {}

    /// @param utc the present, for an empty day
    const TideWeek& week(const TideBoxes& boxes, NavFunc113::DateTime utc);
    /// The files may be others now.
    void forget() { m_key.reset(); }

private:
    TideWeek read(const std::string& station, const std::string& day, NavFunc113::DateTime utc);
    void readDays(TideWeek& week, const std::string& day, NavFunc113::DateTime utc);

    FileStore& m_files;
    std::optional<std::string> m_key; ///< what the week was read for
    TideWeek m_week;
    std::unique_ptr<StationList> m_list; ///< read when the first station is asked for
    std::unique_ptr<FullConstants> m_constants;
};

} // namespace korvel
