// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>

class QGridLayout;
class QGroupBox;
class QLayout;

/// How every window is laid out: gaps, margins, titles and the names of columns.
namespace korvel
{

/// Room between rows: Dense for windows that would not fit on a screen of 1024 x 768 otherwise,
/// Groups between the groups of a window, Frameless where they have a picture and a table beside.
enum class Spacing { Roomy, Dense, Groups, Frameless };

/// Lays out the body of a window, or a part of it: what is around is the window's matter.
void layOutBody(QLayout& layout, Spacing spacing = Spacing::Roomy);

/// The grid of a group.
QGridLayout* gridOf(QGroupBox* group, Spacing spacing = Spacing::Roomy);

/// The grid of a part without margins of its own: rows of captions and figures, close together.
void layOutLines(QGridLayout& grid);

/// A title over a hairline, as wide as what it stands over.
QLabel* sectionHead(const QString& text);

/// The name of a column, at the side where its figures stand.
QLabel* columnHead(const QString& text, Qt::Alignment side = Qt::AlignLeft);

/// Pixels between two controls side by side, and one above the other.
int levelGap(const QLayout& layout);
int uprightGap(const QLayout& layout);

} // namespace korvel
