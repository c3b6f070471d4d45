// SPDX-License-Identifier: MIT
#include "app/working/Interpolation.h"

#include "app/reading/Format.h"

namespace korvel
{
namespace
{

constexpr int weightDecimals = 7;
constexpr const char* entryFormat = "0.0####";

double weightOf(const std::vector<TableNode>& table, const TableNode& node, double at)
{
    double weight = 1;
    for (const TableNode& other : table)
        if (other.at != node.at) weight *= (at - other.at) / (node.at - other.at);
    return weight;
}

} // namespace

std::string lagrangeFigures(const std::vector<TableNode>& table, double at)
{
    std::string sum;
    for (const TableNode& node : table) {
        const std::string entry = Format(node.value, entryFormat);
        sum += (sum.empty() ? "(" : " + ") + (node.value < 0 ? '(' + entry + ')' : entry) + " × " +
               term(weightOf(table, node, at), weightDecimals);
    }
    return sum + ')';
}

PaperTable lagrangeTable(const std::string& title, const std::string& unit,
                         const std::vector<TableNode>& table, double at)
{
    PaperTable weights{title + ": Σ y w, w = Π (x - x') / (xi - x') over all other entries x'",
                       {"Entry xi", "y " + unit, "w", "y w " + unit},
                       {}};
    for (const TableNode& node : table) {
        const double weight = weightOf(table, node, at);
        weights.rows.push_back({Format(node.at, "0") + "°", Format(node.value, entryFormat),
                                figure(weight, weightDecimals),
                                figure(node.value * weight, weightDecimals)});
    }
    return weights;
}

} // namespace korvel
