// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/CalculateCrude.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"
#include "forms/frmCRUDE/CrudeFields.h"
#include "navlib/arithmetic_error.h"

#include <optional>
#include <string_view>

namespace korvel
{

double lowestTemperature(TemperatureUnit unit)
{
    return unit == TemperatureUnit::Celsius ? -273.15 : -459.67;
}

double densityBound(DensityBase base)
{
    return base == DensityBase::Density15 ? 0 : -131.5;
}

namespace
{

using NavFunc113::ArithmeticError;
using namespace CrudeField;

constexpr const char* kilolitreFormat = "0.000";
constexpr const char* barrelFormat = "0.00";
constexpr const char* tonFormat = "0.000";
constexpr const char* factorFormat = "0.0000000";

/// The number in a box; nothing, and no word about it, when the box is empty.
std::optional<double> numberIn(const std::string& box, const NumberField& field, Remarks& remarks)
{
    if (isBlank(box)) return std::nullopt;
    return readField(box, field, remarks);
}

std::optional<double> temperatureIn(const std::string& box, TemperatureUnit unit, const char* name,
                                    Remarks& remarks)
{
    const bool celsius = unit == TemperatureUnit::Celsius;
    return numberIn(box, {name, lowestTemperature(unit), HUGE_VAL, celsius ? "°C" : "°F"}, remarks);
}

double celsius(double temperature, TemperatureUnit unit)
{
    return unit == TemperatureUnit::Celsius ? temperature
                                            : NavFunc113::CelsiusOfFahrenheit(temperature);
}

double fahrenheit(double temperature, TemperatureUnit unit)
{
    return unit == TemperatureUnit::Fahrenheit ? temperature
                                               : NavFunc113::FahrenheitOfCelsius(temperature);
}

struct Oil {
    double density15;
    double api60;
};

/// The density or gravity box, reduced to its reference temperature when it was observed.
std::optional<double> referenceValue(const CrudeInput& input, double typed, Remarks& remarks,
                                     CrudeFigures& figures)
{
    figures.typedDensity = typed;
    if (!input.densityObserved) return typed;
    const std::string& box =
        input.observedTemperature.empty() ? input.temperature : input.observedTemperature;
    const auto at =
        temperatureIn(box, input.temperatureUnit, "temperature of the density", remarks);
    if (!at) return std::nullopt;
    if (input.densityBase == DensityBase::Density15) {
        figures.densityTakenAt = celsius(*at, input.temperatureUnit);
        return NavFunc113::Density15FromObserved(typed, *figures.densityTakenAt, input.readWith,
                                                 input.edition);
    }
    figures.densityTakenAt = fahrenheit(*at, input.temperatureUnit);
    return NavFunc113::API60FromObserved(typed, *figures.densityTakenAt, input.readWith,
                                         input.edition);
}

std::optional<Oil> oilOf(const CrudeInput& input, Remarks& remarks, CrudeFigures& figures)
{
    const bool metric = input.densityBase == DensityBase::Density15;
    std::optional<double> typed =
        numberIn(input.density, {metric ? "density" : "API gravity"}, remarks);
    if (!typed) return std::nullopt;
    if (!(*typed > densityBound(input.densityBase))) {
        remarks.fault(metric ? "density must be greater than 0"
                             : "API gravity must be greater than -131.5");
        return std::nullopt;
    }
    if (metric && *typed >= 0.5 && *typed <= 1.2) {
        *typed *= 1000;
        remarks.warn("density taken as kg/L: " + Format(*typed, "0.0##") + " kg/m³");
    }
    try {
        const auto value = referenceValue(input, *typed, remarks, figures);
        if (!value) return std::nullopt;
        if (metric) return Oil{*value, NavFunc113::APIFromDensity15(*value, input.edition)};
        return Oil{NavFunc113::Density15FromAPI(*value, input.edition), *value};
    } catch (const ArithmeticError&) {
        remarks.fault("no oil has this density at this temperature");
        return std::nullopt;
    }
}

struct Correction {
    NavFunc113::VolumeCorrection correction;
    bool withinTable;
};

/// @throws ArithmeticError for a density so small that the formula has no value
Correction correctionOf(const CrudeInput& input, const Oil& oil, double temperature)
{
    if (input.densityBase == DensityBase::Density15) {
        const double t = celsius(temperature, input.temperatureUnit);
        return {NavFunc113::CorrectionBy54A(oil.density15, t, input.edition),
                NavFunc113::WithinTable54A(oil.density15, t, input.edition)};
    }
    const double t = fahrenheit(temperature, input.temperatureUnit);
    return {NavFunc113::CorrectionBy6A(oil.api60, t, input.edition),
            NavFunc113::WithinTable6A(oil.api60, t, input.edition)};
}

/// Writes method, factor and flag. The factor as shown is the one that counts, so that a surveyor
/// with a pocket calculator comes to the same volume.
void showCorrection(const CrudeInput& input, const Correction& correction, CrudeResult& result)
{
    const bool metric = input.densityBase == DensityBase::Density15;
    result.vcf = Format(correction.correction.factor, input.isVCFShort ? "0.0000" : "0.00000");
    const std::string table = metric ? "Table 54A" : "Table 6A";
    const bool of2004 = input.edition == NavFunc113::CrudeEdition::Of2004;
    result.vcfMethod = table + (of2004 ? ", 2004" : ", 1980") + (metric ? ", 15 °C" : ", 60 °F");
    result.figures.correction = correction.correction;
    if (!correction.withinTable) result.rangeFlag = "outside " + table;
}

/// What lies in the tanks.
struct Observed {
    double total;
    double freeWater;
    double gross() const { return total - freeWater; }
};

std::optional<Observed> observedOf(const CrudeInput& input, Remarks& remarks)
{
    const char* const unit = input.volumeUnit == VolumeUnit::Kilolitres ? "kL" : "bbl";
    const auto volume =
        numberIn(input.volume, {"volume", CrudeFields[Volume].low, HUGE_VAL, unit}, remarks);
    const auto water = readField(
        input.freeWater,
        {"free water", CrudeFields[FreeWater].low, HUGE_VAL, unit, FieldKind::Figure, 0}, remarks);
    if (!volume || !water) return std::nullopt;
    if (*water > *volume) {
        remarks.fault("free water exceeds the volume");
        return std::nullopt;
    }
    return Observed{*volume, *water};
}

std::optional<double> netPartOf(const CrudeInput& input, Remarks& remarks)
{
    const Field& declared = CrudeFields[SedimentAndWater];
    const auto percent = readField(
        input.sedimentAndWater,
        {"sediment and water", declared.low, declared.high, "%", FieldKind::Figure, 0}, remarks);
    if (!percent) return std::nullopt;
    return 1 - *percent / 100;
}

/// Kilolitres at 15 degC of a barrel at 60 degF, as the headline figure takes it.
struct BarrelFactor {
    std::optional<double> typed; ///< nothing: it follows from the density
    bool usable = true;          ///< what was typed can be used
};

BarrelFactor barrelFactorOf(const CrudeInput& input, Remarks& remarks)
{
    const bool empty = isBlank(input.klPerBarrel);
    const Field& declared = CrudeFields[KLperBbl];
    const auto typed =
        numberIn(input.klPerBarrel, {"KL/Bbl", declared.low, declared.high}, remarks);
    return {typed, empty || typed.has_value()};
}

/// Says what is still to be typed, as soon as something was.
void nameMissing(const CrudeInput& input, Remarks& remarks)
{
    const std::pair<const std::string&, const char*> needed[] = {
        {input.volume, "volume"},
        {input.temperature, "temperature of the cargo"},
        {input.density, input.densityBase == DensityBase::Density15 ? "density" : "API gravity"}};
    std::string missing;
    for (const auto& [box, name] : needed)
        if (box.empty()) missing += (missing.empty() ? "" : ", ") + std::string(name);
    const bool something =
        !input.volume.empty() || !input.temperature.empty() || !input.density.empty();
    if (something && !missing.empty()) remarks.fault("still to be typed: " + missing);
}

struct Volumes {
    double kilolitres15;
    double kilolitres60;
};

Volumes volumesOf(const CrudeInput& input, const Oil& oil, double standardVolume)
{
    const double cubicMetres = input.volumeUnit == VolumeUnit::Kilolitres
                                   ? standardVolume
                                   : standardVolume * NavFunc113::cubicMetresPerBarrel;
    const double shrinkage = NavFunc113::KilolitresPerBarrel(oil.density15, input.edition) /
                             NavFunc113::cubicMetresPerBarrel;
    if (input.densityBase == DensityBase::Density15)
        return {cubicMetres, NavFunc113::Quotient(cubicMetres, shrinkage)};
    return {cubicMetres * shrinkage, cubicMetres};
}

double barrelsOf(double cubicMetres)
{
    return cubicMetres / NavFunc113::cubicMetresPerBarrel;
}

void showByDensity(const Volumes& volumes, CrudeResult& result)
{
    result.kilolitres15 = Format(volumes.kilolitres15, kilolitreFormat);
    result.kilolitres60 = Format(volumes.kilolitres60, kilolitreFormat);
    result.barrels15 = Format(barrelsOf(volumes.kilolitres15), barrelFormat);
    result.barrels60 = Format(barrelsOf(volumes.kilolitres60), barrelFormat);
}

/// Barrels are those at 60 degF and kilolitres those at 15 degC, as in cargo papers. A factor that
/// the officer typed turns the one into the other; otherwise the density does.
void showHeadline(const CrudeInput& input, const Oil& oil, const Volumes& volumes,
                  const BarrelFactor& factor, CrudeResult& result)
{
    const std::string byDensity =
        Format(NavFunc113::KilolitresPerBarrel(oil.density15, input.edition), factorFormat);
    const std::string used = factor.typed ? Format(*factor.typed, "0.000######") +
                                                " as typed (by density " + byDensity + ")"
                                          : byDensity + ", by density";
    if (input.densityBase == DensityBase::Density15) {
        result.kilolitres = result.kilolitres15;
        result.kilolitresMethod = "at 15 °C";
        if (!factor.usable) return;
        result.barrels = factor.typed ? Format(volumes.kilolitres15 / *factor.typed, barrelFormat)
                                      : result.barrels60;
        result.barrelsMethod = "at 60 °F = kL at 15 °C / " + used;
    } else {
        result.barrels = result.barrels60;
        result.barrelsMethod = "at 60 °F";
        if (!factor.usable) return;
        result.kilolitres =
            factor.typed ? Format(barrelsOf(volumes.kilolitres60) * *factor.typed, kilolitreFormat)
                         : result.kilolitres15;
        result.kilolitresMethod = "at 15 °C = bbl at 60 °F x " + used;
    }
}

/// Tons in air of one ton in vacuo, and what that rule is called.
struct WeighedInAir {
    double perTonInVacuo;
    std::string method;
};

WeighedInAir weighedInAir(WeightRule rule, const Oil& oil)
{
    if (rule == WeightRule::Table56Printed) {
        const double factor = NavFunc113::Table56FactorAsPrinted(oil.density15);
        return {factor, "Table 56, " + Format(factor, "0.00000")};
    }
    const double factor = NavFunc113::Table56Factor(oil.density15);
    return {factor, "Table 56 exact, " + Format(factor, "0.000000")};
}

CrudeTons tonsOf(WeightRule rule, const Oil& oil, double kilolitres15, std::string& method)
{
    const double inVacuo = NavFunc113::MassInVacuo(kilolitres15, oil.density15);
    double inAir{};
    if (rule == WeightRule::DensityLess11) {
        inAir = NavFunc113::WeightInAir(kilolitres15, oil.density15);
        method = "density - 1.1";
    } else {
        const WeighedInAir weighed = weighedInAir(rule, oil);
        inAir = inVacuo * weighed.perTonInVacuo;
        method = weighed.method;
    }
    return {Format(inAir, tonFormat), Format(NavFunc113::LongTonsOf(inAir), tonFormat),
            Format(inVacuo, tonFormat), Format(NavFunc113::LongTonsOf(inVacuo), tonFormat)};
}

void showObserved(const Observed& observed, const char* format, CrudeResult& result)
{
    result.totalObserved = Format(observed.total, format);
    result.freeWater = Format(observed.freeWater, format);
    result.grossObserved = Format(observed.gross(), format);
    result.figures.totalObserved = observed.total;
    result.figures.freeWater = observed.freeWater;
}

} // namespace

CrudeResult CalculateCrude(const CrudeInput& input)
{
    CrudeResult result;
    Remarks remarks;
    const auto observed = observedOf(input, remarks);
    const auto temperature = temperatureIn(input.temperature, input.temperatureUnit,
                                           "temperature of the cargo", remarks);
    const auto oil = oilOf(input, remarks, result.figures);
    const auto netPart = netPartOf(input, remarks);
    const BarrelFactor factor = barrelFactorOf(input, remarks);
    nameMissing(input, remarks);
    result.notice = remarks.text();
    result.level = remarks.level();

    const bool inKilolitres = input.volumeUnit == VolumeUnit::Kilolitres;
    const char* const volumeFormat = inKilolitres ? kilolitreFormat : barrelFormat;
    result.observedUnit = inKilolitres ? "kL" : "bbl";
    if (observed) showObserved(*observed, volumeFormat, result);
    if (!oil) return result;
    result.figures.density15 = oil->density15;
    result.figures.api60 = oil->api60;
    result.figures.temperature = temperature;
    result.density15 = Format(oil->density15, "0.0##");
    result.api60 = Format(oil->api60, "0.00");
    if (!temperature) return result;
    showCorrection(input, correctionOf(input, *oil, *temperature), result);
    if (!observed) return result;
    const double standard = observed->gross() * readNumber(result.vcf);
    result.figures.grossStandard = standard;
    result.grossStandard = Format(standard, volumeFormat);
    result.standardMethod =
        std::string(inKilolitres ? "kL" : "bbl") +
        (input.densityBase == DensityBase::Density15 ? " at 15 °C" : " at 60 °F");
    result.figures.kilolitres15OfGross = volumesOf(input, *oil, standard).kilolitres15;
    result.gross =
        tonsOf(input.weightRule, *oil, result.figures.kilolitres15OfGross, result.weightMethod);
    if (!netPart) return result;
    const double net = standard * *netPart;
    result.figures.netStandard = net;
    result.netStandard = Format(net, volumeFormat);
    const Volumes volumes = volumesOf(input, *oil, net);
    result.figures.percent = (1 - *netPart) * 100;
    result.figures.klPerBarrel = NavFunc113::KilolitresPerBarrel(oil->density15, input.edition);
    result.figures.typedFactor = factor.typed;
    result.figures.kilolitres15 = volumes.kilolitres15;
    result.figures.kilolitres60 = volumes.kilolitres60;
    showByDensity(volumes, result);
    showHeadline(input, *oil, volumes, factor, result);
    result.net = tonsOf(input.weightRule, *oil, volumes.kilolitres15, result.weightMethod);
    return result;
}

std::string KLPerBarrelFromDensity(const CrudeInput& input)
{
    Remarks unsaid;
    CrudeFigures unshown;
    const auto oil = oilOf(input, unsaid, unshown);
    if (!oil) return {};
    try {
        return Format(NavFunc113::KilolitresPerBarrel(oil->density15, input.edition), factorFormat);
    } catch (const ArithmeticError&) {
        return {};
    }
}

} // namespace korvel
