// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "forms/frmPassage/PassageShown.h"
#include "forms/frmPassage/PlanEdit.h"
#include "forms/frmPassage/PlanInHand.h"
#include "forms/frmPassage/PlanPaper.h"
#include "forms/frmPassage/PlanReckoning.h"
#include "forms/frmPassage/PlanRecord.h"
#include "forms/frmPassage/PlanSun.h"
#include "forms/frmPassage/PlanTide.h"
#include "forms/frmPassage/PlanWorking.h"
#include "tests/forms/WorkingLines.h"
#include "tests/forms/frmPassage/Plans.h"
#include "tests/forms/frmTIDE/TideFolder.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using NavFunc113::Earth;
using NavFunc113::Hours;
using ::testing::Contains;
using ::testing::ElementsAre;

PassagePlan planOf(const Golden& row)
{
    return {"", planTimes(row.text("times")), planRows(row.text("plan")), {}};
}

PassagePlan planOf(const std::string& rows)
{
    return {"", planTimes("dep utc 2026/11/10 00:00"), planRows(rows), {}};
}

TEST(PassagePlan, showsWhatTheTableSays)
{
    for (const Golden& row : golden("passage_plans"))
        expectTexts(row, "shows",
                    shownTexts(PlanReckoning(planOf(row), {row.earth(), row.hours("td")})));
}

TEST(PassagePlan, keyByKeyItIsTheSameAsAnew)
{
    const PlanConditions conditions{Earth::Spheroid, Hours(9)};
    const std::string whole =
        "A 35.30 139.45 td=9 v=12 / B 36 150 gc:10 / . / C 41 -170 co:42 stop=6.5 td=-11 / "
        "D 48.2 -124.4 v=15.5 td=-8";
    for (const char* change :
         {"A 36 140 td=10", "- - -", ".", "B 35.30 139.45 v=7", "X 10 -10 gc v=x stop=3 td=2"})
        for (std::size_t i = 0; i < 5; ++i) {
            SCOPED_TRACE(::testing::Message() << change << " in row " << i + 1);
            PassagePlan plan = planOf(whole);
            PlanReckoning kept(plan, conditions);
            plan.rows[i] = planRows(change).front();
            kept.takeRow(plan, i);
            EXPECT_EQ(shownTexts(kept), shownTexts(PlanReckoning(plan, conditions)));
            plan.times = planTimes("arr ship 2027/1/1 00:00");
            kept.takeTimes(plan);
            EXPECT_EQ(shownTexts(kept), shownTexts(PlanReckoning(plan, conditions)));
        }
}

TEST(PassagePlan, speedNeededToBeThereInTime)
{
    const PassagePlan plan =
        planOf("A 0 0 td=9 / B 2 0 v=12 stop=6 / C 3.30 0 v=10 / D 3.30 0 / E - -  v=3");
    const PlanReckoning reckoning(plan, {});
    const auto at = [](const char* time) { return *readIso(time); };
    // 210 miles in 21 hours less the stop of 6.
    EXPECT_NEAR(reckoning.speedNeeded(0, 2, at("2026-11-10T21:00:00Z")).speed->value(), 14, 1e-9);
    EXPECT_NEAR(reckoning.speedNeeded(0, 1, at("2026-11-10T08:00:00Z")).speed->value(), 15, 1e-9);
    // The second row is left at 1600 as planned.
    EXPECT_NEAR(reckoning.speedNeeded(1, 2, at("2026-11-10T22:00:00Z")).speed->value(), 15, 1e-9);
    for (const auto& [from, to, time] :
         {std::tuple{0, 2, "2026-11-10T06:00:00Z"}, std::tuple{0, 2, "2026-11-09T00:00:00Z"},
          std::tuple{2, 3, "2026-11-20T00:00:00Z"}, std::tuple{0, 1, "2026-11-10T01:00:00Z"},
          std::tuple{2, 2, "2026-11-20T00:00:00Z"}, std::tuple{0, 4, "2026-11-20T00:00:00Z"},
          std::tuple{0, 5, "2026-11-20T00:00:00Z"}}) {
        const SpeedNeeded needed = reckoning.speedNeeded(static_cast<std::size_t>(from),
                                                         static_cast<std::size_t>(to), at(time));
        EXPECT_FALSE(needed.speed) << from << ' ' << to;
        EXPECT_FALSE(needed.why.empty()) << from << ' ' << to;
    }
}

