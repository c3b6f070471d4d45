// SPDX-License-Identifier: MIT
#include "forms/frmCompass/DeviationCurve.h"
#include "app/reading/Format.h"
#include "forms/frmCompass/CalculateCourses.h"
#include "forms/frmCompass/CoursesWorking.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <algorithm>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using NavFunc113::Degrees;
using ::testing::HasSubstr;
using ::testing::StartsWith;

const NavFunc113::DeviationCoefficients ofStandard{Degrees(1), Degrees(5), Degrees(-2), Degrees(1),
                                                   Degrees(0)};

CompassLine lineOn(double head, double wrong = 0)
{
    CompassLine line;
    line.UTC = *readIso("2026-03-01T04:00:00Z") + std::chrono::hours(static_cast<int>(head));
    CompassReading& standard = line.readings[static_cast<std::size_t>(CompassKind::Standard)];
    standard.head = Degrees(head);
    standard.deviation = ofStandard.at(Degrees(head)) + Degrees(wrong);
    standard.error = standard.deviation;
    return line;
}

CompassBook month(double wrong = 0)
{
    CompassBook book;
    for (int head = 0; head < 360; head += 24)
        book.push_back(lineOn(head, head % 48 == 0 ? wrong : -wrong));
    return book;
}

TEST(DeviationCurve, coefficientsAndCardOfTheKeptLines)
{
    const DeviationCurve curve = deviationCurve(month(0.3), CompassKind::Standard);
    ASSERT_TRUE(curve.fit);
    EXPECT_EQ(curve.notice, "");
    EXPECT_EQ(curve.coefficients[1], "B 5.0 E");
    EXPECT_EQ(curve.coefficients[2], "C 2.0 W");
    for (const DeviationCurve::Point& point : curve.points)
        EXPECT_LT(fabs(point.residual.value()), Degrees(0.6));
    const auto card = deviationCard(deviationCurve(month(), CompassKind::Standard));
    ASSERT_EQ(card.size(), 24u);
    EXPECT_EQ(card[6][0] + " " + card[6][1] + " " + card[6][2], "090 6.0 E 096.0");
    EXPECT_EQ(card[18][0] + " " + card[18][1] + " " + card[18][2], "270 4.0 W 266.0");
    EXPECT_EQ(card[0][1] + " " + card[0][2], "1.0 W 359.0");
}

TEST(DeviationCurve, missingLinesAreAskedFor)
{
    const DeviationCurve none = deviationCurve({}, CompassKind::Steering);
    EXPECT_EQ(none.notice, "No curve: 0 lines with head and deviation, it needs 7");
    EXPECT_TRUE(deviationCard(none).empty());
    CompassBook half;
    for (int head = 0; head <= 180; head += 20)
        half.push_back(lineOn(head));
    EXPECT_EQ(deviationCurve(half, CompassKind::Standard).notice,
              "No curve: lines on more headings are needed, first near 270");
    EXPECT_FALSE(deviationCurve(month(), CompassKind::Gyro).fit) << "a gyro has no deviation";
    const auto since = deviationCurve(month(), CompassKind::Standard, month()[9].UTC);
    EXPECT_EQ(since.points.size(), 6u) << "lines before a refit do not count";
}

TEST(DeviationCurve, blunderIsNamedAndLeftOut)
{
    CompassBook book = month(0.2);
    book[5] = lineOn(120, 11);
    const DeviationCurve curve = deviationCurve(book, CompassKind::Standard);
    ASSERT_TRUE(curve.fit);
    EXPECT_TRUE(curve.points[5].isBlunder);
    EXPECT_EQ(std::ranges::count(curve.points, true, &DeviationCurve::Point::isBlunder), 1);
    EXPECT_THAT(curve.notice, StartsWith("Left out: 2026/03/06 04:00, deviation 16.5 E on 120"));
    EXPECT_NEAR(curve.points[5].residual->value(), 11, 0.5);
    EXPECT_EQ(curve.coefficients[1], "B 5.0 E");
}

