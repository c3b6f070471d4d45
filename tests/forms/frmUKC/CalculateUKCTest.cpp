// SPDX-License-Identifier: MIT
#include "forms/frmUKC/CalculateUKC.h"

#include "forms/frmUKC/UKCFields.h"
#include "forms/frmUKC/UKCWorking.h"
#include "navlib/datetime.h"
#include "tests/forms/WorkingLines.h"
#include "tests/forms/frmTIDE/TideFolder.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using namespace UKCField;
using NavFunc113::Hours;
using NavFunc113::Knots;
using NavFunc113::Metres;
using ::testing::AllOf;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// A form of a company, with a breadth that its 0.84 m of list belongs to and an allowance that
/// gives its 0.20 m of density.
UKCInput companysForm()
{
    UKCInput input;
    const std::pair<std::size_t, const char*> typed[] = {
        {Forward, "11.00"}, {Block, "0.88"},   {Breadth, "32.2"},       {Speed, "10"},
        {List, "3"},        {Heave, "0.50"},   {Allowance, "250"},      {WaterDensity, "1.005"},
        {Charted, "18.00"}, {Minimum, "1.50"}, {UKCField::Tide, "1.00"}};
    for (const auto& [field, text] : typed)
        input.boxes[field] = text;
    input.survey = Survey::A1;
    return input;
}

UKCResult with(UKCInput input, std::initializer_list<std::pair<std::size_t, const char*>> changed)
{
    for (const auto& [field, text] : changed)
        input.boxes[field] = text;
    return CalculateUKC(input, {});
}

TEST(CalculateUKC, theColumnOfACompanysForm)
{
    const UKCResult shown = CalculateUKC(companysForm(), {});
    const std::string below[] = {shown.squat, shown.list, shown.density, shown.heave,
                                 shown.dynamic};
    EXPECT_THAT(below, ElementsAre("0.88", "0.84", "0.20", "0.50", "13.42"));
    const std::string above[] = {shown.uncertainty, shown.depth, shown.clearance, shown.over};
    EXPECT_THAT(above, ElementsAre("0.68", "18.32", "4.90", "+3.40"));
    EXPECT_EQ(shown.formula, "open water, at the bow");
    EXPECT_EQ(shown.others, "Cb V² / 50: 1.76 m");
    // 4.2774 m of squat are left: its root over 0.0088 is 22.05 knots.
    EXPECT_EQ(shown.speed, "22.0");
    EXPECT_THAT(shown.notice, HasSubstr("1.67 draughts"));
    EXPECT_EQ(shown.level, NoticeLevel::Remark);
}

TEST(CalculateUKC, whatIsTypedChangesItsLine)
{
    struct Row {
        const char* fault;
        std::size_t field;
        const char* text;
        std::string UKCResult::*shown;
        const char* expected;
    };
    const Row rows[] = {
        {"the deepest draught is not the forward one", Aft, "11.25", &UKCResult::draught, "11.25"},
        {"nor named so", Midships, "11.25", &UKCResult::deepest, "midships"},
        {"a list to port lifts her", List, "-3", &UKCResult::list, "0.84"},
        {"denser water is ignored", WaterDensity, "1.030", &UKCResult::density, "-0.05"},
        {"1.025 is not what was meant by nothing", WaterDensity, "", &UKCResult::density, "0.00"},
        {"a box of 11 m is not 0.22 deeper", Allowance, "", &UKCResult::density, "0.22"},
        {"read in 1.005, there 1.005", ReadIn, "1.005", &UKCResult::density, "0.00"},
        {"the share of the draught is the greater", MinimumShare, "20", &UKCResult::minimum,
         "2.20"},
        {"and the smaller", MinimumShare, "10", &UKCResult::minimum, "1.50"},
        {"a fine hull squats at the stern", Block, "0.65", &UKCResult::formula,
         "open water, at the stern"},
        {"0.7 is neither", Block, "0.7", &UKCResult::formula, "open water, bow and stern alike"},
        {"a drying height", Charted, "-1", &UKCResult::uncertainty, "0.51"},
        {"stopped there is none", Speed, "0", &UKCResult::squat, "0.00"},
    };
    for (const Row& row : rows)
        EXPECT_EQ(with(companysForm(), {{row.field, row.text}}).*row.shown, row.expected)
            << row.fault;
}

