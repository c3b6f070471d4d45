// SPDX-License-Identifier: MIT
#include "app/working/WorkingPaper.h"
#include "forms/frmTanks/SheetInHand.h"
#include "forms/frmTanks/TankExperience.h"
#include "forms/frmTanks/TankPaper.h"
#include "forms/frmTanks/TankTexts.h"
#include "forms/frmTanks/TankWorking.h"
#include "tests/forms/WorkingLines.h"
#include "tests/forms/frmTanks/TankSheets.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using NavFunc113::FactorRounding;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::MatchesRegex;
using ::testing::Not;

TEST(SheetInHand, keysInABoxAreOneStepAndComeBack)
{
    SheetInHand work;
    TankRow row;
    for (const char* typed : {"1", "1P"}) {
        row.tank = typed;
        work.typeRow(ListKind::Cargo, row, "txtTank(0)");
    }
    row.surveys[0].volume = "5";
    work.typeRow(ListKind::Cargo, row, "txtTank(2)");
    work.goToRow(ListKind::Cargo, 1);
    EXPECT_EQ(work.shownRows(ListKind::Cargo), 2);
    EXPECT_TRUE(work.insertRow(ListKind::Cargo));
    EXPECT_EQ(work.undo(), "Typing");
    EXPECT_EQ(work.list(ListKind::Cargo).rows[0].surveys[0].volume, "");
    EXPECT_EQ(work.redo(), "Typing");
    EXPECT_EQ(work.reckoning(ListKind::Cargo).sums(TankSurvey::First).measured, 1);
    work.goToRow(ListKind::Cargo, 0);
    work.deleteRow(ListKind::Cargo);
    EXPECT_EQ(work.redo(), "") << "a new step ends what was undone";
    work.undo();
    work.undo();
    work.undo();
    EXPECT_TRUE(work.list(ListKind::Cargo).rows.empty());
    EXPECT_EQ(work.undo(), "");
    TankSheet full;
    full.list(ListKind::Cargo).rows.resize(mostTanks, row);
    work.take(full);
    EXPECT_FALSE(work.insertRow(ListKind::Cargo));
    EXPECT_EQ(work.shownRows(ListKind::Cargo), mostTanks);
}

TEST(SheetInHand, aBoxThatWasLeftBeginsAStepOfItsOwnAndFiftyAreKept)
{
    SheetInHand work;
    TankRow row;
    row.tank = "1P";
    work.typeRow(ListKind::Cargo, row, "txtTank(0)");
    work.goToRow(ListKind::Cargo, 1);
    row.tank = "1S";
    work.typeRow(ListKind::Cargo, row, "txtTank(0)");
    work.undo();
    ASSERT_EQ(work.list(ListKind::Cargo).rows.size(), 1U);
    EXPECT_EQ(work.list(ListKind::Cargo).rows[0].tank, "1P");
    for (int i = 0; i < 70; ++i) {
        row.tank = std::to_string(i);
        work.typeRow(ListKind::Cargo, row, "txtTank(0)");
        work.endTyping();
    }
    int steps = 0;
    while (!work.undo().empty())
        ++steps;
    EXPECT_EQ(steps, 50);
}

TEST(SheetInHand, aRowThatIsThereStaysInHand)
{
    SheetInHand work;
    TankSheet sheet;
    sheet.list(ListKind::Cargo).rows = {tank("1P", {}, {}), tank("1S", {}, {}), TankRow(),
                                        TankRow()};
    work.take(sheet);
    EXPECT_EQ(work.shownRows(ListKind::Cargo), 4U);
    work.goToRow(ListKind::Cargo, 9);
    EXPECT_EQ(work.row(ListKind::Cargo), 3U);
    work.deleteRow(ListKind::Cargo);
    EXPECT_EQ(work.row(ListKind::Cargo), 2U) << "the last that is left";
    work.goToRow(ListKind::Cargo, 1);
    work.goToSurvey(ListKind::Cargo, TankSurvey::Last);
    EXPECT_EQ(work.row(ListKind::Cargo), 1U) << "the same tank in the other survey";
    work.undo();
    EXPECT_EQ(work.row(ListKind::Cargo), 1U);
    work.goToRow(ListKind::Cargo, 3);
    TankSheet shorter;
    shorter.list(ListKind::Cargo).rows = {tank("1P", {}, {})};
    work.replace(shorter, "Open");
    EXPECT_EQ(work.row(ListKind::Cargo), 1U) << "the one behind the last";
    work.undo();
    work.goToRow(ListKind::Cargo, 3);
    work.redo();
    EXPECT_EQ(work.row(ListKind::Cargo), 1U);
    // Behind the last tank the next one was wanted; of another survey the first is.
    work.goToSurvey(ListKind::Cargo, TankSurvey::First);
    EXPECT_EQ(work.row(ListKind::Cargo), 0U);
}