const char* const fourRows =
    "A 0 0 v=10 td=9 stop=1 / B 1 0 gc:10 v=12 / C 2 0 co:3 td=10 stop=2 / D 3 0 v=8";

TEST(PlanEdit, eachStepDoesWhatItSaysAndCanBeTakenBack)
{
    const PassagePlan plan = planOf(fourRows);
    const struct {
        PlanEdit edit;
        const char* rows;
    } cases[] = {
        {*insertedRows(plan.rows, 1, planRows("X 5 5")),
         "A 0 0 v=10 stop=1 td=9 / X 5 5 / B 1 0 gc:10 v=12 / C 2 0 co:3 stop=2 td=10 / D 3 0 v=8"},
        {*insertedRows(plan.rows, 99, planRows(". / .")),
         "A 0 0 v=10 stop=1 td=9 / B 1 0 gc:10 v=12 / C 2 0 co:3 stop=2 td=10 / D 3 0 v=8 / . / ."},
        {deletedRows(plan.rows, 2, 99), "A 0 0 v=10 stop=1 td=9 / B 1 0 gc:10 v=12"},
        {deletedRows(plan.rows, 99, 1),
         "A 0 0 v=10 stop=1 td=9 / B 1 0 gc:10 v=12 / C 2 0 co:3 stop=2 td=10 / D 3 0 v=8"},
        {movedRow(plan.rows, 1, 3),
         "A 0 0 v=10 stop=1 td=9 / C 2 0 co:3 stop=2 td=10 / D 3 0 v=8 / B 1 0 gc:10 v=12"},
        {movedRow(plan.rows, 1, 2),
         "A 0 0 v=10 stop=1 td=9 / C 2 0 co:3 stop=2 td=10 / B 1 0 gc:10 v=12 / D 3 0 v=8"},
        {movedRow(plan.rows, 3, 0),
         "D 3 0 v=8 / A 0 0 v=10 stop=1 td=9 / B 1 0 gc:10 v=12 / C 2 0 co:3 stop=2 td=10"},
        // Legs keep their kinds and speeds, positions their zones and stops.
        {reversedRows(plan.rows),
         "D 3 0 td=10 / C 2 0 v=8 stop=2 / B 1 0 co:3 v=12 td=9 / A 0 0 gc:10 stop=1"},
    };
    for (const auto& [edit, rows] : cases) {
        PassagePlan changed = plan;
        apply(changed, edit);
        EXPECT_EQ(rowsText(changed.rows), rows) << edit.name;
        takeBack(changed, edit);
        EXPECT_EQ(changed, plan) << edit.name;
    }
    EXPECT_FALSE(insertedRows(plan.rows, 0, std::vector<PlanRow>(497)));
    EXPECT_TRUE(insertedRows(plan.rows, 0, std::vector<PlanRow>(496)));
}

TEST(PlanEdit, theWayBackTakesAsLong)
{
    const PlanConditions conditions;
    PassagePlan plan = planOf("A 0 0 v=10 / B 3 20 gc / C 50 0 co:51 / D 51 60 / E 52 70 v=8 gc");
    const PlanTotals there = PlanReckoning(plan, conditions).totals();
    apply(plan, reversedRows(plan.rows));
    const PlanTotals back = PlanReckoning(plan, conditions).totals();
    EXPECT_NEAR(back.distance->value(), there.distance->value(), 1e-9);
    EXPECT_LT(std::chrono::abs(*back.elapsed - *there.elapsed), Span(10));
    EXPECT_EQ(plan.rows.front().leg, LegKind::Rhumb) << "no leg leads to it";
}

