// SPDX-License-Identifier: MIT
#pragma once

#include <filesystem>
#include <string>

namespace korvel
{

/// Path of a file of the source tree, where cases, scenes and shipped data lie.
/// @param name from the top of the tree, "tests/golden/dead_reckoning.csv"
std::string sourceFile(const std::string& name);

/// All bytes of a file; none when it cannot be read.
std::string contentOf(const std::filesystem::path& file);

} // namespace korvel
