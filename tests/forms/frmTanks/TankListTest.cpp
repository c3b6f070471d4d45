// SPDX-License-Identifier: MIT
#include "forms/frmNoon/CalculateNoon.h"
#include "forms/frmTanks/BunkerReckoning.h"
#include "forms/frmTanks/TankCsv.h"
#include "forms/frmTanks/TankRecord.h"
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
using NavFunc113::CrudeEdition;
using NavFunc113::FactorRounding;
using ::testing::ElementsAre;
using ::testing::HasSubstr;

TEST(TankList, cargoOfAnUllageReport)
{
    TankSheet sheet = cargoOfReport();
    SheetInHand work = inHand(sheet);
    const TankReckoning& reckoning = work.reckoning(ListKind::Cargo);
    EXPECT_EQ(tankTexts({}, reckoning.tank(0, TankSurvey::Last), reckoning).factor, "0.99106");
    EXPECT_EQ(tankTexts({}, reckoning.tank(1, TankSurvey::Last), reckoning).factor, "0.99369");
    const auto five = totalsRows(reckoning, TotalsOf::Moved).back();
    EXPECT_EQ(five.inVacuo, "8160.942");
    EXPECT_EQ(five.observed, "11037.445");
    EXPECT_EQ(five.total, "10944.565") << "GSV and the free water";
    // The report was made with factors of four decimals.
    sheet.choices.rounding = FactorRounding::FourDecimals;
    work = inHand(sheet);
    EXPECT_EQ(totalsRows(work.reckoning(ListKind::Cargo), TotalsOf::Moved).back().inVacuo,
              "8161.216");
    EXPECT_EQ(tanksShown(work).notices[0], "");
    work = inHand(loading());
    const auto netOf = [&work](TotalsOf of) {
        return std::stod(totalsRows(work.reckoning(ListKind::Cargo), of).back().net);
    };
    EXPECT_NEAR(netOf(TotalsOf::Moved), netOf(TotalsOf::Last) - netOf(TotalsOf::First), 0.002);
}

TEST(TankList, unitsOfATankAreThoseOfTheSheet)
{
    // The same oil by both tables: barrels and Fahrenheit give what cubic metres and Celsius do.
    TankSheet sheet = cargoOfReport();
    TankList& cargo = sheet.list(ListKind::Cargo);
    cargo.rows.resize(1);
    const double metric = inHand(sheet).reckoning(ListKind::Cargo).movedOfShip().inAir;
    cargo.rows[0].surveys[1].volume = "55569.465";
    cargo.rows[0].surveys[1].water = "0.289";
    cargo.rows[0].surveys[1].temperature = "71.6";
    sheet.choices.volume = TankVolumeUnit::Barrels;
    sheet.choices.temperature = TankTemperatureUnit::Fahrenheit;
    const SheetInHand inBarrels = inHand(sheet);
    EXPECT_NEAR(inBarrels.reckoning(ListKind::Cargo).movedOfShip().inAir, metric, 0.001);
    cargo.grades[0].table = "6B";
    cargo.grades[0].density = "64.5914"; // of 721.4 at 15 degC
    const SheetInHand american = inHand(sheet);
    const TankSums sums = american.reckoning(ListKind::Cargo).movedOfShip();
    EXPECT_NEAR(sums.inAir, metric, metric * 2e-5);
    EXPECT_NEAR(sums.barrels, inBarrels.reckoning(ListKind::Cargo).movedOfShip().barrels, 2);
}

