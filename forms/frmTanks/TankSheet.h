// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/ship/oil_tables.h"

#include <array>
#include <string>
#include <vector>

/// Tank list and bunkers as they are typed. Calculations read them (TankReckoning), edits change
/// them (SheetInHand), files bring and take them (TankRecord, TankCsv).
namespace korvel
{

/// The two surveys of a list: before and after loading or discharge; of bunkers the one before and
/// the latest.
enum class TankSurvey : std::size_t { First, Last };
inline constexpr std::size_t surveyCount = 2;

/// What was measured in a tank.
struct TankReading {
    std::string sounding; ///< or ullage, in words
    std::string volume;   ///< observed, free water included; of the sheet's unit
    std::string water;    ///< free water, of the same unit; empty: none
    std::string temperature;
    std::string grade; ///< its number or name; empty: the only one there is

    bool operator==(const TankReading&) const = default;
};

struct TankRow {
    std::string tank;
    std::array<TankReading, surveyCount> surveys;

    /// Nothing was typed into any box.
    bool isEmpty() const { return *this == TankRow(); }
    bool operator==(const TankRow&) const = default;
};

/// A grade of cargo, or a parcel of bunkers.
struct GradeBoxes {
    std::string name;
    std::string table;       ///< "54B"; of bunkers empty: 54B
    std::string density;     ///< kg/m3 at 15 degC, with a table 6 API at 60 degF
    std::string coefficient; ///< with table 54C, per degC
    std::string sediment;    ///< sediment and water, per cent
    std::string billVolume;  ///< of the bill of lading or the outturn: m3 at 15 degC
    std::string billBarrels; ///< at 60 degF
    std::string billWeight;  ///< t in air
    std::string fuel;        ///< of bunkers: line of the noon report, 1 to 3
    std::string received;    ///< of bunkers: t in air

    bool isEmpty() const { return *this == GradeBoxes(); }
    bool operator==(const GradeBoxes&) const = default;
};

inline constexpr std::size_t mostTanks = 200;
inline constexpr std::size_t gradeCount = 8;
inline constexpr std::size_t fuelCount = 3; ///< as many as the noon report has
inline constexpr std::size_t voyageCount = 20;

struct TankList {
    std::vector<TankRow> rows;
    std::array<GradeBoxes, gradeCount> grades;
    std::array<std::string, surveyCount> times; ///< of the surveys, "2026/11/22 10:00"

    bool operator==(const TankList&) const = default;
};

/// A voyage of the experience factor, in one unit.
struct VoyageBoxes {
    std::string name;
    std::string ship;
    std::string shore;

    bool isEmpty() const { return *this == VoyageBoxes(); }
    bool operator==(const VoyageBoxes&) const = default;
};

/// The ship takes a cargo or gives it.
enum class Movement : std::size_t { Loading, Discharge };
enum class TankVolumeUnit { CubicMetres, Barrels };
enum class TankTemperatureUnit { Celsius, Fahrenheit };
enum class TankAirWeight { Density1_1, Table56 };

struct TankChoices {
    NavFunc113::CrudeEdition edition = NavFunc113::CrudeEdition::Of1980;
    NavFunc113::FactorRounding rounding = NavFunc113::FactorRounding::FiveDecimals;
    TankAirWeight air = TankAirWeight::Density1_1;
    TankVolumeUnit volume = TankVolumeUnit::CubicMetres;
    TankTemperatureUnit temperature = TankTemperatureUnit::Celsius;
    Movement movement = Movement::Loading;

    bool operator==(const TankChoices&) const = default;
};

enum class ListKind : std::size_t { Cargo, Bunkers };

struct TankSheet {
    std::array<TankList, 2> lists; ///< by ListKind
    TankChoices choices;
    std::string port;                                            ///< and berth
    std::array<std::array<VoyageBoxes, voyageCount>, 2> voyages; ///< by Movement

    TankList& list(ListKind kind) { return lists[static_cast<std::size_t>(kind)]; }
    const TankList& list(ListKind kind) const { return lists[static_cast<std::size_t>(kind)]; }
    bool operator==(const TankSheet&) const = default;
};

} // namespace korvel
