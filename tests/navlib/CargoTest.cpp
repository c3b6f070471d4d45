// SPDX-License-Identifier: MIT
#include "navlib/cargo.h"

#include "navlib/arithmetic_error.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

namespace NavFunc113
{
namespace
{

constexpr auto edition2004 = CrudeEdition::Of2004;
constexpr double sixthDecimal = 5.0000001e-7;
constexpr double fifthDecimal = 5.0000001e-6;

TEST(Cargo, publishedVolumeCorrectionFactors)
{
    EXPECT_NEAR(VCF54A(1050.0, 55), 0.977582, sixthDecimal);
    EXPECT_NEAR(VCF6A(93.5, 92), 0.972131, sixthDecimal);
    EXPECT_NEAR(VCF6A(141.5 / 1.076 - 131.5, 225), 0.950654, sixthDecimal)
        << "given as a relative density";
    EXPECT_NEAR(VCF54A(870, 45), 0.975496, sixthDecimal);
    EXPECT_NEAR(VCF6A(32.8, 100), 0.9814707, 5.0000001e-8);
    EXPECT_EQ(VCF54A(870, 15), 1);
    EXPECT_EQ(VCF6A(32.8, 60), 1);
}

TEST(Cargo, tableOf54A)
{
    const struct {
        KilogramsPerCubicMetre density15;
        std::array<double, 8> factor; // -10 to 60 degC
    } rows[] = {
        {780, {1.02503, 1.01507, 1.00504, 0.99495, 0.98480, 0.97459, 0.96433, 0.95403}},
        {870, {1.02015, 1.01212, 1.00405, 0.99594, 0.98779, 0.97960, 0.97138, 0.96313}},
        {950, {1.01692, 1.01017, 1.00340, 0.99660, 0.98976, 0.98291, 0.97603, 0.96912}},
    };
    for (const auto& row : rows)
        for (std::size_t i = 0; i < row.factor.size(); ++i)
            EXPECT_NEAR(VCF54A(row.density15, 10.0 * static_cast<double>(i) - 10), row.factor[i],
                        fifthDecimal)
                << row.density15 << " column " << i;
}

TEST(Cargo, tableOf6A)
{
    constexpr std::array<Fahrenheit, 6> temperatures{0, 40, 80, 100, 120, 140};
    const struct {
        APIGravity api;
        KilogramsPerCubicMetre density60;
        std::array<double, 6> factor;
    } rows[] = {
        {20, 933.07, {1.02333, 1.00782, 0.99215, 0.98426, 0.97634, 0.96838}},
        {35, 849.01, {1.02814, 1.00944, 0.99051, 0.98097, 0.97138, 0.96175}},
        {45, 800.91, {1.03158, 1.01060, 0.98933, 0.97860, 0.96781, 0.95697}},
    };
    for (const auto& row : rows) {
        EXPECT_NEAR(Density60FromAPI(row.api), row.density60, 0.005);
        for (std::size_t i = 0; i < temperatures.size(); ++i)
            EXPECT_NEAR(VCF6A(row.api, temperatures[i]), row.factor[i], fifthDecimal)
                << row.api << " at " << temperatures[i];
    }
}

TEST(Cargo, observedDensityAtReferenceTemperature)
{
    EXPECT_NEAR(Density15FromObserved(779.0, 25, ReadWith::Hydrometer), 786.647, 0.0005);
    EXPECT_NEAR(Density15FromObserved(779.0, 25, ReadWith::OtherMeans), 786.826, 0.0005);
    EXPECT_NEAR(API60FromObserved(8.5, 210, ReadWith::Hydrometer), 2.2800, 0.00005);
    EXPECT_NEAR(API60FromObserved(8.5, 210, ReadWith::OtherMeans), 2.0295, 0.00005);
    EXPECT_EQ(Density15FromObserved(860, 15, ReadWith::Hydrometer), 860);

    const KilogramsPerCubicMetre found =
        Density15FromObserved(830, 40, ReadWith::OtherMeans, edition2004);
    EXPECT_NEAR(found * VCF54A(found, 40, edition2004), 830, 1e-5) << "the way back";
    EXPECT_THROW(Density15FromObserved(5, 60, ReadWith::OtherMeans), ArithmeticError)
        << "no density at 15 degC expands to this one";
}

TEST(Cargo, gravityAndDensityAtTheirOwnTemperatures)
{
    const struct {
        KilogramsPerCubicMetre density15;
        APIGravity api;
    } fromDensity[] = {{750, 57.09}, {870, 31.06}, {1000, 9.91}};
    for (const auto& row : fromDensity)
        EXPECT_NEAR(APIFromDensity15(row.density15), row.api, 0.005) << row.density15;

    const struct {
        APIGravity api;
        KilogramsPerCubicMetre density15;
    } fromGravity[] = {{20, 933.436}, {32.8, 860.775}, {45, 801.333}};
    for (const auto& row : fromGravity)
        EXPECT_NEAR(Density15FromAPI(row.api), row.density15, 0.0005) << row.api;

    EXPECT_NEAR(Density60FromAPI(APIFromDensity15(750)), 749.5451, 0.00005);
    EXPECT_NEAR(Density60FromAPI(APIFromDensity15(870)), 869.6079, 0.00005);
    EXPECT_NEAR(Density60FromAPI(32.8), 860.379, 0.0005);
}

TEST(Cargo, editionOf2004)
{
    EXPECT_NEAR(VCF6A(17.785, -27.7, edition2004), 1.033011591958, 5e-13);
    EXPECT_NEAR(VCF6A(-10, 301.93, edition2004), 0.938051116886, 5e-13);
    EXPECT_NEAR(VCF54A(850, 50, edition2004), 0.969994, sixthDecimal);
    EXPECT_NEAR(VCF54A(900, 60, edition2004), 0.965550, sixthDecimal);
    EXPECT_NEAR(VCF54A(850, 50), 0.970009, sixthDecimal);
    EXPECT_NEAR(VCF54A(900, 60), 0.965566, sixthDecimal);
    EXPECT_NEAR(VCF6A(32.8, 60, edition2004), 1, 1e-9);
    EXPECT_NEAR(APIFromDensity15(Density15FromAPI(32.8, edition2004), edition2004), 32.8, 1e-6);
}

TEST(Cargo, rangesOfThePrintedTables)
{
    const struct {
        APIGravity api;
        Fahrenheit temperature;
        bool within;
    } rows6A[] = {{0, 0, true},      {-0.1, 60, false},  {40.04, 300, true}, {40.1, 300, false},
                  {50.0, 250, true}, {50.1, 201, false}, {100, 200, true},   {100.1, 60, false},
                  {30, -0.1, false}, {30, 300.1, false}};
    for (const auto& row : rows6A)
        EXPECT_EQ(WithinTable6A(row.api, row.temperature), row.within)
            << row.api << " at " << row.temperature;
    const struct {
        KilogramsPerCubicMetre density15;
        Celsius temperature;
        bool within;
    } rows54A[] = {{609.9, 15, false},  {610, 93, true},    {779.2, 94, false}, {779.3, 121, true},
                   {824.6, 122, false}, {824.7, 149, true}, {1075, -18, true},  {1075.1, 15, false},
                   {870, 150, false},   {870, -19, false}};
    for (const auto& row : rows54A)
        EXPECT_EQ(WithinTable54A(row.density15, row.temperature), row.within)
            << row.density15 << " at " << row.temperature;
    EXPECT_TRUE(WithinTable54A(870, -50, edition2004));
    EXPECT_FALSE(WithinTable54A(870, 150.1, edition2004));
    EXPECT_TRUE(WithinTable6A(-10, 60, edition2004));
}

TEST(Cargo, kilolitresOfABarrel)
{
    const struct {
        KilogramsPerCubicMetre density15;
        double kilolitres;
    } rows[] = {{750, 0.158891}, {870, 0.158916}, {950, 0.158927}};
    for (const auto& row : rows)
        EXPECT_NEAR(KilolitresPerBarrel(row.density15), row.kilolitres, sixthDecimal);
    EXPECT_NEAR(KilolitresPerBarrel(Density15FromAPI(32.8)), 0.1589141, 5e-8);
}

TEST(Cargo, tons)
{
    EXPECT_NEAR(MassInVacuo(9755, 870), 8486.850, 0.0005);
    EXPECT_NEAR(WeightInAir(9755, 870), 8476.120, 0.00051);
    EXPECT_NEAR(LongTonsOf(WeightInAir(9755, 870)), 8342.252, 0.0005);
    EXPECT_NEAR(MassInVacuo(9755, 870) * Table56Factor(870), 8476.226, 0.0005);
    EXPECT_NEAR(Table56Factor(870), 0.998748, sixthDecimal);
    EXPECT_NEAR(Table56FactorAsPrinted(870), 0.99875, 1e-12);
    // Where the printed table steps from one factor to the next.
    for (double density : {519.1, 542.1, 567.3, 595.0, 625.5, 659.3, 697.0, 739.2, 786.9, 841.1,
                           903.4, 975.6, 1060.4})
        EXPECT_NEAR(Table56FactorAsPrinted(density + 0.1) - Table56FactorAsPrinted(density - 0.1),
                    0.0001, 1e-12)
            << density;
}

TEST(Cargo, whatIsNoOilIsRefused)
{
    EXPECT_THROW(VCF54A(0, 20), ArithmeticError);
    EXPECT_THROW(VCF54A(-870, 20), ArithmeticError);
    EXPECT_THROW(VCF54A(std::nan(""), 20), ArithmeticError);
    EXPECT_THROW(VCF6A(-131.5, 20), ArithmeticError);
    EXPECT_THROW(APIFromDensity60(0), ArithmeticError);
    EXPECT_THROW(Table56FactorAsPrinted(0), ArithmeticError);
    EXPECT_TRUE(std::isfinite(VCF54A(8, -10))) << "half of 870 typed";
}

} // namespace
} // namespace NavFunc113