TEST(PlanHistory, undoesAndRedoesStepByStep)
{
    PassagePlan plan = planOf(fourRows);
    const PassagePlan start = plan;
    PlanHistory history;
    const auto type = [&](std::size_t at, const std::string& name) {
        PlanRow row = plan.rows[at];
        row.name = name;
        history.perform(plan, typedRow(plan.rows, at, row, "name"));
    };
    type(0, "Y");
    type(0, "Yo");
    type(1, "K"); // another box: a step of its own
    type(1, "K"); // nothing changed
    history.endTyping();
    type(1, "Ko");
    PlanHead head = headOf(plan);
    head.times.time = "2027/1/1 00:00";
    history.perform(plan, changedHead(plan, head, "Departure"));
    history.perform(plan, replacedPlan(plan, planOf("Z 1 1"), "Open a file"));
    const PassagePlan end = plan;
    EXPECT_EQ(history.undoName(), "Open a file");
    std::vector<std::string> names;
    while (history.undo(plan))
        names.push_back(plan.rows[0].name + ' ' + plan.rows[1].name + ' ' + plan.times.time);
    EXPECT_THAT(names, ::testing::ElementsAre("Yo Ko 2027/1/1 00:00", "Yo Ko 2026/11/10 00:00",
                                              "Yo K 2026/11/10 00:00", "Yo B 2026/11/10 00:00",
                                              "A B 2026/11/10 00:00"));
    EXPECT_EQ(plan, start);
    while (history.redo(plan)) {
    }
    EXPECT_EQ(plan, end);
    history.undo(plan);
    type(0, "other");
    EXPECT_FALSE(history.redo(plan)) << "what was undone is given up by a new step";
}

TEST(PlanRecord, everythingThatIsTypedOrKeptComesBack)
{
    PassagePlan plan =
        planOf("A 35.30 139.45 td=9 / . / B 36 150 gc:300nm v=x / C -5 -170 co:44S stop=6");
    plan.times = planTimes("arr ship 2027/1/1 00:00");
    plan.name = "a \"plan\", \\of= \t 横浜\r\n";
    plan.wish = {"2", "3", "2027/1/2 3:00"};
    plan.rows[0].remark = "row\nrow=\\n";
    plan.rows[2].kept = {{"rtz leg/extension", "<a b=\"c\">\n\t<d/></a>"}, {"rtz position", ""}};
    plan.kept = {{"rtz version", "1.0"}};
    const std::string text = planRecordText(plan);
    const ReadPlanRecord read = readPlanRecord(text);
    EXPECT_EQ(read.damage, "");
    EXPECT_EQ(read.plan, plan);
    EXPECT_EQ(planRecordText(read.plan), text);
    EXPECT_EQ(readPlanRecord(planRecordText({})).plan, PassagePlan{});
}

TEST(PlanRecord, damageIsNamedAndTheRestRead)
{
    const std::string head = "KORVEL2000 passage plan 1\n";
    const struct {
        std::string text;
        const char* damage;
        const char* rows;
    } cases[] = {
        {head + "row\r\nname=A\r\nlatitude=1\r\nlongitude=2\r\n", "", "A 1 2"},
        {head + "row\nname=A\nlatitude=1\nlongitude=2\nlater=7\n", "", "A 1 2"},
        {head + "row\nname=A\nlatitude\nlongitude=2\n", "line 4: it cannot be read", "A  2"},
        {head + "row\nname=\xff\nlatitude=1\nlongitude=2\n", "line 3: it cannot be read", "- 1 2"},
        {head + "row\nleg=zigzag\nname=A\n", "line 3: no kind of leg", "A  "},
        {head + "row\nname=A\nlatitude=1\nlongit", "line 5: it cannot be read", "A 1 "},
        {"KORVEL2000 noon 1\nrow\n", "line 1: it is no passage plan", ""},
        {"", "line 1: it is no passage plan", ""},
    };
    for (const auto& [text, damage, rows] : cases) {
        const ReadPlanRecord read = readPlanRecord(text);
        EXPECT_EQ(read.damage, damage) << text;
        EXPECT_EQ(rowsText(read.plan.rows), rows) << text;
    }
    std::string many = head;
    for (int i = 0; i < 501; ++i)
        many += "row\nname=A\nkept=a\tb\n";
    EXPECT_EQ(readPlanRecord(many).plan.rows.size(), 500u);
    EXPECT_EQ(readPlanRecord(many).plan.rows.back().kept.size(), 1u);
    EXPECT_EQ(readPlanRecord(many).damage, "line 1502: more than 500 rows");
}

