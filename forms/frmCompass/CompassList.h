// SPDX-License-Identifier: MIT
#pragma once

#include "app/working/WorkingPaper.h"
#include "forms/frmCompass/CompassBook.h"

#include <string>
#include <string_view>
#include <vector>

/// The compass book as a list for other programs, and the way back.
namespace korvel
{

/// Lines for other programs: decimal degrees, east and north positive.
/// @param lines indices of the book
ExportTable compassList(const CompassBook& book, const std::vector<std::size_t>& lines);

/// A list as it was read, or why it was not.
struct ReadCompassList {
    CompassBook lines;
    std::string fault; ///< line, column and what is wrong; nothing was read then
};

/// Reads a file of such a list, whole or not at all. A compass without a bearing that has an error
/// was compared by its head.
ReadCompassList readCompassList(std::string_view text);

/// Adds lines to the end of a book that it does not have yet, as far as it has room.
/// @return how many were added
std::size_t addNewLines(CompassBook& book, const CompassBook& lines);

} // namespace korvel
