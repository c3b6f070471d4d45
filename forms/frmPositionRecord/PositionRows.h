// SPDX-License-Identifier: MIT
#pragma once

#include <array>
#include <cstddef>
#include <string>

/// The 29 rows of the position record, as typed.
namespace korvel
{

struct PositionRow {
    std::string satelliteSMT; ///< txtSatelliteSMT: ship's mean time of the fix
    std::string satelliteTD;  ///< txtSatelliteTD: hours, east positive
    std::string latitude;     ///< txtLat
    std::string longitude;    ///< txtLong

    bool isEmpty() const;
    bool operator==(const PositionRow&) const = default;
};

inline constexpr std::size_t positionRowCount = 29;
using PositionRows = std::array<PositionRow, positionRowCount>;

/// Opens an empty row at the index of a row and moves it and those below down by one.
/// @return false, and nothing is changed, when the last row is in use: it would be lost
bool insertRow(PositionRows& rows, std::size_t at);

/// Takes a row out; those below move up and the last one is empty.
void deleteRow(PositionRows& rows, std::size_t at);

/// Empties a row where it stands.
void clearRow(PositionRows& rows, std::size_t at);

/// A change of rows, as much of it as is needed to take it back.
struct RowChange {
    enum class Kind { Inserted, Deleted, Replaced };
    Kind kind = Kind::Replaced;
    std::size_t at{};    ///< the row that was inserted or deleted
    PositionRows before; ///< the rows when it was made
    PositionRows after;  ///< and as it left them
};

/// Takes a change back, and only that: whatever was typed since stays as it is.
/// @return why it cannot be taken back; empty when it was
std::string takeBack(PositionRows& rows, const RowChange& change);

} // namespace korvel
