// SPDX-License-Identifier: MIT
#include "navlib/sailing.h"

#include "navlib/great_circle.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace NavFunc113
{
namespace
{

TEST(Sailing, aRunMeasuredComesBackAsItsCourseAndDistance)
{
    const Miles run(333);
    for (const double lat : {-59.30, -20.155, 0.0, 0.05, 33.45, 58.0})
        for (const double longitude : {-179.50, -0.10, 0.0, 139.45, 180.0})
            for (const double course : {0.5, 45.0, 89.0, 135.0, 180.5, 226.0, 271.0, 359.0}) {
                SCOPED_TRACE(::testing::Message() << lat << ' ' << longitude << ' ' << course);
                const DegMin lat1(lat), long1(longitude);
                const Degrees steered(course);
                const DegMin lat2 = DRLatitude(lat1, steered, run, Earth::Sphere);
                const DegMin long2 = DRLongitude(lat1, long1, steered, run, Earth::Sphere);
                const RhumbLeg leg =
                    RhumbCourseAndDistance(lat1, long1, lat2, long2, Earth::Sphere);
                EXPECT_NEAR(leg.course.value(), course, 1e-8);
                EXPECT_NEAR(leg.distance.value(), run.value(), 1e-6);
                EXPECT_EQ(RhumbCourse(lat1, long1, lat2, long2), leg.course);
                EXPECT_EQ(RhumbDistance(lat1, long1, lat2, long2, Earth::Sphere), leg.distance);
            }
}

TEST(GreatCircleTrack, noMeridianOfTheRouteReachesBeyondTheVertex)
{
    for (const double lat1 : {-60.0, -20.0, 5.0, 45.0})
        for (const double lat2 : {-50.0, 0.0, 33.0, 64.0})
            for (const double change : {-170.0, -35.0, 20.0, 100.0, 175.0}) {
                SCOPED_TRACE(::testing::Message() << lat1 << ' ' << lat2 << ' ' << change);
                const DegMin from(lat1), to(lat2), meridian(change);
                const auto track = TrackOfGreatCircle(from, {}, to, meridian);
                ASSERT_TRUE(track && track->vertex);
                const GreatCircle circle(from, {}, to, meridian);
                double farthest = 0;
                for (int i = 0; i <= 1000; ++i) {
                    const DegMin lat = circle.latitudeAt(DegMin(change * i / 1000));
                    farthest = std::max(farthest, std::fabs(lat.packed()));
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
