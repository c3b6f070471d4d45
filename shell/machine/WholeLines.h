// SPDX-License-Identifier: MIT
#pragma once

class QMessageBox;

namespace korvel
{

/// Gives a message box room for the lines of its text as they are written, as far as the screen has
/// it: the toolkit breaks them at a width that is fixed, and so too small for large letters. Its
/// text, icon and buttons are set before.
void keepLinesWhole(QMessageBox& box);

} // namespace korvel
