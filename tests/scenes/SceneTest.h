// SPDX-License-Identifier: MIT
#pragma once

namespace korvel::testing
{

/// Makes a test of every scene in tests/scenes, named after its file.
void registerScenes();

} // namespace korvel::testing