TEST(CalculateUKC, theBlockCoefficientByTheHull)
{
    // 0.8 of a box of 200 x 32 x 11 m of sea water, 72160 t; hog and sag by the mean of means.
    UKCInput input = companysForm();
    input.boxes[Block].clear();
    const std::pair<std::size_t, const char*> hull[] = {
        {Length, "200"}, {Breadth, "32"}, {Displacement, "57728"}};
    for (const auto& [field, text] : hull)
        input.boxes[field] = text;
    EXPECT_EQ(CalculateUKC(input, {}).block, "0.800");
    EXPECT_EQ(with(input, {{Forward, "10.8"}, {Aft, "11.2"}}).block, "0.800");
    EXPECT_EQ(with(input, {{Forward, "10.6"}, {Midships, "11.1"}, {Aft, "10.8"}}).block, "0.800");
    EXPECT_THAT(with(input, {{Displacement, "80000"}}).notice, HasSubstr("do not belong together"));
    EXPECT_THAT(with(input, {{Displacement, "80000"}}).clearance, IsEmpty());
    EXPECT_THAT(with(input, {{Displacement, "80000"}}).block, IsEmpty());
}

TEST(CalculateUKC, whatIsMissingIsNamedAndClaimsNothing)
{
    for (const std::size_t field : {Forward, Block, Breadth, Speed, Charted}) {
        const UKCResult shown = with(companysForm(), {{field, ""}});
        EXPECT_THAT(shown.notice, HasSubstr(UKCFields[field].words));
        EXPECT_THAT(shown.clearance, IsEmpty()) << UKCFields[field].words;
        EXPECT_THAT(shown.speed, IsEmpty()) << UKCFields[field].words;
    }
    UKCInput input = companysForm();
    input.survey = Survey::Own;
    EXPECT_THAT(CalculateUKC(input, {}).notice, HasSubstr("Own margin"));
    EXPECT_EQ(with(input, {{Margin, "0.68"}}).clearance, "4.90");
    input.water = Water::Channel;
    EXPECT_THAT(with(input, {{Margin, "0.68"}}).notice, HasSubstr("Width of the channel"));
    // Without list nobody needs the breadth; without a tide the depth is the chart's.
    EXPECT_EQ(with(companysForm(), {{Breadth, ""}, {List, ""}}).clearance, "5.74");
    EXPECT_THAT(with(companysForm(), {{UKCField::Tide, ""}}).notice, HasSubstr("no tide is typed"));
    EXPECT_THAT(with(companysForm(), {{Minimum, ""}}).notice, HasSubstr("no minimum"));
    EXPECT_EQ(with(companysForm(), {{Minimum, ""}, {MinimumShare, "5"}}).minimum, "0.55");
}

TEST(CalculateUKC, nothingTypedCanStopIt)
{
    for (const Water water : {Water::Open, Water::Confined, Water::Channel})
        for (std::size_t field = 0; field < UKCFields.size(); ++field)
            for (const char* text : {"-", ".", "abc", "1e400", "-99999", "99999", "1,234", "0",
                                     "35 12 N", "－１", "9999/99/99", "25:61"}) {
                UKCInput input = companysForm();
                input.water = water;
                input.boxes[Bottom] = "150";
                input.boxes[field] = text;
                const UKCResult shown = CalculateUKC(input, {});
                if (shown.clearance.empty()) {
                    EXPECT_THAT(shown.notice, Not(IsEmpty()))
                        << UKCFields[field].words << " " << text;
                }
                columnWorking(input, shown);
            }
}

TEST(CalculateUKC, outsideTheFormulasItIsSaid)
{
    struct Row {
        std::initializer_list<std::pair<std::size_t, const char*>> changed;
        const char* said;
    };
    for (const Row& row : {
             Row{{{Block, "0.95"}}, "outside 0.5 to 0.9"},
             Row{{{Block, "0.45"}}, "outside 0.5 to 0.9"},
             Row{{{Charted, "11.5"}}, "it may be more"},
             Row{{{Speed, "21"}}, "to 20 knots"},
             Row{{{Charted, "14"}, {Speed, "19"}}, "near the greatest"},
             Row{{{Charted, "-5"}}, "no water"},
             Row{{{Charted, "14"}}, "0.56 m below the minimum"},
         })
        EXPECT_THAT(with(companysForm(), row.changed).notice, HasSubstr(row.said));
    EXPECT_EQ(with(companysForm(), {{Charted, "14"}}).level, NoticeLevel::Fault);
    const UKCResult inRange =
        with(companysForm(), {{Charted, "14.9"}, {Minimum, "0.5"}, {UKCField::Tide, "0"}});
    EXPECT_THAT(inRange.notice, IsEmpty());
    EXPECT_EQ(with(companysForm(), {{Charted, "12"}}).speed, "none");
}

