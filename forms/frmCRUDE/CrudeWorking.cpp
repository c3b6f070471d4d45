// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/CrudeWorking.h"

#include "app/reading/Format.h"
#include "forms/frmCRUDE/CrudeShown.h"
#include "forms/frmCRUDE/OilWorking.h"

#include <cmath>

namespace korvel
{
namespace
{

std::string factorText(double factor)
{
    return figure(factor, 8);
}

void addVolumes(Working& working, const CrudeInput& input, const CrudeResult& result)
{
    const std::string& unit = result.observedUnit;
    const CrudeFigures& figures = result.figures;
    const std::string total = cargoFigure(*figures.totalObserved);
    const std::string water = cargoFigure(figures.freeWater);
    working.resultStep("Total observed", total + " as typed", result.totalObserved, unit);
    working.resultStep("Free water", water + (input.freeWater.empty() ? ", none" : " as typed"),
                       result.freeWater, unit);
    working.step("Gross observed", "total observed - free water", total + " - " + water,
                 result.grossObserved, unit);
    if (result.grossStandard.empty()) return;
    working.step("Gross standard", "gross observed × VCF",
                 cargoFigure(*figures.totalObserved - figures.freeWater) + " × " + result.vcf,
                 result.grossStandard, result.standardMethod);
    if (result.netStandard.empty()) return;
    working.step("Net standard", "gross standard × (1 - sediment and water / 100)",
                 cargoFigure(figures.grossStandard) + " × (1 - " + figure(*figures.percent, 4) +
                     " / 100)",
                 result.netStandard, result.standardMethod);
}

/// The net volume at its own temperature, and at the other one.
void addKilolitres(Working& working, const CrudeInput& input, const CrudeResult& result)
{
    const CrudeFigures& figures = result.figures;
    const std::string barrel = figure(NavFunc113::cubicMetresPerBarrel, 12);
    const bool inBarrels = input.volumeUnit == VolumeUnit::Barrels;
    const std::string net = cargoFigure(figures.netStandard) + (inBarrels ? " × " + barrel : "");
    const std::string netFormula =
        inBarrels ? "net standard volume × m³ a barrel" : "net standard volume";
    const std::string factor = factorText(factorOf60F(input, *figures.density15));
    const std::string toOther = "kL at 15 °C / VCF of 60 °F by Table 54A";
    const std::string toOwn = "kL at 60 °F × VCF of 60 °F by Table 54A";
    if (isMetric(input)) {
        working.step("Kilolitres at 15 °C, net", netFormula, net, result.kilolitres15, "kL");
        working.step("Kilolitres at 60 °F, net", toOther,
                     cargoFigure(figures.kilolitres15) + " / " + factor, result.kilolitres60, "kL");
    } else {
        working.step("Kilolitres at 60 °F, net", netFormula, net, result.kilolitres60, "kL");
        working.step("Kilolitres at 15 °C, net", toOwn,
                     cargoFigure(figures.kilolitres60) + " × " + factor, result.kilolitres15, "kL");
    }
}

/// Barrels and kilolitres as the papers of the cargo have them.
void addHeadline(Working& working, const CrudeInput& input, const CrudeResult& result)
{
    const CrudeFigures& figures = result.figures;
    const std::string barrel = figure(NavFunc113::cubicMetresPerBarrel, 12);
    const std::string bbl60 = cargoFigure(figures.kilolitres60) + " / " + barrel;
    const std::string used =
        figures.typedFactor ? cargoFigure(*figures.typedFactor) : figure(*figures.klPerBarrel, 9);
    if (!result.barrels.empty())
        working.step("Barrels", result.barrelsMethod,
                     isMetric(input) ? cargoFigure(figures.kilolitres15) + " / " + used : bbl60,
                     result.barrels, "bbl");
    if (!result.kilolitres.empty())
        working.step("Kilolitres", result.kilolitresMethod,
                     isMetric(input) ? cargoFigure(figures.kilolitres15) : bbl60 + " × " + used,
                     result.kilolitres, "kL");
}

void addBarrels(Working& working, const CrudeInput& input, const CrudeResult& result)
{
    const CrudeFigures& figures = result.figures;
    const std::string barrel = figure(NavFunc113::cubicMetresPerBarrel, 12);
    working.step("KL/Bbl by density", "k = " + barrel + " × VCF of 60 °F by Table 54A",
                 barrel + " × " + factorText(factorOf60F(input, *figures.density15)),
                 figure(*figures.klPerBarrel, 9));
    addKilolitres(working, input, result);
    working.step("Barrels at 15 °C, net", "kL at 15 °C / " + barrel,
                 cargoFigure(figures.kilolitres15) + " / " + barrel, result.barrels15, "bbl");
    working.step("Barrels at 60 °F, net", "kL at 60 °F / " + barrel,
                 cargoFigure(figures.kilolitres60) + " / " + barrel, result.barrels60, "bbl");
    addHeadline(working, input, result);
}

/// The factor of Table 56, and the one that its printed form has for a range of densities.
void addFactorInAir(Working& working, const CrudeInput& input, double density15)
{
    if (input.weightRule == WeightRule::DensityLess11) return;
    const double exact = NavFunc113::Table56Factor(density15);
    working.step("Factor of Table 56", "F = (1 - 1.22 / ρ15) / (1 - 1.22 / 8100)",
                 "(1 - 1.22 / " + cargoFigure(density15) + ") / (1 - 1.22 / 8100)",
                 factorText(exact));
    if (input.weightRule == WeightRule::Table56Printed)
        working.step("Factor of Table 56, as printed",
                     "four decimals of F, cut, + 0.00005: the middle of the printed range",
                     Format(std::floor(exact * 1e4) / 1e4, "0.0000") + " + 0.00005",
                     figure(NavFunc113::Table56FactorAsPrinted(density15), 5));
}

std::string factorInAir(const CrudeInput& input, double density15)
{
    return input.weightRule == WeightRule::Table56Printed
               ? figure(NavFunc113::Table56FactorAsPrinted(density15), 5)
               : factorText(NavFunc113::Table56Factor(density15));
}

void addTons(Working& working, const CrudeInput& input, const CrudeTons& tons,
             const std::string& name, double kilolitres15, double density15)
{
    const std::string volume = cargoFigure(kilolitres15);
    const std::string density = cargoFigure(density15);
    const double inVacuo = NavFunc113::MassInVacuo(kilolitres15, density15);
    const bool byDensity = input.weightRule == WeightRule::DensityLess11;
    working.step("Metric tons in vacuo, " + name, "kL at 15 °C × ρ15 / 1000",
                 volume + " × " + density + " / 1000", tons.metricInVacuo, "t");
    const std::string inAir =
        byDensity ? volume + " × (" + density + " - 1.1) / 1000"
                  : volume + " × " + density + " / 1000 × " + factorInAir(input, density15);
    working.step("Metric tons in air, " + name,
                 byDensity ? "kL at 15 °C × (ρ15 - 1.1) / 1000" : "tons in vacuo × F", inAir,
                 tons.metricInAir, "t");
    const std::string perLongTon = " / " + figure(NavFunc113::metricTonsPerLongTon, 10);
    working.step("Long tons in vacuo, " + name, "metric tons" + perLongTon,
                 cargoFigure(inVacuo) + perLongTon, tons.longInVacuo, "long tons");
    working.step("Long tons in air, " + name, "metric tons in air" + perLongTon, inAir + perLongTon,
                 tons.longInAir, "long tons");
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
    if (figures.correction) addCorrection(working, input, result);
    if (!result.totalObserved.empty()) addVolumes(working, input, result);
    if (figures.klPerBarrel) addBarrels(working, input, result);
    if (!result.gross.metricInAir.empty()) {
        addFactorInAir(working, input, *figures.density15);
        addTons(working, input, result.gross, "gross", figures.kilolitres15OfGross,
                *figures.density15);
    }
    if (!result.net.metricInAir.empty())
        addTons(working, input, result.net, "net", figures.kilolitres15, *figures.density15);
    if (working.steps.empty())
        working.whyNone = "Nothing was entered, or the remarks say why there is no result.";
    return working;
}

std::vector<PaperFigure> cargoFigures(const CrudeResult& result)
{
    std::vector<PaperFigure> shown;
    for (const CrudeFigure& each : CrudeTable::figures) {
        const std::string& figure = *each.shown.textIn(result);
        if (!each.onPaper || figure.empty()) continue;
        const std::string method = each.method ? result.*each.method : std::string();
        shown.push_back({each.onPaper, figure, each.unit + method});
    }
    return shown;
}

} // namespace korvel
