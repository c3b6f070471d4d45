// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/SettingsRecord.h"

#include <optional>
#include <span>
#include <vector>

namespace korvel
{

/// What stands in a place of a record; nothing when it cannot be read or told.
using PerhapsValue = std::optional<Value>;

/// Puts the values of a record of the wrong length into their places: when lines were lost within
/// it, or came in, everything behind them stands in its neighbour's place, a longitude in that of a
/// latitude. The kinds tell where: a date is no latitude, a latitude is within 90. A place whose
/// value depends on where exactly the line was lost gets nothing.
///
/// @param values as they come in the file, nothing for one that cannot be read
/// @return one for each kind; nothing at all when the values fit their places as they come, for
///         such a record has lost its end
std::optional<std::vector<PerhapsValue>> putIntoPlaces(std::span<const PerhapsValue> values,
                                                       std::span<const FieldKind> kinds);

} // namespace korvel