TEST(PlanPaper, oneLineALegAndWhatOnlySomeRowsHave)
{
    PassagePlan plan = planOf(
        "A 41 -72 td=-5 v=12 / . / B 41 0 co:44N td=0 / C 42 0 v=10 stop=6 note=bunkers / D 43 0");
    plan.name = "Atlantic";
    WorkingPaper paper{"Passage plan"};
    tellPlan(paper, plan, PlanReckoning(plan, {}));
    ASSERT_EQ(paper.tables.size(), 2u);
    EXPECT_EQ(paper.tables[0].rows.size(), 4u);
    EXPECT_THAT(paper.tables[0].rows[1],
                ::testing::ElementsAre("3", "B", "41°00.0'N 000°00.0'E", "072.4-107.6", "3181.6",
                                       "12.0", "265.13", "11/21 01:08", "Sat 11/21 01:08",
                                       "120.0"));
    std::vector<std::string> some;
    for (const auto& row : paper.tables[1].rows)
        some.push_back(row[1] + "|" + row[2] + "|" + row[3] + "|" + row[5] + "|" + row[6]);
    EXPECT_THAT(some,
                ::testing::ElementsAre("A|||TD -5 (ZD +5)|",
                                       "B|composite 44.0||TD 0 (ZD 0)|clocks 5 h 00 m forward; "
                                       "composite; 21.5 miles more than the full circle",
                                       "C||6||bunkers"));
    // 3181.6 at 12 knots are 265 h 08 m, then 120 at 10; the rhumb line has 3260.3.
    std::vector<std::string> totals;
    for (const PaperFigure& figure : paper.results)
        totals.push_back(figure.name + "|" + figure.value + "|" + figure.unit);
    EXPECT_THAT(totals,
                ElementsAre("Distance|3301.6|nautical miles", "Time under way|11 d 13 h 08 m|",
                            "Stops|06 h 00 m|", "From departure to arrival|11 d 19 h 08 m|",
                            "Saved by circles|78.7|nautical miles",
                            "Clocks, in all|clocks 5 h 00 m forward|"));
    ASSERT_EQ(paper.inputs.size(), 2u);
    EXPECT_EQ(paper.inputs[0].value, "Atlantic");
    EXPECT_EQ(paper.inputs[1].name + "|" + paper.inputs[1].value + "|" + paper.inputs[1].unit,
              "Departure|2026/11/10 00:00|UTC");
    PassagePlan back = plan;
    back.times = planTimes("arr ship 2026/11/30 12:00");
    WorkingPaper wanted{"Passage plan"};
    tellPlan(wanted, back, PlanReckoning(back, {}));
    EXPECT_EQ(wanted.inputs[1].name + "|" + wanted.inputs[1].unit, "Wanted arrival|ship's time");
    EXPECT_EQ(paper.line->points.size(), 6u) << "four waypoints and two tangent points";
    EXPECT_TRUE(std::ranges::is_sorted(paper.line->points, {}, &ExportLine::Point::longitude));
    EXPECT_EQ(Format(paper.line->points.front().UTC.value(), "yyyy/mm/dd hh:mm"),
              "2026/11/10 00:00");
    EXPECT_EQ(paper.list->rows.size(), 4u);
    WorkingPaper empty{"Passage plan"};
    tellPlan(empty, {}, PlanReckoning({}, {}));
    EXPECT_TRUE(empty.tables.empty() && empty.inputs.empty() && !empty.list);
}

TEST(PlanPaper, theWorkingsHaveTheFiguresOfTheRowsAndOfTheWish)
{
    PlanInHand work({});
    PassagePlan plan = planOf("A 0 0 td=9 / B 2 0 v=12 stop=6 / C 3.30 0 v=10");
    plan.wish = {"1", "2", "2026/11/10 08:00"};
    work.take(plan);
    work.goToRow(1);
    const PassageShown shown = passageShown(work);
    EXPECT_THAT(linesOf(rowWorking(work, shown)),
                ElementsAre("Run: miles from the departure = 120.0",
                            "To go: miles of the plan less the run = 90.0",
                            "Leaves: arrival and stop = Wed 2026/11/11 01:00"));
    const auto lines = linesOf(planWorking(plan, work.reckoning(), shown));
    for (const char* line : {
             "Speed needed: by 2026/11/10 08:00 = 15.00 knots",
             "What it leads to: rows and wanted time = row 1 to 2, Tue 2026/11/10 08:00 UTC",
             "Under way: sum of the hours 19.00000 = 19 h 00 m",
             "In all: under way and stops 25.00000 h = 1 d 01 h 00 m",
             "Arrival: the same with TD 9.00 = Wed 2026/11/11 10:00",
         })
        EXPECT_THAT(lines, Contains(line));
    work.goToRow(3);
    EXPECT_EQ(rowWorking(work, passageShown(work)).whyNone, "The row holds nothing.");
    // An end on the limit: there is no tangent point of its own to work out.
    const auto touching = compositeWorkings(PlanReckoning(planOf("A 44 -72 / B 41 0 co:44"), {}));
    ASSERT_EQ(touching.size(), 1u);
    EXPECT_EQ(touching[0].title, "Composite leg to row 2");
    EXPECT_EQ(touching[0].steps.size(), 3u);
    // From 50 S: arccos(tan 50 / tan 60) and, from 40 S, arccos(tan 40 / tan 60).
    const auto southern = compositeWorkings(PlanReckoning(planOf("A -50 0 / B -40 120 co:60"), {}));
    ASSERT_EQ(southern.size(), 1u);
    EXPECT_THAT(
        linesOf(southern[0]),
        ::testing::IsSupersetOf(
            {"Limiting latitude: as understood = 60°00.0' S",
             "Change of longitude to tangent point 1: arccos(tan 50.0000° / tan 60.0000°) = "
             "46.5233 °",
             "Change of longitude to tangent point 2: arccos(tan 40.0000° / tan 60.0000°) = "
             "61.0233 °"}));
}

