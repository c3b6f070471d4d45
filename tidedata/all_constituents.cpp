// SPDX-License-Identifier: MIT
#include "tidedata/all_constituents.h"

#include "navlib/angles.h"
#include "tidedata/astronomy.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <stdexcept>

namespace tidedata
{
namespace
{

// Basic constituents that the data files do without; speeds are sums of the hourly motions of hour
// angle, Moon, Sun and perigee.
constexpr Constituent others[] = {
    {"S1", 1, 0, 0, 0, 0, 180, 15.0000000, NodeSeries::None},
    {"S3", 3, 0, 0, 0, 0, 180, 45.0000000, NodeSeries::None},
    {"EPS2", 2, -5, 4, 1, 0, 0, 27.4238337, NodeSeries::M2},
    {"MF", 0, 2, 0, 0, 0, 0, 1.0980331, NodeSeries::MF},
    {"MM", 0, 1, 0, -1, 0, 0, 0.5443747, NodeSeries::MM},
    {"MTM", 0, 3, 0, -1, 0, 0, 1.6424078, NodeSeries::MF},
    {"MSQM", 0, 4, -2, 0, 0, 0, 2.1139288, NodeSeries::MF},
};

struct Term {
    std::string_view basic;
    double power = 0;
};
struct Compound {
    std::string_view name;
    std::array<Term, 3> terms;
    double constant = 0; // degrees
};

// Shallow-water and other constituents whose argument is that of a product of basic ones. The Sun's
// annual variation of M2 and S3 has no node of its own. The records of the one source that has
// 2MK5, 2MO5, T3 and R3 refer them to arguments without the 90 degrees of K1, O1 and P1, which the
// constants take out again (T3 and R3 are the product of S2 with P1 and with K1); S3, S1 and M3 of
// the same records have their 180 degrees. The evidence stands in tools/tidedata/METHOD.md.
constexpr Compound compounds[] = {
    {"M3", {{{"M2", 1.5}}}, 180},
    {"M4", {{{"M2", 2}}}},
    {"M6", {{{"M2", 3}}}},
    {"M8", {{{"M2", 4}}}},
    {"S4", {{{"S2", 2}}}},
    {"N4", {{{"N2", 2}}}},
    {"MN4", {{{"M2", 1}, {"N2", 1}}}},
    {"MS4", {{{"M2", 1}, {"S2", 1}}}},
    {"MK3", {{{"M2", 1}, {"K1", 1}}}},
    {"2MK3", {{{"M2", 2}, {"K1", -1}}}},
    {"2MK5", {{{"M2", 2}, {"K1", 1}}}, -90},
    {"2MO5", {{{"M2", 2}, {"O1", 1}}}, 90},
    {"2MS6", {{{"M2", 2}, {"S2", 1}}}},
    {"2SM2", {{{"S2", 2}, {"M2", -1}}}},
    {"MKS2", {{{"M2", 1}, {"K2", 1}, {"S2", -1}}}},
    {"MSF", {{{"S2", 1}, {"M2", -1}}}},
    {"MA2", {{{"M2", 1}, {"SA", -1}}}},
    {"MB2", {{{"M2", 1}, {"SA", 1}}}},
    {"T3", {{{"S3", 1}, {"SA", -1}}}, 180},
    {"R3", {{{"S3", 1}, {"SA", 1}}}, 180},
};

constexpr double radians(double degrees)
{
    return degrees * (3.14159265358979323846 / 180);
}

// All basic constituents, those of the daily table first.
const std::vector<Constituent>& basics()
{
    static const std::vector<Constituent> all = [] {
        std::vector<Constituent> list(constituents().begin(), constituents().end());
        list.insert(list.end(), std::begin(others), std::end(others));
        return list;
    }();
    return all;
}

std::size_t basicOf(std::string_view name)
{
    const auto found = std::ranges::find(basics(), name, &Constituent::name);
    if (found == basics().end()) throw std::out_of_range("no constituent " + std::string(name));
    return static_cast<std::size_t>(found - basics().begin());
}

struct Nodal {
    double f = 1;
    double u = 0; // radians
};

// L2 is modulated by the perigee far more than by the node.
Nodal nodalOfL2(const LunarNode& moon, const Nodal& M2)
{
    const double tangent = std::tan(moon.I / 2);
    const double squared = tangent * tangent;
    const double R = std::atan2(std::sin(2 * moon.P), 1 / (6 * squared) - std::cos(2 * moon.P));
    const double reciprocal =
        std::sqrt(1 - 12 * squared * std::cos(2 * moon.P) + 36 * squared * squared);
    return {M2.f * reciprocal, M2.u - R};
}

Nodal nodalOf(NodeSeries series, const LunarNode& moon)
{
    const double I = moon.I;
    const auto fourth = [](double x) { return x * x * x * x; };
    const Nodal M2{fourth(std::cos(I / 2)) / 0.91544, 2 * moon.xi - 2 * moon.nu};
    const double sine = std::sin(I);
    const double twice = std::sin(2 * I);
    switch (series) {
    case NodeSeries::None:
        return {};
    case NodeSeries::M2:
        return M2;
    case NodeSeries::K2:
        return {std::sqrt(19.0444 * fourth(sine) + 2.7702 * sine * sine * std::cos(2 * moon.nu) +
                          0.0981),
                -moon.nuK2};
    case NodeSeries::K1:
        return {std::sqrt(0.8965 * twice * twice + 0.6001 * twice * std::cos(moon.nu) + 0.1006),
                -moon.nuK1};
    case NodeSeries::O1:
        return {sine * std::pow(std::cos(I / 2), 2) / 0.37988, 2 * moon.xi - moon.nu};
    case NodeSeries::J1:
        return {twice / 0.72137, -moon.nu};
    case NodeSeries::OO1:
        return {sine * std::pow(std::sin(I / 2), 2) / 0.016358, -2 * moon.xi - moon.nu};
    case NodeSeries::L2:
        return nodalOfL2(moon, M2);
    case NodeSeries::MF:
        return {sine * sine / 0.15777, -2 * moon.xi};
    case NodeSeries::MM:
        return {(2.0 / 3 - sine * sine) / 0.50210, 0};
    }
    throw std::logic_error("node series without formula");
}

double argumentAtMidnight(const Constituent& c, const MeanLongitudes& at)
{
    const auto value = [](NavFunc113::Degrees angle) { return angle.value(); };
    return c.moon * value(at.moon) + c.sun * value(at.sun) + c.perigee * value(at.lunarPerigee) +
           c.solarPerigee * value(at.solarPerigee) + c.constant;
}

} // namespace

LunarNode::LunarNode(double node, double perigee)
{
    const double N = radians(std::remainder(node, 360)); // the half of it must not jump
    I = std::acos(0.91370 - 0.03569 * std::cos(N));
    const double first = std::atan(1.01883 * std::tan(N / 2)) - N / 2;
    const double second = std::atan(0.64412 * std::tan(N / 2)) - N / 2;
    xi = -(first + second);
    nu = first - second;
    const double twice = std::sin(2 * I);
    const double squared = std::sin(I) * std::sin(I);
    nuK1 = std::atan2(twice * std::sin(nu), twice * std::cos(nu) + 0.3347);
    nuK2 = std::atan2(squared * std::sin(2 * nu), squared * std::cos(2 * nu) + 0.0727);
    P = radians(perigee) - xi;
}

double DayOfAllConstituents::at(NavFunc113::Hours t) const
{
    double sum = m_level;
    for (const Wave& wave : m_waves)
        sum += wave.amplitude * std::cos(wave.phase + wave.speed * t.value());
    return sum;
}

NavFunc113::TideValues DayOfAllConstituents::halfHourly() const
{
    NavFunc113::TideValues values;
    turnOn(NavFunc113::Hours(0), NavFunc113::Hours(0.5), values);
    return values;
}

void DayOfAllConstituents::turnOn(NavFunc113::Hours from, NavFunc113::Hours step,
                                  std::span<double> values) const
{
    std::ranges::fill(values, m_level);
    for (const Wave& wave : m_waves) {
        const double phase = wave.phase + wave.speed * from.value();
        const double turn = wave.speed * step.value();
        double cosine = wave.amplitude * std::cos(phase);
        double sine = wave.amplitude * std::sin(phase);
        const double stepCosine = std::cos(turn);
        const double stepSine = std::sin(turn);
        for (double& value : values) {
            value += cosine;
            const double next = cosine * stepCosine - sine * stepSine;
            sine = sine * stepCosine + cosine * stepSine;
            cosine = next;
        }
    }
}

AllConstituents::Part AllConstituents::partOf(std::string_view name)
{
    Part part{};
    part.name = name;
    const auto add = [&part](std::string_view basic, double power) {
        const std::size_t index = basicOf(basic);
        part.factors.push_back({index, power});
        part.speed += power * basics()[index].speed;
    };
    const auto compound = std::ranges::find(compounds, name, &Compound::name);
    if (compound == std::end(compounds)) {
        add(name, 1);
        return part;
    }
    part.constant = compound->constant;
    for (const auto& [basic, power] : compound->terms)
        if (power != 0) add(basic, power);
    return part;
}

AllConstituents::AllConstituents(std::span<const HarmonicConstant> constants,
                                 NavFunc113::Hours zone, double meanLevel)
    : m_meanLevel(meanLevel)
{
    for (const HarmonicConstant& constant : constants) {
        Part part = partOf(constant.name);
        part.amplitude = constant.amplitude;
        part.kappa = constant.greenwichLag + part.speed * zone.value();
        m_parts.push_back(std::move(part));
    }
}

DayOfAllConstituents AllConstituents::ofDay(std::int64_t serial) const
{
    const auto day = static_cast<Days2000>(serial - 36526);
    const MeanLongitudes midnight = meanLongitudesAt(day);
    const MeanLongitudes noon = meanLongitudesAt(day + 0.5);
    const LunarNode moon(noon.lunarNode.value(), noon.lunarPerigee.value());
    std::array<Nodal, 10> nodal;
    for (std::size_t series = 0; series < nodal.size(); ++series)
        nodal[series] = nodalOf(static_cast<NodeSeries>(series), moon);

    DayOfAllConstituents result;
    result.m_level = m_meanLevel;
    for (const Part& part : m_parts) {
        double f = 1;
        double V = part.constant - part.kappa;
        double u = 0;
        for (const auto& [index, power] : part.factors) {
            const Constituent& basic = basics()[index];
            const Nodal& node = nodal[static_cast<std::size_t>(basic.node)];
            f *= power == 1 ? node.f : std::pow(node.f, std::fabs(power));
            V += power * argumentAtMidnight(basic, midnight);
            u += power * node.u;
        }
        result.m_waves.push_back({part.name, f * part.amplitude,
                                  radians(std::remainder(V, 360)) + u, radians(part.speed)});
    }
    return result;
}

} // namespace tidedata
