// SPDX-License-Identifier: MIT
#include "app/working/SailingWorking.h"
#include "app/working/Interpolation.h"
#include "app/working/Working.h"
#include "app/working/WorkingPaper.h"
#include "navlib/sailing/sailing.h"
#include "navlib/units.h"

#include <gmock/gmock.h>

#include <array>
#include <string>
#include <vector>

namespace korvel
{
namespace
{

using NavFunc113::DegMin;
using NavFunc113::Degrees;
using NavFunc113::Earth;
using NavFunc113::Miles;
using ::testing::ElementsAre;

/// The steps as a paper has them.
std::vector<std::string> linesOf(const Working& working)
{
    std::vector<std::string> lines;
    for (const WorkingStep& step : working.steps)
        lines.push_back(step.name + ": " + step.formula + " = " + step.figures + " = " +
                        figureText(step.value, step.unit));
    return lines;
}

/// A dead reckoning's steps, of its latitude too where that is asked for.
std::vector<std::string> reckoned(const ReckonedRun& from, Earth earth, bool latitude,
                                  bool longitude)
{
    const auto north = RunInLatitude(from.start[0], from.course, from.distance, earth);
    Working working;
    if (latitude) addRunInLatitude(working, from, north, earth);
    if (longitude)
        addRunInLongitude(working, from, north,
                          RunInLongitude(from.start[0], from.start[1], from.course, from.distance,
                                         earth, north.reached),
                          earth);
    return linesOf(working);
}

// Worked apart from the program, by Lagrange's formula and the logarithm of the tangent.
TEST(SailingWorking, aReckoningIsShownStepByStep)
{
    EXPECT_THAT(
        reckoned({{DegMin(0), DegMin(170)}, Degrees(0), Miles(60)}, Earth::Spheroid, true, false),
        ElementsAre("Run to the north: r = D cos C / 60 = 60 × cos 0° / 60 = 1.000000°",
                    "Latitude for the length of the minute of latitude: φm = |2 φ1 + r| / 2.05, φ1 "
                    "as it is written = |2 × 0.000000 + 1.000000°| / 2.05 = 0.487805°",
                    "Length of the minute of latitude: m(φm) by Lagrange's formula from 0.99509 at "
                    "0°, 0.99627 at 20°, 0.99924 at 40°, 1.00335 at 65°, 1.00518 at 90° = (0.99509 "
                    "× 0.9512955 + 0.99627 × 0.0883346 + 0.99924 × (-0.0549637) + 1.00335 × "
                    "0.0184145 + 1.00518 × (-0.0030809)) = 0.9950872 miles",
                    "Change of latitude: Δφ = r / m = 1.000000° / 0.9950872 = 1.004937°",
                    "Latitude reached: φ2 = φ1 + Δφ = 0.000000° + 1.004937° = 1.004937°"));
    EXPECT_THAT(
        reckoned({{DegMin(60), DegMin(-179.3)}, Degrees(270), Miles(45.1944)}, Earth::Spheroid,
                 false, true),
        ElementsAre("Length of the minute of longitude divided by cos φ: p(φ1), φ1 as it is "
                    "written by Lagrange's formula from 1.00178 at 0°, 1.00263 at 30°, 1.00432 at "
                    "60°, 1.00513 at 90° = (1.00178 × 0.0000000 + 1.00263 × 0.0000000 + 1.00432 × "
                    "1.0000000 + 1.00513 × 0.0000000) = 1.0043200 miles",
                    "Change of longitude along the parallel, west negative: Δλ = D / (60 cos φ1 p) "
                    "= -45.1944 / (60 × cos 60.000000° × 1.0043200) = -1.500000°",
                    "Longitude reached: λ2 = λ1 + Δλ, less whole turns = (-179.500000°) + "
                    "(-1.500000°) + 360° = 179.000000°"));
    EXPECT_THAT(
        reckoned({{DegMin(0), DegMin(179.3)}, Degrees(45), Miles(84.852813742)}, Earth::Sphere,
                 true, true),
        ElementsAre("Run to the north: r = D cos C / 60 = 84.85281 × cos 45° / 60 = 1.000000°",
                    "Change of latitude: Δφ = r = 1.000000° = 1.000000°",
                    "Latitude reached: φ2 = φ1 + Δφ = 0.000000° + 1.000000° = 1.000000°",
                    "Meridional parts of φ1: M1 = 7915.7 log tan(45° + φ1/2) - 23.1 sin φ1 = "
                    "7915.7 × log tan(45° + 0.000000° / 2) - 23.1 × sin 0.000000° = 0.00000'",
                    "Meridional parts of φ2: M2 = 7915.7 log tan(45° + φ2/2) - 23.1 sin φ2 = "
                    "7915.7 × log tan(45° + 1.000000° / 2) - 23.1 × sin 1.000000° = 59.59986'",
                    "Change of longitude: Δλ = tan C (M2 - M1) / 60 = tan 45° × (59.59986 - "
                    "0.00000) / 60 = 0.993331°",
                    "Longitude reached: λ2 = λ1 + Δλ, less whole turns = 179.500000° + 0.993331° - "
                    "360° = -179.506669°"));
}

TEST(SailingWorking, aLegIsShownStepByStep)
{
    const std::array ends{DegMin(60), DegMin(179), DegMin(60), DegMin(-179)};
    Working working;
    addRhumbLeg(working, ends,
                RhumbCourseAndDistance(ends[0], ends[1], ends[2], ends[3], Earth::Spheroid),
                Earth::Spheroid);
    EXPECT_THAT(
        linesOf(working),
        ElementsAre(
            "Latitude of departure: φ1 = degrees + minutes / 60 = 60 + 0.0 / 60 = 60.000000°",
            "Longitude of departure: λ1 = degrees + minutes / 60 = 179 + 0.0 / 60 = 179.000000°",
            "Latitude of arrival: φ2 = degrees + minutes / 60 = 60 + 0.0 / 60 = 60.000000°",
            "Longitude of arrival: λ2 = degrees + minutes / 60 = -(179 + 0.0 / 60) = -179.000000°",
            "Meridional parts of φ1: M1 = 7915.7 log tan(45° + φ1/2) - 23.1 sin φ1 = 7915.7 × log "
            "tan(45° + 60.000000° / 2) - 23.1 × sin 60.000000° = 4507.36002'",
            "Meridional parts of φ2: M2 = 7915.7 log tan(45° + φ2/2) - 23.1 sin φ2 = 7915.7 × log "
            "tan(45° + 60.000000° / 2) - 23.1 × sin 60.000000° = 4507.36002'",
            "Change of longitude: Δλ = λ2 - λ1, by the shorter way = (-179.000000°) - 179.000000° "
            "+ 360° = 2.000000°",
            "Difference of meridional parts: ΔM = M2 - M1 = 4507.36002 - 4507.36002 = 0.00000'",
            "Course: ΔM = 0: 090° to the east, 270° to the west, 000° without Δλ = Δλ = 2.000000° "
            "= 90.000000°",
            "Latitude for the length of the minute of latitude: φm = |φ1 + φ2| / 2.05 = "
            "|60.000000° + 60.000000°| / 2.05 = 58.536585°",
            "Length of the minute of latitude: m(φm) by Lagrange's formula from 0.99509 at 0°, "
            "0.99627 at 20°, 0.99924 at 40°, 1.00335 at 65°, 1.00518 at 90° = (0.99509 × 0.0310402 "
            "+ 0.99627 × (-0.1751275) + 0.99924 × 0.4587420 + 1.00335 × 0.7196649 + 1.00518 × "
            "(-0.0343196)) = 1.0023853 miles",
            "Length of the minute of longitude divided by cos φ: p(φ1), φ1 as it is written by "
            "Lagrange's formula from 1.00178 at 0°, 1.00263 at 30°, 1.00432 at 60°, 1.00518 at 90° "
            "= (1.00178 × 0.0000000 + 1.00263 × 0.0000000 + 1.00432 × 1.0000000 + 1.00518 × "
            "0.0000000) = 1.0043200 miles",
            "Distance along the parallel: D = 60 |Δλ| cos φ1 p = 60 × |2.000000°| × cos 60.000000° "
            "× 1.0043200 = 60.25920 miles"));
}

TEST(Interpolation, everyEntryStandsWithItsWeight)
{
    const std::vector<TableNode> table{{0, -0.5}, {10, 0}, {20, 1}};
    EXPECT_EQ(lagrangeFigures(table, 5),
              "((-0.5) × 0.3750000 + 0.0 × 0.7500000 + 1.0 × (-0.1250000))");
    const PaperTable weights = lagrangeTable("Table", "m", table, 5);
    EXPECT_THAT(weights.headings, ElementsAre("Entry xi", "y m", "w", "y w m"));
    EXPECT_THAT(weights.rows, ElementsAre(ElementsAre("0°", "-0.5", "0.3750000", "-0.1875000"),
                                          ElementsAre("10°", "0.0", "0.7500000", "0.0000000"),
                                          ElementsAre("20°", "1.0", "-0.1250000", "-0.1250000")));
}

} // namespace
} // namespace korvel
