// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Remarks.h"
#include "navlib/ship/cargo.h"

#include <optional>
#include <string>

/// The crude-oil window: from the observed volume, temperature and density to the figures of the
/// cargo papers.
namespace korvel
{

enum class VolumeUnit { Kilolitres, Barrels };
enum class TemperatureUnit { Celsius, Fahrenheit };

/// What stands in the density box, and with it the table: density at 15 degC takes Table 54A, API
/// gravity at 60 degF Table 6A.
enum class DensityBase { Density15, API60 };

enum class WeightRule { DensityLess11, Table56Printed, Table56Exact };

/// Absolute zero in a unit: no cargo is colder.
double lowestTemperature(TemperatureUnit unit);
/// What a density (kg/m3) or an API gravity has to exceed; at this gravity the density is without
/// end.
double densityBound(DensityBase base);

struct CrudeInput {                  // boxes as typed
    std::string volume;              ///< total observed volume
    std::string temperature;         ///< of the cargo
    std::string density;             ///< kg/m3 (0.5 to 1.2 is taken as kg/L), or API
    std::string observedTemperature; ///< of an observed density; empty: that of the cargo
    std::string freeWater;           ///< in the unit of the volume; empty: none
    std::string sedimentAndWater;    ///< per cent of the standard volume; empty: none
    std::string klPerBarrel;         ///< 0.158 to 0.160; empty: it follows from the density

    VolumeUnit volumeUnit = VolumeUnit::Kilolitres;
    TemperatureUnit temperatureUnit = TemperatureUnit::Celsius; ///< of both temperatures
    DensityBase densityBase = DensityBase::Density15;
    bool densityObserved = false; ///< the density was observed and has yet to be reduced
    NavFunc113::ReadWith readWith = NavFunc113::ReadWith::Hydrometer;
    bool isVCFShort = false; ///< four decimals as in shore tables, and not five
    WeightRule weightRule = WeightRule::DensityLess11;
    NavFunc113::CrudeEdition edition = NavFunc113::CrudeEdition::Of1980;
};

struct CrudeTons {           ///< an empty text blanks the label
    std::string metricInAir; ///< by the weight rule
    std::string longInAir;
    std::string metricInVacuo; ///< kilolitres at 15 degC x density at 15 degC
    std::string longInVacuo;
};

/// What the figures were calculated from; nothing for what was not reached.
struct CrudeFigures {
    std::optional<double> typedDensity;   ///< kg/m3 or API, before it was reduced
    std::optional<double> densityTakenAt; ///< degC or degF, by the base; of an observed density
    std::optional<double> density15;
    std::optional<double> api60;
    std::optional<double> temperature;   ///< of the cargo, in the unit of its box
    std::optional<double> totalObserved; ///< in the unit of the volume box, as is what follows
    double freeWater{};
    double grossStandard{};
    double netStandard{};
    std::optional<NavFunc113::VolumeCorrection> correction;
    std::optional<double> percent;     ///< sediment and water
    std::optional<double> klPerBarrel; ///< by the density
    std::optional<double> typedFactor; ///< KL/Bbl as typed
    double kilolitres15OfGross{};
    double kilolitres15{}; ///< of the net volume
    double kilolitres60{};
};

struct CrudeResult {           // an empty text blanks the label
    std::string density15;     ///< kg/m3 at 15 degC
    std::string api60;         ///< API at 60 degF
    std::string vcf;           ///< as shown, so it was used
    std::string vcfMethod;     ///< "Table 54A, 1980, 15 °C"
    std::string rangeFlag;     ///< "outside Table 54A"; empty within it
    std::string totalObserved; ///< these three in the unit of the volume box
    std::string freeWater;
    std::string grossObserved;    ///< total less free water
    std::string observedUnit;     ///< of these three, as papers write it
    std::string grossStandard;    ///< gross observed x VCF; unit of the volume box
    std::string netStandard;      ///< less sediment and water; all volumes that follow are net
    std::string standardMethod;   ///< "kL at 15 °C": what the two standard volumes are
    std::string barrels;          ///< at 60 degF: by the density, or by the factor that was typed
    std::string barrelsMethod;    ///< "at 60 °F = kL at 15 °C / 0.1589156, by density"
    std::string kilolitres;       ///< at 15 degC: by the density, or by the factor that was typed
    std::string kilolitresMethod; ///< "at 15 °C = bbl at 60 °F x 0.1589141, by density"
    std::string barrels60;        ///< these four by the density, whatever factor was typed
    std::string barrels15;
    std::string kilolitres60;
    std::string kilolitres15;
    CrudeTons gross;          ///< of the gross standard volume
    CrudeTons net;            ///< of the net standard volume
    std::string weightMethod; ///< "density - 1.1", "Table 56, 0.99875"
    CrudeFigures figures;
    std::string notice; ///< what is missing or makes no sense; empty when all is well
    NoticeLevel level = NoticeLevel::Remark; ///< of the notice
};

/// All figures of the cargo.
///
/// A figure is blank when one that it needs is missing (an empty volume, temperature or density is
/// not taken as 0) or makes no sense; the notice says which. Tons never depend on the KL/Bbl
/// factor: barrels at 60 degF times density at 15 degC would be 0.05 % wrong.
/// @throws NavFunc113::ArithmeticError when volumes or temperatures are beyond all numbers
CrudeResult CalculateCrude(const CrudeInput& input);

/// The KL/Bbl factor that belongs to the density, seven decimals; empty when there is no density
/// that gives one.
std::string KLPerBarrelFromDensity(const CrudeInput& input);

} // namespace korvel
