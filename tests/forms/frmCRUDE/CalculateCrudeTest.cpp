// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/CalculateCrude.h"

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

CrudeInput metricCargo()
{
    CrudeInput input;
    input.volume = "10000";
    input.temperature = "45";
    input.density = "870.0";
    return input;
}

CrudeInput americanCargo()
{
    CrudeInput input;
    input.volume = "500000";
    input.volumeUnit = VolumeUnit::Barrels;
    input.temperature = "100";
    input.temperatureUnit = TemperatureUnit::Fahrenheit;
    input.density = "32.8";
    input.densityBase = DensityBase::API60;
    return input;
}

TEST(CalculateCrude, metricCargoFigureByFigure)
{
    CrudeInput input = metricCargo();
    const CrudeResult cargo = CalculateCrude(input);
    EXPECT_EQ(cargo.vcf, "0.97550");
    EXPECT_EQ(cargo.vcfMethod, "Table 54A, 1980, 15 °C");
    EXPECT_EQ(cargo.rangeFlag, "");
    EXPECT_EQ(cargo.density15, "870.0");
    EXPECT_EQ(cargo.api60, "31.06");
    EXPECT_EQ(cargo.grossObserved, "10000.000");
    EXPECT_EQ(cargo.grossStandard, "9755.000");
    EXPECT_EQ(cargo.netStandard, "9755.000");
    EXPECT_EQ(cargo.standardMethod, "kL at 15 °C");
    EXPECT_EQ(cargo.kilolitres15, "9755.000");
    EXPECT_EQ(cargo.barrels15, "61357.10");
    EXPECT_EQ(cargo.barrels60, "61384.77");
    EXPECT_EQ(cargo.metricTonsInVacuo, "8486.850");
    EXPECT_EQ(cargo.metricTonsInAir, "8476.120");
    EXPECT_EQ(cargo.longTonsInAir, "8342.252");
    EXPECT_EQ(cargo.weightMethod, "density - 1.1");
    EXPECT_EQ(cargo.kilolitres, "9755.000");
    EXPECT_EQ(cargo.barrels, "61356.06") << "by 0.15899";
    EXPECT_EQ(cargo.barrelsMethod, "= kL / 0.15899 (by density 0.1589156)");
    EXPECT_EQ(cargo.notice, "");

    input.weightRule = WeightRule::Table56Exact;
    EXPECT_EQ(CalculateCrude(input).metricTonsInAir, "8476.226");
    input.weightRule = WeightRule::Table56Printed;
    EXPECT_EQ(CalculateCrude(input).metricTonsInAir, "8476.241") << "8486.85 x 0.99875";
    input.edition = NavFunc113::CrudeEdition::Of2004;
    input.density = "850";
    input.temperature = "50";
    EXPECT_EQ(CalculateCrude(input).vcf, "0.96999");
    EXPECT_EQ(CalculateCrude(input).vcfMethod, "Table 54A, 2004, 15 °C");
}

TEST(CalculateCrude, americanCargoFigureByFigure)
{
    CrudeInput input = americanCargo();
    const struct {
        int decimals;
        const char *vcf, *barrels60, *kilolitres60, *kilolitres15, *inVacuo, *inAir, *longTons;
    } rows[] = {
        {5, "0.98147", "490735.00", "78020.630", "77984.708", "67127.278", "67041.495",
         "65982.677"},
        {4, "0.9815", "490750.00", "78023.015", "77987.091", "67129.330", "67043.544", "65984.693"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.decimals);
        input.vcfDecimals = row.decimals;
        const CrudeResult cargo = CalculateCrude(input);
        EXPECT_EQ(cargo.vcf, row.vcf);
        EXPECT_EQ(cargo.grossStandard, row.barrels60);
        EXPECT_EQ(cargo.barrels, row.barrels60);
        EXPECT_EQ(cargo.barrels60, row.barrels60);
        EXPECT_EQ(cargo.kilolitres60, row.kilolitres60);
        EXPECT_EQ(cargo.kilolitres15, row.kilolitres15);
        EXPECT_EQ(cargo.metricTonsInVacuo, row.inVacuo);
        EXPECT_EQ(cargo.metricTonsInAir, row.inAir);
        EXPECT_EQ(cargo.longTonsInAir, row.longTons);
        EXPECT_EQ(cargo.density15, "860.775");
        EXPECT_EQ(cargo.vcfMethod, "Table 6A, 1980, 60 °F");
    }
}

TEST(CalculateCrude, theFactorIsTheOfficersAndTonsDoNotFollowIt)
{
    CrudeInput input = americanCargo();
    const CrudeResult byDefault = CalculateCrude(input);
    EXPECT_EQ(byDefault.kilolitres, "78021.958") << "490735 x 0.15899";
    EXPECT_EQ(byDefault.kilolitresMethod, "= bbl x 0.15899 (by density 0.1589141)");

    EXPECT_EQ(KLPerBarrelFromDensity(input), "0.1589141");
    input.klPerBarrel = KLPerBarrelFromDensity(input);
    const CrudeResult byDensity = CalculateCrude(input);
    EXPECT_EQ(byDensity.kilolitres, "77984.711") << "490735 x 0.1589141";
    EXPECT_EQ(byDensity.metricTonsInAir, byDefault.metricTonsInAir);

    for (const char* refused : {"0.1579", "0.1601", "", "x"}) {
        input.klPerBarrel = refused;
        const CrudeResult without = CalculateCrude(input);
        EXPECT_EQ(without.kilolitres, "");
        EXPECT_EQ(without.barrels, "490735.00");
        EXPECT_EQ(without.metricTonsInAir, byDefault.metricTonsInAir);
        EXPECT_NE(without.notice.find("KL/Bbl must be 0.158 to 0.160"), std::string::npos);
    }
    input.density = "";
    EXPECT_EQ(KLPerBarrelFromDensity(input), "");
}

