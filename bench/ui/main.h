// SPDX-License-Identifier: MIT
#pragma once

#include <functional>
#include <string>
#include <utility>
#include <vector>

namespace korvel::bench
{

/// Repeats one round of work as often as the measurement wants.
using Rounds = std::function<void(const std::function<void()>&)>;

/// Prepares the work and hands its round over.
using Work = std::function<void(const Rounds&)>;

/// The baseline: two keys in a bare text box that holds a text and copies it to a label.
Work bareTextBox(const char* text);

/// Runs the named works under Google Benchmark, or, called as "count NAME ROUNDS", runs one of them
/// that many rounds for a counter of instructions.
int runUiBench(int argc, char* argv[], const std::vector<std::pair<std::string, Work>>& works);

} // namespace korvel::bench
