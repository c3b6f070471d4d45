// SPDX-License-Identifier: MIT
#include "tools/tidedata/station_file.h"

#include "navlib/angles.h"
#include "navlib/datetime.h"
#include "tidedata/text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>

namespace tidedata
{
namespace
{

constexpr std::int64_t serial2000 = 36526; // 2000-01-01

// What the licences of the records ask to be shipped with everything derived from them.
constexpr std::string_view credit =
    "# Not for navigation.\n"
    "#\n"
    "# Tidal constants: Neaps tide database (https://github.com/openwatersio/tide-database).\n"
    "# Source: Hart-Davis, M., Dettmering, D., Seitz, F. (2025), TICON-4: TIdal CONstants based "
    "on\n"
    "# GESLA-4 sea-level records, SEANOE, https://doi.org/10.17882/109129. Licensed CC BY 4.0\n"
    "# (https://creativecommons.org/licenses/by/4.0/). Modified: see\n"
    "# https://github.com/openwatersio/tide-database#modifications-to-source-data; and further\n"
    "# modified here: selection of stations, interpolation and model estimates for places without\n"
    "# a record, reduction to four constituents with shallow-water terms and monthly corrections.\n"
    "# United States stations: NOAA, public domain. Depths used for model estimates: ETOPO5, NOAA\n"
    "# (public domain); coastline: Natural Earth (public domain).\n"
    "#\n";

// Speeds of the shallow-water constituents are sums of those of M2 and S2.
Degrees zonePhase(const Station& station, const Constant& constant, double speed)
{
    return reduced(constant.greenwichLag + Degrees(speed * station.zone.value()));
}

std::optional<ComplexConstant> complexConstant(const Station& station, std::string_view name,
                                               double speed)
{
    const auto found = station.constants.find(name);
    if (found == station.constants.end()) return std::nullopt;
    const Degrees kappa = zonePhase(station, found->second, speed);
    return std::polar(found->second.amplitude, NavFunc113::DegToRad(kappa).value());
}

// One equation of a fit: this power of the semidiurnal wave times the coefficient should be this
// constituent.
struct Equation {
    ComplexConstant power;
    std::optional<ComplexConstant> constituent;
};

ComplexConstant fitted(std::initializer_list<Equation> equations)
{
    ComplexConstant sum = 0;
    double weight = 0;
    for (const auto& [power, constituent] : equations) {
        if (!constituent) continue;
        sum += std::conj(power) * *constituent;
        weight += std::norm(power);
    }
    return weight > 0 ? sum / weight : ComplexConstant{0};
}

struct Semidiurnal {
    double speedM2 = constituentOf("M2").speed;
    double speedS2 = constituentOf("S2").speed;
    ComplexConstant M2;
    ComplexConstant S2;

