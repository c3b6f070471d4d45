// SPDX-License-Identifier: MIT
#include "shell/paper/PaperPages.h"

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextDocument>
#include <QTextFrame>
#include <QTextTable>

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

constexpr std::size_t leastOnLastPage = 3; // lines: the place for a signature and what it is for
constexpr int shortestRule = 3;            // signs that underline a title of a plain text
constexpr int longestWhole = 6;            // lines of a paragraph that is not parted

/// What is not parted.
struct Piece {
    PaperSlice room;
    bool staysWithNext = false;
    PaperSlice heading = {}; ///< of the table that it is a row of
    bool isRow = false;
};

bool isRule(const QTextBlock& block)
{
    const QString text = block.text();
    return text.size() >= shortestRule &&
           (text.count('-') == text.size() || text.count('=') == text.size());
}

/// A line that nobody wants to see alone at the foot of a page.
bool belongsToNext(const QTextBlock& block)
{
    const QTextBlock next = block.next();
    const bool isPicture = block.text() == QString(QChar::ObjectReplacementCharacter);
    const bool isTitle = block.blockFormat().headingLevel();
    return isTitle || isPicture || isRule(block) || (next.isValid() && isRule(next));
}

PaperSlice slice(const QRectF& room)
{
    return {room.top(), room.bottom()};
}

void addLines(std::vector<Piece>& pieces, const QTextBlock& block)
{
    const QTextLayout& lines = *block.layout();
    const QRectF all = block.document()->documentLayout()->blockBoundingRect(block);
    if (lines.lineCount() <= longestWhole) {
        pieces.push_back({slice(all), belongsToNext(block)});
        return;
    }
    for (int i = 0; i < lines.lineCount(); ++i)
        pieces.push_back({slice(lines.lineAt(i).rect().translated(all.topLeft()))});
}

/// What the texts of a row take up, without the room around them.
PaperSlice textsOfRow(const QTextTable& table, int row)
{
    const QAbstractTextDocumentLayout& layout = *table.document()->documentLayout();
    PaperSlice room{HUGE_VAL, -HUGE_VAL};
    for (int column = 0; column < table.columns(); ++column) {
        const QTextTableCell cell = table.cellAt(row, column);
        for (auto at = cell.begin(); !at.atEnd(); ++at) {
            const QRectF block = layout.blockBoundingRect(at.currentBlock());
            room.top = std::min(room.top, block.top());
            room.bottom = std::max(room.bottom, block.bottom());
        }
    }
    return room;
}

/// A title and what is said below it stay with the table that is meant.
void keepWithTable(std::vector<Piece>& pieces)
{
    for (auto piece = pieces.rbegin(); piece != pieces.rend(); ++piece) {
        if (piece->isRow || piece->staysWithNext) return;
        piece->staysWithNext = true;
    }
}

void addRows(std::vector<Piece>& pieces, QTextTable& table)
{
    keepWithTable(pieces);
    const PaperSlice all = slice(table.document()->documentLayout()->frameBoundingRect(&table));
    const int headings = table.format().headerRowCount();
    PaperSlice heading{all.top, all.top};
    double top = all.top;
    PaperSlice next = textsOfRow(table, 0);
    for (int row = 0; row < table.rows(); ++row) {
        const PaperSlice texts = next;
        const bool isLast = row + 1 == table.rows();
        if (!isLast) next = textsOfRow(table, row + 1);
        const double bottom = isLast ? all.bottom : (texts.bottom + next.top) / 2;
        const bool isHeading = row < headings;
        // One row alone, at the foot of a page or at the head of the next, is soon overlooked.
        const bool isKept = !isLast && (row <= headings || row + 2 == table.rows());
        pieces.push_back({{top, bottom}, isKept, isHeading ? PaperSlice() : heading, true});
        if (isHeading) heading.bottom = bottom;
        top = bottom;
    }
}

std::vector<Piece> piecesOf(const QTextDocument& document)
{
    std::vector<Piece> pieces;
    // What is empty stands anywhere, beside a table too.
    for (auto at = document.rootFrame()->begin(); !at.atEnd(); ++at)
        if (auto* table = qobject_cast<QTextTable*>(at.currentFrame()))
            addRows(pieces, *table);
        else if (at.currentBlock().length() > 1)
            addLines(pieces, at.currentBlock());
    const std::size_t kept = std::min(leastOnLastPage, pieces.size());
    for (std::size_t i = pieces.size() - kept; i + 1 < pieces.size(); ++i)
        pieces[i].staysWithNext = true;
    return pieces;
}

/// The last piece of the page that begins with a piece.
std::size_t lastOnPage(const std::vector<Piece>& pieces, std::size_t first, double room)
{
    const double end = pieces[first].room.top + room;
    std::size_t last = first;
    while (last + 1 < pieces.size() && pieces[last + 1].room.bottom <= end)
        ++last;
    if (last + 1 == pieces.size()) return last;
    std::size_t kept = last;
    while (kept > first && pieces[kept].staysWithNext)
        --kept;
    return pieces[kept].staysWithNext ? last : kept;
}

} // namespace

std::vector<PaperPage> pagesOf(const QTextDocument& document, double height)
{
    std::vector<Piece> pieces = piecesOf(document);
    std::vector<PaperPage> pages;
    for (std::size_t first = 0; first < pieces.size();) {
        PaperPage page{pages.empty() ? PaperSlice() : pieces[first].heading, {}};
        const double room = height - page.heading.height();
        const std::size_t last = lastOnPage(pieces, first, room);
        page.body = {pieces[first].room.top, pieces[last].room.bottom};
        first = last + 1;
        if (page.body.height() > room) { // a piece alone: the rest of it begins the next page
            page.body.bottom = page.body.top + room;
            pieces[last].room.top = page.body.bottom;
            first = last;
        }
        pages.push_back(page);
    }
    return pages;
}

} // namespace korvel
