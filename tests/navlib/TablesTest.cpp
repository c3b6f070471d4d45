// SPDX-License-Identifier: MIT
#include "navlib/arithmetic_error.h"
#include "navlib/datetime.h"
#include "navlib/sea/weather_terms.h"
#include "navlib/ship/cargo.h"
#include "navlib/ship/oil_tables.h"
#include "navlib/ship/unit_tables.h"
#include "navlib/ship/vessel_experience.h"
#include "navlib/sky/ephemeris_series.h"

#include <gtest/gtest.h>

#include <set>
#include <span>
#include <string>

namespace NavFunc113
{
namespace
{

TEST(UnitTables, everyUnitGoesThereAndBackAndCanBeToldApart)
{
    const UnitConditions known{991, 9000, 24};
    for (int each = 0; each < quantities; ++each) {
        const auto quantity = static_cast<Quantity>(each);
        std::set<std::string_view> captions;
        std::set<std::string_view> symbols;
        for (const Unit& from : UnitTable(quantity)) {
            EXPECT_TRUE(captions.insert(from.caption).second) << from.caption;
            EXPECT_TRUE(symbols.insert(from.symbol).second) << from.symbol;
            EXPECT_FALSE(from.definition.empty()) << from.caption;
            for (const Unit& to : UnitTable(quantity))
                EXPECT_NEAR(ConvertUnits(ConvertUnits(12.5, from, to, known), to, from, known),
                            12.5, quantity == Quantity::Temperature ? 2e-11 : 1e-12)
                    << from.caption << ", " << to.caption;
        }
    }
}

TEST(WeatherTerms, lettersStandInTheOrderOfTheButtons)
{
    std::string order;
    for (const WeatherLetter& row : WeatherLetters())
        order += std::string(row.letter) + ' ';
    EXPECT_EQ(order, "b bc c d e f g h l m o p q r s t u v w z ");
}

TEST(Datetime, everyMinuteOfADaySurvivesItsFraction)
{
    for (int minute = 0; minute < 1440; ++minute) {
        const TimeOfDay time = TimeOf(38000 + minute / 1440.0);
        ASSERT_EQ(time.hour * 60 + time.minute, minute);
        ASSERT_EQ(time.second, 0);
    }
}

TEST(Cargo, observedDensitiesAndGravitiesLeadBack)
{
    for (const auto edition : {CrudeEdition::Of1980, CrudeEdition::Of2004})
        for (const double density : {650.0, 830.0, 990.0}) {
            const double found = Density15FromObserved(density, 40, ReadWith::OtherMeans, edition);
            EXPECT_NEAR(found * VCF54A(found, 40, edition), density, 1e-5);
            EXPECT_NEAR(Density15FromAPI(APIFromDensity15(density, edition), edition), density,
                        1e-5);
        }
}

TEST(EphemerisSeries, holdEveryTerm)
{
    // Sums of a column made apart from the tables: a digit lost in any row shows.
    const auto sum = [](std::span<const SeriesTerm> terms, auto column) {
        double total = 0;
        for (const SeriesTerm& term : terms)
            total += term.*column;
        return total;
    };
    const struct {
        std::span<const SeriesTerm> terms;
        double amplitude, power, rate, phase;
    } rows[] = {
        {sunLongitudeTerms, 1.9428, 1, 865446.20, 3014.14},
        {sunDistanceTerms, 0.016876, 1, 723502.10, 1519.06},
        {moonLongitudeTerms, 9.2098, 0, 48731502.128, 9320.463},
        {moonLatitudeTerms, 0.9556, 0, 40229453.34, 6791.68},
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(sum(row.terms, &SeriesTerm::amplitude), row.amplitude, 1e-9);
        EXPECT_EQ(sum(row.terms, &SeriesTerm::power), row.power);
        EXPECT_NEAR(sum(row.terms, &SeriesTerm::rate), row.rate, 1e-4);
        EXPECT_NEAR(sum(row.terms, &SeriesTerm::phase), row.phase, 1e-6);
    }
}

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
