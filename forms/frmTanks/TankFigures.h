// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/NumberField.h"
#include "app/reading/Remarks.h"
#include "forms/frmTanks/TankSheet.h"

#include <optional>

/// What the boxes of a tank list mean, and what comes out of them tank by tank.
namespace korvel
{

/// The table of a grade as ships write it.
struct TableName {
    const char* name; ///< "54B"
    NavFunc113::OilTable table;
    bool isAt60F; ///< the density is an API gravity
};
inline constexpr std::array<TableName, 7> tableNames = {{
    {"54A", NavFunc113::OilTable::Crude, false},
    {"54B", NavFunc113::OilTable::Products, false},
    {"54C", NavFunc113::OilTable::Own, false},
    {"54D", NavFunc113::OilTable::Lubricating, false},
    {"6A", NavFunc113::OilTable::Crude, true},
    {"6B", NavFunc113::OilTable::Products, true},
    {"6D", NavFunc113::OilTable::Lubricating, true},
}};

/// A grade as it was understood.
struct ReadGrade {
    bool isUsed = false; ///< anything was typed
    std::string name;    ///< "Grade 2" where none was typed
    const TableName* table = nullptr;
    std::optional<NavFunc113::Oil> oil; ///< nothing: tanks of this grade cannot be calculated
    double api{};
    NavFunc113::CubicMetres barrel{}; ///< m3 at 15 degC of a barrel at 60 degF
    double sediment{};                ///< part of 1
    std::optional<double> billVolume, billBarrels, billWeight, received;
    std::optional<std::size_t> fuel;
    Remarks remarks;
};

/// @param number of the grade, from 1, for remarks
ReadGrade readGrade(const GradeBoxes& boxes, std::size_t number, ListKind kind,
                    const TankChoices& choices);

/// Quantities of a tank, of a grade or of the ship. Tons and barrels are those of GSV.
struct TankSums {
    double observed{}; ///< total observed volume, of the sheet's unit
    double water{};    ///< of the same
    double gross{};    ///< observed less water
    double standard{}; ///< GSV, m3 at 15 degC
    double net{};      ///< NSV: without sediment and water, m3 at 15 degC
    double total{};    ///< TCV: GSV and free water, m3
    double barrels{};  ///< at 60 degF
    double inVacuo{};  ///< t
    double inAir{};    ///< t
    double netInAir{}; ///< t, of NSV
    double longTons{}; ///< in air

    TankSums& operator+=(const TankSums& other);
    TankSums operator-(const TankSums& other) const;
};

/// A tank of one survey.
struct TankFigures {
    bool isMeasured = false;            ///< a volume was typed
    std::optional<std::size_t> grade;   ///< which, from 0
    std::optional<double> temperature;  ///< degC or degF, by the grade's table
    std::optional<double> factor;       ///< as it was multiplied with
    std::optional<TankSums> quantities; ///< nothing: the remark says why
    std::string remark;
    bool isFault = false; ///< the remark says why there are no quantities
};

/// @param grades of the list
TankFigures tankFigures(const TankReading& reading, const std::array<ReadGrade, gradeCount>& grades,
                        const TankChoices& choices);

/// The name of the volume unit: "m³" or "bbl".
const char* unitOf(TankVolumeUnit unit);
/// "°C" or "°F"
const char* unitOf(TankTemperatureUnit unit);
/// What a tank's temperature may be.
NumberField temperatureField(TankTemperatureUnit unit);

} // namespace korvel