TEST(PassagePlan, copiedAsATableItHasEveryRowAndWhatIsKnownOfIt)
{
    const PassagePlan plan =
        planOf("A 0 0 td=9 / . / B 2 0 v=12 stop=6 note=pilot / C 3 - note=unknown");
    EXPECT_EQ(planAsText(plan, PlanReckoning(plan, {})),
              "No.\tWaypoint\tLatitude\tLongitude\tCourse\tMiles\tTo go\tRun\tKnots\t"
              "Under way\tETA UTC\tETA zone\tETD zone\tZone\tStop h\tRemark\n"
              "1\tA\t00°00.0'N\t000°00.0'E\t\t\t\t0.0\t\t\tTue 2026/11/10 00:00\t"
              "Tue 2026/11/10 09:00\t\tTD +9 (ZD -9)\t\t\n"
              "3\tB\t02°00.0'N\t000°00.0'E\t<000.0>\t120.0\t\t120.0\t12.0\t10 h 00 m\t"
              "Tue 2026/11/10 10:00\tTue 2026/11/10 19:00\tWed 2026/11/11 01:00\tTD +9 (ZD -9)\t"
              "6\tpilot\n"
              "4\tC\t3\t\t\t\t\t\t12.0\t\t\t\t\tTD +9 (ZD -9)\t\tunknown\n"
              "Distance\t\nTime under way\t\nStops\t\nFrom departure to arrival\t\n");
}

TEST(PlanInHand, eachStepLeavesARowInHandThatIsThere)
{
    PlanInHand work({});
    const auto seen = [&work] { return rowsText(work.plan().rows); };
    EXPECT_EQ(work.shownRows(), 1u);
    work.take(planOf("A 0 0"));
    EXPECT_EQ(work.shownRows(), 2u) << "an empty one to type into";
    // Nothing is claimed of a way while there is one row, and no time asked for.
    EXPECT_EQ(passageShown(work).notice, "");
    EXPECT_EQ(passageShown(work).departure + passageShown(work).distance, "");
    work.take(planOf("A 0 0 / B 1 0 / ."));
    EXPECT_EQ(work.shownRows(), 3u) << "the empty one that is there";
    work.goToRow(9);
    EXPECT_EQ(work.row(), 2u);
    work.moveRow(1);
    EXPECT_EQ(seen(), "A 0 0 / B 1 0 / .");
    EXPECT_TRUE(work.insertRows(planRows("C 2 0 / D 3 0")));
    EXPECT_EQ(seen(), "A 0 0 / B 1 0 / C 2 0 / D 3 0") << "in the place of the empty one";
    EXPECT_EQ(work.row(), 2u);
    work.moveRow(-1);
    EXPECT_EQ(seen() + " " + std::to_string(work.row()), "A 0 0 / C 2 0 / B 1 0 / D 3 0 1");
    work.moveRow(-1);
    work.moveRow(-1); // beyond the first
    EXPECT_EQ(seen() + " " + std::to_string(work.row()), "C 2 0 / A 0 0 / B 1 0 / D 3 0 0");
    work.moveRow(1);
    EXPECT_EQ(seen() + " " + std::to_string(work.row()), "A 0 0 / C 2 0 / B 1 0 / D 3 0 1");
    work.reverse();
    EXPECT_EQ(seen() + " " + std::to_string(work.row()), "D 3 0 / B 1 0 / C 2 0 / A 0 0 0");
    work.goToRow(3);
    work.deleteRow();
    EXPECT_EQ(seen() + " " + std::to_string(work.row()), "D 3 0 / B 1 0 / C 2 0 3");
    work.goToRow(1);
    EXPECT_TRUE(work.undo()); // the row that comes back is in hand
    EXPECT_EQ(seen() + " " + std::to_string(work.row()), "D 3 0 / B 1 0 / C 2 0 / A 0 0 3");
    work.replace(planOf("Z 9 9 / Y 8 8"), "Open");
    EXPECT_EQ(work.row(), 0u);
    EXPECT_EQ(work.undoName() + "|" + work.redoName(), "Open|");
    work.goToRow(2);
    EXPECT_TRUE(work.undo());
    EXPECT_EQ(work.row(), 0u);
    EXPECT_EQ(work.redoName(), "Open");
}

