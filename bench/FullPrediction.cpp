// SPDX-License-Identifier: MIT
#include "bench/FullPrediction.h"

#include "navlib/angles.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

namespace bench
{
namespace
{

using tidedata::Constituent;
using tidedata::NodeSeries;

// Basic constituents that the data files do not need; speeds are sums of the hourly motions of
// hour angle, Moon, Sun and perigee.
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
    double power;
};
struct Compound {
    std::string_view name;
    std::vector<Term> terms;
    double constant = 0;
};

const std::vector<Compound>& compounds()
{
    static const std::vector<Compound> table = {
        {"M3", {{"M2", 1.5}}, 180},
        {"M4", {{"M2", 2}}},
        {"M6", {{"M2", 3}}},
        {"M8", {{"M2", 4}}},
        {"S4", {{"S2", 2}}},
        {"N4", {{"N2", 2}}},
        {"MN4", {{"M2", 1}, {"N2", 1}}},
        {"MS4", {{"M2", 1}, {"S2", 1}}},
        {"MK3", {{"M2", 1}, {"K1", 1}}},
        {"2MK3", {{"M2", 2}, {"K1", -1}}},
        {"2MK5", {{"M2", 2}, {"K1", 1}}},
        {"2MO5", {{"M2", 2}, {"O1", 1}}},
        {"2MS6", {{"M2", 2}, {"S2", 1}}},
        {"2SM2", {{"S2", 2}, {"M2", -1}}},
        {"MKS2", {{"M2", 1}, {"K2", 1}, {"S2", -1}}},
        {"MSF", {{"S2", 1}, {"M2", -1}}},
        {"MA2", {{"M2", 1}, {"SA", -1}}},
        {"MB2", {{"M2", 1}, {"SA", 1}}},
        {"T3", {{"S3", 1}, {"SA", -1}}},
        {"R3", {{"S3", 1}, {"SA", 1}}},
    };
    return table;
}

const Constituent& basicOf(std::string_view name)
{
    const auto found = std::ranges::find(others, name, &Constituent::name);
    return found != std::end(others) ? *found : tidedata::constituentOf(name);
}

} // namespace

FullPrediction::Part FullPrediction::partOf(std::string_view name)
{
    Part part{};
    const auto compound = std::ranges::find(compounds(), name, &Compound::name);
    const std::vector<Term> terms =
        compound != compounds().end() ? compound->terms : std::vector<Term>{{name, 1}};
    if (compound != compounds().end()) part.constant = compound->constant;
    for (const auto& [basic, power] : terms) {
        part.factors.push_back({&basicOf(basic), power});
        part.speed += power * basicOf(basic).speed;
    }
    return part;
}

FullPrediction::FullPrediction(const tidedata::Station& station, std::size_t limit)
    : m_meanLevel(station.meanLevel)
{
    for (const auto& [name, constant] : station.constants) {
        Part part = partOf(name);
        part.amplitude = constant.amplitude;
        part.kappa = tidedata::reduced(constant.greenwichLag +
                                       NavFunc113::Degrees(part.speed * station.zone.value()))
                         .value();
        m_parts.push_back(std::move(part));
    }
    std::ranges::sort(m_parts, std::greater{}, &Part::amplitude);
    if (m_parts.size() > limit) m_parts.resize(limit);
}

std::vector<Wave> FullPrediction::wavesOf(std::int64_t serial) const
{
    const auto day = static_cast<double>(serial - 36526);
    const tidedata::MeanLongitudes at = tidedata::meanLongitudesAt(day);
    const tidedata::MeanLongitudes noon = tidedata::meanLongitudesAt(day + 0.5);
    std::vector<Wave> waves;
    for (const Part& part : m_parts) {
        double factor = 1;
        double angle = part.constant - part.kappa;
        for (const auto& [basic, power] : part.factors) {
            const tidedata::Node node = tidedata::nodeOf(basic->node, noon);
            const tidedata::Node midnight = tidedata::nodeOf(basic->node, at);
            factor *= std::pow(node.factor, std::fabs(power));
            angle += power *
                     (tidedata::argumentOf(*basic, at).angle - midnight.phase + node.phase).value();
        }
        waves.push_back({factor * part.amplitude, angle, part.speed});
    }
    return waves;
}

double FullPrediction::height(const std::vector<Wave>& waves, double t) const
{
    double sum = m_meanLevel;
    for (const Wave& wave : waves)
        sum += wave.amplitude * cos(NavFunc113::Degrees(wave.phase + wave.speed * t));
    return sum;
}

} // namespace bench
