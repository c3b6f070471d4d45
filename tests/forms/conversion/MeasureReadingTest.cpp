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
             Row{Quantity::Length, "m", "+6 ft 3 in", "in", "75"},
             Row{Quantity::Length, "m", "  6 ft 3 in  ", "in", "75"},
             Row{Quantity::Length, "m", "2 fathoms 3ft", "ft", "15"},
             Row{Quantity::Angle, "°", "9 h 30 min", "h:m:s", "9:30:00"},
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
                             "6 ft -3 in", "6 kg", "6 . ft", "6 ft 3 qq", "1.2.3 ft", ". ft"}) {
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
    EXPECT_EQ(convertedInFull(Quantity::Length, 0, "1,234", 1), "0.001");
    EXPECT_EQ(convertedInFull(Quantity::Length, 0, "1852", 2), "1");
    EXPECT_EQ(convertedInFull(Quantity::Length, 0, "x", 2), "");
    EXPECT_THAT(noticeOn(Quantity::Area, 3, std::string(320, '9')).text,
                ::testing::Not(HasSubstr("temperature")));
    EXPECT_EQ(convertedInFull(Quantity::Area, 3, std::string(320, '9'), 0), "") << "beyond numbers";
    EXPECT_EQ(noticeOn(Quantity::Length, 0, "6 ft 3 in").level, NoticeLevel::Remark);
    EXPECT_EQ(noticeOn(Quantity::Length, 0, "1,234").level, NoticeLevel::Fault);
    // Units that need something, or are no sizes, are no terms of a sum.
    EXPECT_FALSE(
        readMeasure(Quantity::Flow,
                    NavFunc113::UnitTable(Quantity::Flow)[unitCalled(Quantity::Flow, "t/day")],
                    "5 m³/day")
            .isCompound);
    EXPECT_FALSE(
        readMeasure(Quantity::Density, NavFunc113::UnitTable(Quantity::Density)[0], "30 °API")
            .isCompound);
    EXPECT_FALSE(
        readMeasure(Quantity::Temperature, NavFunc113::UnitTable(Quantity::Temperature)[0], "30 K")
            .isCompound);
    EXPECT_FALSE(
        readMeasure(Quantity::Flow,
                    NavFunc113::UnitTable(Quantity::Flow)[unitCalled(Quantity::Flow, "m³/day")],
                    "5 t/day")
            .isCompound);
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
             Row{Quantity::Angle, "h:m:s", "61:30", "°", "922.5"},
             Row{Quantity::Angle, "h:m:s", "0:00:59", "°", "0.2458333"},
             Row{Quantity::Angle, "°", "359.85", "h:m:s", "23:59:24"},
             Row{Quantity::Angle, "°", "-14.9999999", "h:m:s", "-1:00:00"},
             Row{Quantity::Angle, "°", "1.00625", "h:m:s", "0:04:01.5"},
             Row{Quantity::Angle, "°", "35.123456", "°.′", "35.074074"},
             Row{Quantity::Angle, "°.′", "35.75", "°", ""},
             Row{Quantity::Angle, "°.′", "35.60", "°", ""},
             Row{Quantity::Angle, "°.′", "0.60", "°", ""},
             Row{Quantity::Angle, "°.′", "35.5999", "°", "35.99983"},
         })
        EXPECT_EQ(shownOf(row), row.shown) << row.typed << " " << row.unit;
    const std::size_t packed = unitCalled(Quantity::Angle, "°.′");
    const std::size_t clock = unitCalled(Quantity::Angle, "h:m:s");
    EXPECT_THAT(noticeOn(Quantity::Angle, packed, "35.75").text, HasSubstr("below 60"));
    for (const char* text :
         {"9:61", "9:60", "9:30:60", "9:", ":30", "9x30", "9:30x15", "9:30:15:1"})
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
    EXPECT_THAT(noticeOn(Quantity::Flow, tons, "").text, IsEmpty()) << "nobody asks yet";
    EXPECT_EQ(noticeOn(Quantity::Flow, tons, "30").level, NoticeLevel::Remark);
    const std::size_t volumes = unitCalled(Quantity::Flow, "m³/h");
    EXPECT_EQ(noticeOn(Quantity::Flow, volumes, "1").text, "type the density for m³/h in t/h");
    EXPECT_EQ(noticeOn(Quantity::Flow, volumes, "1", {991, {}, {}}).text,
              "type the power for m³/h in g/kWh");
    EXPECT_EQ(noticeOn(Quantity::Energy, unitCalled(Quantity::Energy, "kW"), "1").text,
              "type the hours for kW in kJ");
    EXPECT_EQ(noticeOn(Quantity::Energy, 0, "1").text, "type the hours for kJ in kW");
}

TEST(MeasureReading, whatIsKnownHasItsLimits)
{
    struct Limits {
        ConditionFields fields;
        std::size_t box;
        std::vector<const char*> taken, refused;
        const char* said;
    };
    for (const Limits& each : {Limits{{flowConditions, flowNeeds},
                                      0,
                                      {"300", "2000"},
                                      {"299.9", "2000.1"},
                                      "Density of the liquid: not within 300 to 2000"},
                               {{flowConditions, flowNeeds},
                                1,
                                {"0.1", "200000"},
                                {"0.099", "200000.1"},
                                "Power of the engine: not within 0.1 to 200000"},
                               {{energyConditions, energyNeeds},
                                0,
                                {"0.001", "100000"},
                                {"0.00099", "100000.1"},
                                "Hours of the power: not within 0.001 to 100000"}}) {
        std::vector<std::string> boxes(each.fields.fields.size());
        const auto known = [&](const char* text, Remarks& remarks) {
            boxes[each.box] = text;
            return readConditions(each.fields, boxes, remarks).of(each.fields.needs[each.box]);
        };
        for (const char* text : each.taken) {
            Remarks remarks;
            EXPECT_EQ(known(text, remarks), std::stod(text));
            EXPECT_EQ(remarks.text(), "");
        }
        for (const char* text : each.refused) {
            Remarks remarks;
            EXPECT_EQ(known(text, remarks), std::nullopt) << text;
            EXPECT_THAT(remarks.text(), HasSubstr(each.said));
        }
    }
}