TEST(PlanTide, theNextPortHasATideOfItsOwn)
{
    const NavFunc113::GeoPoint tokyo{NavFunc113::DegMin(35.39), NavFunc113::DegMin(139.46)};
    const NavFunc113::GeoPoint yokohama{NavFunc113::DegMin(35.27), NavFunc113::DegMin(139.39)};
    const Instant utc = *readIso("2005-06-01T00:00:00Z");
    const std::string alone = PlanTide(TideFolder::shipped()).at(yokohama, utc);
    PlanTide tide(TideFolder::shipped());
    const std::string before = tide.at(tokyo, utc);
    EXPECT_THAT(before, ::testing::StartsWith("Tokyo, "));
    EXPECT_THAT(alone, ::testing::StartsWith("Yokohama, "));
    EXPECT_EQ(tide.at(yokohama, utc), alone);
    EXPECT_EQ(tide.at(tokyo, utc), before);
    EXPECT_THAT(tide.at({NavFunc113::DegMin(-35.12), NavFunc113::DegMin(174.46)}, utc),
                ::testing::StartsWith("Auckland, 98 nm"));
    EXPECT_EQ(tide.at({NavFunc113::DegMin(-35.07), NavFunc113::DegMin(174.46)}, utc), "");
    EXPECT_NE(before.substr(before.find(" m ") - 5), alone.substr(alone.find(" m ") - 5));
}

/// Far in the north: between the days of rise and set and those without lies one that has a rise.
TEST(PlanSun, saysWhatTheSunDoesNotDo)
{
    const auto of = [](const std::string& day) {
        return sunOfDay({NavFunc113::DegMin(70), NavFunc113::DegMin(0)},
                        readIso(day + "T03:00:00Z").value(), Span(0));
    };
    EXPECT_EQ(of("2026-06-21").riseAndSet, "does not set");
    EXPECT_EQ(of("2026-06-21").twilight, "civil all day or none, nautical all day or none");
    EXPECT_EQ(of("2026-12-21").riseAndSet, "does not rise");
    EXPECT_EQ(of("2026-12-21").twilight, "civil 09:54 to 14:02, nautical 08:06 to 15:51")
        << "hour angles of 30.9 and 58.1 degrees";
    int withoutSet = 0;
    for (int day = 10; day < 25; ++day)
        withoutSet += of("2026-05-" + std::to_string(day)).riseAndSet.find(", does not") == 11;
    EXPECT_EQ(withoutSet, 1);
    int dusks = 0;
    for (int day = 20; day < 30; ++day)
        dusks += of("2026-04-" + std::to_string(day)).twilight.find(" to -") != std::string::npos;
    EXPECT_EQ(dusks, 1) << "the first night without";
}

/// At the ends of the calendar a local time has no text that could be cut at its hours.
TEST(PlanSun, aDayThatTheCalendarDoesNotHaveIsNoFault)
{
    const auto of = [](const char* utc, double zone) {
        return sunOfDay({NavFunc113::DegMin(35.1), NavFunc113::DegMin(139.46)},
                        readIso(utc).value(), spanOf(Hours(zone)).value());
    };
    EXPECT_EQ(of("2026-11-22T03:00:00Z", 9).riseAndSet, "rises 06:22, sets 16:32");
    for (const char* utc : {"0100-01-01T00:10:00Z", "0100-01-01T12:00:00Z", "9999-12-31T12:00:00Z",
                            "9999-12-31T23:50:00Z"})
        for (const double zone : {-1.7e6, -12.0, 0.0, 12.0, 1.7e6})
            EXPECT_NO_THROW(of(utc, zone)) << utc << " " << zone;
}

} // namespace
} // namespace korvel