TEST(DeviationCurve, lineTooFarOffIsSaidWhenItIsRecorded)
{
    EXPECT_EQ(doubtAbout(lineOn(200, 1), month(0.3)), "");
    EXPECT_THAT(doubtAbout(lineOn(200, 4), month(0.3)),
                HasSubstr("Standard: deviation 5.8 E on 200 lies 4."));
    EXPECT_NE(doubtAbout(lineOn(200, -4), month(0.3)), "");
    EXPECT_EQ(doubtAbout(lineOn(200, 4), {}), "") << "without a curve nobody can tell";
    CompassLine without = lineOn(200, 4);
    without.readings[static_cast<std::size_t>(CompassKind::Standard)].deviation.reset();
    EXPECT_EQ(doubtAbout(without, month(0.3)), "");
    EXPECT_TRUE(deviationCurve({without}, CompassKind::Standard).points.empty());
}

constexpr std::array<const char*, CourseFields.size()> courseBoxNames{
    "course", "speed", "leeway", "set", "drift", "gyro", "variation", "deviation", "distance"};

CourseInput coursesOf(const Golden& row)
{
    CourseInput input;
    for (const auto& [name, sign, text] : row.pairs("input")) {
        const auto box = std::ranges::find(courseBoxNames, name);
        if (box != courseBoxNames.end())
            input.txtCourses[static_cast<std::size_t>(box - courseBoxNames.begin())] = text;
        else if (name == "curve")
            input.curve = NavFunc113::DeviationCoefficients{
                {}, Degrees(text == "steep" ? 80 : 10), {}, {}, {}};
        else
            input.given = text == "gyro"      ? CourseGiven::GyroHead
                          : text == "compass" ? CourseGiven::CompassHead
                          : text == "track"   ? CourseGiven::Track
                                              : CourseGiven::TrueHead;
    }
    return input;
}

TEST(Courses, everyBoxHasItsRange)
{
    const struct {
        CourseBox box;
        const char* name;
        double low;
        double high;
        const char* unit;
    } rows[] = {
        {CourseBox::Course, "Course", 0, 360, " degrees"},
        {CourseBox::Speed, "Speed through the water", 0, 100, " knots"},
        {CourseBox::Leeway, "Leeway", -45, 45, " degrees"},
        {CourseBox::Set, "Set of the current", 0, 360, " degrees"},
        {CourseBox::Drift, "Drift of the current", 0, 30, " knots"},
        {CourseBox::GyroError, "Gyro error", -180, 180, ""},
        {CourseBox::Variation, "Variation", -180, 180, ""},
        {CourseBox::Deviation, "Deviation", -180, 180, ""},
        {CourseBox::Distance, "Distance to make good", 0, 25000, " miles"},
    };
    for (const auto& row : rows) {
        const auto noticeOf = [&row](double typed) {
            CourseInput input;
            input.txtCourses[static_cast<std::size_t>(CourseBox::Set)] = "0";
            input.txtCourses[static_cast<std::size_t>(row.box)] = Format(typed, "0.#");
            return CalculateCourses(input).notice;
        };
        const std::string refused = std::string(row.name) + ": not within " + Format(row.low, "0") +
                                    " to " + Format(row.high, "0") + row.unit;
        for (const double typed : {row.low, row.high})
            EXPECT_EQ(noticeOf(typed), "") << row.name << " " << typed;
        for (const double typed : {row.low - 0.1, row.high + 0.1})
            EXPECT_EQ(noticeOf(typed), refused) << typed;
    }
}

TEST(Courses, intoEachOther)
{
    for (const Golden& row : golden("compass_courses")) {
        const CourseResult result = CalculateCourses(coursesOf(row));
        expectTexts(row, "shows",
                    {{"true", result.trueHead},
                     {"gyro", result.gyroHead},
                     {"magnetic", result.magneticHead},
                     {"compass", result.compassHead},
                     {"deviation", result.deviation},
                     {"water", result.waterCourse},
                     {"track", result.track},
                     {"speed", result.speed},
                     {"time", result.time},
                     {"notice", result.notice}});
        for (const Working& working : coursesWorkings(coursesOf(row), result, ""))
            for (const WorkingStep& step : working.steps)
                EXPECT_FALSE(step.value.starts_with("360")) << row << step.name;
    }
}

} // namespace
} // namespace korvel