TEST(TankTexts, ofTanksThatAreLeftOutTheFirstIsNamedAndTheOthersCounted)
{
    for (const auto& [wrong, said] : {std::pair(1, "2 after: which grade?"),
                                      {2, "1 more is left out too"},
                                      {3, "2 more are left out too"}}) {
        TankSheet sheet = cargoOfReport();
        TankList& cargo = sheet.list(ListKind::Cargo);
        cargo.rows.resize(1);
        for (int i = 0; i < wrong; ++i)
            cargo.rows.push_back(tank(std::to_string(i + 2).c_str(), {}, {"", "9", "", "20", ""}));
        const std::string notice = tanksShown(inHand(sheet)).notices[0];
        EXPECT_THAT(notice, HasSubstr(said));
        EXPECT_THAT(notice, HasSubstr("2 after: which grade?"));
        if (wrong == 1) {
            EXPECT_THAT(notice, Not(HasSubstr("left out too")));
        }
    }
    TankSheet sheet = loading();
    TankList& cargo = sheet.list(ListKind::Cargo);
    for (const std::size_t row : {0U, 1U}) {
        cargo.rows[row].surveys[0] = {"", "0", "", "", ""};
        cargo.rows[row].surveys[1].volume.clear();
    }
    cargo.rows.push_back(tank("3", {}, {"", "9", "", "20", "1"}));
    EXPECT_THAT(tanksShown(inHand(sheet)).notices[0],
                HasSubstr("1 and 1 more have no volume after"));
}

TEST(TankExperience, aVoyageCountsFromALitreOn)
{
    std::array<VoyageBoxes, voyageCount> voyages;
    voyages[3] = {"A", "0.001", "0.001"};
    ExperienceShown shown = experienceShown(voyages, "Loading");
    EXPECT_EQ(shown.lines[3].ratio, "1.00000");
    EXPECT_EQ(shown.counted, "1 of 1");
    EXPECT_THAT(shown.notice, HasSubstr("five voyages that count, 1 do"));
    voyages[3].ship = "0.00099";
    shown = experienceShown(voyages, "Loading");
    EXPECT_EQ(shown.lines[3].ratio, "");
    EXPECT_THAT(shown.notice, HasSubstr("Loading, voyage 4, ship"));
    voyages[3].ship = "1000000001";
    EXPECT_THAT(experienceShown(voyages, "Loading").notice, HasSubstr("voyage 4, ship"));
    voyages[3] = {"A", "101", "100"};
    voyages[4] = {"B", "99", "100"};
    shown = experienceShown(voyages, "Loading"); // both are far from their mean
    EXPECT_EQ(shown.mean + ", " + shown.counted + shown.sums, "1.00000, 0 of 2");
}

TEST(TankPaper, whatIsSignedHasTanksTotalsAndThoseWhoSign)
{
    const SheetInHand work = inHand(loading());
    const TanksShown shown = tanksShown(work);
    SheetInHand after = work;
    after.goToSurvey(ListKind::Cargo, TankSurvey::Last);
    WorkingPaper paper;
    tellSurvey(paper, after, shown, ListKind::Cargo);
    EXPECT_EQ(paper.kind, "Ullage report, After loading");
    EXPECT_EQ(paper.tables[0].rows.size(), 2);
    EXPECT_EQ(paper.tables[1].rows.back()[6], "8161.216");
    EXPECT_THAT(paper.signatures, ElementsAre("Chief officer", "Surveyor", "Terminal"));
    tellMoved(paper, after, shown);
    ASSERT_EQ(paper.workings.size(), 2);
    EXPECT_EQ(paper.workings[0].title, "what was loaded");
    EXPECT_EQ(paper.workings[0].tables[1].rows.back()[3], shown.moved);
    EXPECT_EQ(paper.workings[0].tables.back().rows.size(), 4) << "bills: m³ and t of one, t, ship";
    EXPECT_THAT(paper.workings[1].steps.back().value, "6207.454") << "long tons of the gasoline";
    tellMoved(paper, work, shown);
    EXPECT_THAT(paper.workings[1].title, HasSubstr("after")) << "before there was no oil in it";
    TankSheet both = loading();
    auto& surveys = both.list(ListKind::Cargo).rows[0].surveys;
    surveys[0] = surveys[1];
    tellMoved(paper, inHand(both), shown);
    EXPECT_THAT(paper.workings[1].title, HasSubstr("before")) << "that in hand";
    tellExperience(paper, after, shown);
    EXPECT_TRUE(paper.tables.empty());
}

std::vector<std::string> resultsOf(const WorkingPaper& paper)
{
    std::vector<std::string> all;
    for (const PaperFigure& figure : paper.results)
        all.push_back(figure.name + "|" + figure.value + "|" + figure.unit);
    return all;
}