/// Upright on still water, stopped, over a sea bed of a sounding that is known: draught and depth
/// are the whole of it.
UKCInput stopped(const char* charted)
{
    UKCInput input;
    const std::pair<std::size_t, const char*> typed[] = {
        {Forward, "10"}, {Block, "0.8"},        {Speed, "0"},   {Charted, charted}, {Breadth, "30"},
        {Margin, "0"},   {UKCField::Tide, "0"}, {Minimum, "2"}, {Section, "100000"}};
    for (const auto& [field, text] : typed)
        input.boxes[field] = text;
    return input;
}

TEST(CalculateUKC, whatIsJustKeptIsKept)
{
    EXPECT_THAT(CalculateUKC(stopped("0"), {}).notice, HasSubstr("no water at this tide"));
    EXPECT_EQ(CalculateUKC(stopped("-17.9"), {}).leastTide, "29.90");
    EXPECT_EQ(CalculateUKC(stopped("-18.5"), {}).leastTide, "") << "no tide is of 30 m";
    const UKCResult kept = CalculateUKC(stopped("12"), {});
    EXPECT_EQ(kept.over, "+0.00");
    EXPECT_EQ(kept.speed, "0.0");
    EXPECT_EQ(kept.leastTide, "0.00");
    EXPECT_EQ(kept.notice, "");
    const UKCResult lacks = CalculateUKC(stopped("11.996"), {});
    EXPECT_EQ(lacks.over, "0.00");
    EXPECT_EQ(lacks.speed, "none");
    EXPECT_THAT(lacks.notice, HasSubstr("is less than 0.01 m below the minimum"));
}

TEST(CalculateUKC, theRangesOfTheFormulasEndWhereTheySay)
{
    struct Row {
        std::initializer_list<std::pair<std::size_t, const char*>> changed;
        Water water;
        const char* said; ///< nothing: no word
    };
    for (const Row& row : {
             Row{{{Charted, "14"}}, Water::Open, ""},
             Row{{{Charted, "14.01"}}, Water::Open, "1.40 draughts, the formulas hold for 1.1"},
             Row{{{Charted, "11"}, {Minimum, "0"}}, Water::Open, ""},
             Row{{{Charted, "10.98"}, {Minimum, "0"}}, Water::Open, "it may be more"},
             Row{{{Block, "0.5"}}, Water::Open, ""},
             Row{{{Block, "0.49"}}, Water::Open, "outside 0.5 to 0.9"},
             Row{{{Block, "0.9"}}, Water::Open, ""},
             Row{{{Block, "0.91"}}, Water::Open, "outside 0.5 to 0.9"},
             Row{{{Section, "3000"}}, Water::Channel, ""}, // 300 m2 fill a tenth of it
             Row{{{Section, "3003"}}, Water::Channel, "fills 0.100 of the channel"},
             Row{{{Section, "1132"}}, Water::Channel, ""},
             Row{{{Section, "1123"}}, Water::Channel, "fills 0.267 of the channel"},
         }) {
        UKCInput input = stopped("12");
        input.water = row.water;
        const UKCResult shown = with(input, row.changed);
        EXPECT_EQ(shown.notice.empty(), *row.said == '\0') << shown.notice;
        EXPECT_THAT(shown.notice, HasSubstr(row.said));
    }
    // 20 knots over 4000 m.
    EXPECT_EQ(with(stopped("1000"), {{Speed, "20"}}).notice,
              with(stopped("1000"), {{Speed, "0"}}).notice);
}

