// SPDX-License-Identifier: MIT
#pragma once

#include "tests/scenes/Script.h"
#include "tests/scenes/Stage.h"

#include <map>
#include <string>
#include <vector>

namespace korvel::testing
{

using Words = std::vector<Word>;
using Verb = void (*)(Stage&, const Words&);

/// What an officer does; what the machine around the program does; what can be seen then. README.md
/// lists the verbs.
const std::map<std::string, Verb>& handVerbs();
const std::map<std::string, Verb>& machineVerbs();
const std::map<std::string, Verb>& eyeVerbs();

/// Does one step. @throws std::runtime_error when it cannot be done or something else is seen
void play(Stage& stage, const std::string& verb, const Words& words);

/// A word of a step, by its place. @throws std::runtime_error when it is missing
const std::string& wordAt(const Words& words, std::size_t place);
double numberAt(const Words& words, std::size_t place);

/// Compares a text with what the words from a place on expect: "all of it", has "part" .., lacks
/// "part" .., starts "beginning", not "this", near 3.5 0.1.
/// @throws std::runtime_error when it is different
void expectText(const std::string& seen, const Words& words, std::size_t place);

/// Bytes of a file as a scene writes them: texts that follow each other, or after "record" the
/// lines of a settings file, texts in quotes.
std::string bytesAt(const Words& words, std::size_t place);

/// The controls of "txtGC(0..3)", one name for every other word.
std::vector<std::string> membersOf(const std::string& name);

} // namespace korvel::testing
