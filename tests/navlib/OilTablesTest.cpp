// SPDX-License-Identifier: MIT
#include "navlib/arithmetic_error.h"
#include "navlib/ship/oil_tables.h"
#include "navlib/ship/vessel_experience.h"

#include <gtest/gtest.h>

namespace NavFunc113
{
namespace
{

/// The tables of 15 degC and those of 60 degF were fitted to the same measurements with constants
/// of their own: a constant, a bound or a group that is wrong in one of them shows against the
/// other.
TEST(OilTables, metricAndAmericanTablesTellTheSameExpansion)
{
    for (const OilTable table : {OilTable::Crude, OilTable::Products, OilTable::Lubricating}) {
        for (double density = 830 - 175 * (table != OilTable::Lubricating); density <= 1070;
             density += 2.3) {
            const Oil oil{table, density};
            const APIGravity api = GravityOfOil(oil);
            for (Celsius t = -15; t <= 75; t += 15) {
                const double metric = CorrectionTo15C(oil, t).factor;
                const double american = CorrectionTo60F(table, api, FahrenheitOfCelsius(t)).factor /
                                        CorrectionTo60F(table, api, 59).factor;
                // Between 770.5 and 787.5 the metric table was not fitted anew.
                const bool isTransition =
                    table == OilTable::Products && density >= 770.5 && density < 787.5;
                EXPECT_NEAR(metric, american, isTransition ? 3e-4 : 4.5e-5)
                    << density << " at " << t;
                const double of2004 = CorrectionTo15C(oil, t, CrudeEdition::Of2004).factor;
                EXPECT_NEAR(american, of2004, 2.6e-5) << density << " at " << t;
            }
        }
    }
}

TEST(OilTables, noProductJumpsAtTheBoundsOfItsGroups)
{
    for (const double bound : {770.5, 787.5, 838.5}) {
        const double below = CorrectionTo15C({OilTable::Products, bound - 1e-9}, 30).factor;
        const double above = CorrectionTo15C({OilTable::Products, bound}, 30).factor;
        EXPECT_NEAR(below, above, 2.1e-5) << bound;
    }
}

// Worked with the constants of the heavier group of each bound, 50 degF above the base.
TEST(OilTables, aBoundOfTheAmericanGroupsBelongsToTheHeavier)
{
    const struct {
        double density60, factor;
    } rows[] = {{838.3127, 0.976342588}, {787.5195, 0.973170057}, {770.352, 0.967672659}};
    for (const auto& [density60, factor] : rows)
        EXPECT_NEAR(CorrectionTo60FOfDensity(OilTable::Products, density60, 110).factor, factor,
                    1e-9)
            << density60;
}

TEST(OilTables, twentyVoyagesAreTheMost)
{
    std::vector<VoyageQuantities> voyages(20, {1001, 1000});
    EXPECT_EQ(VesselExperienceFactor(voyages).counted, 20);
    voyages.push_back({1001, 1000});
    EXPECT_THROW(VesselExperienceFactor(voyages), ArithmeticError);
}

} // namespace
} // namespace NavFunc113
