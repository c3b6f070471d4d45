// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
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

/// Reads such a file; lines of keys that nobody knows are passed over.
/// @param kind what the first line has to begin with
/// @param what the file is then: "noon report"
/// @param take is given every key with its value
/// @return what could not be read, for the officer; empty when all was
std::string
readKeyedLines(std::string_view file, std::string_view kind, const std::string& what,
               const std::function<void(std::string_view key, const std::string& value)>& take);

/// Reads a file whose lines of one key are the things of a list; other lines are passed over.
/// @param kind what the first line has to begin with
/// @param what they are: "planned sights"
/// @param take is given the value of each, and says whether it could be read and kept
/// @return what could not be, for the officer; empty when all was
std::string readListedLines(std::string_view file, std::string_view kind, const std::string& what,
                            std::string_view key,
                            const std::function<bool(const std::string& value)>& take);

} // namespace korvel
