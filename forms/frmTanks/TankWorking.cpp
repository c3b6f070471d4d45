// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankWorking.h"

#include "app/reading/Format.h"
#include "forms/frmTanks/TankTexts.h"

namespace korvel
{
namespace
{

using NavFunc113::CrudeEdition;
using NavFunc113::FactorRounding;
using NavFunc113::OilTable;

std::string plain(double value)
{
    return Format(value, "0.######");
}

void addVolumes(Working& working, const TankSums& sums, const TankChoices& choices)
{
    const char* unit = unitOf(choices.volume);
    working.step("Gross observed volume", "GOV = TOV - free water",
                 plain(sums.observed) + " - " + plain(sums.water), plain(sums.gross), unit);
}

/// alpha = K0 / density² + K1 / density + K2, with what there is of it.
std::string alphaFigures(const NavFunc113::VolumeCorrection& correction)
{
    const std::string density = plain(correction.density);
    std::vector<std::string> terms;
    if (correction.K0 != 0) terms.push_back(plain(correction.K0) + " / " + density + "²");
    if (correction.K1 != 0) terms.push_back(plain(correction.K1) + " / " + density);
    std::string text;
    for (const std::string& term : terms)
        text += (text.empty() ? "" : " + ") + term;
    if (correction.K2 != 0) text += " - " + Format(-correction.K2, "0.########");
    return text;
}

/// @return the factor before it was rounded
std::string addFactor(Working& working, const ReadGrade& grade, const TankFigures& figures,
                      const TankChoices& choices)
{
    const bool at60F = grade.table->isAt60F;
    const NavFunc113::VolumeCorrection correction =
        at60F ? NavFunc113::CorrectionTo60F(grade.table->table, grade.api, *figures.temperature,
                                            choices.edition)
              : NavFunc113::CorrectionTo15C(*grade.oil, *figures.temperature, choices.edition);
    if (at60F)
        working.step("Density at 60 °F", "141.5 × water / (131.5 + API)", "API " + plain(grade.api),
                     plain(NavFunc113::Density60FromAPI(grade.api, choices.edition)), "kg/m³");
    const bool of1980 = choices.edition == CrudeEdition::Of1980;
    const char* unit = at60F || !of1980 ? "per °F" : "per °C";
    if (grade.table->table == OilTable::Own)
        working.step("Coefficient of expansion", "as given",
                     of1980 ? "" : plain(grade.oil->coefficient) + " / 1.8",
                     figure(correction.alpha, 8), unit);
    else
        working.step("Coefficient of expansion", "α = K0 / ρ² + K1 / ρ + K2",
                     alphaFigures(correction), figure(correction.alpha, 8), unit);
    if (of1980) {
        const std::string dt = plain(*figures.temperature) + (at60F ? " - 60" : " - 15");
        working.step("Volume correction factor", "VCF = exp(-α Δt (1 + 0.8 α Δt))", "Δt = " + dt,
                     figure(correction.factor, 7));
    } else {
        working.step("Volume correction factor",
                     "exp(-α Δt (1 + 0.8 α (Δt + δ))) / the same at the reference",
                     "Δt = " + figure(correction.difference, 5) +
                         " °F of 1968, δ = " + plain(correction.shift),
                     figure(correction.factor, 7));
    }
    return figure(correction.factor, 7);
}

void addQuantities(Working& working, const ReadGrade& grade, const TankFigures& figures,
                   const TankTexts& texts, const TankChoices& choices)
{
    const TankSums& sums = *figures.quantities;
    const std::string unit = unitOf(choices.volume);
    working.step("Gross standard volume", "GSV = GOV × VCF, in m³ at 15 °C",
                 plain(sums.gross) + " " + unit + " × " + texts.factor, texts.standard, "m³");
    if (sums.water > 0)
        working.step("Total calculated volume", "TCV = GSV + free water",
                     texts.standard + " + " + volumeText(sums.total - sums.standard), texts.total,
                     "m³");
    working.step("Barrels at 60 °F", "GSV / m³ of a barrel",
                 texts.standard + " / " + figure(grade.barrel, 8), texts.barrels, "bbl");
    const double density = grade.oil->density15;
    working.step("Mass in vacuo", "GSV × ρ15 / 1000",
                 texts.standard + " × " + plain(density) + " / 1000", texts.inVacuo, "t");
    if (choices.air == TankAirWeight::Density1_1)
        working.step("Weight in air", "GSV × (ρ15 - 1.1) / 1000",
                     texts.standard + " × " + plain(density - 1.1) + " / 1000", texts.inAir, "t");
    else
        working.step("Weight in air", "mass × factor of table 56",
                     texts.inVacuo + " × " + figure(NavFunc113::Table56FactorAsPrinted(density), 5),
                     texts.inAir, "t");
    working.step("Long tons", "t / 1.0160469088", texts.inAir + " / 1.0160469088", texts.longTons,
                 "long tons");
}

/// The survey in hand, or the other one where only that found oil in the tank in hand.
TankSurvey surveyWithOil(const SheetInHand& work, ListKind kind)
{
    const TankSurvey inHand = work.survey(kind);
    const TankSurvey other = inHand == TankSurvey::First ? TankSurvey::Last : TankSurvey::First;
    const auto hasOil = [&](TankSurvey survey) {
        return work.reckoning(kind).tank(work.row(kind), survey).factor.has_value();
    };
    return !hasOil(inHand) && hasOil(other) ? other : inHand;
}

/// Volumes and weights, with what the tables of the surveys have no room for.
std::vector<PaperTable> movedTables(const TankReckoning& reckoning)
{
    const std::string unit = std::string(" ") + unitOf(reckoning.choices().volume);
    PaperTable ofVolume{
        "Volumes",
        {"Grade", "TOV" + unit, "Water" + unit, "GOV" + unit, "GSV m³", "NSV m³", "TCV m³"},
        {}};
    PaperTable ofWeight{
        "Weights and barrels",
        {"Grade", "bbl at 60 °F", "t in vacuo", "t in air", "Net t in air", "Long tons"},
        {}};
    for (const TotalsRow& row : totalsRows(reckoning, TotalsOf::Moved)) {
        if (row.name.empty()) continue;
        ofVolume.rows.push_back(
            {row.name, row.observed, row.water, row.gross, row.standard, row.net, row.total});
        ofWeight.rows.push_back(
            {row.name, row.barrels, row.inVacuo, row.inAir, row.netInAir, row.longTons});
    }
    return {std::move(ofVolume), std::move(ofWeight)};
}

PaperTable billTable(const TankReckoning& reckoning, bool isLoading)
{
    PaperTable table{isLoading ? "Ship against bill of lading" : "Ship against outturn",
                     {"Grade", "Measure", "Ship", isLoading ? "Bill of lading" : "Outturn",
                      "Difference", "Per cent"},
                     {}};
    constexpr std::array names{"m³ at 15 °C", "bbl at 60 °F", "t in air"};
    for (const CompareRow& row : compareRows(reckoning))
        for (std::size_t i = 0; i < names.size(); ++i)
            if (!row.measures[i].bill.empty())
                table.rows.push_back({row.name, names[i], row.measures[i].ship,
                                      row.measures[i].bill, row.measures[i].difference,
                                      row.measures[i].percent});
    return table;
}

} // namespace

Working movedWorking(const SheetInHand& work, const TanksShown& shown)
{
    const TankReckoning& reckoning = work.reckoning(ListKind::Cargo);
    const bool isLoading = reckoning.choices().movement == Movement::Loading;
    Working working;
    working.title = isLoading ? "what was loaded" : "what was discharged";
    if (shown.moved.empty()) {
        working.whyNone = "A survey is missing, or a tank of one is in doubt";
        return working;
    }
    const TankSums& more = reckoning.sums(isLoading ? TankSurvey::Last : TankSurvey::First).ship;
    const TankSums& less = reckoning.sums(isLoading ? TankSurvey::First : TankSurvey::Last).ship;
    working.method = {isLoading ? "After loading less before loading, tank by tank and added up"
                                : "Before discharge less after discharge, tank by tank and added "
                                  "up"};
    working.step(isLoading ? "On board before" : "Remaining on board", "TCV, weight in air",
                 "totals of that survey", shown.onBoard);
    const auto difference = [&working, isLoading](const char* name, double from, double off,
                                                  const std::string& value, const char* unit) {
        working.step(name, isLoading ? "after - before" : "before - after",
                     volumeText(from) + " - " + volumeText(off), value, unit);
    };
    difference("Gross standard volume", more.standard, less.standard, shown.movedVolume, "m³");
    difference("Total calculated volume", more.total, less.total, shown.totalMoved, "m³");
    difference("Weight in air", more.inAir, less.inAir, shown.moved, "t");
    if (!shown.percent.empty())
        working.step("Ship less bill", "(ship - bill) / bill × 100", shown.against, shown.percent,
                     "per cent");
    if (!shown.byExperience.empty())
        working.step("With the experience factor", "ship / factor, then as above", shown.against,
                     shown.byExperience);
    working.tables = movedTables(reckoning);
    PaperTable bill = billTable(reckoning, isLoading);
    if (!bill.rows.empty()) working.tables.push_back(std::move(bill));
    return working;
}

Working tankWorking(const SheetInHand& work, ListKind kind)
{
    Working working;
    const TankReckoning& reckoning = work.reckoning(kind);
    const std::size_t row = work.row(kind);
    if (row >= reckoning.rows()) {
        working.whyNone = "No tank is in hand";
        return working;
    }
    const TankSurvey survey = surveyWithOil(work, kind);
    working.title = "tank " + tankName(work.list(kind), row) + ", " + surveyName(kind, survey);
    const TankFigures& figures = reckoning.tank(row, survey);
    if (!figures.quantities || !figures.factor) {
        working.whyNone = figures.remark.empty() ? "There is no oil in it" : figures.remark;
        return working;
    }
    const ReadGrade& grade = reckoning.grades()[*figures.grade];
    const TankTexts texts = tankTexts(
        work.rowInHand(kind).surveys[static_cast<std::size_t>(survey)], figures, reckoning);
    working.method = {grade.name + ", table " + grade.table->name + ", " +
                      plain(grade.oil->density15) + " kg/m³ at 15 °C"};
    addVolumes(working, *figures.quantities, reckoning.choices());
    const std::string factor = addFactor(working, grade, figures, reckoning.choices());
    working.step("Rounded, as it is multiplied with", "VCF", factor, texts.factor);
    addQuantities(working, grade, figures, texts, reckoning.choices());
    return working;
}

std::vector<std::string> tankLimits(const TankReckoning& reckoning)
{
    const TankChoices& choices = reckoning.choices();
    const bool of1980 = choices.edition == CrudeEdition::Of1980;
    std::string factor = of1980 ? "Volume correction of the edition of 1980, "
                                : "Volume correction of the edition of 2004, ";
    factor += choices.rounding == FactorRounding::FourDecimals   ? "four decimals"
              : choices.rounding == FactorRounding::FiveDecimals ? "five decimals"
                                                                 : "rounded as its procedure says";
    return {factor + "; sums are made of figures that are not rounded",
            choices.air == TankAirWeight::Table56 ? "Weight in air by table 56"
                                                  : "Weight in air with density less 1.1 kg/m³",
            "Barrels at 60 °F, volumes and densities at 15 °C; TCV = GSV + free water"};
}

} // namespace korvel