TEST(TankList, whatIsLeftOutIsSaidAndNoSumIsShown)
{
    struct Case {
        const char* fault;
        TankReading reading;
        const char* said;
    };
    const std::vector<Case> cases = {
        {"no grade", {"", "100", "", "20", ""}, "1 after: which grade?"},
        {"unknown grade", {"", "100", "", "20", "9"}, "there is no grade \"9\""},
        {"no temperature", {"", "100", "", "", "1"}, "the temperature is missing"},
        {"half a temperature", {"", "100", "", "-", "1"}, "half typed"},
        {"more water than volume", {"", "100", "101", "20", "1"}, "more water than volume"},
        {"no number", {"", "abc", "", "20", "1"}, "volume"},
        {"comma", {"", "1,234.5", "", "20", "1"}, "volume"},
        {"beyond any tank", {"", "1e99", "", "20", "1"}, "volume"},
        {"cold beyond sense", {"", "100", "", "-61", "1"}, "temperature"},
        {"hot beyond sense", {"", "100", "", "201", "1"}, "temperature"},
        {"outside the table", {"", "100", "", "130", "1"}, "outside table 54B"},
    };
    for (const Case& each : cases) {
        TankSheet sheet = cargoOfReport();
        sheet.list(ListKind::Cargo).rows[0].surveys[1] = each.reading;
        const TanksShown shown = tanksShown(inHand(sheet));
        EXPECT_THAT(shown.notices[0], HasSubstr(each.said)) << each.fault;
        const bool isWarning = each.reading.temperature == "130" || each.reading.volume[1] == ',' ||
                               each.reading.volume == "1e99"; // its beginning is a number
        EXPECT_EQ(shown.moved.empty(), !isWarning) << each.fault;
        EXPECT_EQ(shown.isWhole[0], isWarning) << each.fault;
    }
    // An empty tank needs nothing; water alone is no oil.
    TankSheet sheet = cargoOfReport();
    sheet.list(ListKind::Cargo).rows.push_back(tank("3", {}, {"", "0", "", "", ""}));
    sheet.list(ListKind::Cargo).rows.push_back(tank("Slop", {}, {"", "12.5", "12.5", "", ""}));
    const SheetInHand work = inHand(sheet);
    EXPECT_EQ(tanksShown(work).notices[0], "");
    EXPECT_NEAR(work.reckoning(ListKind::Cargo).movedOfShip().total - 10944.565, 12.5, 0.001);
}

TEST(TankList, gradesAreCheckedBeforeATankRestsOnThem)
{
    struct Case {
        const char* fault;
        GradeBoxes grade;
        const char* said;
    };
    GradeBoxes own = grade("Wax", "54C", "830");
    GradeBoxes wild = own;
    wild.coefficient = "85";
    GradeBoxes sediment = grade("Crude", "54A", "870");
    sediment.sediment = "101";
    const std::vector<Case> cases = {
        {"no table", grade("Naphtha", "", "700"), "Naphtha, table: one of"},
        {"no such table", grade("Naphtha", "54E", "700"), "Naphtha, table: one of"},
        {"no density", grade("Naphtha", "54B", ""), "Naphtha, density is missing"},
        {"density of kg/l", grade("Naphtha", "54B", "0.7"), "Naphtha, density"},
        {"lighter than any oil", grade("Naphtha", "54B", "399.9"), "Naphtha, density"},
        {"heavier than any oil", grade("Naphtha", "54B", "1300.1"), "Naphtha, density"},
        {"gravity of no oil", grade("Naphtha", "6B", "-20.1"), "Naphtha, API"},
        {"gravity beyond any oil", grade("Naphtha", "6B", "130.1"), "Naphtha, API"},
        {"no coefficient", own, "Wax: table 54C needs the coefficient"},
        {"coefficient in parts of a million", wild, "Wax, coefficient"},
        {"more sediment than oil", sediment, "Crude, sediment and water"},
    };
    for (const Case& each : cases) {
        TankSheet sheet = cargoOfReport();
        sheet.list(ListKind::Cargo).grades[0] = each.grade;
        const TanksShown shown = tanksShown(inHand(sheet));
        EXPECT_THAT(shown.notices[0], HasSubstr(each.said)) << each.fault;
        EXPECT_FALSE(shown.isWhole[0]) << each.fault;
    }
}

