// SPDX-License-Identifier: MIT
#include "tidedata/astronomy.h"

#include "navlib/angles.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>
#include <string>

namespace tidedata
{
namespace
{

// f = f0 + f1 cos N + f2 cos 2N + f3 cos 3N, u = u1 sin N + u2 sin 2N + u3 sin 3N.
struct NodeCoefficients {
    double f0, f1, f2, f3;
    double u1, u2, u3;
};

Node nodeFrom(const NodeCoefficients& c, Degrees N)
{
    return {c.f0 + c.f1 * cos(N) + c.f2 * cos(2 * N) + c.f3 * cos(3 * N),
            Degrees(c.u1 * sin(N) + c.u2 * sin(2 * N) + c.u3 * sin(3 * N))};
}

// The elliptic wave L2 is modulated by the perigee far more than by the node.
Node nodeOfL2(Degrees p, Degrees N)
{
    const double X = 1 - 0.2505 * cos(2 * p) - 0.1102 * cos(2 * p - N) -
                     0.0156 * cos(2 * p - 2 * N) - 0.0370 * cos(N);
    const double Y = -0.2505 * sin(2 * p) - 0.1102 * sin(2 * p - N) - 0.0156 * sin(2 * p - 2 * N) -
                     0.0370 * sin(N);
    return {std::sqrt(X * X + Y * Y), NavFunc113::RadToDeg(NavFunc113::Radians(std::atan2(Y, X)))};
}

constexpr auto none = NodeSeries::None;
constexpr Constituent table[] = {
    // name, cycles, s, h, p, p', constant, speed, node
    {"M2", 2, -2, 2, 0, 0, 0, 28.9841042, NodeSeries::M2},
    {"N2", 2, -3, 2, 1, 0, 0, 28.4397295, NodeSeries::M2},
    {"2N2", 2, -4, 2, 2, 0, 0, 27.8953548, NodeSeries::M2},
    {"MU2", 2, -4, 4, 0, 0, 0, 27.9682085, NodeSeries::M2},
    {"NU2", 2, -3, 4, -1, 0, 0, 28.5125832, NodeSeries::M2},
    {"L2", 2, -1, 2, -1, 0, 180, 29.5284789, NodeSeries::L2},
    {"LAMBDA2", 2, -1, 0, 1, 0, 180, 29.4556253, NodeSeries::M2},
    {"S2", 2, 0, 0, 0, 0, 0, 30.0000000, none},
    {"K2", 2, 0, 2, 0, 0, 0, 30.0821373, NodeSeries::K2},
    {"T2", 2, 0, -1, 0, 1, 0, 29.9589333, none},
    {"R2", 2, 0, 1, 0, -1, 180, 30.0410667, none},
    {"K1", 1, 0, 1, 0, 0, 90, 15.0410686, NodeSeries::K1},
    {"P1", 1, 0, -1, 0, 0, 270, 14.9589314, none},
    {"J1", 1, 1, 1, -1, 0, 90, 15.5854433, NodeSeries::J1},
    {"OO1", 1, 2, 1, 0, 0, 90, 16.1391017, NodeSeries::OO1},
    {"O1", 1, -2, 1, 0, 0, 270, 13.9430356, NodeSeries::O1},
    {"Q1", 1, -3, 1, 1, 0, 270, 13.3986609, NodeSeries::O1},
    {"2Q1", 1, -4, 1, 2, 0, 270, 12.8542862, NodeSeries::O1},
    {"RHO1", 1, -3, 3, -1, 0, 270, 13.4715145, NodeSeries::O1},
    {"SA", 0, 0, 1, 0, 0, 0, 0.0410686, none},
    {"SSA", 0, 0, 2, 0, 0, 0, 0.0821373, none},
};

} // namespace

Degrees reduced(Degrees angle)
{
    const Degrees rest(std::fmod(angle.value(), 360));
    return rest < Degrees(0) ? rest + NavFunc113::fullTurn : rest;
}

MeanLongitudes meanLongitudesAt(Days2000 day)
{
    const double T = (day - 0.5) / 36525; // Julian centuries since 2000-01-01 12:00
    const double T2 = T * T;
    const double T3 = T2 * T;
    const double T4 = T3 * T;
    return {reduced(Degrees(218.3164477 + 481267.88123421 * T - 0.0015786 * T2 + T3 / 538841 -
                            T4 / 65194000)),
            reduced(Degrees(280.46646 + 36000.76983 * T + 0.0003032 * T2)),
            reduced(Degrees(83.3532465 + 4069.0137287 * T - 0.0103200 * T2 - T3 / 80053 +
                            T4 / 18999000)),
            reduced(Degrees(125.0445479 - 1934.1362891 * T + 0.0020754 * T2 + T3 / 467441 -
                            T4 / 60616000)),
            reduced(Degrees(282.93735 + 1.71946 * T + 0.00046 * T2))};
}

Node nodeOf(NodeSeries series, const MeanLongitudes& at)
{
    const Degrees N = at.lunarNode;
    switch (series) {
    case NodeSeries::None:
        return {};
    case NodeSeries::M2:
        return nodeFrom({1.0007, -0.0373, 0.0002, 0, -2.14, 0, 0}, N);
    case NodeSeries::K2:
        return nodeFrom({1.0246, 0.2863, 0.0083, -0.0015, -17.74, 0.68, -0.04}, N);
    case NodeSeries::K1:
        return nodeFrom({1.0060, 0.1150, -0.0088, 0.0006, -8.86, 0.68, -0.07}, N);
    case NodeSeries::O1:
        return nodeFrom({1.0176, 0.1871, -0.0147, 0, 10.80, -1.34, 0.19}, N);
    case NodeSeries::J1:
        return nodeFrom({1.0129, 0.1676, -0.0170, 0.0016, -12.94, 1.34, -0.19}, N);
    case NodeSeries::OO1:
        return nodeFrom({1.1027, 0.6504, 0.0317, -0.0014, -36.68, 4.02, -0.57}, N);
    case NodeSeries::L2:
        return nodeOfL2(at.lunarPerigee, N);
    case NodeSeries::MF:
    case NodeSeries::MM:
        break; // no constituent of the factors file
    }
    throw std::logic_error("node series without coefficients");
}

std::span<const Constituent> constituents()
{
    return table;
}

const Constituent& constituentOf(std::string_view name)
{
    const auto found = std::ranges::find(table, name, &Constituent::name);
    if (found == std::end(table)) throw std::out_of_range("no constituent " + std::string(name));
    return *found;
}

Argument argumentOf(const Constituent& c, const MeanLongitudes& at)
{
    const Node node = nodeOf(c.node, at);
    const Degrees V = c.moon * at.moon + c.sun * at.sun + c.perigee * at.lunarPerigee +
                      c.solarPerigee * at.solarPerigee + Degrees(c.constant);
    return {node.factor, V + node.phase};
}

} // namespace tidedata
