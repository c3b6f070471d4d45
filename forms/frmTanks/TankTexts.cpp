// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankTexts.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmTanks/BunkerReckoning.h"

namespace korvel
{
namespace
{

std::string barrelsText(double barrels)
{
    return Format(barrels, "0.00");
}

TotalsRow totalsRow(const std::string& name, const TankSums& sums, TankVolumeUnit unit)
{
    return {name,
            observedText(sums.observed, unit),
            observedText(sums.water, unit),
            observedText(sums.gross, unit),
            volumeText(sums.standard),
            volumeText(sums.net),
            volumeText(sums.total),
            barrelsText(sums.barrels),
            weightText(sums.inAir),
            weightText(sums.inVacuo),
            weightText(sums.longTons),
            weightText(sums.netInAir)};
}

TankSums sumsOf(const TankReckoning& reckoning, TotalsOf what, std::optional<std::size_t> grade)
{
    if (what == TotalsOf::Moved) return grade ? reckoning.moved(*grade) : reckoning.movedOfShip();
    const SurveySums& sums =
        reckoning.sums(what == TotalsOf::First ? TankSurvey::First : TankSurvey::Last);
    return grade ? sums.grades[*grade] : sums.ship;
}

bool isThere(const TankReckoning& reckoning, TotalsOf what)
{
    if (what == TotalsOf::Moved) return reckoning.isMoved();
    const SurveySums& sums =
        reckoning.sums(what == TotalsOf::First ? TankSurvey::First : TankSurvey::Last);
    return sums.measured > 0 && sums.faults == 0;
}

CompareTexts compareTexts(const BillComparison& comparison, std::size_t measure)
{
    const char* format = measure == std::size_t(BillMeasure::Barrels) ? "0.00" : "0.000";
    const auto text = [](const std::optional<double>& value, const char* how) {
        return value ? Format(*value, how) : std::string();
    };
    return {text(comparison.ship, format), text(comparison.bill, format),
            text(comparison.difference, format), text(comparison.percent, "0.000")};
}

/// The measure that a bill is usually settled in and that there is.
std::optional<std::size_t> headline(const BillComparisons& comparisons)
{
    for (const BillMeasure each :
         {BillMeasure::TonsInAir, BillMeasure::Barrels, BillMeasure::CubicMetres})
        if (comparisons[std::size_t(each)].percent) return std::size_t(each);
    return std::nullopt;
}

constexpr std::array measureUnits{"m³", "bbl", "t"};

void showAgainst(const TankReckoning& cargo, TanksShown& shown)
{
    const BillComparisons comparisons = cargo.comparisonOfShip();
    const auto measure = headline(comparisons);
    if (!measure) return;
    const CompareTexts texts = compareTexts(comparisons[*measure], *measure);
    const std::string unit = std::string(" ") + measureUnits[*measure];
    shown.percent = texts.percent;
    shown.against = "ship " + texts.ship + ", bill " + texts.bill + unit;
    const auto& factor = shown.experience[static_cast<std::size_t>(cargo.choices().movement)].value;
    if (!factor) return;
    BillComparison by = comparisons[*measure];
    const double ship = *by.ship / *factor;
    shown.byExperience = "ship / " + Format(*factor, "0.00000") + " = " + Format(ship, "0.000") +
                         unit + ": " + Format((ship - *by.bill) / *by.bill * 100, "0.000") + " %";
}

void showCargo(const SheetInHand& work, TanksShown& shown)
{
    const TankReckoning& cargo = work.reckoning(ListKind::Cargo);
    const bool isLoading = cargo.choices().movement == Movement::Loading;
    const TotalsOf small = isLoading ? TotalsOf::First : TotalsOf::Last;
    if (isThere(cargo, small)) {
        const TankSums sums = sumsOf(cargo, small, std::nullopt);
        shown.onBoard = std::string(isLoading ? "OBQ " : "ROB ") + volumeText(sums.total) +
                        " m³, " + weightText(sums.inAir) + " t";
    }
    if (!cargo.isMoved()) return;
    const TankSums moved = cargo.movedOfShip();
    shown.moved = weightText(moved.inAir);
    shown.movedVolume = volumeText(moved.standard);
    shown.totalMoved = volumeText(moved.total);
    showAgainst(cargo, shown);
}

void showBunkers(const SheetInHand& work, TanksShown& shown)
{
    const BunkersNow bunkers =
        bunkersNow(work.list(ListKind::Bunkers), work.reckoning(ListKind::Bunkers));
    for (std::size_t i = 0; i < fuelCount; ++i) {
        const BunkersNow::Fuel& fuel = bunkers.fuels[i];
        if (fuel.name.empty()) continue;
        const auto tons = [](const std::optional<double>& value) {
            return value ? weightText(*value) : std::string("?");
        };
        shown.fuels[i] = fuel.name + ": " + tons(fuel.previous) + " + " +
                         weightText(fuel.received) + " received - " + tons(fuel.remaining) +
                         " on board";
        if (fuel.consumed()) shown.consumed[i] = weightText(*fuel.consumed());
    }
}

/// The remark of a tank with its name and survey in front.
std::string tankRemark(const SheetInHand& work, ListKind kind, std::size_t row, TankSurvey survey)
{
    const TankFigures& figures = work.reckoning(kind).tank(row, survey);
    if (figures.remark.empty()) return {};
    return tankName(work.list(kind), row) + " " + surveyName(kind, survey) + ": " + figures.remark;
}

/// What is said of tanks: of the row in hand all, of the others the first that is left out and how
/// many there are.
std::string tanksNotice(const SheetInHand& work, ListKind kind)
{
    const TankReckoning& reckoning = work.reckoning(kind);
    std::vector<std::string> said;
    const std::size_t inHand = work.row(kind);
    std::size_t others = 0;
    std::string first;
    for (std::size_t row = 0; row < reckoning.rows(); ++row) {
        for (const TankSurvey survey : {TankSurvey::First, TankSurvey::Last}) {
            if (row == inHand) said.push_back(tankRemark(work, kind, row, survey));
            if (row == inHand || !reckoning.tank(row, survey).isFault) continue;
            if (others++ == 0) first = tankRemark(work, kind, row, survey);
        }
    }
    if (others > 0) said.push_back(first);
    if (others > 1)
        said.push_back(std::to_string(others - 1) + (others > 2 ? " more are" : " more is") +
                       " left out too");
    const auto missing = reckoning.notMeasuredAgain();
    if (!missing.empty())
        said.push_back(tankName(work.list(kind), missing.front()) +
                       (missing.size() > 1
                            ? " and " + std::to_string(missing.size() - 1) + " more have"
                            : " has") +
                       " no volume " + surveyName(kind, TankSurvey::Last));
    return joined(said);
}

/// Times are for papers and the noon report: one that cannot be read holds nothing up.
std::string timesNotice(const SheetInHand& work, ListKind kind)
{
    std::vector<std::string> said;
    for (const TankSurvey survey : {TankSurvey::First, TankSurvey::Last}) {
        const std::string& time = work.list(kind).times[static_cast<std::size_t>(survey)];
        if (!isBlank(time) && !readDateTime(time))
            said.push_back(std::string("Time of the survey ") + surveyName(kind, survey) +
                           ": year/month/day hh:mm");
    }
    return joined(said);
}

std::string gradesNotice(const TankReckoning& reckoning)
{
    std::vector<std::string> said;
    for (const ReadGrade& grade : reckoning.grades())
        said.push_back(grade.remarks.text());
    return joined(said);
}

} // namespace

std::string volumeText(double cubicMetres)
{
    return Format(cubicMetres, "0.000");
}

std::string weightText(double tons)
{
    return Format(tons, "0.000");
}

std::string observedText(double volume, TankVolumeUnit unit)
{
    return Format(volume, unit == TankVolumeUnit::Barrels ? "0.00" : "0.000");
}

std::string tankName(const TankList& list, std::size_t row)
{
    const std::string& name = list.rows[row].tank;
    return isBlank(name) ? "Row " + std::to_string(row + 1) : name;
}

const char* surveyName(ListKind kind, TankSurvey survey)
{
    if (kind == ListKind::Bunkers) return survey == TankSurvey::First ? "previous" : "now";
    return survey == TankSurvey::First ? "before" : "after";
}

std::string surveyTitle(const SheetInHand& work, ListKind kind, TankSurvey survey)
{
    if (kind == ListKind::Bunkers)
        return survey == TankSurvey::First ? "Bunkers, previous survey" : "Bunkers, survey now";
    const bool isLoading = work.sheet().choices.movement == Movement::Loading;
    return std::string(survey == TankSurvey::First ? "Before " : "After ") +
           (isLoading ? "loading" : "discharge");
}

TankTexts tankTexts(const TankReading& reading, const TankFigures& figures,
                    const TankReckoning& reckoning)
{
    TankTexts texts;
    texts.sounding = reading.sounding;
    texts.volume = reading.volume;
    texts.water = reading.water;
    texts.temperature = reading.temperature;
    texts.grade = figures.grade ? reckoning.grades()[*figures.grade].name : reading.grade;
    if (!figures.quantities) return texts;
    const TankSums& sums = *figures.quantities;
    const TankVolumeUnit unit = reckoning.choices().volume;
    texts.volume = observedText(sums.observed, unit);
    texts.water = observedText(sums.water, unit);
    texts.gross = observedText(sums.gross, unit);
    const bool hasFour = reckoning.choices().rounding == NavFunc113::FactorRounding::FourDecimals;
    if (figures.factor) texts.factor = Format(*figures.factor, hasFour ? "0.0000" : "0.00000");
    texts.standard = volumeText(sums.standard);
    texts.net = volumeText(sums.net);
    texts.total = volumeText(sums.total);
    texts.barrels = barrelsText(sums.barrels);
    texts.inAir = weightText(sums.inAir);
    texts.inVacuo = weightText(sums.inVacuo);
    texts.longTons = weightText(sums.longTons);
    return texts;
}

std::array<TotalsRow, gradeCount + 1> totalsRows(const TankReckoning& reckoning, TotalsOf what)
{
    std::array<TotalsRow, gradeCount + 1> rows;
    const TankVolumeUnit unit = reckoning.choices().volume;
    const bool hasSums = isThere(reckoning, what);
    for (std::size_t i = 0; i < gradeCount; ++i) {
        const ReadGrade& grade = reckoning.grades()[i];
        if (!grade.isUsed) continue;
        rows[i] = hasSums ? totalsRow(grade.name, sumsOf(reckoning, what, i), unit)
                          : TotalsRow{grade.name, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}, {}};
    }
    if (hasSums) rows[gradeCount] = totalsRow("Ship", sumsOf(reckoning, what, std::nullopt), unit);
    return rows;
}

