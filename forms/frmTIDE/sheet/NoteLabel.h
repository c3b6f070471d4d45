// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include <string>

namespace korvel
{

/// A label for what is said of a station in words: it wraps, and can be selected and copied.
QLabel* addNoteLabel(QWidget* parent, const QString& name);

/// Shows a note; without words its line goes.
void showNote(QLabel* label, const std::string& words);

} // namespace korvel
