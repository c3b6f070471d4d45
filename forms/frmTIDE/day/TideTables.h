// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/data/FullConstants.h"
#include "forms/frmTIDE/data/TideDates.h"
#include "forms/frmTIDE/day/TideWaters.h"
#include "forms/frmTIDE/stations/StationList.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

/// Tables of several days of one station.
namespace korvel
{

/// A station whose files have been read, and the factors of its days.
class StationDays
{
public:
    /// @param place of the menus; its file is read once
    /// @throws TideDataFault
    StationDays(FileStore& files, TideKind kind, const std::string& place, const StationList& list,
                const FullConstants& constants);

    /// @throws TideDataFault for a day that the factors file does not have
    TideDayShown day(std::int64_t serial) const;

    /// The day with figures of highest and lowest that follow on what is shown.
    TideDayShown day(std::int64_t serial, const TidePrediction& shown) const;

    /// Whether the station's file is the ship's own: one that is not shipped, or that was put in
    /// the place of a shipped one. What is known about the shipped one does not hold for it.
    bool isOwn() const { return m_isOwn; }

    /// East positive.
    NavFunc113::Hours zone() const { return m_station.zone; }

private:
    FileStore& m_factors;
    TideKind m_kind;
    TideStation m_station;
    std::optional<tidedata::AllConstituents> m_all;
    bool m_isOwn;
    bool m_isEstimated;
};

/// What the water does at this moment, where the dates hold the present; else nothing.
/// @param withAll whether all constituents are told beside the four
std::string nowText(const StationDays& station, NavFunc113::Hours zone, const TideDates& dates,
                    NavFunc113::DateTime utc, bool withAll);

/// A day of the seven-day table.
struct WeekDay {
    std::string date; ///< "2026/11/21"
    std::string moon; ///< "springs"
    std::vector<WaterLine> waters;
};

/// Seven days from one on, as far as the dates reach.
std::vector<WeekDay> weekFrom(const StationDays& station, std::int64_t serial,
                              const TideDates& dates);

/// The month of a day as delimited text, a high or low water a line: date, time, high or low,
/// height and unit, and by which constituents. Station and warning stand in its first lines.
std::string monthTable(const StationDays& station, const std::string& place, std::int64_t serial,
                       const TideDates& dates);

/// Name of the month's file: "Tide Tokyo 2026-11.csv".
std::string monthFileName(const std::string& place, TideKind kind, std::int64_t serial);

} // namespace korvel