TEST(CalculateUKC, thePaperHasTheFiguresOfEveryStep)
{
    UKCInput input = companysForm();
    const std::pair<std::size_t, const char*> hull[] = {
        {Forward, "10.6"},   {Midships, "11.1"}, {Aft, "10.8"},           {Block, ""},
        {Length, "200"},     {Breadth, "32"},    {Displacement, "57728"}, {Allowance, ""},
        {MinimumShare, "10"}};
    for (const auto& [field, text] : hull)
        input.boxes[field] = text;
    input.survey = Survey::C;
    input.water = Water::Confined;
    const auto lines = korvel::testing::linesOf(columnWorking(input, CalculateUKC(input, {})));
    for (
        const char* line : {
            "Mean draught: (10.6 + 10.8 + 6 × 11.1) / 8 = 11.0000 m",
            "Block coefficient: 57728 / (1.025 × 200 × 32 × 11.0000) = 0.800",
            "Static draught: the deepest, midships = 11.10 m",
            "Squat: 0.8000 × 10² / 50 = 1.60 m",
            "Squat by the other formulas: for comparison = Cb V² / 100: 0.80 m",
            "List: 32 / 2 × sin 3° = 0.84 m",
            "Density: 11.1000 × (1.025 / 1.005 - 1) = 0.22 m",
            "Dynamic draught: 11.1000 + 1.6000 + 0.8374 + 0.2209 + 0.5000 = 14.26 m",
            "Uncertainty of the survey: 2.0 + 0.05 × 18 = 2.90 m",
            "Depth to count on: 18.0000 + 1.0000 - 2.9000 = 16.10 m",
            "Clearance: 16.1000 - 14.2583 = 1.84 m",
            "Minimum: 1.5; 10 % × 11.1000 = 1.50 m",
            "Over the minimum: 1.8417 - 1.5000 = +0.34 m",
            "Least tide that keeps the minimum: 14.2583 + 1.5000 + 2.9000 - 18.0000 = 0.66 m",
            R"(Squat that the minimum leaves: 16.1000 - 11.1000 - 0.8374 - 0.2209 - 0.5000 - 1.5000 = 1.9417 m)",
            "Speed of that squat: √(50 × 1.9417 / 0.8000) = 11.02 kn",
            "Greatest speed: tenths cut off, never rounded up = 11.0 kn",
        })
        EXPECT_THAT(lines, Contains(line));
    for (const auto& [survey, terms, metres] : {std::tuple{Survey::A1, "0.5 + 0.01 × 18", "0.68"},
                                                {Survey::A2, "1.0 + 0.02 × 18", "1.36"},
                                                {Survey::B, "1.0 + 0.02 × 18", "1.36"}}) {
        input.survey = survey;
        EXPECT_THAT(
            korvel::testing::linesOf(columnWorking(input, CalculateUKC(input, {}))),
            Contains("Uncertainty of the survey: " + std::string(terms) + " = " + metres + " m"));
    }
    input.boxes[Midships].clear();
    input.boxes[Forward] = "11.2";
    EXPECT_THAT(korvel::testing::linesOf(columnWorking(input, CalculateUKC(input, {}))),
                AllOf(Contains("Mean draught: (11.2 + 10.8) / 2 = 11.0000 m"),
                      Contains("Static draught: the deepest, forward = 11.20 m")));
    input.boxes[Forward].clear();
    EXPECT_THAT(korvel::testing::linesOf(columnWorking(input, CalculateUKC(input, {}))),
                Contains("Mean draught: T = the draught that is known = 10.8000 m"));
}

TEST(CalculateUKC, aChannelByItsSection)
{
    UKCInput input = companysForm();
    input.water = Water::Channel;
    // The 354.2 m2 of 32.2 x 11 and 6.44 of density fill a tenth of 3606.4 m2.
    UKCResult shown = with(input, {{Section, "3606.4"}});
    EXPECT_EQ(shown.formula, "blockage 0.100, at the bow");
    EXPECT_EQ(shown.squat, "0.82"); // 0.88 / 30 x (1/9)^(2/3) x 10^2.08
    EXPECT_THAT(shown.others, AllOf(HasSubstr("0.88"), HasSubstr("1.76")));
    EXPECT_THAT(with(input, {{Section, "300"}}).notice, HasSubstr("fills the section"));
    EXPECT_THAT(with(input, {{Section, "9000"}}).notice, HasSubstr("0.100 to 0.266"));
    EXPECT_THAT(with(input, {{Section, "1000"}}).notice, HasSubstr("0.100 to 0.266"));
    // 7.04 x 32.2 / 0.88^0.85 = 252.7 m; the banks take 36.6 of them at half the depth.
    EXPECT_THAT(with(input, {{Bottom, "220"}, {Slope, "2"}}).notice,
                HasSubstr("wider than 253 m a channel is open water for her"));
    EXPECT_THAT(with(input, {{Bottom, "400"}, {Section, "3606.4"}}).notice,
                Not(HasSubstr("open water for her")));
    // Its depth is the one to count on: 18.32 m, and the banks widen it.
    shown = with(input, {{Bottom, "100"}, {Slope, "2"}});
    EXPECT_NEAR(shown.figures.model->section(Metres(1)).value(), (100 + 2 * 18.32) * 18.32, 1e-9);
    // At the least tide the clearance is the minimum, a centimetre less and it is not kept.
    const KeelModel& model = *shown.figures.model;
    const Metres least = *shown.figures.leastTide;
    EXPECT_NEAR(model.clearance(Knots(10), least).value(), 1.5, 1e-5);
    EXPECT_LT(model.clearance(Knots(10), least - Metres(0.01)), Metres(1.5));
}

