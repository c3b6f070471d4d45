// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/CalculateCrude.h"

#include "tests/golden/Golden.h"

#include <gtest/gtest.h>

#include <map>
#include <tuple>

namespace korvel
{
namespace
{

using namespace korvel::testing;

void type(CrudeInput& cargo, const std::string& name, const std::string& value)
{
    static const std::map<std::string, std::string CrudeInput::*> boxes = {
        {"volume", &CrudeInput::volume},
        {"temperature", &CrudeInput::temperature},
        {"density", &CrudeInput::density},
        {"observedTemperature", &CrudeInput::observedTemperature},
        {"freeWater", &CrudeInput::freeWater},
        {"sedimentAndWater", &CrudeInput::sedimentAndWater},
        {"klPerBarrel", &CrudeInput::klPerBarrel},
    };
    using NavFunc113::CrudeEdition;
    using NavFunc113::ReadWith;
    const bool yes = value == "yes";
    if (boxes.contains(name))
        cargo.*boxes.at(name) = value;
    else if (name == "metric")
        std::tie(cargo.volume, cargo.temperature, cargo.density) =
            std::tuple("10000", "45", "870.0");
    else if (name == "american") {
        std::tie(cargo.volume, cargo.temperature, cargo.density) =
            std::tuple("500000", "100", "32.8");
        cargo.densityBase = DensityBase::API60;
        cargo.volumeUnit = VolumeUnit::Barrels;
        cargo.temperatureUnit = TemperatureUnit::Fahrenheit;
    } else if (name == "barrels")
        cargo.volumeUnit = VolumeUnit{yes};
    else if (name == "fahrenheit")
        cargo.temperatureUnit = TemperatureUnit{yes};
    else if (name == "observed")
        cargo.densityObserved = yes;
    else if (name == "other")
        cargo.readWith = yes ? ReadWith::OtherMeans : ReadWith::Hydrometer;
    else if (name == "decimals")
        cargo.isVCFShort = value == "4";
    else if (name == "rule")
        cargo.weightRule = WeightRule{std::stoi(value)};
    else if (name == "edition")
        cargo.edition = CrudeEdition::Of2004;
    else
        throw std::runtime_error("no input " + name);
}

std::map<std::string, std::string> shown(const CrudeResult& cargo)
{
    return {
        {"vcf", cargo.vcf},
        {"vcfMethod", cargo.vcfMethod},
        {"rangeFlag", cargo.rangeFlag},
        {"density15", cargo.density15},
        {"api60", cargo.api60},
        {"totalObserved", cargo.totalObserved},
        {"freeWater", cargo.freeWater},
        {"grossObserved", cargo.grossObserved},
        {"grossStandard", cargo.grossStandard},
        {"netStandard", cargo.netStandard},
        {"standardMethod", cargo.standardMethod},
        {"barrels", cargo.barrels},
        {"barrelsMethod", cargo.barrelsMethod},
        {"kilolitres", cargo.kilolitres},
        {"kilolitresMethod", cargo.kilolitresMethod},
        {"barrels15", cargo.barrels15},
        {"barrels60", cargo.barrels60},
        {"kilolitres15", cargo.kilolitres15},
        {"kilolitres60", cargo.kilolitres60},
        {"gross.inAir", cargo.gross.metricInAir},
        {"gross.inVacuo", cargo.gross.metricInVacuo},
        {"gross.long", cargo.gross.longInAir},
        {"net.inAir", cargo.net.metricInAir},
        {"net.inVacuo", cargo.net.metricInVacuo},
        {"net.long", cargo.net.longInAir},
        {"gross.longInVacuo", cargo.gross.longInVacuo},
        {"net.longInVacuo", cargo.net.longInVacuo},
        {"weightMethod", cargo.weightMethod},
        {"notice", cargo.notice},
        {"level", cargo.level == NoticeLevel::Fault ? "fault" : "remark"},
    };
}

TEST(CalculateCrude, figuresOfCargoes)
{
    for (const Golden& row : golden("crude_cargo")) {
        CrudeInput input;
        for (const GoldenPair& box : row.pairs("cargo"))
            type(input, box.name, box.text);
        expectTexts(row, "shows", shown(CalculateCrude(input)));
    }
}

TEST(CalculateCrude, everyHalfTypedDensityIsSurvived)
{
    for (const char* observed : {"no", "yes"})
        for (const char* density : {"8", "87", "0.8", "1", "1e", "99999999", "0.000001", "-"})
            for (const char* temperature : {"-40", "4", "45", "99999"}) {
                CrudeInput input;
                for (const auto& [name, value] : {std::pair{"metric", ""},
                                                  {"density", density},
                                                  {"temperature", temperature},
                                                  {"observed", observed}})
                    type(input, name, value);
                EXPECT_NO_THROW(CalculateCrude(input)) << density << " at " << temperature;
                EXPECT_NO_THROW(KLPerBarrelFromDensity(input));
            }
}

} // namespace
} // namespace korvel
