// SPDX-License-Identifier: MIT
#include "forms/frmCRUDE/OilWorking.h"

#include "app/reading/Format.h"

namespace korvel
{
namespace
{

using NavFunc113::VolumeCorrection;

constexpr int factorDecimals = 8;
constexpr int expansionDecimals = 10;
constexpr double base1968 = 60.0068749; // 60 °F on the scale of 1968

const char* degreesOf(const CrudeInput& input)
{
    return isMetric(input) ? "°C" : "°F";
}

std::string waterText(const CrudeInput& input)
{
    return figure(NavFunc113::WaterDensity60F(input.edition), 3);
}

void addHydrometer(Working& working, bool metric, double taken, double correction)
{
    const std::string dt = "(" + cargoFigure(taken) + (metric ? " - 15)" : " - 60)");
    working.step("Correction of the hydrometer's glass",
                 metric ? "h = 1 - 0.000023 (t - 15) - 0.00000002 (t - 15)²"
                        : "h = 1 - 0.00001278 (t - 60) - 0.0000000062 (t - 60)²",
                 (metric ? "1 - 0.000023 × " : "1 - 0.00001278 × ") + dt +
                     (metric ? " - 0.00000002 × " : " - 0.0000000062 × ") + dt + "²",
                 figure(correction, factorDecimals));
}

/// The density that was read, at the temperature at which it was read.
double addObserved(Working& working, const CrudeInput& input, const CrudeFigures& figures)
{
    const bool metric = isMetric(input);
    const double taken = *figures.densityTakenAt;
    double density = *figures.typedDensity;
    if (!metric) {
        const double read = NavFunc113::Density60FromAPI(density, input.edition);
        working.step("Density of the gravity read", "ρ' = 141.5 × water / (131.5 + API')",
                     "141.5 × " + waterText(input) + " / (131.5 + " + term(density, 3) + ")",
                     cargoFigure(read), "kg/m³");
        density = read;
    }
    if (input.readWith != NavFunc113::ReadWith::Hydrometer) return density;
    const double correction =
        metric ? NavFunc113::HydrometerCorrection(taken) : NavFunc113::HydrometerCorrectionF(taken);
    addHydrometer(working, metric, taken, correction);
    working.step("Density observed, glass corrected", "ρt = ρ' h",
                 cargoFigure(density) + " × " + figure(correction, factorDecimals),
                 cargoFigure(density * correction), "kg/m³");
    return density * correction;
}

/// The last of the repeated divisions: its quotient is its own density.
void addReduction(Working& working, const CrudeInput& input, const CrudeFigures& figures)
{
    if (!figures.densityTakenAt) return;
    const bool metric = isMetric(input);
    const double observed = addObserved(working, input, figures);
    const double reduced =
        metric ? *figures.density15 : NavFunc113::Density60FromAPI(*figures.api60, input.edition);
    const std::string base = metric ? "15" : "60";
    working.step(
        "Density at " + base + " " + degreesOf(input) + (metric ? ", Table 53A" : ", Table 5A"),
        "ρ" + base + " = ρt / VCF of ρ" + base + " at " + cargoFigure(*figures.densityTakenAt) +
            " " + degreesOf(input) + ", divided again until it stays",
        cargoFigure(observed) + " / " + figure(observed / reduced, factorDecimals),
        cargoFigure(reduced), "kg/m³");
    if (!metric)
        working.step("Gravity at 60 °F", "API = 141.5 × water / ρ60 - 131.5",
                     "141.5 × " + waterText(input) + " / " + cargoFigure(reduced) + " - 131.5",
                     figure(*figures.api60, 4), "°API");
}

/// Temperature of the cargo on the scale that its table counts in.
double temperatureOfTable(const CrudeInput& input, double typed)
{
    const bool inCelsius = input.temperatureUnit == TemperatureUnit::Celsius;
    if (isMetric(input) == inCelsius) return typed;
    return inCelsius ? NavFunc113::FahrenheitOfCelsius(typed)
                     : NavFunc113::CelsiusOfFahrenheit(typed);
}

void addTemperature(Working& working, const CrudeInput& input, double typed)
{
    const double temperature = temperatureOfTable(input, typed);
    if (temperature == typed) return;
    const bool metric = isMetric(input);
    working.step("Temperature of the cargo", metric ? "t = (°F - 32) / 1.8" : "t = 1.8 °C + 32",
                 metric ? "(" + term(typed, 2) + " - 32) / 1.8"
                        : "1.8 × " + term(typed, 2) + " + 32",
                 figure(temperature, 5), degreesOf(input));
}

/// The edition of 2004 moves the density to the base of its formula and the temperature to the
/// scale of 1968.
void addBase2004(Working& working, const CrudeInput& input, const CrudeResult& result)
{
    const VolumeCorrection& c = *result.figures.correction;
    const double density60 =
        isMetric(input) ? *result.figures.density15 / c.atReference
                        : NavFunc113::Density60FromAPI(*result.figures.api60, input.edition);
    if (isMetric(input))
        working.step("Density at 60 °F", "ρ60 = ρ15 / factor of 15 °C, divided until it stays",
                     cargoFigure(*result.figures.density15) + " / " +
                         figure(c.atReference, factorDecimals),
                     cargoFigure(density60), "kg/m³");
    else
        working.step("Density at 60 °F", "ρ60 = 141.5 × water / (131.5 + API)",
                     "141.5 × " + waterText(input) + " / (131.5 + " +
                         term(*result.figures.api60, 4) + ")",
                     cargoFigure(density60), "kg/m³");
    const double A = c.shift / 2 * c.K0 / (density60 * density60);
    const std::string a = figure(A, 12);
    working.step("Half the shift of the base", "A = δ / 2 × K0 / ρ60², δ = 0.01374979547",
                 figure(c.shift, 11) + " / 2 × " + figure(c.K0, 4) + " / " +
                     cargoFigure(density60) + "²",
                 a);
    working.step("Density at the base",
                 "ρ = ρ60 (1 + (exp(A (1 + 0.8 A)) - 1) / (1 + 2 A (1 + 1.6 A)))",
                 cargoFigure(density60) + " × (1 + (exp(" + a + " × (1 + 0.8 × " + a +
                     ")) - 1) / (1 + 2 × " + a + " × (1 + 1.6 × " + a + ")))",
                 cargoFigure(c.density), "kg/m³");
    const double t = temperatureOfTable(input, *result.figures.temperature);
    working.step("Temperature on the scale of 1968",
                 "t68, by the polynomial of the edition of 2004 in °C / 630",
                 figure(t, 5) + " " + degreesOf(input) + " on today's scale",
                 figure(c.difference + base1968, 5), "°F");
}

} // namespace

bool isMetric(const CrudeInput& input)
{
    return input.densityBase == DensityBase::Density15;
}

std::string cargoFigure(double value)
{
    return Format(value, "0.0#####");
}

double factorOf60F(const CrudeInput& input, double density15)
{
    return NavFunc113::KilolitresPerBarrel(density15, input.edition) /
           NavFunc113::cubicMetresPerBarrel;
}

void addOil(Working& working, const CrudeInput& input, const CrudeResult& result)
{
    const CrudeFigures& figures = result.figures;
    addReduction(working, input, figures);
    const double density15 = *figures.density15;
    const std::string factor = figure(factorOf60F(input, density15), factorDecimals);
    if (isMetric(input)) {
        working.resultStep("Density at 15 °C", cargoFigure(density15) + " rounded to 0.001",
                           result.density15, "kg/m³");
        working.step("Gravity at 60 °F",
                     "API = 141.5 × water / (ρ15 × VCF of 60 °F by Table 54A) - 131.5",
                     "141.5 × " + waterText(input) + " / (" + cargoFigure(density15) + " × " +
                         factor + ") - 131.5",
                     result.api60, "°API");
        return;
    }
    working.resultStep("Gravity at 60 °F", figure(*figures.api60, 4) + " rounded to 0.01",
                       result.api60, "°API");
    const double density60 = NavFunc113::Density60FromAPI(*figures.api60, input.edition);
    working.step("Density at 60 °F", "ρ60 = 141.5 × water / (131.5 + API)",
                 "141.5 × " + waterText(input) + " / (131.5 + " + term(*figures.api60, 4) + ")",
                 cargoFigure(density60), "kg/m³");
    working.step("Density at 15 °C",
                 "ρ15 = ρ60 / VCF of 60 °F by Table 54A, divided again until it stays",
                 cargoFigure(density60) + " / " + factor, cargoFigure(density15), "kg/m³");
    working.resultStep("Density at 15 °C", cargoFigure(density15) + " rounded to 0.001",
                       result.density15, "kg/m³");
}

void addCorrection(Working& working, const CrudeInput& input, const CrudeResult& result)
{
    const VolumeCorrection& c = *result.figures.correction;
    const bool of2004 = c.shift != 0;
    addTemperature(working, input, *result.figures.temperature);
    if (of2004) addBase2004(working, input, result);
    const double base = of2004 ? base1968 : isMetric(input) ? 15 : 60;
    working.step("Coefficient of expansion", "α = K0 / ρ²",
                 figure(c.K0, 4) + " / " + cargoFigure(c.density) + "²",
                 figure(c.alpha, expansionDecimals));
    working.step("Difference of temperature",
                 of2004 ? "ΔT = t68 - 60.0068749" : "ΔT = t - " + figure(base, 0),
                 figure(c.difference + base, 5) + " - " + Format(base, "0.#######"),
                 figure(c.difference, 5), of2004 || !isMetric(input) ? "°F" : "°C");
    const std::string alpha = figure(c.alpha, expansionDecimals);
    const std::string x = term(c.alpha * c.difference, expansionDecimals);
    working.step("Their product", "x = α ΔT", alpha + " × " + term(c.difference, 5),
                 figure(c.alpha * c.difference, expansionDecimals));
    if (of2004)
        working.step("VCF", "exp(-x (1 + 0.8 (x + α δ))) / factor of the reference temperature",
                     "exp(-" + x + " × (1 + 0.8 × (" + x + " + " + alpha + " × " +
                         figure(c.shift, 8) + "))) / " + figure(c.atReference, factorDecimals),
                     figure(c.factor, factorDecimals));
    else
        working.step("VCF", "exp(-x (1 + 0.8 x))", "exp(-" + x + " × (1 + 0.8 × " + x + "))",
                     figure(c.factor, factorDecimals));
    working.resultStep("VCF", "rounded, and so used: " + result.vcfMethod, result.vcf);
    if (!result.rangeFlag.empty())
        working.resultStep("Range", "of the printed table", result.rangeFlag);
}

} // namespace korvel