TEST(CalculateCrude, unitsMixFreely)
{
    CrudeInput barrels = metricCargo(); // the metric cargo, measured in barrels
    barrels.volume = "62898.10770432";
    barrels.volumeUnit = VolumeUnit::Barrels;
    barrels.temperature = "113";
    barrels.temperatureUnit = TemperatureUnit::Fahrenheit;
    const CrudeResult cargo = CalculateCrude(barrels);
    EXPECT_EQ(cargo.vcf, "0.97550");
    EXPECT_EQ(cargo.grossStandard, "61357.10");
    EXPECT_EQ(cargo.standardMethod, "bbl at 15 °C");
    EXPECT_EQ(cargo.kilolitres15, "9755.000");

    CrudeInput kilolitres = americanCargo();
    kilolitres.volume = "79493.647464";
    kilolitres.volumeUnit = VolumeUnit::Kilolitres;
    EXPECT_EQ(CalculateCrude(kilolitres).grossStandard, "78020.630");
    EXPECT_EQ(CalculateCrude(kilolitres).metricTonsInAir, "67041.495");
}

TEST(CalculateCrude, freeWaterBeforeSedimentAndWaterAfterTheFactor)
{
    CrudeInput input = metricCargo();
    input.volume = "10100";
    input.freeWater = "100";
    input.sedimentAndWater = "0.5";
    const CrudeResult cargo = CalculateCrude(input);
    EXPECT_EQ(cargo.grossObserved, "10000.000");
    EXPECT_EQ(cargo.grossStandard, "9755.000");
    EXPECT_EQ(cargo.netStandard, "9706.225");
    EXPECT_EQ(cargo.kilolitres, "9706.225");
    EXPECT_EQ(cargo.metricTonsInVacuo, "8444.416");
}

TEST(CalculateCrude, observedDensity)
{
    CrudeInput input = metricCargo();
    input.density = "779.0";
    input.densityObserved = true;
    input.observedTemperature = "25";
    EXPECT_EQ(CalculateCrude(input).density15, "786.647");
    input.readWith = NavFunc113::ReadWith::OtherMeans;
    EXPECT_EQ(CalculateCrude(input).density15, "786.826");
    input.temperature = "25";
    input.observedTemperature = "";
    EXPECT_EQ(CalculateCrude(input).density15, "786.826") << "observed in the tank";
}

TEST(CalculateCrude, beyondTheTableIsFlaggedNotRefused)
{
    CrudeInput input = metricCargo();
    input.temperature = "150";
    EXPECT_EQ(CalculateCrude(input).rangeFlag, "outside Table 54A");
    EXPECT_NE(CalculateCrude(input).metricTonsInAir, "");
    EXPECT_EQ(CalculateCrude(input).notice, "");
    input = americanCargo();
    input.density = "100.5";
    EXPECT_EQ(CalculateCrude(input).rangeFlag, "outside Table 6A");
}

TEST(CalculateCrude, whatMakesNoSenseIsNamedAndItsFiguresAreBlank)
{
    const struct {
        std::string CrudeInput::*box;
        const char* typed;
        const char* notice;
    } rows[] = {
        {&CrudeInput::density, "0", "density must be greater than 0"},
        {&CrudeInput::density, "abc", "density is no number"},
        {&CrudeInput::temperature, "-300", "temperature is below absolute zero"},
        {&CrudeInput::volume, "-1", "volume is negative"},
        {&CrudeInput::freeWater, "10001", "free water exceeds the volume"},
        {&CrudeInput::sedimentAndWater, "101", "sediment and water must be 0 to 100 %"},
        {&CrudeInput::volume, "", ""},
        {&CrudeInput::density, "", ""},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.notice);
        CrudeInput input = metricCargo();
        input.*row.box = row.typed;
        const CrudeResult cargo = CalculateCrude(input);
        EXPECT_EQ(cargo.notice, row.notice);
        EXPECT_EQ(cargo.netStandard, "");
        EXPECT_EQ(cargo.metricTonsInAir, "");
    }
    CrudeInput input = americanCargo();
    input.density = "-131.5";
    EXPECT_EQ(CalculateCrude(input).notice, "API gravity must be greater than -131.5");
    input = metricCargo();
    input.volume = "10,000";
    EXPECT_EQ(CalculateCrude(input).notice, "volume was read as 10");
    input.volume = "10000";
    input.density = "0.870";
    EXPECT_EQ(CalculateCrude(input).notice, "density taken as kg/L: 870.0 kg/m³");
}

TEST(CalculateCrude, everyHalfTypedDensityIsSurvived)
{
    for (const bool observed : {false, true})
        for (const auto edition :
             {NavFunc113::CrudeEdition::Of1980, NavFunc113::CrudeEdition::Of2004})
            for (const char* density : {"8", "87", "0.8", "1", "1e", "99999999", "0.000001"})
                for (const char* temperature : {"-40", "4", "45", "99999"}) {
                    CrudeInput input = metricCargo();
                    input.density = density;
                    input.temperature = temperature;
                    input.densityObserved = observed;
                    input.edition = edition;
                    EXPECT_NO_THROW(CalculateCrude(input)) << density << " at " << temperature;
                    EXPECT_NO_THROW(KLPerBarrelFromDensity(input));
                }
}

} // namespace
} // namespace korvel
