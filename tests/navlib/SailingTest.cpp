// SPDX-License-Identifier: MIT
#include "navlib/sailing.h"

#include "navlib/angles.h"
#include "tests/navlib/FaultOf.h"

#include "tests/navlib/ByNumbers.h"

#include <gtest/gtest.h>

namespace NavFunc113
{
namespace
{

using Condition = ArithmeticError::Condition;

const auto DRLongitudeBy =
    by(static_cast<DegMin (*)(DegMin, DegMin, Degrees, Miles, Earth)>(DRLongitude));

TEST(Sailing, directionOfTheShorterWay)
{
    const struct {
        double long1, long2;
        double change;
        const char* direction;
    } rows[] = {
        {139, 140, 1, "East"},
        {140, 139, -1, "West"},
        {179, -179, 2, "East"},
        {-179, 179, -2, "West"},
        {10, 10, 0, "West"},
        {180, -180, 0, "West"},
        {-100, 80, 180, "West"},
        {80, -100, -180, "West"},
        {0, 179.59, 179 + 59 / 60.0, "East"},
        {-90, 90.01, -179 - 59 / 60.0, "West"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(testing::Message() << row.long1 << " to " << row.long2);
        EXPECT_NEAR(by(ChangeOfLongitude)(row.long1, row.long2), row.change, 1e-9);
        EXPECT_EQ(NameOf(EastWest(DegMin(row.long1), DegMin(row.long2))), row.direction);
    }
}

TEST(Sailing, factorsOfTheSpheroid)
{
    EXPECT_DOUBLE_EQ(by(LatitudeFactor)(40), 0.99924);
    EXPECT_NEAR(by(LatitudeFactor)(35), 0.9984039259615, 1e-12); // Lagrange, worked independently
    EXPECT_DOUBLE_EQ(by(ParallelFactor)(90), 1.00518);
    EXPECT_NEAR(by(ParallelFactor)(45), 1.003474375, 1e-12);
    EXPECT_NEAR(by(MeridionalParts)(35), 2231.03596135, 1e-8);
    EXPECT_NEAR(by(MeridionalParts)(-60), -4507.36001518, 1e-8);
    EXPECT_EQ(faultOf([] { by(MeridionalParts)(-90); }), Condition::InvalidArgument);
    EXPECT_EQ(faultOf([] { by(MeridionalParts)(91); }), Condition::InvalidArgument);
}

// Ocean passages, worked independently; the noon-report legs are a published worked record.
TEST(Sailing, rhumbLineAndGreatCircleOfPassages)
{
    const struct {
        const char* name;
        double lat1, long1, lat2, long2;
        double course;
        double sphere, spheroid, greatCircle;
    } rows[] = {
        {"eastward across 180", 35.08, 139.46, 37.45, -122.42, 88.09787387, 4730.017542,
         4722.896102, 4468.911943},
        {"westward across 180", 37.49, -122.25, 35.27, 139.39, 268.28, 4737.23, 0, 4471.59},
        {"southern hemisphere", -33.51, 151.13, -33.02, -71.38, 89.59305534, 6899.013698,
         6885.370078, 6116.095677},
        {"across the equator and Greenwich", -33.54, 18.25, 40.42, -74, 310.96410370, 6827.478827,
         6794.065079, 6778.159624},
        {"first day of the record", 35, 142, 36.30, 148.15, 73.6, 318.65, 0, 0},
        {"date line of the record", 40, 178.30, 40.30, -174.50, 84.4, 307.96, 0, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.name);
        const bool exact = row.spheroid != 0;
        EXPECT_NEAR(by(RhumbCourse)(row.lat1, row.long1, row.lat2, row.long2), row.course,
                    exact ? 1e-8 : 0.05);
        EXPECT_NEAR(by(RhumbDistance)(row.lat1, row.long1, row.lat2, row.long2, 0), row.sphere,
                    exact ? 1e-6 : 0.005);
        if (exact) {
            EXPECT_NEAR(by(RhumbDistance)(row.lat1, row.long1, row.lat2, row.long2, 1),
                        row.spheroid, 1e-6);
        }
        if (row.greatCircle != 0) {
            EXPECT_NEAR(by(GCDistance)(row.lat1, row.long1, row.lat2, row.long2), row.greatCircle,
                        exact ? 1e-6 : 0.005);
        }
    }
}

TEST(Sailing, rhumbLineOfSpecialCases)
{
    const struct {
        const char* fault;
        double lat1, long1, lat2, long2;
        double course;
        double sphere, spheroid;
    } rows[] = {
        {"equal positions", 35.305, 139, 35.305, 139, 0, 0, 0},
        {"equator eastward", 0, 10, 0, 11, 90, 60, 60.1068},
        {"equator westward", 0, 11, 0, 10, 270, 60, 60.1068},
        {"180 taken the long way", 60, 179, 60, -179, 90, 60, 60.2592},
        {"180 apart on a parallel", 60, -100, 60, 80, 270, 5400, 5423.328},
        {"meridian north", 10, 5, 11, 5, 0, 60, 0},
        {"meridian south", 11, 5, 10, 5, 180, 60, 0},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_EQ(by(RhumbCourse)(row.lat1, row.long1, row.lat2, row.long2), row.course);
        EXPECT_NEAR(by(RhumbDistance)(row.lat1, row.long1, row.lat2, row.long2, 0), row.sphere,
                    1e-9);
        if (row.lat1 == row.lat2) {
            EXPECT_NEAR(by(RhumbDistance)(row.lat1, row.long1, row.lat2, row.long2, 1),
                        row.spheroid, 1e-9);
        }
    }
    EXPECT_EQ(by(RhumbCourse)(0, 0, 80, -1e-15), 0) << "360 is not below 360";
    EXPECT_EQ(faultOf([] { by(RhumbCourse)(0, 0, -90, 10); }), Condition::InvalidArgument);
}

TEST(Sailing, deadReckoning)
{
    const struct {
        const char* fault;
        double lat, longitude;
        double course;
        double distance;
        int spheroid;
        double latReached, longReached;
    } rows[] = {
        {"minutes do not carry at 60", 35.55, 10, 0, 10, 0, 36.05, 10},
        {"sign lost across the equator", 0.10, 10, 180, 20, 0, -0.10, 10},
        {"2 for 2.05 in the table lookup", 45.30, 10, 0, 600, 1, 55.29516, 10},
        {"not under way", 35.305, 200, 45, 0, 1, 35.305, 200},
        {"across 180 eastward", 0, 179.30, 90, 60, 0, 0, -179.30},
        {"across 180 westward", 60, -179.30, 270, 60, 0, 60, 178.30},
        {"dead reckoning's own factors", 60, 0, 90, 45.1944, 1, 60, 1.30},
        {"several times round the earth", 89.50, 10, 90, 10800, 0, 89.50, -30.282516},
        {"course 360", 10, 20, 360, 60, 0, 11, 20},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        EXPECT_NEAR(by(DRLatitude)(row.lat, row.course, row.distance, row.spheroid), row.latReached,
                    5e-6);
        EXPECT_NEAR(DRLongitudeBy(row.lat, row.longitude, row.course, row.distance, row.spheroid),
                    row.longReached, 5e-6);
    }
    EXPECT_NEAR(by(DRLatitude)(89, 0, 120, 0), 91, 1e-9) << "the caller decides about the pole";
    EXPECT_EQ(faultOf([] { DRLongitudeBy(89, 0, 10, 120, 0); }), Condition::InvalidArgument);
    EXPECT_EQ(faultOf([] { DRLongitudeBy(-90, 0, 270, 1, 0); }), Condition::DivisionByZero);
    // 1.00513 at the pole instead of 1.00518: the run comes out longer
    EXPECT_NEAR(DRLongitudeBy(80, 0, 90, 100, 1), 9.329755, 5e-6);
}

TEST(Sailing, aRunMeasuredComesBackAsItsCourseAndDistance)
{
    for (const double lat : {-59.30, -20.155, 0.0, 0.05, 33.45, 58.0})
        for (const double longitude : {-179.50, -0.10, 0.0, 139.45, 180.0})
            for (const double course : {0.5, 45.0, 89.0, 135.0, 180.5, 226.0, 271.0, 359.0}) {
                SCOPED_TRACE(testing::Message() << lat << ' ' << longitude << ' ' << course);
                const double lat2 = by(DRLatitude)(lat, course, 333, 0);
                const double long2 = DRLongitudeBy(lat, longitude, course, 333, 0);
                EXPECT_NEAR(by(RhumbCourse)(lat, longitude, lat2, long2), course, 1e-8);
                EXPECT_NEAR(by(RhumbDistance)(lat, longitude, lat2, long2, 0), 333, 1e-6);
            }
}

TEST(Sailing, greatCircleDistanceOfSpecialCases)
{
    EXPECT_NEAR(by(GCDistance)(30, 170, 30, -10), 7200, 1e-9) << "180 apart, over the pole";
    EXPECT_NEAR(by(GCDistance)(-45, -135, -45, 45), 5400, 1e-9) << "180 apart, over the other pole";
    EXPECT_NEAR(by(GCDistance)(0, 0, 0, 180), 10800, 1e-9);
}

TEST(Sailing, greatCircleCrossesMeridians)
{
    // On the circle both ways round, in both hemispheres, and across 180: the ends and, where the
    // circle is symmetrical, its middle. tan(mid) = tan(end) / cos(half the change of longitude).
    EXPECT_NEAR(by(GCLatitudeAt)(35, 170, 35, -150, -170), 36.414878, 5e-6);
    EXPECT_NEAR(by(GCLatitudeAt)(-35, 10, -35, -30, -10), -36.414878, 5e-6);
    EXPECT_NEAR(by(GCLatitudeAt)(-33.54, 18.25, 40.42, -74, -74), 40.42, 1e-9);
    EXPECT_NEAR(by(GCLatitudeAt)(0, 10, 0, 50, 20), 0, 1e-9);
    EXPECT_NEAR(by(GCLatitudeAt)(20, 10, 30, 10, 10), 20, 1e-9)
        << "along a meridian: the departure";
}

} // namespace
} // namespace NavFunc113
