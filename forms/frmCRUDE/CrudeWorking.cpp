// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/CrudeWorking.h"

#include "app/reading/Format.h"

namespace korvel
{
namespace
{

bool isMetric(const CrudeInput& input)
{
    return input.densityBase == DensityBase::Density15;
}

std::string volumeUnitText(const CrudeInput& input)
{
    return input.volumeUnit == VolumeUnit::Kilolitres ? "kL" : "bbl";
}

void addReduction(Working& working, const CrudeInput& input, const CrudeFigures& figures)
{
    if (!figures.densityTakenAt) return;
    const bool metric = isMetric(input);
    const double taken = *figures.densityTakenAt;
    if (input.readWith == NavFunc113::ReadWith::Hydrometer)
        working.step("Correction of the hydrometer's glass",
                     metric ? "h = 1 - 0.000023 (t - 15) - 0.00000002 (t - 15)²"
                            : "h = 1 - 0.00001278 (t - 60) - 0.0000000062 (t - 60)²",
                     "t = " + figure(taken, 2),
                     figure(metric ? NavFunc113::HydrometerCorrection(taken)
                                   : NavFunc113::HydrometerCorrectionF(taken),
                            8));
    working.step(metric ? "Density at 15 °C, Table 53A" : "Gravity at 60 °F, Table 5A",
                 "the density whose product with its own factor at t is the density observed, "
                 "found by repeated division",
                 "observed " + figure(*figures.typedDensity, 3) + " at " + figure(taken, 2) +
                     (metric ? " °C" : " °F"),
                 figure(metric ? *figures.density15 : *figures.api60, 4),
                 metric ? "kg/m³" : "°API");
}

void addOil(Working& working, const CrudeInput& input, const CrudeResult& result)
{
    addReduction(working, input, result.figures);
    const std::string water = figure(NavFunc113::WaterDensity60F(input.edition), 3);
    if (isMetric(input)) {
        working.resultStep("Density at 15 °C", "the density as above or as typed", result.density15,
                           "kg/m³");
        working.step("Gravity at 60 °F",
                     "141.5 × water / (ρ15 × VCF of 60 °F) - 131.5, water " + water + " kg/m³", "",
                     result.api60, "°API");
        return;
    }
    working.resultStep("Gravity at 60 °F", "the gravity as above or as typed", result.api60,
                       "°API");
    working.step("Density at 15 °C",
                 "ρ60 = 141.5 × water / (131.5 + API), water " + water +
                     " kg/m³; ρ15 whose product with its factor at 60 °F is ρ60",
                 "", result.density15, "kg/m³");
}

void addCorrection(Working& working, const CrudeResult& result)
{
    const NavFunc113::VolumeCorrection& c = *result.figures.correction;
    working.step("Coefficient of expansion", "α = K0 / ρ²",
                 figure(c.K0, 4) + " / " + figure(c.density, 4) + "²", figure(c.alpha, 10));
    working.step("Difference of temperature",
                 c.shift != 0 ? "ΔT from 60.0068749 °F, temperatures on the scale of 1968"
                              : "ΔT from the reference temperature",
                 "", figure(c.difference, 5), "degrees");
    const std::string x = term(c.alpha * c.difference, 10);
    working.step("Their product", "x = α ΔT", figure(c.alpha, 10) + " × " + term(c.difference, 5),
                 figure(c.alpha * c.difference, 10));
    if (c.shift != 0)
        working.step("VCF", "exp(-x (1 + 0.8 (x + α δ))) / factor of the reference temperature",
                     "exp(-" + x + " × (1 + 0.8 × (" + x + " + " + figure(c.alpha, 10) + " × " +
                         figure(c.shift, 8) + "))) / " + figure(c.atReference, 8),
                     figure(c.factor, 8));
    else
        working.step("VCF", "exp(-x (1 + 0.8 x))", "exp(-" + x + " × (1 + 0.8 × " + x + "))",
                     figure(c.factor, 8));
    working.resultStep("VCF", "rounded, and so used: " + result.vcfMethod, result.vcf);
    if (!result.rangeFlag.empty())
        working.resultStep("Range", "of the printed table", result.rangeFlag);
}

void addVolumes(Working& working, const CrudeInput& input, const CrudeResult& result)
{
    const std::string unit = volumeUnitText(input);
    working.step("Total observed", "as typed", "", result.totalObserved, unit);
    working.step("Free water", "as typed", "", result.freeWater, unit);
    working.step("Gross observed", "total observed - free water",
                 result.totalObserved + " - " + result.freeWater, result.grossObserved, unit);
    if (result.grossStandard.empty()) return;
    working.step("Gross standard", "gross observed × VCF",
                 result.grossObserved + " × " + result.vcf, result.grossStandard,
                 result.standardMethod);
    if (result.netStandard.empty()) return;
    working.step("Net standard", "gross standard × (1 - sediment and water / 100)",
                 result.grossStandard + " × (1 - " + figure(*result.figures.percent, 4) + " / 100)",
                 result.netStandard, result.standardMethod);
}

void addBarrels(Working& working, const CrudeInput& input, const CrudeResult& result)
{
    const CrudeFigures& figures = result.figures;
    const std::string barrel = figure(NavFunc113::cubicMetresPerBarrel, 12);
    working.step("KL/Bbl by density", "k = " + barrel + " × VCF of 60 °F by Table 54A", "",
                 figure(*figures.klPerBarrel, 9));
    working.step("Kilolitres at 15 °C, net",
                 isMetric(input) ? "net standard volume, a barrel being " + barrel + " m³"
                                 : "kL at 60 °F × k / " + barrel,
                 "", result.kilolitres15, "kL");
    working.step("Kilolitres at 60 °F, net",
                 isMetric(input) ? "kL at 15 °C / (k / " + barrel + ")" : "net standard volume", "",
                 result.kilolitres60, "kL");
    working.step("Barrels at 15 °C, net", "kL at 15 °C / " + barrel,
                 result.kilolitres15 + " / " + barrel, result.barrels15, "bbl");
    working.step("Barrels at 60 °F, net", "kL at 60 °F / " + barrel,
                 result.kilolitres60 + " / " + barrel, result.barrels60, "bbl");
    if (!result.barrels.empty())
        working.step("Barrels", result.barrelsMethod, "", result.barrels, "bbl");
    if (!result.kilolitres.empty())
        working.step("Kilolitres", result.kilolitresMethod, "", result.kilolitres, "kL");
}

void addTons(Working& working, const CrudeInput& input, const CrudeResult& result,
             const CrudeTons& tons, const std::string& name, double kilolitres15)
{
    const std::string volume = figure(kilolitres15, 4);
    const std::string density = figure(*result.figures.density15, 4);
    working.step("Metric tons in vacuo, " + name, "kL at 15 °C × ρ15 / 1000",
                 volume + " × " + density + " / 1000", tons.metricInVacuo, "t");
    if (input.weightRule == WeightRule::DensityLess11)
        working.step("Metric tons in air, " + name, "kL at 15 °C × (ρ15 - 1.1) / 1000",
                     volume + " × (" + density + " - 1.1) / 1000", tons.metricInAir, "t");
    else
        working.step("Metric tons in air, " + name,
                     "tons in vacuo × (1 - 1.22/ρ15) / (1 - 1.22/8100), as " + result.weightMethod,
                     tons.metricInVacuo, tons.metricInAir, "t");
    const std::string perLongTon = " / " + figure(NavFunc113::metricTonsPerLongTon, 10);
    working.step("Long tons in vacuo, " + name, "metric tons" + perLongTon,
                 tons.metricInVacuo + perLongTon, tons.longInVacuo, "long tons");
    working.step("Long tons in air, " + name, "metric tons" + perLongTon,
                 tons.metricInAir + perLongTon, tons.longInAir, "long tons");
}

} // namespace

Working cargoWorking(const CrudeInput& input, const CrudeResult& result)
{
    const bool of2004 = input.edition == NavFunc113::CrudeEdition::Of2004;
    Working working{"Cargo",
                    {std::string("Crude oil, ") +
                         (isMetric(input) ? "Table 54A, 15 °C" : "Table 6A, 60 °F") +
                         (of2004 ? ", edition of 2004" : ", edition of 1980"),
                     "Weight in air by " +
                         (result.weightMethod.empty() ? "the rule chosen" : result.weightMethod)},
                    {}};
    const CrudeFigures& figures = result.figures;
    if (figures.density15) addOil(working, input, result);
    if (figures.correction) addCorrection(working, result);
    if (!result.totalObserved.empty()) addVolumes(working, input, result);
    if (figures.klPerBarrel) addBarrels(working, input, result);
    if (!result.gross.metricInAir.empty())
        addTons(working, input, result, result.gross, "gross", figures.kilolitres15OfGross);
    if (!result.net.metricInAir.empty())
        addTons(working, input, result, result.net, "net", figures.kilolitres15);
    if (working.steps.empty())
        working.whyNone = "Nothing was entered, or the remarks say why there is no result.";
    return working;
}

std::vector<PaperFigure> cargoFigures(const CrudeInput& input, const CrudeResult& result)
{
    const std::string& volume = result.standardMethod;
    const std::string observed = volumeUnitText(input);
    const PaperFigure all[] = {
        {"Density at 15 °C", result.density15, "kg/m³"},
        {"API at 60 °F", result.api60, "°API"},
        {"VCF", result.vcf, result.vcfMethod},
        {"Range", result.rangeFlag},
        {"Total observed", result.totalObserved, observed},
        {"Free water", result.freeWater, observed},
        {"Gross observed", result.grossObserved, observed},
        {"Gross standard", result.grossStandard, volume},
        {"Net standard", result.netStandard, volume},
        {"Barrels", result.barrels, result.barrelsMethod},
        {"Kilolitres", result.kilolitres, result.kilolitresMethod},
        {"Kilolitres by density, net", result.kilolitres15, "kL at 15 °C"},
        {"Kilolitres by density, net", result.kilolitres60, "kL at 60 °F"},
        {"Barrels by density, net", result.barrels15, "bbl at 15 °C"},
        {"Barrels by density, net", result.barrels60, "bbl at 60 °F"},
        {"Gross in air", result.gross.metricInAir, "t, " + result.weightMethod},
        {"Gross in vacuo", result.gross.metricInVacuo, "t"},
        {"Net in air", result.net.metricInAir, "t, " + result.weightMethod},
        {"Net in vacuo", result.net.metricInVacuo, "t"},
        {"Gross in air", result.gross.longInAir, "long tons"},
        {"Gross in vacuo", result.gross.longInVacuo, "long tons"},
        {"Net in air", result.net.longInAir, "long tons"},
        {"Net in vacuo", result.net.longInVacuo, "long tons"},
    };
    std::vector<PaperFigure> shown;
    for (const PaperFigure& each : all)
        if (!each.value.empty()) shown.push_back(each);
    return shown;
}

} // namespace korvel
