// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Files of a first line that tells kind and version and then a line "key=value" for every box that
/// holds something.
namespace korvel
{

/// A text without line ends and tabulators, so that a value is a line; and the way back.
std::string escapedLine(std::string_view text);
std::string unescapedLine(std::string_view line);

/// Adds "key=value" to a file; nothing for an empty value.
void addKeyedLine(std::string& file, std::string_view key, std::string_view value);

/// The lines of a file, LF or CR LF behind each, without these.
std::vector<std::string_view> recordLines(std::string_view file);

} // namespace korvel
