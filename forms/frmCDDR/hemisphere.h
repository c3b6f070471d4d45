// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace korvel
{

/// What choosing a hemisphere writes into the box of a latitude or longitude.
///
/// @param boxText  the value as typed
/// @param positive true for N and E, false for S and W
/// @return the value times -1, when its sign is not the chosen one already; 0 with S or W is
///         written back as 0. Nothing when the box is left alone.
std::optional<std::string> withHemisphere(std::string_view boxText, bool positive);

/// The hemisphere that a typed value names: true for N and E.
/// @return nothing for 0, which has no sign: the option then stays as it was chosen
std::optional<bool> hemisphereOf(std::string_view boxText);

} // namespace korvel