/// Yokohama, 5 May 2005, over a bar of 13.7 m.
UKCInput overABar()
{
    UKCInput input = companysForm();
    const std::pair<std::size_t, const char*> typed[] = {
        {Charted, "13.7"},  {Margin, "0.5"},   {Minimum, "0.6"}, {UKCField::Tide, ""},
        {Station, "yokoh"}, {Day, "2005/5/5"}, {Time, "5:30"}};
    for (const auto& [field, text] : typed)
        input.boxes[field] = text;
    input.survey = Survey::Own;
    return input;
}

TEST(CalculateUKC, theHoursOfSevenDaysAreThoseWhenTheMinimumIsKept)
{
    TideWeeks weeks(TideFolder::shipped());
    for (const Water water : {Water::Open, Water::Channel}) {
        UKCInput input = overABar();
        input.water = water;
        input.boxes[Bottom] = "250";
        const TideWeek& week = weeks.week(input.tide(), 38000);
        ASSERT_EQ(week.days.size(), 7u) << week.fault;
        const UKCResult shown = CalculateUKC(input, week);
        const KeelModel& model = *shown.figures.model;
        int changes = 0;
        for (std::size_t day = 0; day < 7; ++day)
            for (int minute = 1; minute < 24 * 60; ++minute) {
                const Hours time(minute / 60.0);
                const Metres tide(week.at(day, time));
                const double over = (model.clearance(Knots(10), tide) - model.minimum).value();
                const bool isKept =
                    std::ranges::any_of(shown.spans[day], [time](const HoursSpan& span) {
                        return span.from <= time && time <= span.to;
                    });
                changes += isKept;
                // A minute moves this tide by a centimetre at most.
                if (std::fabs(over) > 0.01) {
                    ASSERT_EQ(isKept, over > 0) << day << " " << minute;
                } else if (isKept) {
                    ASSERT_GE(over, -1e-5) << "rounded outwards";
                }
            }
        EXPECT_GT(changes, 100);
        EXPECT_LT(changes, 7 * 24 * 60 - 100);
    }
}

TEST(CalculateUKC, theGreatestSpeedKeepsTheMinimumAndATenthMoreDoesNot)
{
    TideWeeks weeks(TideFolder::shipped());
    for (const Water water : {Water::Open, Water::Confined, Water::Channel})
        for (const char* time : {"0:30", "5:30", "12:00", "18:40"}) {
            UKCInput input = overABar();
            input.water = water;
            input.boxes[Section] = "2000";
            input.boxes[Time] = time;
            const UKCResult shown = CalculateUKC(input, weeks.week(input.tide(), 38000));
            const KeelModel& model = *shown.figures.model;
            const Metres tide = shown.figures.tide->height;
            const double speed = std::stod(shown.speed);
            EXPECT_GE(model.clearance(Knots(speed), tide), model.minimum) << time;
            EXPECT_LT(model.clearance(Knots(speed + 0.1), tide), model.minimum) << time;
        }
}

TEST(CalculateUKC, withoutATimeTheLowestWaterCounts)
{
    TideWeeks weeks(TideFolder::shipped());
    UKCInput input = overABar();
    input.boxes[Time].clear();
    const TideWeek& week = weeks.week(input.tide(), 38000);
    double lowest = 99;
    for (int minute = 0; minute <= 24 * 60; ++minute)
        lowest = std::min(lowest, week.at(0, Hours(minute / 60.0)));
    const UKCResult shown = CalculateUKC(input, week);
    EXPECT_NEAR(shown.figures.tide->height.value(), lowest, 0.001);
    EXPECT_THAT(shown.fromTide, HasSubstr("lowest, all constituents"));
    // What is typed comes before the station, and the hours stay those of the station.
    input.boxes[UKCField::Tide] = "2";
    EXPECT_EQ(CalculateUKC(input, week).fromTide, "as typed");
    EXPECT_EQ(CalculateUKC(input, week).hours, shown.hours);
}

