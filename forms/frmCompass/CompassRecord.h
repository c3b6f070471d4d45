// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/CompassBook.h"

#include <string>
#include <string_view>

namespace korvel
{

/// File of the compass book.
inline constexpr const char* compassBookFile = "KV_Compass.ini";

/// The book as the bytes of its file: a first line that tells kind and version, then a line "line"
/// for every observation and behind it "key=value" for all that it has. It comes back as it was,
/// angles to the last bit, times to the second.
std::string compassBookText(const CompassBook& book);

/// What was found in a text that should be a book's.
struct ReadCompassBook {
    CompassBook book;   ///< as far as it could be read
    std::string damage; ///< line and what is wrong, the first of it; empty when all was read
    bool isBook = true; ///< false: the first line is not that of a book, nothing was read
};

/// Reads that. Keys that a later version may have are passed over without a word; a line that is
/// none, a figure that is no angle and lines beyond the most are named, and the rest is read. An
/// observation without a time is left out.
ReadCompassBook readCompassBook(std::string_view text);

} // namespace korvel
