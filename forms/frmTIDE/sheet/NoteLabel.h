// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

#include <string>

namespace korvel
{

/// A label for what is said of a station in words: it wraps, and can be selected and copied.
QLabel* addNoteLabel(QWidget* parent, const QString& name);

/// Lets what is hidden at times keep its place: nothing else is to move.
void keepRoom(QWidget& control);

/// Shows a note; without words it is hidden.
void showNote(QLabel* label, const std::string& words);

} // namespace korvel