TEST(CalculateUKC, aStationThatCannotHelpSaysWhy)
{
    struct Row {
        const char* station;
        const char* day;
        const char* time;
        const char* said;
    };
    TideWeeks weeks(TideFolder::shipped());
    for (const Row& row : {
             Row{"xyzzy", "2005/5/5", "", "no tide station"},
             Row{"Philip Channel", "2005/5/5", "", "no tide station"},
             Row{"Yokohama", "2005/13/5", "", "no date"},
             Row{"Yokohama", "2026/11/22", "", "not in the factors file"},
             Row{"Yokohama", "", "", "2026/11/22 is not in the factors file"},
             Row{"Yokohama", "2005/5/5", "25:00", "Time of a height"},
             Row{"Daesan Pilot", "2005/5/5", "", "no open record"},
         }) {
        UKCInput input = overABar();
        input.boxes[Station] = row.station;
        input.boxes[Day] = row.day;
        input.boxes[Time] = row.time;
        // 16:00 UTC of the day before is the day of Japan.
        const auto utc = static_cast<double>(NavFunc113::DaySerial({2026, 11, 21})) + 16.0 / 24;
        const UKCResult shown = CalculateUKC(input, weeks.week(input.tide(), utc));
        EXPECT_THAT(shown.notice, HasSubstr(row.said));
        EXPECT_THAT(shown.clearance, IsEmpty()) << row.said;
    }
    // The last days of the factors file are as many as there are.
    UKCInput input = overABar();
    input.boxes[Day] = "2005/12/30";
    EXPECT_EQ(weeks.week(input.tide(), 38000).days.size(), 2u);
}

TEST(CalculateUKC, hoursOfAnEstimatedLevelSaySo)
{
    TideWeeks weeks(TideFolder::shipped());
    StationList list(TideFolder::shipped());
    const auto estimated = std::ranges::find_if(list.all(), [](const StationNotes& notes) {
        return notes.isLevelEstimated && notes.grade != "none";
    });
    ASSERT_NE(estimated, list.all().end());
    UKCInput input = overABar();
    input.boxes[Station] = estimated->place;
    const TideWeek& week = weeks.week(input.tide(), 38000);
    ASSERT_TRUE(week.isThere()) << week.fault;
    const UKCResult shown = CalculateUKC(input, week);
    EXPECT_THAT(shown.hours[0], HasSubstr("~"));
    EXPECT_THAT(shown.notice, HasSubstr("estimated"));
}

TEST(CalculateUKC, thePaperTellsEveryLine)
{
    TideWeeks weeks(TideFolder::shipped());
    UKCInput input = overABar();
    input.water = Water::Channel;
    input.boxes[Bottom] = "250";
    input.boxes[Slope] = "3";
    const TideWeek& week = weeks.week(input.tide(), 38000);
    const UKCResult shown = CalculateUKC(input, week);
    const Working working = columnWorking(input, shown);
    std::vector<std::string> names;
    for (const WorkingStep& step : working.steps)
        names.push_back(step.name);
    EXPECT_THAT(names,
                ElementsAre("Block coefficient", "Static draught", "Immersed midship section",
                            "Section of the channel", "Squat", "Place of the squat",
                            "Squat by the other formulas", "List", "Density", "Heave or swell",
                            "Dynamic draught", "Charted depth", "Tide", "Uncertainty of the survey",
                            "Depth to count on", "Clearance", "Minimum", "Over the minimum",
                            "Least tide that keeps the minimum", "Squat that the minimum leaves",
                            "Speed of that squat", "Greatest speed"));
    // 32.2 x 11.2 m of 2000 square metres.
    input = companysForm();
    input.water = Water::Channel;
    input.boxes[Section] = "2000";
    const Working ofSection = columnWorking(input, CalculateUKC(input, {}));
    const auto speed =
        std::ranges::find(ofSection.steps, "Speed of that squat", &WorkingStep::name);
    ASSERT_NE(speed, ofSection.steps.end());
    EXPECT_THAT(speed->figures, HasSubstr("0.8800 × (360.64 / 1639.36)^⅔"));
    const auto table = hoursTable(shown, week);
    ASSERT_TRUE(table);
    ASSERT_EQ(table->rows.size(), 7u);
    EXPECT_EQ(table->rows[0][0], "Thu 2005/05/05");
    EXPECT_EQ(hoursTable(CalculateUKC(companysForm(), {}), {}), std::nullopt);
}

} // namespace
} // namespace korvel
