// SPDX-License-Identifier: MIT
#include "navlib/great_circle.h"

#include "navlib/sailing.h"

#include "tests/navlib/ByNumbers.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace NavFunc113
{
namespace
{

TEST(GreatCircleTrack, coursesAndVertex)
{
    const struct {
        const char* name;
        double lat1, long1, lat2, long2;
        double initial, final;
        double vertexLat, vertexLong;
        bool onRoute;
    } rows[] = {
        // A published crossing of the North Pacific; the rest are its mirror images and reversals.
        {"westward", 37.49, -122.25, 35.27, 139.39, 303.16, 234.28, 48.359, -169.141, true},
        {"eastward", 35.27, 139.39, 37.49, -122.25, 54.28, 123.16, 48.359, -169.141, true},
        {"south", -37.49, -122.25, -35.27, 139.39, 236.84, 305.72, -48.359, -169.141, true},
        // By hand: course 45 on the equator, so vertex 45 a quarter turn on; sin C cos L is
        // constant.
        {"from the equator", 0, 0, 35.158634, 45, 45, 60, 45, 90, false},
        {"towards the equator", 35.158634, -45, 0, 0, 120, 135, 45, -90, false},
        {"across the equator", 35.158634, -45, -35.158634, 45, 120, 120, 0, 0, false},
        {"meridian northward", 10, 20, 30, 20, 0, 0, 90, 20, false},
        {"meridian southward", -10, 20, -30, 20, 180, 180, -90, 20, false},
        {"over the pole", 50, 20, 40, -160, 0, 180, 90, 20, true},
        {"over the other pole", -50, 20, 40, -160, 180, 0, -90, 20, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const auto track = TrackOfGreatCircle(DegMin(row.lat1), DegMin(row.long1), DegMin(row.lat2),
                                              DegMin(row.long2));
        ASSERT_TRUE(track && track->vertex);
        EXPECT_EQ(track->vertex->onRoute, row.onRoute);
        if (row.initial != 0 || row.final != 0) {
            EXPECT_NEAR(track->initialCourse.value(), row.initial, 0.006);
            EXPECT_NEAR(track->finalCourse.value(), row.final, 0.006);
        }
        if (row.vertexLat != 0) {
            EXPECT_NEAR(track->vertex->lat.packed(), row.vertexLat, 6e-4);
            EXPECT_NEAR(track->vertex->longitude.packed(), row.vertexLong, 6e-4);
        }
    }
    const auto equator = TrackOfGreatCircle(DegMin(0), DegMin(170), DegMin(0), DegMin(-170));
    ASSERT_TRUE(equator);
    EXPECT_EQ(equator->initialCourse, Degrees(90));
    EXPECT_FALSE(equator->vertex);
    EXPECT_FALSE(TrackOfGreatCircle(DegMin(35.305), DegMin(139), DegMin(35.305), DegMin(139)))
        << "equal positions";
    EXPECT_FALSE(TrackOfGreatCircle(DegMin(35.305), DegMin(139), DegMin(-35.305), DegMin(-41)))
        << "opposite positions";
}

TEST(GreatCircleTrack, noMeridianOfTheRouteReachesBeyondTheVertex)
{
    for (const double lat1 : {-60.0, -20.0, 5.0, 45.0})
        for (const double lat2 : {-50.0, 0.0, 33.0, 64.0})
            for (const double change : {-170.0, -35.0, 20.0, 100.0, 175.0}) {
                SCOPED_TRACE(testing::Message() << lat1 << ' ' << lat2 << ' ' << change);
                const auto track =
                    TrackOfGreatCircle(DegMin(lat1), DegMin(0), DegMin(lat2), DegMin(change));
                ASSERT_TRUE(track && track->vertex);
                double farthest = 0;
                for (int i = 0; i <= 1000; ++i) {
                    const double lat = by(GCLatitudeAt)(lat1, 0, lat2, change, change * i / 1000);
                    farthest = std::max(farthest, std::fabs(lat));
                }
                const double most = std::fabs(track->vertex->lat.packed());
                EXPECT_LT(farthest, most + 1e-9);
                if (track->vertex->onRoute) {
                    EXPECT_NEAR(farthest, most, 0.05);
                }
            }
}

} // namespace
} // namespace NavFunc113
