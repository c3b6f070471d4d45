// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/PositionRows.h"

#include <algorithm>

namespace korvel
{

bool PositionRow::isEmpty() const
{
    return *this == PositionRow{};
}

bool insertRow(PositionRows& rows, std::size_t at)
{
    if (at >= rows.size() || !rows.back().isEmpty()) return false;
    std::rotate(rows.begin() + static_cast<std::ptrdiff_t>(at), rows.end() - 1, rows.end());
    return true;
}

void deleteRow(PositionRows& rows, std::size_t at)
{
    if (at >= rows.size()) return;
    const auto row = rows.begin() + static_cast<std::ptrdiff_t>(at);
    *row = {};
    std::rotate(row, row + 1, rows.end());
}

void clearRow(PositionRows& rows, std::size_t at)
{
    if (at < rows.size()) rows[at] = {};
}

} // namespace korvel