    explicit Semidiurnal(const Station& station)
        : M2(complexConstant(station, "M2", speedM2).value_or(0)),
          S2(complexConstant(station, "S2", speedS2).value_or(0))
    {
    }
};

double seasonal(const Station& station, std::string_view name, Days2000 noon)
{
    const auto found = station.constants.find(name);
    if (found == station.constants.end()) return 0;
    const Argument argument = argumentOf(constituentOf(name), meanLongitudesAt(noon));
    return found->second.amplitude * cos(argument.angle - found->second.greenwichLag);
}

std::string coefficientFields(ComplexConstant coefficient)
{
    return "," +
           wholeDegrees(reduced(NavFunc113::RadToDeg(NavFunc113::Radians(std::arg(coefficient))))) +
           "," + fixed(std::abs(coefficient), 4);
}

std::string title(const Station& station)
{
    std::string text = station.place;
    std::erase(text, ',');
    return station.grade == "C" || station.grade == "D" ? text + " (est.)" : text;
}

} // namespace

Degrees zonePhase(const Station& station, const Constituent& constituent)
{
    return zonePhase(station, station.constants.find(constituent.name)->second, constituent.speed);
}

ComplexConstant quarterDiurnal(const Station& station)
{
    const Semidiurnal wave(station);
    return fitted(
        {{wave.M2 * wave.M2, complexConstant(station, "M4", 2 * wave.speedM2)},
         {2.0 * wave.M2 * wave.S2, complexConstant(station, "MS4", wave.speedM2 + wave.speedS2)},
         {wave.S2 * wave.S2, complexConstant(station, "S4", 2 * wave.speedS2)}});
}

ComplexConstant sixthDiurnal(const Station& station)
{
    const Semidiurnal wave(station);
    return fitted({{wave.M2 * wave.M2 * wave.M2, complexConstant(station, "M6", 3 * wave.speedM2)},
                   {3.0 * wave.M2 * wave.M2 * wave.S2,
                    complexConstant(station, "2MS6", 2 * wave.speedM2 + wave.speedS2)}});
}

std::array<double, 12> monthlyCorrections(const Station& station)
{
    std::array<double, 12> sum{};
    std::array<int, 12> days{};
    const std::int64_t end = NavFunc113::DaySerial({2006, 1, 1});
    for (std::int64_t serial = NavFunc113::DaySerial({2003, 1, 1}); serial < end; ++serial) {
        const auto month = static_cast<std::size_t>(NavFunc113::DateOfSerial(serial).month - 1);
        const Days2000 noon = static_cast<double>(serial - serial2000) + 0.5;
        sum[month] += seasonal(station, "SA", noon) + seasonal(station, "SSA", noon);
        ++days[month];
    }
    for (std::size_t month = 0; month < sum.size(); ++month)
        sum[month] /= days[month];
    return sum;
}

std::string stationFile(const Station& station)
{
    std::string line =
        title(station) + "," + shortest(station.zone.value()) + "," + fixed(station.meanLevel, 2);
    for (const std::string_view name : {"M2", "S2", "K1", "O1"}) {
        const Degrees phase = zonePhase(station, constituentOf(name));
        line += "," + fixed(reduced(Degrees(std::nearbyint(phase.value() * 10) / 10)).value(), 1) +
                "," + fixed(station.constants.find(name)->second.amplitude, 3);
    }
    line += coefficientFields(quarterDiurnal(station)) + coefficientFields(sixthDiurnal(station));
    for (const double correction : monthlyCorrections(station))
        line += "," + fixed(correction, 2);
    return line + "\r\n";
}

std::string stationsList(const Sources& sources)
{
    std::string text = "# Tide stations: place, grade, uncertainty, source, licence, latitude, "
                       "longitude,\n# mean level, monthly corrections (tabs)\n#\n";
    text += credit;
    const auto basis = [](bool isEstimated) { return isEstimated ? "estimated" : "record"; };
    for (const auto* list : {&sources.stations, &sources.withoutSource}) {
        for (const Station& s : *list)
            text += s.place + "\t" + s.grade + "\t" + s.uncertainty + "\t" + s.source + "\t" +
                    s.licence + "\t" + shortest(s.latitude) + "\t" + shortest(s.longitude) + "\t" +
                    basis(s.isLevelEstimated) + "\t" + basis(s.areMonthsEstimated) + "\n";
    }
    return text;
}

std::string constituentsList(const Sources& sources)
{
    std::string text =
        "# All constituents of a record: place, zone time, mean level, then for each "
        "its name,\n# amplitude (m) and phase lag (degrees, Greenwich) (tabs)\n#\n";
    text += credit;
    for (const Station& s : sources.stations) {
        if (s.source.starts_with("modelled"))
            continue; // the four and their seasons are all there is
        text += s.place + "\t" + shortest(s.zone.value()) + "\t" + shortest(s.meanLevel);
        for (const auto& [name, constant] : s.constants)
            text += "\t" + name + " " + fixed(constant.amplitude, 4) + " " +
                    fixed(constant.greenwichLag.value(), 1);
        text += "\n";
    }
    return text;
}

} // namespace tidedata
