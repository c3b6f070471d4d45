// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace korvel::testing
{

/// A word of a step. Only a quoted one can be a text that is typed or expected.
struct Word {
    std::string text;
    bool quoted = false;
};

struct Step {
    int line = 0;
    std::string source; ///< as written
    std::string verb;
    std::vector<Word> words;
};

/// A scene of a window: what an officer does and sees.
struct Scene {
    std::string file; ///< "tests/scenes/frmWind.scene"
    std::string name;
    int line = 0;
    std::vector<Step> steps;
};

/// Reads the scenes of a file; README.md in tests/scenes tells how they are written.
/// @throws std::runtime_error with file and line when a line makes no sense
std::vector<Scene> readScenes(const std::string& file);

} // namespace korvel::testing