std::array<CompareRow, gradeCount + 1> compareRows(const TankReckoning& reckoning)
{
    std::array<CompareRow, gradeCount + 1> rows;
    const auto fill = [](CompareRow& row, const std::string& name,
                         const BillComparisons& comparisons) {
        row.name = name;
        for (std::size_t i = 0; i < comparisons.size(); ++i)
            row.measures[i] = compareTexts(comparisons[i], i);
    };
    bool isAny = false;
    for (std::size_t i = 0; i < gradeCount; ++i) {
        if (!reckoning.grades()[i].isUsed) continue;
        isAny = true;
        fill(rows[i], reckoning.grades()[i].name, reckoning.comparison(i));
    }
    if (isAny) fill(rows[gradeCount], "Ship", reckoning.comparisonOfShip());
    return rows;
}

TanksShown tanksShown(const SheetInHand& work)
{
    TanksShown shown;
    constexpr std::array names{"Loading", "Discharge"};
    for (std::size_t i = 0; i < names.size(); ++i)
        shown.experience[i] = experienceShown(work.sheet().voyages[i], names[i]);
    showCargo(work, shown);
    showBunkers(work, shown);
    for (const ListKind kind : {ListKind::Cargo, ListKind::Bunkers}) {
        const auto list = static_cast<std::size_t>(kind);
        const TankReckoning& reckoning = work.reckoning(kind);
        shown.notices[list] =
            joined({tanksNotice(work, kind), gradesNotice(reckoning), timesNotice(work, kind)});
        for (const ReadGrade& grade : reckoning.grades())
            if (!grade.remarks.faults.empty()) shown.isWhole[list] = false;
        for (const TankSurvey survey : {TankSurvey::First, TankSurvey::Last})
            if (reckoning.sums(survey).faults > 0) shown.isWhole[list] = false;
        if (!reckoning.notMeasuredAgain().empty()) shown.isWhole[list] = false;
    }
    return shown;
}

} // namespace korvel
