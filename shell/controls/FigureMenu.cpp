// SPDX-License-Identifier: MIT
#include "shell/controls/FigureMenu.h"

#include "app/reading/PackedText.h"
#include "app/records/KORVEL2000Actions.h"
#include "shell/machine/AsQString.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QMenu>
#include <QStringList>
#include <QTableView>

#include <algorithm>

namespace korvel
{
namespace
{

/// How many words at the end of one text are those at the beginning of the other.
qsizetype wordsInCommon(const QStringList& before, const QStringList& behind)
{
    for (qsizetype n = std::min(before.size(), behind.size()); n > 0; --n) {
        const QStringList end = before.mid(before.size() - n);
        if (end.join(' ').compare(behind.mid(0, n).join(' '), Qt::CaseInsensitive) == 0) return n;
    }
    return 0;
}

QString lineOf(const QModelIndex& cell, int role)
{
    return cell.data(role).toString().trimmed();
}

/// A position stands in two lines and is one; of any other two lines the one that is meant counts.
QString figureOf(const QModelIndex& cell, bool isSecondMeant)
{
    QString first = lineOf(cell, Qt::DisplayRole);
    QString second = lineOf(cell, secondLineRole);
    if (second.isEmpty()) return first;
    QString both = first + ' ' + second;
    if (positionForMemo(both.toStdString())) return both;
    return isSecondMeant ? second : first;
}

/// @param line of a heading in two lines, as its cells are
QString headingOf(const QModelIndex& cell, int line)
{
    const QString heading = cell.model()->headerData(cell.column(), Qt::Horizontal).toString();
    return heading.contains('\n') ? heading.section('\n', line, line) : heading;
}

/// The first cell that says what its row is: neither a mark nor a number of the row.
QModelIndex nameOfRow(const QModelIndex& cell)
{
    for (int column = 0; column < cell.model()->columnCount(); ++column) {
        const QModelIndex each = cell.siblingAtColumn(column);
        const QString heading = headingOf(each, 0).trimmed();
        if (!heading.isEmpty() && heading != "No." && !lineOf(each, Qt::DisplayRole).isEmpty())
            return each;
    }
    return cell.siblingAtColumn(0);
}

/// A cell is told with the name of its row.
FigureToCopy figureToCopy(const QModelIndex& cell, bool isSecondMeant)
{
    const QString shown = figureOf(cell, isSecondMeant);
    const QModelIndex name = nameOfRow(cell);
    const bool isSecond = shown == lineOf(cell, secondLineRole);
    QString full = figureInFull(headingOf(cell, isSecond ? 1 : 0), shown, {});
    if (cell.column() != name.column())
        full = figureInFull(headingOf(name, 0), lineOf(name, Qt::DisplayRole), {}) + ", " + full;
    return {shown, plainFigure(shown), full};
}

} // namespace

QString plainFigure(const QString& shown)
{
    QString plain = asQString(plainForm(shown.toStdString()));
    for (const char* sign : {"°", "%"}) {
        const QString mark = QString::fromUtf8(sign);
        if (!plain.endsWith(mark)) continue;
        QString number = plain.chopped(mark.size()).trimmed();
        bool isNumber = false;
        number.toDouble(&isNumber);
        if (isNumber) return number;
    }
    return plain;
}

QString figureInFull(const QString& words, const QString& shown, const QString& unit)
{
    const QStringList what = words.simplified().split(' ', Qt::SkipEmptyParts);
    const QStringList figure = asQString(plainForm(shown.toStdString())).simplified().split(' ');
    return (what + figure.mid(wordsInCommon(what, figure)) + QStringList(unit)).join(' ').trimmed();
}

void addCopies(QMenu& menu, const FigureToCopy& figure, const StoresFigures& memory)
{
    const auto add = [&](const QString& caption, const QString& copied) {
        menu.addAction(caption, [copied] { QApplication::clipboard()->setText(copied); })
            ->setEnabled(!figure.shown.isEmpty());
    };
    add("Copy as &shown", figure.shown);
    add("Copy &plain", figure.plain);
    add("Copy in &full", figure.full);
    if (!memory.storeInMemo) return;
    menu.addAction("Store in &memo",
                   [store = memory.storeInMemo, plain = figure.plain] { store(plain); })
        ->setEnabled(isForMemo(figure.plain.toStdString()));
}

QString rowToCopy(const QTableView& table, int row)
{
    QStringList texts;
    for (int column = 0; column < table.model()->columnCount(); ++column) {
        const QModelIndex cell = table.model()->index(row, column);
        texts << lineOf(cell, Qt::DisplayRole);
        const QString second = lineOf(cell, secondLineRole);
        if (!second.isEmpty() || headingOf(cell, 0) != headingOf(cell, 1)) texts << second;
    }
    return texts.join('\t');
}

void openCellMenu(QTableView& table, const QContextMenuEvent& event, const StoresFigures& memory)
{
    const bool byKey = event.reason() == QContextMenuEvent::Keyboard;
    const QPoint at = table.viewport()->mapFromGlobal(event.globalPos());
    const QModelIndex cell = byKey ? table.currentIndex() : table.indexAt(at);
    if (!cell.isValid()) return;
    const QRect room = table.visualRect(cell);
    const FigureToCopy figure = figureToCopy(cell, !byKey && at.y() > room.center().y());
    // The table's own: the window may be closed under the open menu.
    auto* menu = new QMenu(&table);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    // By keyboard a row is in hand: which cell of it is meant has to be said.
    menu->addAction(figure.full)->setEnabled(false);
    menu->addSeparator();
    addCopies(*menu, figure, memory);
    menu->addAction("Copy &row", [row = rowToCopy(table, cell.row())] {
        QApplication::clipboard()->setText(row + '\n');
    });
    menu->popup(byKey ? table.viewport()->mapToGlobal(room.bottomLeft()) : event.globalPos());
}

} // namespace korvel
