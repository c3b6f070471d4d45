// SPDX-License-Identifier: MIT
#include "forms/conversion/MeasureReading.h"

#include "forms/conversion/CalculateConversion.h"
#include "forms/conversion/ConversionFields.h"
#include "forms/conversion/ConversionWorking.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using NavFunc113::Quantity;
using NavFunc113::UnitConditions;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::size_t unitCalled(Quantity quantity, std::string_view symbol)
{
    const auto units = NavFunc113::UnitTable(quantity);
    for (std::size_t i = 0; i < units.size(); ++i)
        if (units[i].symbol == symbol) return i;
    ADD_FAILURE() << "no unit " << symbol;
    return 0;
}

struct Row {
    Quantity quantity;
    const char* unit;
    const char* typed;
    const char* to;
    const char* shown;
    UnitConditions known = {};
};

std::string shownOf(const Row& row)
{
    const auto boxes =
        CalculateConversion(row.quantity, unitCalled(row.quantity, row.unit), row.typed, row.known);
    return boxes.at(unitCalled(row.quantity, row.to)).value_or("its own box");
}

TEST(MeasureReading, unitsThatAreTypedAreRead)
{
    // By the definitions of foot, inch, hundredweight, quarter and stone.
    for (const Row& row : {
             Row{Quantity::Length, "m", "6 ft 3 in", "in", "75"},
             Row{Quantity::Length, "in", "6 ft 3 in", "ft", "6.25"},
             Row{Quantity::Length, "m", "6'3\"", "in", "75"},
             Row{Quantity::Length, "m", "-6 Feet 3 Inches", "in", "-75"},
             Row{Quantity::Length, "m", "2 fathoms 3ft", "ft", "15"},
             Row{Quantity::Length, "ft", "185 cm", "m", "1.85"},
             Row{Quantity::Length, "ft", "1.5 nm", "cable", "15"},
             Row{Quantity::Length, "nm", "3 UK cable", "sea mile", "0.3"},
             Row{Quantity::Length, "m", "６ｆｔ　３ｉｎ", "in", "75"},
             Row{Quantity::Weight, "kg", "3 cwt 2 qr", "lb", "392"},
             Row{Quantity::Weight, "kg", "1 LT 3 cwt", "cwt UK", "23"},
             Row{Quantity::Weight, "kg", "2 st 4 lbs", "lb", "32"},
             Row{Quantity::Weight, "kg", "1 ST", "lb", "2000"},
             Row{Quantity::Weight, "t", "1 cwt US", "lb", "100"},
             Row{Quantity::Volume, "m³", "1 gal US 2 pt US", "qt US", "5"},
         })
        EXPECT_EQ(shownOf(row), row.shown) << row.typed;
}

TEST(MeasureReading, whatIsNoSumOfUnitsIsReadAsBefore)
{
    for (const char* text : {"", "-", "+", " ", "35 12 N", "12x", "1,234", "1e3", "6 ft 3", "ft",
                             "6 ft -3 in", "6 kg", "6 . ft", "6 ft 3 qq", "1.2.3 ft"}) {
        const auto units = NavFunc113::UnitTable(Quantity::Length);
        EXPECT_FALSE(readMeasure(Quantity::Length, units[0], text).isCompound) << text;
    }
    EXPECT_EQ(shownOf({Quantity::Length, "m", "12x", "cable", "0.06479482"}), "0.06479482");
    EXPECT_THAT(noticeOn(Quantity::Length, 0, "1,234").text, HasSubstr("only 1 was read"));
    EXPECT_THAT(noticeOn(Quantity::Length, 0, "6 ft 3 in").text, HasSubstr("read as 1.905 m"));
    EXPECT_THAT(noticeOn(Quantity::Length, 0, "1234").text, IsEmpty());
    EXPECT_FALSE(isReadWhole(Quantity::Length, 0, "1,234"));
    EXPECT_TRUE(isReadWhole(Quantity::Length, 0, "6 ft 3 in"));
    EXPECT_EQ(convertedInFull(Quantity::Length, 0, "6 ft 3 in", 0), "1.905");
    EXPECT_EQ(convertedInFull(Quantity::Length, 0, "1,234", 0), "1,234") << "the text itself";
}

