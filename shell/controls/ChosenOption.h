// SPDX-License-Identifier: MIT
#pragma once

class QWidget;

namespace korvel
{

/// Makes each group of options in a window one stop of the Tab key, at the option that is chosen,
/// whatever chose it; the focus stays at it. Arrow keys change the choice, and so does the letter
/// of an option that is called by one (N, S, E, W). Asked for once, when all options are there.
void keepFocusAtChosenOptions(QWidget& window);

} // namespace korvel
