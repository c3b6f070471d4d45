// SPDX-License-Identifier: MIT
#pragma once

#include <QFont>
#include <QSize>
#include <QStringList>

namespace korvel
{

/// What of a text can be seen in a room.
struct ShownLines {
    QStringList lines;
    bool isWhole = true; ///< otherwise the last line ends in dots
};

/// Wraps a text at its words, line breaks of its own kept, for as many lines as the room is high;
/// one line at least.
ShownLines shownLines(const QString& text, const QFont& letters, QSize room);

} // namespace korvel
