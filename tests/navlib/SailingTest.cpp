// SPDX-License-Identifier: MIT
#include "navlib/sailing/sailing.h"

#include "navlib/angles.h"
#include "navlib/sailing/great_circle.h"
#include "navlib/sailing/great_circle_arc.h"

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

TEST(GreatCircleArc, itsPointsAndCoursesAreThoseOfTheTrack)
{
    for (const double lat1 : {-60.0, 5.3, 45.0})
        for (const double lat2 : {-50.15, 0.0, 64.0})
            for (const double change : {-170.0, -35.0, 20.0, 175.0}) {
                SCOPED_TRACE(::testing::Message() << lat1 << ' ' << lat2 << ' ' << change);
                const GeoPoint from{DegMin(lat1), DegMin(10)};
                const GeoPoint to{DegMin(lat2), DegMin(change < -169 ? -160 : 10 + change)};
                const GreatCircleArc arc(from, to);
                const auto track =
                    TrackOfGreatCircle(from.lat, from.longitude, to.lat, to.longitude);
                ASSERT_TRUE(track);
                EXPECT_NEAR(arc.courseAt(Degrees(0)).value(), track->initialCourse.value(), 1e-9);
                EXPECT_NEAR(arc.courseAt(arc.arc()).value(), track->finalCourse.value(), 1e-9);
                const Degrees run = arc.arc() * 0.3;
                const GeoPoint point = arc.pointAt(run);
                EXPECT_NEAR(
                    GCDistance(from.lat, from.longitude, point.lat, point.longitude).value(),
                    60 * run.value(), 1e-6);
                EXPECT_NEAR(arc.latitudeAt(point.longitude)->packed(), point.lat.packed(), 1e-9);
                const auto runs = arc.runsAt(point.lat);
                ASSERT_TRUE(runs);
                EXPECT_LT(std::min(fabs(WithinHalfTurn((*runs)[0] - run)),
                                   fabs(WithinHalfTurn((*runs)[1] - run)))
                              .value(),
                          1e-6);
            }
    // Over the pole it touches the parallel of its vertex, and crosses none beyond it.
    const auto touching =
        GreatCircleArc({DegMin(0), DegMin(10)}, {DegMin(60), DegMin(10)}).runsAt(DegMin(90));
    ASSERT_TRUE(touching);
    EXPECT_NEAR((*touching)[0].value(), 90, 1e-5);
    EXPECT_NEAR((*touching)[1].value(), 90, 1e-5);
    EXPECT_FALSE(
        GreatCircleArc({DegMin(40), DegMin(0)}, {DegMin(40), DegMin(5)}).runsAt(DegMin(50)));
    const GeoPoint equator{DegMin(0), DegMin(0)};
    const auto vertexAtPole = GreatCircleArc(equator, {DegMin(90), DegMin(0)}).runsAt(DegMin(90));
    ASSERT_TRUE(vertexAtPole);
    EXPECT_EQ((*vertexAtPole)[0], Degrees(90));
    const auto across = GreatCircleArc({DegMin(-10), DegMin(0)}, {DegMin(10), DegMin(0)});
    EXPECT_NEAR((*across.runsAt(DegMin(0)))[0].value(), 10, 1e-9) << "northbound, then back";
    EXPECT_NEAR((*across.runsAt(DegMin(0)))[1].value(), 190, 1e-9);
    const GreatCircleArc opposite({DegMin(10), DegMin(20)}, {DegMin(-10), DegMin(-160)});
    EXPECT_NEAR(opposite.pointAt(Degrees(120)).longitude.packed(), 20, 1e-9) << "nowhere leads on";
    EXPECT_FALSE(across.latitudeAt(DegMin(0))) << "a meridian has no one latitude on itself";
    EXPECT_FALSE(GreatCircleArc(equator, {DegMin(0), DegMin(90)}).runsAt(DegMin(0)));
    EXPECT_FALSE(GreatCircleArc(equator, equator).latitudeAt(DegMin(20)));
    EXPECT_FALSE(GreatCircleArc(equator, equator).runsAt(DegMin(0)));
    // Sixty degrees of a meridian: the mean length of the minute in the middle of each five.
    double minutes = 0;
    for (double middle = 2.5; middle < 60; middle += 5)
        minutes += 300 * LatitudeFactor(Degrees(middle));
    EXPECT_NEAR(GreatCircleArc(equator, {DegMin(60), DegMin(0)}).distance(Earth::Spheroid).value(),
                minutes, 1e-9);
    const GeoPoint here{DegMin(35.305), DegMin(139)};
    EXPECT_EQ(GreatCircleArc(here, here).distance(Earth::Spheroid), Miles(0));
    EXPECT_FALSE(GreatCircleArc(here, {DegMin(-35.305), DegMin(-41)}).isDefined());
    // Some centimetres, where the cosine of the distance is 1.
    EXPECT_NEAR(
        GreatCircleArc(here, {DegMin(35.3050001), DegMin(139)}).distance(Earth::Sphere).value(),
        1e-5, 1e-9);
}

} // namespace
} // namespace NavFunc113
