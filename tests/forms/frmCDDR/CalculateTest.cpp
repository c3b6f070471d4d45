// SPDX-License-Identifier: MIT
#include "forms/frmCDDR/CalculateCD.h"
#include "forms/frmCDDR/CalculateDR.h"
#include "forms/frmCDDR/hemisphere.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

TEST(CalculateCD, coursesAndDistances)
{
    const struct {
        const char* fault;
        std::array<std::string, 4> boxes;
        int spheroid;
        const char* course;
        const char* distance;
    } rows[] = {
        {"equal positions", {"35.305", "139.45", "35.305", "139.45"}, 0, "<000.0>", "0'.0"},
        {"wrong way across 180", {"0", "179", "0", "-179"}, 0, "<090.0>", "120'.0"},
        {"parallel of 60", {"60", "10", "60", "12"}, 0, "<090.0>", "60'.0"},
        {"spheroid left out", {"60", "10", "60", "12"}, 1, "<090.0>", "60'.3"},
        {"empty boxes are 0", {"", "", "1", ""}, 0, "<000.0>", "60'.0"},
        {"bounds are in range", {"90", "180", "-89.599", "-180"}, 0, "<180.0>", "10799'.9"},
        {"just beyond", {"90.001", "0", "0", "0"}, 0, "", ""},
        {"last box beyond", {"0", "0", "0", "180.01"}, 0, "", ""},
        {"letters", {"abc", "0", "1", "0"}, 0, "", ""},
        {"southward", {"5", "20", "-5", "20"}, 0, "<180.0>", "600'.0"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        const CDResult result = CalculateCD({row.boxes, row.spheroid});
        EXPECT_EQ(result.course, row.course);
        EXPECT_EQ(result.distance, row.distance);
    }
}

TEST(CalculateDR, positionsReached)
{
    const struct {
        const char* fault;
        std::array<std::string, 4> boxes;
        const char* latitude;
        const char* longitude;
    } rows[] = {
        {"not under way", {"35.305", "139.452", "45", "0"}, "35-.30'5N", "139-.45'2E"},
        {"across the equator", {"0.10", "0", "180", "20"}, "00-.10'0S", "000-.00'0E"},
        {"across 180", {"0", "179.30", "90", "60"}, "00-.00'0N", "179-.30'0W"},
        {"course 360 is accepted", {"10", "10", "360", "60"}, "11-.00'0N", "010-.00'0E"},
        {"course beyond 360", {"10", "10", "360.1", "60"}, "", ""},
        {"half the earth is accepted", {"-90", "0", "0", "10800"}, "90-.00'0N", ""},
        {"beyond half the earth", {"0", "0", "90", "10801"}, "", ""},
        {"pole crossed", {"89", "0", "0", "120"}, "91-.00'0N", ""},
        {"negative course", {"0", "0", "-1", "10"}, "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        const DRResult result = CalculateDR({row.boxes, 0});
        EXPECT_EQ(result.latitude, row.latitude);
        EXPECT_EQ(result.longitude, row.longitude);
        EXPECT_EQ(result.notice.empty(), result.latitude.empty() || !result.longitude.empty());
    }
}

TEST(CalculateDR, comesBackToWhereTheCourseAndDistanceLead)
{
    for (int spheroid : {0, 1}) {
        const std::array<std::string, 4> route = {"35.08", "139.46", "37.45", "-122.42"};
        const CDResult cd = CalculateCD({route, spheroid});
        const DRResult dr = CalculateDR(
            {{route[0], route[1], std::to_string(*cd.courseDegrees), std::to_string(*cd.miles)},
             spheroid});
        EXPECT_NEAR(*dr.latitudeReached, 37.45, 0.0005);
        EXPECT_NEAR(*dr.longitudeReached, -122.42, 0.003);
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
    EXPECT_EQ(hemisphereOf("-0.1"), false);
    EXPECT_EQ(hemisphereOf("12"), true);
    EXPECT_EQ(hemisphereOf(""), std::nullopt) << "0 has no sign: the choice is kept";
}

} // namespace
} // namespace korvel