TEST(MeasureReading, timesAndAngles)
{
    for (const Row& row : {
             Row{Quantity::Angle, "°.′", "139.45", "h:m:s", "9:19:00"},
             Row{Quantity::Angle, "°.′", "139.45", "°", "139.75"},
             Row{Quantity::Angle, "h:m:s", "9:19", "°.′", "139.45"},
             Row{Quantity::Angle, "h:m:s", "-9:19:00.4", "°.′", "-139.451"},
             Row{Quantity::Angle, "h:m:s", "9.5", "°", "142.5"},
             Row{Quantity::Angle, "°", "35.99999999", "°.′", "36.00"},
             Row{Quantity::Angle, "°", "14.9999999", "h:m:s", "1:00:00"},
             Row{Quantity::Angle, "°", "-0.0000001", "h:m:s", "0:00:00"},
             Row{Quantity::Angle, "°.′", "35.75", "°", ""},
             Row{Quantity::Angle, "°.′", "35.5999", "°", "35.99983"},
         })
        EXPECT_EQ(shownOf(row), row.shown) << row.typed << " " << row.unit;
    const std::size_t packed = unitCalled(Quantity::Angle, "°.′");
    const std::size_t clock = unitCalled(Quantity::Angle, "h:m:s");
    EXPECT_THAT(noticeOn(Quantity::Angle, packed, "35.75").text, HasSubstr("below 60"));
    for (const char* text : {"9:61", "9:30:60", "9:", ":30", "9:30:15:1"})
        EXPECT_FALSE(isReadWhole(Quantity::Angle, clock, text)) << text;
}

TEST(MeasureReading, whatCannotBeIsSaid)
{
    struct Refused {
        Quantity quantity;
        const char* unit;
        const char* typed;
        const char* said;
    };
    for (const Refused& row : {
             Refused{Quantity::Temperature, "°C", "-273.16", "absolute zero"},
             Refused{Quantity::Temperature, "°F", "-460", "absolute zero"},
             Refused{Quantity::Density, "kg/m³", "0", "more than 0"},
             Refused{Quantity::Density, "°API", "-131.5", "no such density"},
             Refused{Quantity::Density, "m³/t", "0", "no such density"},
             Refused{Quantity::Density, "m³/t", "-1", "more than 0"},
         }) {
        const std::size_t unit = unitCalled(row.quantity, row.unit);
        EXPECT_THAT(noticeOn(row.quantity, unit, row.typed).text, HasSubstr(row.said));
        for (const auto& box : CalculateConversion(row.quantity, unit, row.typed))
            EXPECT_THAT(box.value_or(""), IsEmpty()) << row.typed;
    }
    EXPECT_EQ(shownOf({Quantity::Temperature, "°C", "-273.15", "K", "0"}), "0");
}

TEST(MeasureReading, whatIsNotKnownBlanksItsBoxesAlone)
{
    const Row flow{Quantity::Flow, "t/day", "30", "m³/h", ""};
    EXPECT_EQ(shownOf(flow), "");
    const std::size_t tons = unitCalled(Quantity::Flow, "t/day");
    EXPECT_EQ(noticeOn(Quantity::Flow, tons, "30").text,
              "type the density for t/day in m³/h; type the power for t/day in g/kWh");
    EXPECT_THAT(noticeOn(Quantity::Flow, tons, "30", {991, 9000, {}}).text, IsEmpty());
    EXPECT_EQ(shownOf({Quantity::Flow, "t/day", "30", "t/h", "1.25"}), "1.25");
    EXPECT_EQ(shownOf({Quantity::Flow, "t/day", "30", "m³/h", "", {991}}), "1.261352");
    EXPECT_EQ(shownOf({Quantity::Flow, "m³/day", "24", "m³/h", ""}), "1");
    EXPECT_EQ(shownOf({Quantity::Energy, "kW", "1", "PS", ""}), "1.359622");
    Remarks remarks;
    const UnitConditions read =
        readConditions({flowConditions, flowNeeds}, {"99100", "9000"}, remarks);
    EXPECT_FALSE(read.density);
    EXPECT_EQ(read.power, 9000);
    EXPECT_THAT(remarks.text(), HasSubstr("Density of the liquid"));
}

TEST(MeasureReading, thePaperTellsTheRelations)
{
    Converted converted{Quantity::Temperature, 0, "15", {}, {"15", "59", "288.15", "518.67"}};
    const Working working = conversionWorking(converted);
    ASSERT_EQ(working.steps.size(), 4u);
    EXPECT_EQ(working.steps[0].value, "288.15");
    EXPECT_EQ(working.steps[1].figures, "288.15 / 0.555555555555556 - 459.67");
    EXPECT_EQ(working.steps[1].value, "59");
    converted.text = "abc";
    EXPECT_FALSE(conversionWorking(converted).whyNone.empty());
    // No density leads to the base unit: nothing is worked out of it.
    const Converted none{Quantity::Density,
                         unitCalled(Quantity::Density, "°API"),
                         "-131.5",
                         {},
                         std::vector<std::string>(NavFunc113::UnitTable(Quantity::Density).size())};
    EXPECT_FALSE(conversionWorking(none).whyNone.empty());
}

} // namespace
} // namespace korvel