TEST(TankList, shipAgainstBillOfLading)
{
    TankSheet sheet = loading();
    // 2.400 x 0.9958 x (842.8 - 1.1) / 1000 was on board.
    sheet.list(ListKind::Cargo).rows[0].surveys[0] = {"", "0", "", "", ""};
    TanksShown shown = tanksShown(inHand(sheet));
    EXPECT_EQ(shown.onBoard, "OBQ 2.390 m³, 2.012 t");
    EXPECT_EQ(shown.moved, "8147.165");
    EXPECT_EQ(shown.percent, "-0.188");
    EXPECT_THAT(shown.against, HasSubstr("bill 8162.500 t"));
    EXPECT_EQ(shown.byExperience, "");
    const auto rows = compareRows(inHand(sheet).reckoning(ListKind::Cargo));
    EXPECT_EQ(rows[0].measures[0].difference, "-3.837") << "8834.793 x 0.9911 - 8760";
    EXPECT_EQ(rows[gradeCount].measures[0].bill, "") << "the gas oil has no bill in m3";
    // By a factor of 1.00120 the ship's 8147.165 are 8137.401 of the shore.
    for (int i = 0; i < 5; ++i)
        sheet.voyages[0][std::size_t(i)] = {"", "100120", "100000"};
    shown = tanksShown(inHand(sheet));
    EXPECT_THAT(shown.byExperience, HasSubstr("1.00120 = 8137.400 t: -0.307 %"));
    EXPECT_EQ(linesOf(movedWorking(inHand(sheet), shown)).back(),
              "With the experience factor: " + shown.against + " = " + shown.byExperience);
    // Discharge is the other way round, and has the other factor.
    sheet.choices.movement = Movement::Discharge;
    std::swap(sheet.list(ListKind::Cargo).rows[0].surveys[0],
              sheet.list(ListKind::Cargo).rows[0].surveys[1]);
    std::swap(sheet.list(ListKind::Cargo).rows[1].surveys[0],
              sheet.list(ListKind::Cargo).rows[1].surveys[1]);
    shown = tanksShown(inHand(sheet));
    EXPECT_EQ(shown.moved, "8147.165");
    EXPECT_EQ(shown.onBoard, "ROB 2.390 m³, 2.012 t");
    EXPECT_EQ(shown.byExperience, "");
    // 6307.064 against 7000: in per cent of the bill, not of the ship, and of the grade alone.
    sheet.list(ListKind::Cargo).grades[0].billWeight = "7000";
    sheet.list(ListKind::Cargo).grades[1].billWeight = "0";
    const auto discharged = compareRows(inHand(sheet).reckoning(ListKind::Cargo));
    EXPECT_EQ(discharged[0].measures[2].ship, "6307.064");
    EXPECT_EQ(discharged[0].measures[2].percent, "-9.899");
    EXPECT_EQ(discharged[1].measures[2].difference, discharged[1].measures[2].ship);
    EXPECT_EQ(discharged[1].measures[2].percent, "") << "of nothing";
    sheet.list(ListKind::Cargo).grades[0].billWeight = "0";
    sheet.list(ListKind::Cargo).grades[0].billVolume.clear();
    EXPECT_EQ(tanksShown(inHand(sheet)).against, "");
}

TEST(TankList, tanksOfAGradeAreAddedUp)
{
    TankSheet sheet = cargoOfReport();
    TankList& cargo = sheet.list(ListKind::Cargo);
    cargo.rows[0].surveys[1].volume = "4000";
    cargo.rows.push_back(tank("3", {}, {"", "4834.839", "", "22.0", "gasoline"}));
    cargo.grades[0].sediment = "0.5";
    cargo.rows[1].surveys[1].grade = "  GAS oil ";
    SheetInHand work = inHand(sheet);
    const auto rows = totalsRows(work.reckoning(ListKind::Cargo), TotalsOf::Last);
    // 8834.793 x 0.99106 = 8755.810, in barrels of 0.158987295 x 0.99929 m3; x 721.4 and 720.3.
    const TotalsRow& row = rows[0];
    EXPECT_THAT(
        (std::vector{row.name, row.observed, row.water, row.gross, row.standard, row.net, row.total,
                     row.barrels, row.inVacuo, row.inAir, row.longTons, row.netInAir}),
        ElementsAre("Gasoline", "8834.839", "0.046", "8834.793", "8755.810", "8712.031", "8755.856",
                    "55111.40", "6316.441", "6306.810", "6207.203", "6275.276"));
    EXPECT_EQ(rows[1].observed, "2202.606") << "called by its name";
    EXPECT_EQ(rows[2].name, "");
    // A survey that was not taken has no totals, nothing on board and nothing moved from it.
    const auto before = totalsRows(work.reckoning(ListKind::Cargo), TotalsOf::First);
    EXPECT_EQ(before[0].name + before[0].inAir + before[gradeCount].inAir, "Gasoline");
    EXPECT_EQ(tanksShown(work).onBoard, "");
    EXPECT_EQ(tanksShown(inHand({})).moved, "");
}

