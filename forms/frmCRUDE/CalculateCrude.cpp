// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/CalculateCrude.h"

#include "app/Format.h"
#include "app/reading.h"
#include "navlib/arithmetic_error.h"

#include <optional>
#include <string_view>

namespace korvel
{
namespace
{

using NavFunc113::ArithmeticError;

constexpr const char* kilolitreFormat = "0.000";
constexpr const char* barrelFormat = "0.00";
constexpr const char* tonFormat = "0.000";
constexpr const char* factorFormat = "0.0000000";

/// Collects what is to be said in the notice line.
class Notice
{
public:
    void add(const std::string& sentence)
    {
        if (!m_text.empty()) m_text += "; ";
        m_text += sentence;
    }
    const std::string& text() const { return m_text; }

private:
    std::string m_text;
};

/// The number in a box; nothing, and no word about it, when the box is empty.
std::optional<double> numberIn(const std::string& box, const char* name, Notice& notice)
{
    if (box.find_first_not_of(" \t") == std::string::npos) return std::nullopt;
    const std::optional<double> value = readLeadingNumber(box);
    if (!value)
        notice.add(std::string(name) + " is no number");
    else if (!isNumeric(box)) // 10,000 is read as 10: that must not pass unseen
        notice.add(std::string(name) + " was read as " + Format(*value, "0.######"));
    return value;
}

std::optional<double> temperatureIn(const std::string& box, TemperatureUnit unit, const char* name,
                                    Notice& notice)
{
    std::optional<double> value = numberIn(box, name, notice);
    const double absoluteZero = unit == TemperatureUnit::Celsius ? -273.15 : -459.67;
    if (value && *value < absoluteZero) {
        notice.add(std::string(name) + " is below absolute zero");
        value.reset();
    }
    return value;
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
std::optional<double> referenceValue(const CrudeInput& input, double typed, Notice& notice)
{
    if (!input.densityObserved) return typed;
    const std::string& box =
        input.observedTemperature.empty() ? input.temperature : input.observedTemperature;
    const auto at = temperatureIn(box, input.temperatureUnit, "observed temperature", notice);
    if (!at) return std::nullopt;
    if (input.densityBase == DensityBase::Density15)
        return NavFunc113::Density15FromObserved(typed, celsius(*at, input.temperatureUnit),
                                                 input.readWith, input.edition);
    return NavFunc113::API60FromObserved(typed, fahrenheit(*at, input.temperatureUnit),
                                         input.readWith, input.edition);
}

std::optional<Oil> oilOf(const CrudeInput& input, Notice& notice)
{
    const bool metric = input.densityBase == DensityBase::Density15;
    std::optional<double> typed =
        numberIn(input.density, metric ? "density" : "API gravity", notice);
    if (!typed) return std::nullopt;
    if (metric ? !(*typed > 0) : !(*typed > -131.5)) {
        notice.add(metric ? "density must be greater than 0"
                          : "API gravity must be greater than -131.5");
        return std::nullopt;
    }
    if (metric && *typed >= 0.5 && *typed <= 1.2) {
        *typed *= 1000;
        notice.add("density taken as kg/L: " + Format(*typed, "0.0##") + " kg/m³");
    }
    try {
        const auto value = referenceValue(input, *typed, notice);
        if (!value) return std::nullopt;
        if (metric) return Oil{*value, NavFunc113::APIFromDensity15(*value, input.edition)};
        return Oil{NavFunc113::Density15FromAPI(*value, input.edition), *value};
    } catch (const ArithmeticError&) {
        notice.add("no oil has this density at this temperature");
        return std::nullopt;
    }
}

struct Correction {
    double factor;
    bool withinTable;
};

/// @throws ArithmeticError for a density so small that the formula has no value
Correction correctionOf(const CrudeInput& input, const Oil& oil, double temperature)
{
    if (input.densityBase == DensityBase::Density15) {
        const double t = celsius(temperature, input.temperatureUnit);
        return {NavFunc113::VCF54A(oil.density15, t, input.edition),
                NavFunc113::WithinTable54A(oil.density15, t, input.edition)};
    }
    const double t = fahrenheit(temperature, input.temperatureUnit);
    return {NavFunc113::VCF6A(oil.api60, t, input.edition),
            NavFunc113::WithinTable6A(oil.api60, t, input.edition)};
}

/// Writes method, factor and flag. The factor as shown is the one that counts, so that a surveyor
/// with a pocket calculator comes to the same volume.
void showCorrection(const CrudeInput& input, const Correction& correction, CrudeResult& result)
{
    const bool metric = input.densityBase == DensityBase::Density15;
    result.vcf = Format(correction.factor, input.vcfDecimals == 4 ? "0.0000" : "0.00000");
    const std::string table = metric ? "Table 54A" : "Table 6A";
    const bool of2004 = input.edition == NavFunc113::CrudeEdition::Of2004;
    result.vcfMethod = table + (of2004 ? ", 2004" : ", 1980") + (metric ? ", 15 °C" : ", 60 °F");
    if (!correction.withinTable) result.rangeFlag = "outside " + table;
}

/// Observed volume less free water.
std::optional<double> grossObservedOf(const CrudeInput& input, Notice& notice)
{
    const auto volume = numberIn(input.volume, "volume", notice);
    const double water = numberIn(input.freeWater, "free water", notice).value_or(0);
    if (!volume) return std::nullopt;
    if (*volume < 0 || water < 0) {
        notice.add(*volume < 0 ? "volume is negative" : "free water is negative");
        return std::nullopt;
    }
    if (water > *volume) {
        notice.add("free water exceeds the volume");
        return std::nullopt;
    }
    return *volume - water;
}

std::optional<double> netPartOf(const CrudeInput& input, Notice& notice)
{
    const double percent =
        numberIn(input.sedimentAndWater, "sediment and water", notice).value_or(0);
    if (percent >= 0 && percent <= 100) return 1 - percent / 100;
    notice.add("sediment and water must be 0 to 100 %");
    return std::nullopt;
}

std::optional<double> barrelFactorOf(const CrudeInput& input, Notice& notice)
{
    const auto factor = numberIn(input.klPerBarrel, "KL/Bbl", notice);
    if (factor && *factor >= 0.158 && *factor <= 0.160) return factor;
    notice.add("KL/Bbl must be 0.158 to 0.160");
    return std::nullopt;
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

void showVolumes(const CrudeInput& input, const Oil& oil, const Volumes& volumes,
                 std::optional<double> factor, CrudeResult& result)
{
    const auto barrels = [](double cubicMetres) {
        return cubicMetres / NavFunc113::cubicMetresPerBarrel;
    };
    result.kilolitres15 = Format(volumes.kilolitres15, kilolitreFormat);
    result.kilolitres60 = Format(volumes.kilolitres60, kilolitreFormat);
    result.barrels15 = Format(barrels(volumes.kilolitres15), barrelFormat);
    result.barrels60 = Format(barrels(volumes.kilolitres60), barrelFormat);

    const std::string used =
        factor ? Format(*factor, "0.000######") + " (by density " +
                     Format(NavFunc113::KilolitresPerBarrel(oil.density15, input.edition),
                            factorFormat) +
                     ")"
               : std::string();
    if (input.densityBase == DensityBase::Density15) {
        result.kilolitres = result.kilolitres15;
        result.kilolitresMethod = "at 15 °C";
        if (!factor) return;
        result.barrels = Format(volumes.kilolitres15 / *factor, barrelFormat);
        result.barrelsMethod = "= kL / " + used;
    } else {
        result.barrels = result.barrels60;
        result.barrelsMethod = "at 60 °F";
        if (!factor) return;
        result.kilolitres = Format(barrels(volumes.kilolitres60) * *factor, kilolitreFormat);
        result.kilolitresMethod = "= bbl x " + used;
    }
}

void showTons(WeightRule rule, const Oil& oil, double kilolitres15, CrudeResult& result)
{
    const double inVacuo = NavFunc113::MassInVacuo(kilolitres15, oil.density15);
    double inAir = 0;
    if (rule == WeightRule::DensityLess11) {
        inAir = NavFunc113::WeightInAir(kilolitres15, oil.density15);
        result.weightMethod = "density - 1.1";
    } else if (rule == WeightRule::Table56Printed) {
        const double factor = NavFunc113::Table56FactorAsPrinted(oil.density15);
        inAir = inVacuo * factor;
        result.weightMethod = "Table 56, " + Format(factor, "0.00000");
    } else {
        const double factor = NavFunc113::Table56Factor(oil.density15);
        inAir = inVacuo * factor;
        result.weightMethod = "Table 56 exact, " + Format(factor, "0.000000");
    }
    result.metricTonsInAir = Format(inAir, tonFormat);
    result.longTonsInAir = Format(NavFunc113::LongTonsOf(inAir), tonFormat);
    result.metricTonsInVacuo = Format(inVacuo, tonFormat);
    result.longTonsInVacuo = Format(NavFunc113::LongTonsOf(inVacuo), tonFormat);
}

} // namespace

CrudeResult CalculateCrude(const CrudeInput& input)
{
    CrudeResult result;
    Notice notice;
    const auto gross = grossObservedOf(input, notice);
    const auto temperature =
        temperatureIn(input.temperature, input.temperatureUnit, "temperature", notice);
    const auto oil = oilOf(input, notice);
    const auto netPart = netPartOf(input, notice);
    const auto factor = barrelFactorOf(input, notice);
    result.notice = notice.text();

    const bool inKilolitres = input.volumeUnit == VolumeUnit::Kilolitres;
    const char* const volumeFormat = inKilolitres ? kilolitreFormat : barrelFormat;
    if (gross) result.grossObserved = Format(*gross, volumeFormat);
    if (!oil) return result;
    result.density15 = Format(oil->density15, "0.0##");
    result.api60 = Format(oil->api60, "0.00");
    if (!temperature) return result;
    showCorrection(input, correctionOf(input, *oil, *temperature), result);
    if (!gross) return result;
    const double standard = *gross * readNumber(result.vcf);
    result.grossStandard = Format(standard, volumeFormat);
    result.standardMethod =
        std::string(inKilolitres ? "kL" : "bbl") +
        (input.densityBase == DensityBase::Density15 ? " at 15 °C" : " at 60 °F");
    if (!netPart) return result;
    const double net = standard * *netPart;
    result.netStandard = Format(net, volumeFormat);
    const Volumes volumes = volumesOf(input, *oil, net);
    showVolumes(input, *oil, volumes, factor, result);
    showTons(input.weightRule, *oil, volumes.kilolitres15, result);
    return result;
}

std::string KLPerBarrelFromDensity(const CrudeInput& input)
{
    Notice unsaid;
    const auto oil = oilOf(input, unsaid);
    if (!oil) return {};
    try {
        return Format(NavFunc113::KilolitresPerBarrel(oil->density15, input.edition), factorFormat);
    } catch (const ArithmeticError&) {
        return {};
    }
}

} // namespace korvel
