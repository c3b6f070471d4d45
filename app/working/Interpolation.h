// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/Working.h"

namespace korvel
{

/// An entry of a table that is interpolated by Lagrange's formula.
struct TableNode {
    double at;
    double value;
};

/// Lagrange's formula with its figures: every entry times its weight Π (at - x) / (its x - x) over
/// all others, "(0.99507 × 0.123456 + 0.99842 × 0.876544)".
std::string lagrangeFigures(const std::vector<TableNode>& table, double at);

/// Entries and weights as a table of a working.
/// @param title what is looked up, and at what
/// @param unit  of the entries, "'"
PaperTable lagrangeTable(const std::string& title, const std::string& unit,
                         const std::vector<TableNode>& table, double at);

} // namespace korvel
