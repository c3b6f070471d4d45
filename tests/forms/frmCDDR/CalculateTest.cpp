// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/CalculateCD.h"
#include "forms/frmCDDR/CalculateDR.h"
#include "forms/frmCDDR/hemisphere.h"

#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;
using ::testing::Not;

TEST(CalculateCD, coursesAndDistances)
{
    for (const Golden& row : golden("course_distance")) {
        const CDResult result =
            CalculateCD({{row.text("lat1"), row.text("long1"), row.text("lat2"), row.text("long2")},
                         row.earth()});
        EXPECT_EQ(result.course, row.text("course")) << row;
        EXPECT_EQ(result.distance, row.text("distance")) << row;
        EXPECT_EQ(result.notice.empty(), !result.distance.empty()) << row << result.notice;
        EXPECT_THAT(result.notice, HasSubstr(row.text("notice"))) << row;
    }
}

TEST(CalculateDR, positionsReached)
{
    for (const Golden& row : golden("dead_reckoning")) {
        const DRResult result = CalculateDR(
            {{row.text("lat"), row.text("long"), row.text("course"), row.text("distance")},
             NavFunc113::Earth::Sphere});
        EXPECT_EQ(result.latitude, row.text("latitude")) << row;
        EXPECT_EQ(result.longitude, row.text("longitude")) << row;
        EXPECT_EQ(result.notice.empty(), !result.longitude.empty()) << row << result.notice;
        EXPECT_THAT(result.notice, HasSubstr(row.text("notice"))) << row;
        EXPECT_THAT(result.notice, Not(HasSubstr("; "))) << row;
    }
}

TEST(CalculateDR, comesBackToWhereTheCourseAndDistanceLead)
{
    for (const auto earth : {NavFunc113::Earth::Sphere, NavFunc113::Earth::Spheroid}) {
        const std::array<std::string, 4> route = {"35.08", "139.46", "37.45", "-122.42"};
        const CDResult cd = CalculateCD({route, earth});
        const DRResult dr =
            CalculateDR({{route[0], route[1], std::to_string(cd.leg->course.value()),
                          std::to_string(cd.leg->distance.value())},
                         earth});
        EXPECT_NEAR(dr.latitudeReached->packed(), 37.45, 0.0005);
        EXPECT_NEAR(dr.longitudeReached->packed(), -122.42, 0.003);
    }
}

TEST(Hemisphere, optionsAndSigns)
{
    EXPECT_EQ(withHemisphere("35.305", false), "-35.305");
    EXPECT_EQ(withHemisphere("-139.45", true), "139.45");
    EXPECT_EQ(withHemisphere("35.305", true), std::nullopt);
    EXPECT_EQ(withHemisphere("-1", false), std::nullopt);
    EXPECT_EQ(withHemisphere("", false), "0");
    EXPECT_EQ(withHemisphere("0", true), std::nullopt);
    EXPECT_EQ(withHemisphere("1", false), "-1");
    EXPECT_EQ(hemisphereOf("-0.1"), false);
    EXPECT_EQ(hemisphereOf("0.5"), true);
    EXPECT_EQ(hemisphereOf("12"), true);
    EXPECT_EQ(hemisphereOf(""), std::nullopt) << "0 has no sign: the choice is kept";
}

} // namespace
} // namespace korvel