TEST(TankList, parcelsOfOneFuelAreAdded)
{
    TankSheet sheet;
    TankList& bunkers = sheet.list(ListKind::Bunkers);
    for (std::size_t i = 0; i < 2; ++i) {
        bunkers.grades[i] = grade(i == 0 ? "Old" : "New", "", "992.0");
        bunkers.grades[i].received = i == 0 ? "10" : "20.5";
        bunkers.rows.push_back(
            tank(i == 0 ? "1P" : "1S", {}, {"", "161.28", "", "36", i == 0 ? "1" : "2"}));
    }
    const BunkersNow::Fuel fuel = bunkersNow(sheet).fuels[0];
    EXPECT_EQ(fuel.name, "Old + New");
    EXPECT_NEAR(fuel.received, 30.5, 1e-9);
    EXPECT_NEAR(fuel.remaining.value(), 2 * 157.53, 0.02) << "161.28 x 0.9857 x 0.9909";
}

TEST(TankList, aTankThatWasForgottenIsNoDischargedTank)
{
    TankSheet sheet = loading();
    sheet.list(ListKind::Cargo).rows[1].surveys[1].volume.clear();
    EXPECT_THAT(tanksShown(inHand(sheet)).notices[0], HasSubstr("2 has no volume after"));
    sheet.list(ListKind::Cargo).rows[1].tank.clear();
    const TanksShown shown = tanksShown(inHand(sheet));
    EXPECT_EQ(shown.moved, "");
    EXPECT_THAT(shown.notices[0], HasSubstr("Row 2 has no volume after"));
    const Working none = movedWorking(inHand(sheet), shown);
    EXPECT_EQ(none.whyNone, "A survey is missing, or a tank of one is in doubt");
    EXPECT_TRUE(none.steps.empty());
}

TEST(TankList, bunkersOfASurveyGoIntoTheNoonReport)
{
    TankSheet sheet;
    TankList& bunkers = sheet.list(ListKind::Bunkers);
    bunkers.grades[0] = grade("HFO", "", "992.0");
    bunkers.grades[1] = grade("MGO", "", "845");
    bunkers.grades[1].fuel = "2";
    bunkers.grades[1].received = "50";
    bunkers.rows = {tank("1P", {"", "190", "", "36", "1"}, {"", "161.28", "", "36", "1"}),
                    tank("DO", {"", "60", "", "30", "2"}, {"", "110", "", "30", "mgo"})};
    bunkers.times = {"2026/11/21 12:00", "2026/11/22 12:00"};
    sheet.choices.rounding = FactorRounding::FourDecimals;
    SheetInHand work = inHand(sheet);
    const BunkersNow now =
        bunkersNow(work.list(ListKind::Bunkers), work.reckoning(ListKind::Bunkers));
    EXPECT_NEAR(now.fuels[0].remaining.value_or(0), 157.53, 0.005);
    EXPECT_NEAR(now.fuels[0].consumed().value_or(0), (190 - 161.28) * 0.9857 * 0.9909, 0.001);
    EXPECT_LT(now.fuels[1].consumed().value_or(99), 50) << "what was received counts";
    NoonInput noon;
    noon.bunkers = now;
    NoonResult report = CalculateNoon(noon);
    EXPECT_EQ(report.fuel[0], "28.1 t");
    EXPECT_EQ(report.fuelBy, "tank list, 2026/11/22 12:00");
    noon.boxes.before[0] = "200";
    EXPECT_EQ(CalculateNoon(noon).fuel[0], "42.5 t") << "what is typed counts";
    for (const auto& [apart, last, isSaid] :
         {std::tuple("twelve hours after", "2026/11/23 0:00", false),
          {"more", "2026/11/23 0:01", true},
          {"twelve hours before", "2026/11/22 0:00", false},
          {"more", "2026/11/21 23:59", true},
          {"three days", "2026/11/25 12:00", true}}) {
        noon.record.rows[0] = {"2026/11/20 12:00", "0", "0", "0"};
        noon.record.rows[1] = {last, "0", "0", "5"};
        const bool says =
            CalculateNoon(noon).notice.find("the tank list is of 2026/11/22") != std::string::npos;
        EXPECT_EQ(says, isSaid) << apart;
    }
    EXPECT_THAT(CalculateNoon(noon).mail, HasSubstr("ROB 1: 157.5 t\n"));
    EXPECT_THAT(CalculateNoon(noon).mail, HasSubstr("Bunkered 2: 50.0 t\n"));
    // The next day begins with what is on board now.
    work.beginNextSurvey(ListKind::Bunkers);
    EXPECT_EQ(work.list(ListKind::Bunkers).rows[0].surveys[0].volume, "161.28");
    EXPECT_EQ(work.list(ListKind::Bunkers).grades[1].received, "");
    EXPECT_FALSE(bunkersNow(work.list(ListKind::Bunkers), work.reckoning(ListKind::Bunkers))
                     .fuels[0]
                     .consumed());
}