TEST(TankPaper, voyagesAndBunkersStandInTheirLines)
{
    TankSheet sheet;
    for (std::size_t i = 0; i < 5; ++i)
        sheet.voyages[1][i + 2] = {"V" + std::to_string(i), "100.1", "100"};
    TankList& bunkers = sheet.list(ListKind::Bunkers);
    bunkers.grades[0] = grade("HFO", "", "992.0");
    bunkers.rows = {tank("1P", {"", "190", "", "36", "1"}, {"", "161.28", "", "36", "1"})};
    sheet.choices.rounding = FactorRounding::FourDecimals;
    const SheetInHand work = inHand(sheet);
    const TanksShown shown = tanksShown(work);
    WorkingPaper paper;
    tellExperience(paper, work, shown);
    ASSERT_EQ(paper.tables.size(), 1U);
    EXPECT_EQ(paper.tables[0].title, "Discharge");
    ASSERT_EQ(paper.tables[0].rows.size(), 5U);
    EXPECT_THAT(paper.tables[0].rows[4],
                ElementsAre("7", "V4", "100.1", "100", "1.00100", "counts"));
    EXPECT_THAT(resultsOf(paper),
                ElementsAre("Discharge, factor|1.00100|", "Discharge, mean|1.00100|",
                            "Discharge, voyages that count|5 of 5, ship 500.5, shore 500|"));
    // 190 and 161.28 m3 x 0.9857 x 0.9909 t.
    tellBunkers(paper, work, shown);
    EXPECT_EQ(paper.kind, "Sounding report, Bunkers, previous survey");
    EXPECT_THAT(resultsOf(paper),
                ::testing::IsSupersetOf({"Weight in air|185.579|t",
                                         "Fuel 1|HFO: 185.579 + 0.000 received - 157.527 on board|",
                                         "Fuel 1 consumed|28.052|t"}));
    EXPECT_THAT(paper.signatures, ElementsAre("Chief engineer", "Barge or supplier"));
}

TEST(TankWorking, otherTablesHaveTheirOwnSteps)
{
    TankSheet sheet = cargoOfReport();
    TankList& cargo = sheet.list(ListKind::Cargo);
    cargo.grades[0] = grade("Naphtha", "54B", "775");
    cargo.rows[0].surveys[1] = {"", "1000", "", "30", "1"};
    const auto linesNow = [&sheet] {
        SheetInHand work = inHand(sheet);
        work.goToSurvey(ListKind::Cargo, TankSurvey::Last);
        return linesOf(tankWorking(work, ListKind::Cargo));
    };
    // Between gasoline and jet fuel: 2680.3206 / 775² - 0.00336312; the factor is a published one.
    EXPECT_THAT(linesNow(),
                ::testing::IsSupersetOf(
                    {"Coefficient of expansion: 2680.3206 / 775² - 0.00336312 = 0.00109943 per °C",
                     "Volume correction factor: Δt = 30 - 15 = 0.9834298",
                     "Rounded, as it is multiplied with: 0.9834298 = 0.98343",
                     "Mass in vacuo: 983.430 × 775 / 1000 = 762.158 t",
                     "Weight in air: 983.430 × 773.9 / 1000 = 761.076 t"}));
    cargo.grades[0] = grade("Naphtha", "6B", "48.04");
    cargo.rows[0].surveys[1].temperature = "20";
    EXPECT_THAT(linesNow(), Contains(::testing::AllOf(
                                ::testing::StartsWith("Density at 60 °F: API 48.04 = 787.3"),
                                ::testing::EndsWith(" kg/m³"))));
    EXPECT_THAT(linesNow(), Contains("Volume correction factor: Δt = 68 - 60 = 0.9957254"));
    // A coefficient of its own, the procedure of 2004 and table 56: 840 less 1.1 in air is 838.9.
    cargo.grades[0] = grade("Naphtha", "54C", "840");
    cargo.grades[0].coefficient = "0.00091";
    cargo.grades[0].sediment = "0.75";
    sheet.choices.edition = NavFunc113::CrudeEdition::Of2004;
    sheet.choices.air = TankAirWeight::Table56;
    const auto lines = linesNow();
    EXPECT_THAT(lines, Contains("Coefficient of expansion: 0.00091 / 1.8 = 0.00050556 per °F"));
    EXPECT_THAT(lines, Contains(MatchesRegex("Volume correction factor: Δt = 8\\.0020[0-9] °F of "
                                             "1968, δ = 0\\.01375 = 0\\.99544[0-9]{2}")));
    EXPECT_THAT(lines, Contains("Weight in air: 836.178 × 0.99865 = 835.049 t"));
    sheet.choices.edition = NavFunc113::CrudeEdition::Of1980;
    EXPECT_THAT(linesNow(), Contains("Coefficient of expansion: as given = 0.00091000 per °C"));
    WorkingPaper paper;
    SheetInHand own = inHand(sheet);
    own.goToSurvey(ListKind::Cargo, TankSurvey::Last);
    tellSurvey(paper, own, tanksShown(own), ListKind::Cargo);
    EXPECT_THAT(paper.inputs,
                Contains(::testing::Field(&PaperFigure::value, ::testing::EndsWith("S&W 0.75 %"))));
    // Water alone is no oil.
    cargo.rows[0].surveys[1] = {"", "12.5", "12.5", "", ""};
    SheetInHand work = inHand(sheet);
    work.goToSurvey(ListKind::Cargo, TankSurvey::Last);
    EXPECT_EQ(tankWorking(work, ListKind::Cargo).whyNone, "There is no oil in it");
    work.goToRow(ListKind::Cargo, 2);
    EXPECT_EQ(tankWorking(work, ListKind::Cargo).whyNone, "No tank is in hand");
}

} // namespace
} // namespace korvel
