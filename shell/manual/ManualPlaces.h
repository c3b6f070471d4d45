// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

#include <optional>
#include <vector>

class QAction;
class QPalette;
class QTextDocument;
class QWidget;

/// Where things stand in a page of the manual. A page has a place for each box, list, button,
/// result and menu entry of its window: a heading or the first cell of a row of a table that bears
/// its name. "…" stands for any words ("Row … latitude"), " / " parts several names of one row.
namespace korvel
{

struct PagePlace {
    int position; ///< in the document
    QString text; ///< of the heading, the paragraph or the whole row
};

/// Place of a name in a page; nothing when it has none.
std::optional<PagePlace> placeOf(const QTextDocument& page, const QString& name);

/// The headings of the second level.
std::vector<PagePlace> sectionsOf(const QTextDocument& page);

/// Everything in a page, for a search.
std::vector<PagePlace> linesOf(const QTextDocument& page);
/// The words of a search, each once.
QStringList wordsToFind(const QString& typed);
/// True when a text holds all of some words, in any order and spelt in capitals or not.
bool holdsWords(const QString& text, const QStringList& words);

/// The name that a control has in the manual: what it is for assistive tools, without the unit and
/// the way it is written, or its own text. Empty for what has no name.
QString manualName(const QWidget& control);
/// The same of a menu entry, behind the names of its menus: "Memo: Departure".
QString manualName(const QAction& entry);

/// Gives links and tables of a page the colours and the room that go with a window.
void dressPage(QTextDocument& page, const QPalette& palette);

} // namespace korvel