TEST(TankList, recordComesBackAsItWas)
{
    TankSheet sheet = loading();
    sheet.port = "R\\dam = \"4\"\t";
    sheet.choices = {
        CrudeEdition::Of2004,    FactorRounding::Procedure1980,   TankAirWeight::Table56,
        TankVolumeUnit::Barrels, TankTemperatureUnit::Fahrenheit, Movement::Discharge};
    sheet.list(ListKind::Cargo).times = {"2026/11/22 10:00", "x"};
    sheet.list(ListKind::Bunkers) = sheet.list(ListKind::Cargo);
    sheet.list(ListKind::Bunkers)
        .rows.insert(sheet.list(ListKind::Bunkers).rows.begin(), TankRow());
    sheet.list(ListKind::Bunkers).grades[7].fuel = "3";
    sheet.voyages[1][19] = {"Ölhafen", "1", "2"};
    const std::string text = tankRecordText(sheet);
    EXPECT_TRUE(text.starts_with("KORVEL2000 tank list 1\n"));
    const ReadTankRecord read = readTankRecord(text);
    EXPECT_EQ(read.damage, "");
    EXPECT_TRUE(read.sheet == sheet);
    for (std::size_t end = 0; end < text.size(); ++end) // cut anywhere it is read as far as it goes
        readTankRecord(std::string_view(text).substr(0, end));
    EXPECT_EQ(readTankRecord("\"noon\"\r\n").damage, "line 1: it is no tank list");
    EXPECT_EQ(readTankRecord("KORVEL2000 tank list 1\nport=\xFF\n").damage,
              "line 2: it cannot be read");
    EXPECT_EQ(readTankRecord("KORVEL2000 tank list 1\nedition=1952\n").damage,
              "line 2: no such choice");
    EXPECT_EQ(
        readTankRecord("KORVEL2000 tank list 1\nport=A\ncargo\ngrade 9\nname=B\ntank\nname=C\n")
            .damage,
        "line 4: it cannot be read");
    for (const char* beyond : {"grade 0", "grade 1x", "grade", "loading voyage 21", "deck"})
        EXPECT_EQ(
            readTankRecord("KORVEL2000 tank list 1\ncargo\n" + std::string(beyond) + "\n").damage,
            "line 3: it cannot be read")
            << beyond;
    std::string many = "KORVEL2000 tank list 2\nlater=1\ncargo\n";
    for (int i = 0; i < 201; ++i)
        many += "tank\nname=" + std::to_string(i) + "\n";
    const ReadTankRecord beyond = readTankRecord(many);
    EXPECT_EQ(beyond.damage, "line 404: more than 200 tanks");
    EXPECT_EQ(beyond.sheet.list(ListKind::Cargo).rows.size(), mostTanks);
    EXPECT_EQ(beyond.sheet.list(ListKind::Cargo).rows.back().tank, "199");
}

ReadTanks readCsv(const std::string& text, const TankList& list = {},
                  TankSurvey survey = TankSurvey::Last)
{
    return readTanks(text, list, {}, survey);
}

TEST(TankCsv, aSavedListComesBack)
{
    TankList list = loading().list(ListKind::Cargo);
    list.rows[0].tank = "1, \"P\"";
    list.rows[0].surveys[1].sounding = "=1+1";
    const ReadTanks read = readCsv(spreadsheetMark + csvText(tankTable(list, {})));
    EXPECT_EQ(read.fault, "");
    EXPECT_TRUE(read.rows == list.rows);
}

