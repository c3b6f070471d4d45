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
    if (!rows.back().isEmpty()) return false;
    std::rotate(rows.begin() + static_cast<std::ptrdiff_t>(at), rows.end() - 1, rows.end());
    return true;
}

void deleteRow(PositionRows& rows, std::size_t at)
{
    const auto row = rows.begin() + static_cast<std::ptrdiff_t>(at);
    *row = {};
    std::rotate(row, row + 1, rows.end());
}

void clearRow(PositionRows& rows, std::size_t at)
{
    rows[at] = {};
}

std::string takeBack(PositionRows& rows, const RowChange& change)
{
    const std::string number = std::to_string(change.at + 1);
    switch (change.kind) {
    case RowChange::Kind::Inserted:
        if (!rows[change.at].isEmpty())
            return "Row " + number + " was filled since it was inserted: it stays.";
        deleteRow(rows, change.at);
        return {};
    case RowChange::Kind::Deleted:
        if (!insertRow(rows, change.at))
            return "Row 29 is in use: there is no room for the deleted row.";
        rows[change.at] = change.before[change.at];
        return {};
    case RowChange::Kind::Replaced:
        break;
    }
    constexpr std::string PositionRow::*cells[] = {&PositionRow::satelliteSMT,
                                                   &PositionRow::satelliteTD,
                                                   &PositionRow::latitude, &PositionRow::longitude};
    for (std::size_t i = 0; i < rows.size(); ++i)
        for (const auto cell : cells)
            if (rows[i].*cell == change.after[i].*cell) rows[i].*cell = change.before[i].*cell;
    return {};
}

} // namespace korvel
