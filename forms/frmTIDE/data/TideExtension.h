// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

/// Making the factors file reach to a later year from inside the program, and taking that back.
namespace korvel
{

/// Year to which an extension goes when nobody asks for a later date.
inline constexpr int offeredYear = 2050;

/// Year to which an extension is offered for a date; nothing when no file can reach it.
std::optional<int> extensionYearFor(std::int64_t serial);

/// The question of the offer: "Extend the predictions to 2050?"
std::string extensionOffer(int year);

/// Called with 0 to 100 now and then while the file is made.
using Progress = std::function<void(int percent)>;

/// What was done, or why not, in words.
struct ExtensionResult {
    bool isDone = false;
    std::string text;
};

/// Makes the file to the end of a year and puts it in the place of the one in use, which is kept as
/// "AF2005.txt.before". Nothing is changed when that fails.
ExtensionResult extendFactors(FileStore& files, int lastYear, const Progress& progress);

/// Whether there is an extension to take back, and taking it back.
bool canUndoExtension(FileStore& files);
ExtensionResult undoExtension(FileStore& files);

} // namespace korvel
