// SPDX-License-Identifier: MIT
#pragma once

#include "routes/route/Route.h"

#include <filesystem>
#include <string_view>

namespace korvel
{

/// The largest file of a route that is read: a plan of 500 rows with all that others add to it has
/// a tenth of that.
inline constexpr std::size_t mostRouteBytes = std::size_t{8} * 1024 * 1024;

/// Reads a route from the bytes of a file: RTZ, GPX or a list, told apart by what it begins with.
ReadRoute readRoute(std::string_view bytes);

/// The same of a file. What is no ordinary file (a folder, a device, a pipe) or too large is
/// refused without being read.
ReadRoute readRouteFile(const std::filesystem::path& file);

} // namespace korvel