TEST(TankCsv, theHeadingNamesSurveysAndUnits)
{
    const std::string names =
        "tank|first_sounding|first_volume_m3|first_water_m3|first_temperature_c|first_grade|"
        "last_sounding|last_volume_m3|last_water_m3|last_temperature_c|last_grade";
    const auto headings = [](const TankChoices& choices) {
        std::string all;
        for (const std::string& each : tankTable({}, choices).headings)
            all += (all.empty() ? "" : "|") + each;
        return all;
    };
    EXPECT_EQ(headings({}), names);
    TankChoices american;
    american.volume = TankVolumeUnit::Barrels;
    american.temperature = TankTemperatureUnit::Fahrenheit;
    EXPECT_THAT(headings(american),
                HasSubstr("|last_volume_bbl|last_water_bbl|last_temperature_f|"));
}

TEST(TankCsv, aFileOfOneSurveyLeavesTheOther)
{
    const TankList list = loading().list(ListKind::Cargo);
    const ReadTanks read =
        readCsv("Tank;Volume (m³);temperature\n2;2.500;21,5\nSlop;3;20\n", list, TankSurvey::First);
    ASSERT_EQ(read.fault, "");
    ASSERT_EQ(read.rows.size(), 3);
    EXPECT_TRUE(read.rows[0] == list.rows[0]);
    EXPECT_EQ(read.rows[1].surveys[0].volume, "2.500");
    EXPECT_EQ(read.rows[1].surveys[0].temperature, "21.5");
    EXPECT_EQ(read.rows[1].surveys[0].grade, "2");
    EXPECT_TRUE(read.rows[1].surveys[1] == list.rows[1].surveys[1]);
    EXPECT_EQ(read.rows[2].tank, "Slop");
}

TEST(TankCsv, whatIsWrongIsNamedByLineAndField)
{
    struct Case {
        const char* fault;
        std::string text;
        const char* said;
    };
    std::string many = "tank,volume\n";
    for (int i = 0; i < 100000; ++i)
        many += std::to_string(i) + ",1\n";
    const std::vector<Case> cases = {
        {"nothing", "", "it is empty"},
        {"a heading alone", "tank,volume\n", "there is no tank in it"},
        {"no tank", "volume,water\n1,2\n", "line 1: there is no column \"tank\""},
        {"an unknown column", "tank,colour\n1,2\n", "line 1, column \"colour\""},
        {"a column twice", "tank,volume,volume\n1,2,3\n", "it is there twice"},
        {"other units", "tank,volume_bbl\n1,2\n", "this list has it in m3"},
        {"no number", "tank,volume\n1,2\n2,x\n", "line 3: volume: \"x\" is no number"},
        {"half a number", "tank,volume\n1,12 m\n", "line 2: volume: \"12 m\" is no number"},
        {"an infinity", "tank,volume\n1,inf\n", "\"inf\" is no number"},
        {"cut in a line", "tank,volume,water\n1,2\n", "line 2: fewer fields than columns"},
        {"too many fields", "tank,volume\n1,2,3\n", "line 2: more fields"},
        {"a heading that never ends", "\"tank,volume\n1,2\n", "line 1: a double quote"},
        {"a quote that never ends", "tank,volume\n\"1,2\n3,4\n", "line 2: a double quote"},
        {"a tank twice", "tank,volume\n1,2\n1,3\n", "line 3: tank: \"1\" is there twice"},
        {"no name", "tank,volume\n ,2\n", "line 2: tank: the tank has no name"},
        {"endless", many, "line 202: more than 200 tanks"},
        {"one endless field", "tank,sounding\n1," + std::string(1000000, '9'), "is too long"},
        {"no text", std::string("tank,sounding\n1,\xFF\xFE\n"), "line 2: sounding: no UTF-8"},
        {"a line end in a name", "tank,volume\n\"1\n2\",2\n", "line 2: tank: a control"},
        {"a picture", std::string("\x89PNG\r\n\x1A\n\0\0", 10), "line 1, column"},
    };
    for (const Case& each : cases) {
        const ReadTanks read = readCsv(each.text);
        EXPECT_THAT(read.fault, HasSubstr(each.said)) << each.fault;
        EXPECT_TRUE(read.rows.empty()) << each.fault;
    }
}

} // namespace
} // namespace korvel
