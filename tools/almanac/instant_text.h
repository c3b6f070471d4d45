// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <optional>
#include <string_view>

namespace almanac
{

/// Day of "2026-11-22"; nothing when it is none.
std::optional<NavFunc113::DateTime> readDay(std::string_view text);

/// Instant of "2026-11-22T04:10:00Z". A blank may stand for the T; seconds, their fraction and the
/// Z may be left out.
std::optional<NavFunc113::DateTime> readInstant(std::string_view text);

} // namespace almanac
