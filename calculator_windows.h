// SPDX-License-Identifier: MIT
#pragma once

#include "shell/program/WindowCatalogue.h"

namespace korvel
{

/// Every calculator window of the program. The one place that puts them together.
WindowCatalogue calculatorWindows();

} // namespace korvel
