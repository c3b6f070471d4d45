// SPDX-License-Identifier: MIT
#include "navlib/sight_reduction.h"

#include "navlib/angles.h"

#include "tests/navlib/ByNumbers.h"

#include <gtest/gtest.h>

#include <cmath>

namespace NavFunc113
{
namespace
{

TEST(SightReduction, computedAltitudeAndAzimuth)
{
    const struct {
        const char* fault;
        double GHA, declination, latitude, longitude, altitude;
        double azimuth;
    } rows[] = {
        {"east longitude subtracted", 341.59, -10, 35, 18, 45, 179.98},
        {"E1 morning", 357.132, -23.226, 14.02, -52.11, 24.313, 124.3},
        {"E1 west of the meridian", 53.243, -23.228, 14.0252, -52.417, 52.3429, 181.1},
        {"E5 afternoon, west", 122.303, 21.448, 32, -80, 50.594, 265.6},
        {"negative hour angle", -2.468, -23.226, 14.02, -52.11, 24.313, 124.3},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        const double altitude =
            by(ComputedAltitude)(row.GHA, row.declination, row.latitude, row.longitude);
        EXPECT_NEAR(60 * (by(DegMinToDeg)(altitude) - by(DegMinToDeg)(row.altitude)), 0, 0.1);
        EXPECT_NEAR(by(ComputedAzimuth)(row.GHA, row.declination, row.latitude, row.longitude),
                    row.azimuth, 0.06);
    }
    EXPECT_NEAR(by(ComputedAltitude)(0, 20, 35, 0), 75, 1e-9) << "on the meridian";
    EXPECT_THROW(by(ComputedAltitude)(0, 0, 0, 0), ArithmeticError) << "the Sun in the zenith";
    EXPECT_THROW(by(ComputedAzimuth)(270, 0, 0, 30), ArithmeticError) << "due east, exactly";
}

TEST(SightReduction, altitudeCorrection)
{
    const struct {
        const char* fault;
        double observed;
        float month;
        double eye, air, sea;
        float pressure;
        double minutes; ///< the whole correction, worked by hand
    } rows[] = {
        {"neutral bands at a node", 34.00, 7, 16, 10, 10, 1013, -7.104 - 1.43 + 15.75 + 0.12436},
        {"January, hot, high pressure", 10.00, 1, 0, 30, 30, 1040,
         -5.3 + 15.75 + 0.14772 + 0.5 - 0.04444 + 0.5},
        {"pressure beyond the last band counts again", 10.00, 1, 0, 10, 10, 1050,
         -5.3 + 15.75 + 0.14772 + 0.5},
        {"temperature above 30 degrees of altitude", 46.00, 6, 0, 30, 28, 960,
         -0.933 + 15.75 + 0.10420 + 0.4},
        {"warm air at a node", 10.00, 4, 4, 17, 17, 984.9f,
         -3.552 - 5.3 + 15.75 + 0.14772 + 0.25 + 0.1 + 0.2},
        {"frost", 10.00, 12, 0, -5.1, -5.1, 1000, -5.3 + 15.75 + 0.14772 - 0.3 + 0.5},
        {"air colder than the sea", 34.00, 7, 0, 5, 15, 1000, -1.43 + 15.75 + 0.12436 - 2},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.fault);
        const DegMin corrected = SunAltitudeCorrection(
            DegMin(row.observed), row.month, Metres(row.eye), row.air, row.sea, row.pressure);
        EXPECT_NEAR(60 * (DegMinToDeg(corrected).value() - by(DegMinToDeg)(row.observed)),
                    row.minutes, 0.002);
    }
}

TEST(SightReduction, tablesTakeThePackedAltitude)
{
    // 34.30 and 34 degrees 30 are looked up apart; a table in true degrees would give 1.40.
    const double refraction =
        SunAltitudeTerms(DegMin(34.30), 7, Metres(0), 10, 10, 1013).refraction;
    EXPECT_NEAR(refraction, 1.415, 0.003);
    EXPECT_EQ(SunAltitudeTerms(DegMin(30), 7, Metres(0), 30, 30, 1013).temperature, 0.1)
        << "30 itself counts";
    EXPECT_THROW(SunAltitudeCorrection(DegMin(30), 13, Metres(0), 10, 10, 1013), ArithmeticError);
    EXPECT_THROW(SunAltitudeCorrection(DegMin(30), 0.5f, Metres(0), 10, 10, 1013), ArithmeticError);
    EXPECT_THROW(SunAltitudeCorrection(DegMin(30), 6, Metres(-1), 10, 10, 1013), ArithmeticError);
}

TEST(SightReduction, meanRefraction)
{
    // The altitude correction tables of the Nautical Almanac, minutes.
    const struct {
        double altitude, refraction;
    } rows[] = {{0, 34.5}, {1, 24.3}, {5, 9.9}, {10, 5.3}, {30, 1.7}, {45, 1.0}, {70, 0.4}};
    for (const auto& [altitude, refraction] : rows)
        EXPECT_NEAR(MeanRefraction(Degrees(altitude)), refraction, 0.1) << altitude;
    EXPECT_EQ(MeanRefraction(Degrees(90)), 0);
}

} // namespace
} // namespace NavFunc113
