// SPDX-License-Identifier: MIT
#pragma once

#include <QPoint>
#include <QString>

#include <functional>

class QContextMenuEvent;
class QMenu;
class QTableView;

namespace korvel
{

/// Shows figures that can go into a memory.
struct StoresFigures {
    /// Stores what copying gives; an empty function where there is no memory.
    std::function<void(const QString& copied)> storeInMemo;
};

/// A figure in the forms in which it is copied.
struct FigureToCopy {
    QString shown;
    QString plain; ///< what another program reads
    QString full;  ///< for a log or a letter: what it is, the figure, its unit
};

/// The plain form of a text. A lone number goes without the degree or per cent sign behind it:
/// other programs take a number with a sign for a word.
QString plainFigure(const QString& shown);

/// What it is, the figure and its unit; a figure that says itself what it is does not say it twice.
QString figureInFull(const QString& words, const QString& shown, const QString& unit);

/// Adds the ways to copy a figure, and the memory, to a menu that opens over it. What cannot be
/// copied or stored can be seen and not chosen.
void addCopies(QMenu& menu, const FigureToCopy& figure, const StoresFigures& memory);

/// The same for the cell under the mouse, or the one in hand of the keyboard, and for its row.
void openCellMenu(QTableView& table, const QContextMenuEvent& event, const StoresFigures& memory);

/// The texts of a row, a tab between them.
QString rowToCopy(const QTableView& table, int row);

/// What a model tells beside the text of a cell that has two lines.
constexpr int secondLineRole = Qt::UserRole;

} // namespace korvel
