// SPDX-License-Identifier: MIT
#include "app/reading/Reading.h"

#include "app/reading/Field.h"
#include "app/reading/Format.h"
#include "app/reading/Instant.h"
#include "app/reading/NumberField.h"
#include "app/reading/Remarks.h"
#include "app/reading/TypedTime.h"
#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <chrono>
#include <clocale>
#include <cmath>
#include <map>
#include <optional>

namespace korvel
{
namespace
{

using korvel::testing::Golden;
using korvel::testing::golden;

TEST(Reading, leadingNumbers)
{
    for (const Golden& row : golden("leading_numbers"))
        EXPECT_EQ(readNumber(row.text("text")), row.number("value")) << row;
}

TEST(Reading, isTheSameInEveryLocale)
{
    const std::string before = std::setlocale(LC_ALL, nullptr);
    for (const char* commaLocale : {"de_DE.UTF-8", "fr_FR.UTF-8", "C.UTF-8"}) {
        std::setlocale(LC_ALL, commaLocale);
        EXPECT_EQ(readNumber("35.5"), 35.5);
        EXPECT_EQ(Format(35.5, "0.0"), "35.5");
    }
    std::setlocale(LC_ALL, before.c_str());
}

TEST(Reading, ranges)
{
    EXPECT_TRUE(IsInRange("90", "-90", "90"));
    EXPECT_FALSE(IsInRange("90.001", "-90", "90"));
    EXPECT_TRUE(IsInRange("", "-90", "90")) << "an empty box counts as 0";
    EXPECT_FALSE(IsInRange("", "1", "90"));
    EXPECT_FALSE(IsInRange("abc", "-90", "90")) << "no number is in no range";
    EXPECT_TRUE(IsInRange("12abc", "-90", "90"));
    EXPECT_TRUE(isNumeric(" -9.5 "));
    EXPECT_FALSE(isNumeric("9h"));
}

TEST(Reading, numbersWithTheirRemarks)
{
    const std::map<std::string, FieldKind> forms{{"plain", FieldKind::Figure},
                                                 {"angle", FieldKind::Angle},
                                                 {"latitude", FieldKind::Latitude},
                                                 {"longitude", FieldKind::Longitude}};
    for (const Golden& row : golden("number_reading")) {
        NumberField field{.name = "Box", .unit = row.text("unit")};
        field.kind = forms.at(row.text("form"));
        if (row.has("low")) field.low = row.number("low");
        if (row.has("high")) field.high = row.number("high");
        field.ifEmpty.reset();
        if (row.text("empty") != "none") field.ifEmpty = row.number("empty");

        const NumberReading reading = readField(row.text("text"), field);
        const auto value = row.has("value") ? std::optional(row.number("value")) : std::nullopt;
        EXPECT_EQ(reading.value, value) << row;
        EXPECT_EQ(reading.remark, row.text("remark")) << row;
        Remarks remarks;
        EXPECT_EQ(readField(row.text("text"), field, remarks), reading.value) << row;
        EXPECT_EQ(remarks.text(), row.has("remark") ? "Box: " + row.text("remark") : "") << row;
        EXPECT_EQ(remarks.faults.empty(), reading.value.has_value()) << row;
    }
    EXPECT_EQ(readField(std::string(400, '9'), {}).remark, "too large a number");
}

TEST(Reading, sixtyMinutesOfAnAngleAreTheNextDegree)
{
    for (const auto& [text, fault] : {std::pair{"35.5999", ""},
                                      {"35.6", "Box: minutes of 60"},
                                      {"-35.75", "Box: minutes of 75"}}) {
        Remarks remarks;
        const auto angle = readAngleIfTyped(text, {.name = "Box"}, remarks);
        EXPECT_EQ(angle.has_value(), *fault == '\0') << text;
        EXPECT_EQ(remarks.text(), fault);
    }
    Remarks remarks;
    EXPECT_FALSE(readAngleIfTyped(" ", {.name = "Box"}, remarks));
    EXPECT_FALSE(readIfTyped("-", NumberField{.name = "Box"}, remarks));
    EXPECT_EQ(remarks.text(), "") << "what is not typed yet is no fault";
}

TEST(Reading, kindsOfANumber)
{
    using Kind = NumberReading::Kind;
    const NumberField field{.name = "Box", .low = 0, .high = 90};
    const std::pair<const char*, Kind> rows[] = {{" ", Kind::Empty},       {"-", Kind::HalfTyped},
                                                 {"N35", Kind::NoNumber},  {"91", Kind::OutOfRange},
                                                 {"3,5", Kind::Beginning}, {" 35 ", Kind::Whole}};
    for (const auto& [text, kind] : rows)
        EXPECT_EQ(readField(text, field).kind, kind) << text;
}

TEST(Reading, typedTimes)
{
    const std::map<std::string, Due> dues{
        {"date", Due::Date}, {"time", Due::TimeOfDay}, {"both", Due::DateAndTime}};
    for (const Golden& row : golden("typed_times")) {
        const TypedTime time = readTypedTime(row.text("text"), dues.at(row.text("due")));
        EXPECT_EQ(time.value ? Format(*time.value, "yyyy/mm/dd hh:mm:ss") : "", row.text("shown"))
            << row;
        EXPECT_EQ(time.remark, row.text("remark")) << row;
    }
    EXPECT_DOUBLE_EQ(readDateTime("6:00").value(), 0.25) << "a time alone has no date";
    EXPECT_FALSE(readDateTime("1899/12/31"));
}

TEST(Instant, readsUTCAsFilesHaveIt)
{
    using namespace std::chrono;
    const Instant half = sys_days(2026y / November / 22) + 10h + 20min + 30s;
    const struct {
        const char* text;
        std::optional<Span> later;
    } rows[] = {{"2026-11-22T10:20:30Z", 0s},
                {"2026-11-22T10:20:30", 0s},
                {"2026-11-22T10:20:30.25z", 250ms},
                {"2026-11-22T10:20:30.0000429Z", 42us},
                {"2026-11-22T12:20:30.1+02:00", 100ms},
                {"2026-11-22T05:50:30-04:30", 0s},
                {"2026-11-22T24:00:00Z", 13h + 39min + 30s},
                {"2026-11-22T24:00:01Z", {}},
                {"2026-11-22T10:60:00Z", {}},
                {"2026-11-22T10:20:60Z", {}},
                {"2026-02-29T10:20:30Z", {}},
                {"2026-11-22T10:20:30.Z", {}},
                {"2026-11-22T10:20:30+15:00", {}},
                {"2026-11-22T10:20:30+14:59", -14h - 59min},
                {"2026-11-22T10:59:59Z", 39min + 29s},
                {"2026-11-22T24:00:00.5Z", {}},
                {"2026-11-22T10:20:30-2:00", {}},
                {"2026-11-22T10:20:30+02:60", {}},
                {"2026-11-22T10:20:30+02:00 ", {}},
                {"2026-11-22T10:20:30 UTC", {}}};
    for (const auto& [text, later] : rows)
        EXPECT_EQ(readIso(text), later ? std::optional(half + *later) : std::nullopt) << text;
}

TEST(Instant, isShownToTheNearestMinuteOrSecond)
{
    using namespace std::chrono;
    const Instant noon = sys_days(2026y / November / 22) + 12h;
    EXPECT_EQ(instantOf(38425.40625), Instant(sys_days(2005y / March / 14) + 9h + 45min));
    EXPECT_DOUBLE_EQ(dateTimeOf(instantOf(-0.25)), -0.25) << "before the first day";
    EXPECT_EQ(minuteText(noon + 29999ms), "2026/11/22 12:00");
    EXPECT_EQ(minuteText(noon + 30s), "2026/11/22 12:01");
    EXPECT_EQ(minuteText(noon - 30s), "2026/11/22 12:00");
    EXPECT_EQ(isoText(noon + 499ms), "2026-11-22T12:00:00Z");
    EXPECT_EQ(isoText(noon + 500ms), "2026-11-22T12:00:01Z");
    EXPECT_EQ(weekdayOf(noon), "Sun");
    EXPECT_EQ(weekdayOf(sys_days(1969y / December / 31) + 23h), "Wed");
    const struct {
        Span span;
        const char* text;
    } rows[] = {{0s, "00 h 00 m"},
                {29s, "00 h 00 m"},
                {30s, "00 h 01 m"},
                {-29s, "00 h 00 m"},
                {-30s, "-00 h 01 m"},
                {9h + 9min, "09 h 09 m"},
                {10h + 10min, "10 h 10 m"},
                {23h + 59min + 29s, "23 h 59 m"},
                {23h + 59min + 30s, "1 d 00 h 00 m"},
                {-49h, "-2 d 01 h 00 m"}};
    for (const auto& [span, text] : rows)
        EXPECT_EQ(spanText(span), text);
    const double twoHundredYears = 200 * 365.25 * 24;
    for (const double hours : {1.5, twoHundredYears, -twoHundredYears})
        EXPECT_EQ(hoursOf(spanOf(NavFunc113::Hours(hours)).value()).value(), hours);
    for (const double hours : {twoHundredYears + 0.5, -twoHundredYears - 0.5, std::nan("")})
        EXPECT_FALSE(spanOf(NavFunc113::Hours(hours)));
}

TEST(Remarks, aLineOfThem)
{
    Remarks remarks;
    remarks.warn("TD is 9.25");
    remarks.fault("no date");
    remarks.fault("");
    remarks.fault("no time");
    remarks.fault("no date");
    EXPECT_EQ(remarks.text(), "no date; no time; TD is 9.25") << "faults first, each once";
    EXPECT_EQ(Remarks().text(), "");
    EXPECT_EQ(quotation(std::string(23, 'x') + "°°"), '"' + std::string(23, 'x') + "…\"")
        << "no character is cut in two";
    EXPECT_EQ(quotation(std::string(22, 'x') + "°"), '"' + std::string(22, 'x') + "°\"");
    EXPECT_EQ(quotation(std::string(24, 'x')), '"' + std::string(24, 'x') + '"');
    EXPECT_EQ(quotation(std::string(25, 'x')), '"' + std::string(24, 'x') + "…\"");
    EXPECT_EQ(joined({"really?", "", "yes", "or no"}), "really? yes; or no");
}

TEST(CourseText, thereIsNoCourse360)
{
    for (const Golden& row : golden("course_text"))
        EXPECT_EQ(courseText(row.degrees("degrees"), row.text("mask")), row.text("text")) << row;
}

} // namespace
} // namespace korvel
