// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankPaper.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmTanks/TankCsv.h"
#include "forms/frmTanks/TankWorking.h"

namespace korvel
{
namespace
{

void addIfTyped(std::vector<PaperFigure>& figures, const char* name, const std::string& text)
{
    if (!isBlank(text)) figures.push_back({name, text});
}

/// "54B, 721.4 kg/m³ at 15 °C"
std::string gradeInWords(const ReadGrade& grade)
{
    if (!grade.oil) return grade.remarks.text();
    std::string words = "table " + std::string(grade.table->name) + ", ";
    if (grade.table->isAt60F) words += Format(grade.api, "0.0##") + " °API at 60 °F, ";
    words += Format(grade.oil->density15, "0.0##") + " kg/m³ at 15 °C";
    if (grade.oil->coefficient > 0)
        words += ", " + Format(grade.oil->coefficient, "0.0000###") + " per °C";
    if (grade.sediment > 0) words += ", S&W " + Format(grade.sediment * 100, "0.###") + " %";
    return words;
}

void addGrades(WorkingPaper& paper, const TankReckoning& reckoning)
{
    for (const ReadGrade& grade : reckoning.grades())
        if (grade.isUsed) paper.inputs.push_back({grade.name, gradeInWords(grade)});
}

PaperTable tanksTable(const SheetInHand& work, ListKind kind, TankSurvey survey)
{
    const TankReckoning& reckoning = work.reckoning(kind);
    const TankChoices& choices = reckoning.choices();
    const std::string volume = std::string(" ") + unitOf(choices.volume);
    PaperTable table{"Tanks",
                     {"Tank", "Sounding", "Grade", "TOV" + volume, "Water" + volume,
                      unitOf(choices.temperature), "VCF", "GSV m³", "t in air"},
                     {}};
    const TankList& list = work.list(kind);
    for (std::size_t row = 0; row < reckoning.rows(); ++row) {
        const TankReading& reading = list.rows[row].surveys[static_cast<std::size_t>(survey)];
        if (reading == TankReading()) continue;
        const TankTexts texts = tankTexts(reading, reckoning.tank(row, survey), reckoning);
        table.rows.push_back({tankName(list, row), texts.sounding, texts.grade, texts.volume,
                              texts.water, texts.temperature, texts.factor, texts.standard,
                              texts.inAir});
    }
    return table;
}

PaperTable totalsTable(const TankReckoning& reckoning, TotalsOf what, const std::string& title)
{
    const std::string volume = std::string(" ") + unitOf(reckoning.choices().volume);
    PaperTable table{title,
                     {"Grade", "GOV" + volume, "GSV m³", "NSV m³", "TCV m³", "bbl at 60 °F",
                      "t in vacuo", "t in air", "Long tons"},
                     {}};
    for (const TotalsRow& row : totalsRows(reckoning, what))
        if (!row.name.empty())
            table.rows.push_back({row.name, row.gross, row.standard, row.net, row.total,
                                  row.barrels, row.inVacuo, row.inAir, row.longTons});
    return table;
}

void addHead(WorkingPaper& paper, const SheetInHand& work, const TanksShown& shown, ListKind kind)
{
    paper.inputs.clear();
    paper.results.clear();
    paper.tables.clear();
    paper.workings.clear();
    paper.limits.clear();
    paper.remarks.clear();
    const std::string& notice = shown.notices[static_cast<std::size_t>(kind)];
    if (!notice.empty()) paper.remarks.push_back(notice);
    addIfTyped(paper.inputs, "Port and berth", work.sheet().port);
}

void addFigure(WorkingPaper& paper, const char* name, const std::string& value, const char* unit)
{
    if (!value.empty()) paper.results.push_back({name, value, unit});
}

} // namespace

void tellSurvey(WorkingPaper& paper, const SheetInHand& work, const TanksShown& shown,
                ListKind kind)
{
    addHead(paper, work, shown, kind);
    const TankSurvey survey = work.survey(kind);
    const TankReckoning& reckoning = work.reckoning(kind);
    paper.kind = (kind == ListKind::Cargo ? "Ullage report, " : "Sounding report, ") +
                 surveyTitle(work, kind, survey);
    addIfTyped(paper.inputs, "Time of the survey",
               work.list(kind).times[static_cast<std::size_t>(survey)]);
    addGrades(paper, reckoning);
    const TotalsOf what = survey == TankSurvey::First ? TotalsOf::First : TotalsOf::Last;
    const PaperTable totals = totalsTable(reckoning, what, "Totals");
    const TotalsRow ship = totalsRows(reckoning, what).back();
    addFigure(paper, "Gross standard volume", ship.standard, "m³ at 15 °C");
    addFigure(paper, "Weight in air", ship.inAir, "t");
    paper.tables = {tanksTable(work, kind, survey), totals};
    paper.limits = tankLimits(reckoning);
    paper.signatures = kind == ListKind::Cargo
                           ? std::vector<std::string>{"Chief officer", "Surveyor", "Terminal"}
                           : std::vector<std::string>{"Chief engineer", "Barge or supplier"};
    paper.list = tankTable(work.list(kind), reckoning.choices());
}

void tellMoved(WorkingPaper& paper, const SheetInHand& work, const TanksShown& shown)
{
    addHead(paper, work, shown, ListKind::Cargo);
    const bool isLoading = work.sheet().choices.movement == Movement::Loading;
    const TankReckoning& reckoning = work.reckoning(ListKind::Cargo);
    paper.kind = isLoading ? "Cargo loaded" : "Cargo discharged";
    addGrades(paper, reckoning);
    addFigure(paper, isLoading ? "Loaded" : "Discharged", shown.moved, "t in air");
    addFigure(paper, "Gross standard volume", shown.movedVolume, "m³ at 15 °C");
    addFigure(paper, "Total calculated volume", shown.totalMoved, "m³");
    addFigure(paper, isLoading ? "On board before" : "Remaining on board", shown.onBoard, "");
    addFigure(paper, "Ship less bill", shown.percent, "per cent");
    addFigure(paper, "By weight or volume", shown.against, "");
    addFigure(paper, "With the experience factor", shown.byExperience, "");
    paper.tables = {totalsTable(reckoning, TotalsOf::First,
                                surveyTitle(work, ListKind::Cargo, TankSurvey::First)),
                    totalsTable(reckoning, TotalsOf::Last,
                                surveyTitle(work, ListKind::Cargo, TankSurvey::Last))};
    paper.workings = {movedWorking(work, shown), tankWorking(work, ListKind::Cargo)};
    if (!paper.workings.back().whyNone.empty()) paper.workings.pop_back();
    paper.limits = tankLimits(reckoning);
    paper.signatures = {"Chief officer", "Surveyor", "Terminal"};
    paper.list = tankTable(work.list(ListKind::Cargo), reckoning.choices());
}

void tellBunkers(WorkingPaper& paper, const SheetInHand& work, const TanksShown& shown)
{
    tellSurvey(paper, work, shown, ListKind::Bunkers);
    for (std::size_t i = 0; i < fuelCount; ++i) {
        if (shown.fuels[i].empty()) continue;
        paper.results.push_back({"Fuel " + std::to_string(i + 1), shown.fuels[i]});
        if (!shown.consumed[i].empty())
            paper.results.push_back(
                {"Fuel " + std::to_string(i + 1) + " consumed", shown.consumed[i], "t"});
    }
}

void tellExperience(WorkingPaper& paper, const SheetInHand& work, const TanksShown& shown)
{
    addHead(paper, work, shown, ListKind::Cargo);
    paper.kind = "Vessel experience factor";
    paper.remarks.clear();
    paper.list.reset();
    constexpr std::array names{"Loading", "Discharge"};
    for (std::size_t list = 0; list < names.size(); ++list) {
        const ExperienceShown& found = shown.experience[list];
        const std::string name = names[list];
        if (!found.notice.empty()) paper.remarks.push_back(found.notice);
        if (!found.factor.empty()) paper.results.push_back({name + ", factor", found.factor});
        if (!found.mean.empty()) paper.results.push_back({name + ", mean", found.mean});
        if (!found.sums.empty())
            paper.results.push_back(
                {name + ", voyages that count", found.counted + ", " + found.sums});
        PaperTable table{name, {"No.", "Voyage", "Ship", "Shore", "Ratio", "Standing"}, {}};
        for (std::size_t i = 0; i < voyageCount; ++i) {
            const VoyageBoxes& voyage = work.sheet().voyages[list][i];
            if (!voyage.isEmpty())
                table.rows.push_back({std::to_string(i + 1), voyage.name, voyage.ship, voyage.shore,
                                      found.lines[i].ratio, found.lines[i].standing});
        }
        if (!table.rows.empty()) paper.tables.push_back(std::move(table));
    }
    paper.limits = {"Ratios outside 0.98000 to 1.02000 are gross errors; of the others those count "
                    "that are within 0.30 % of the ratio of their sums",
                    "The factor is the sum of the ship's figures over the sum of the shore's, "
                    "with five decimals, of at least five voyages that count"};
}

} // namespace korvel