TEST(MeasureReading, textsOfTimesAndAnglesHaveAnEnd)
{
    EXPECT_EQ(clockText(2.7e10), "27000000000:00:00");
    EXPECT_EQ(clockText(2.9e10), "") << "no tenth of a second is left of it";
    EXPECT_EQ(packedText(1.6e9), "1600000000.00");
    EXPECT_EQ(packedText(1.75e9), "");
    EXPECT_EQ(packedText(-0.000000001), "0.00");
    EXPECT_EQ(packedText(-0.000001), "-0.000001");
    EXPECT_EQ(packedText(0.5), "0.50");
    EXPECT_EQ(clockText(-1.0 / 36000), "-0:00:00.1");
}

TEST(MeasureReading, tooltipsTellSizeAndDefinition)
{
    const auto tip = [](Quantity quantity, const char* symbol) {
        return unitToolTip(quantity, unitCalled(quantity, symbol));
    };
    EXPECT_EQ(tip(Quantity::Length, "ft"), "1 foot = 0.3048 m (0.3048 m, international, 1959)");
    EXPECT_EQ(tip(Quantity::Length, "ftUS"),
              "1 US survey foot = 0.304800609601219 m (1200/3937 m, abolished 2022)");
    EXPECT_EQ(tip(Quantity::Temperature, "K"), "kelvin: SI base unit") << "its first unit is none";
    EXPECT_EQ(tip(Quantity::Density, "m³/t"), "cubic metre per ton: stowage factor, 1000 kg");
    EXPECT_EQ(tip(Quantity::Flow, "m³/h"), "cubic metre per hour: by the density");
}

TEST(MeasureReading, thePaperTellsTheRelations)
{
    Converted converted{Quantity::Temperature, 0, "15", {}, {"15", "59", "288.15", "518.67"}};
    const Working working = conversionWorking(converted);
    ASSERT_EQ(working.steps.size(), 4u);
    EXPECT_EQ(working.steps[0].value, "288.15");
    EXPECT_EQ(working.steps[1].figures, "288.15 / 0.555555555555556 - 459.67");
    EXPECT_EQ(working.steps[0].figures, "15 °C");
    EXPECT_EQ(working.steps[1].value, "59");
    converted.text = "abc";
    EXPECT_FALSE(conversionWorking(converted).whyNone.empty());
    // Without the density the volumes are left, by themselves.
    Converted flow{Quantity::Flow, unitCalled(Quantity::Flow, "m³/day"), "48", {}, {}};
    flow.boxes.resize(NavFunc113::UnitTable(Quantity::Flow).size());
    flow.boxes[unitCalled(Quantity::Flow, "m³/h")] = "2";
    ASSERT_EQ(conversionWorking(flow).steps.size(), 2u);
    EXPECT_EQ(conversionWorking(flow).steps[0].value, "2");
    EXPECT_EQ(conversionWorking(flow).steps[1].figures, "2 / 1");
    flow.conditions.density = 900;
    flow.boxes[0] = "1.8";
    EXPECT_EQ(conversionWorking(flow).steps[0].value, "1800");
    EXPECT_EQ(conversionWorking(flow).steps[0].figures, "48 m³/day × 900");
    EXPECT_EQ(conversionWorking(flow).steps[1].figures, "1800 / 1000");
    EXPECT_EQ(conversionWorking(flow).steps[2].figures, "1800 / (1 × 900)");
    // No density leads to the base unit: nothing is worked out of it.
    const Converted none{Quantity::Density,
                         unitCalled(Quantity::Density, "°API"),
                         "-131.5",
                         {},
                         std::vector<std::string>(NavFunc113::UnitTable(Quantity::Density).size())};
    EXPECT_FALSE(conversionWorking(none).whyNone.empty());
}

TEST(MeasureReading, thePaperTellsWhatWasTyped)
{
    Converted converted{Quantity::Length, 0, "", {}, {}};
    converted.boxes.resize(NavFunc113::UnitTable(Quantity::Length).size());
    const auto from = [&converted](const char* text) {
        converted.text = text;
        const PaperFigure figure = convertedFrom(converted);
        return figure.name + "|" + figure.value + "|" + figure.unit + "|" + figure.shown;
    };
    EXPECT_EQ(from("5"), "metre|5|m|");
    EXPECT_EQ(from("6 ft 3 in"), "metre|1.905|m|6 ft 3 in");
    EXPECT_EQ(from("x"), "metre|not understood||x");
    EXPECT_EQ(from(""), "metre|nothing entered||");
    converted.boxes[0] = "1";
    converted.boxes[1] = "0.001";
    converted.boxes[3] = "2";
    const auto into = convertedInto(converted);
    ASSERT_EQ(into.size(), 2u) << "neither itself nor what is blank";
    EXPECT_EQ(into[1].name + into[1].value + into[1].unit, "cable2cable");
}

} // namespace
} // namespace korvel
