// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <variant>
#include <vector>

namespace korvel
{

/// One value of a settings record: never set, a tick, a number (single precision where the program
/// keeps it so) or a text in UTF-8.
using Value = std::variant<std::monostate, bool, double, float, std::string>;

/// The values of one settings file, in the order that belongs to its window.
using Record = std::vector<Value>;

/// A value as number, tick or text; one that was never set reads as 0, false or empty.
double numberOf(const Value& value);
bool tickOf(const Value& value);
std::string textOf(const Value& value);

} // namespace korvel
