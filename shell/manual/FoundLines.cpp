// SPDX-License-Identifier: MIT
#include "shell/manual/FoundLines.h"

#include <QApplication>
#include <QPainter>
#include <QTextLayout>

namespace korvel
{
namespace
{

constexpr int mostBefore = 12; ///< characters in front of what was found
constexpr int longestLine = 200;

QList<QTextLayout::FormatRange> marksOf(const QString& text, const QStringList& words)
{
    QTextCharFormat marked; // seen in every colour scheme
    marked.setFontUnderline(true);
    marked.setFontWeight(QFont::Bold);
    QList<QTextLayout::FormatRange> marks;
    for (const QString& word : words)
        for (qsizetype at = text.indexOf(word, 0, Qt::CaseInsensitive); at >= 0;
             at = text.indexOf(word, at + word.size(), Qt::CaseInsensitive))
            marks.append({static_cast<int>(at), static_cast<int>(word.size()), marked});
    return marks;
}

void drawLine(QPainter& painter, const QRect& room, const QFont& letters, const QString& text,
              const QStringList& words)
{
    QFont widest = letters; // what is marked is wider than the rest
    widest.setBold(true);
    const QString seen = QFontMetrics(widest).elidedText(text, Qt::ElideRight, room.width());
    QTextLayout layout(seen, letters);
    layout.setFormats(marksOf(seen, words));
    layout.beginLayout();
    layout.createLine();
    layout.endLayout();
    const double gap = (room.height() - layout.boundingRect().height()) / 2;
    layout.draw(&painter, QPointF(room.left(), room.top() + gap));
}

} // namespace

QString foundLine(const QString& text, const QStringList& words)
{
    const QString line = text.simplified();
    qsizetype first = line.size();
    for (const QString& word : words)
        if (const qsizetype at = line.indexOf(word, 0, Qt::CaseInsensitive); at >= 0)
            first = std::min(first, at);
    if (first <= mostBefore || first == line.size()) return line.left(longestLine);
    const qsizetype blank = line.indexOf(' ', first - mostBefore);
    const qsizetype from = blank >= 0 && blank < first ? blank + 1 : first;
    return "… " + line.mid(from, longestLine);
}

void FoundLines::paint(QPainter* painter, const QStyleOptionViewItem& option,
                       const QModelIndex& index) const
{
    QStyleOptionViewItem item = option;
    initStyleOption(&item, index);
    const QString text = std::exchange(item.text, QString());
    const QStyle* style = item.widget ? item.widget->style() : QApplication::style();
    style->drawControl(QStyle::CE_ItemViewItem, &item, painter, item.widget);

    const bool isHead = !(index.flags() & Qt::ItemIsSelectable);
    const bool isChosen = item.state & QStyle::State_Selected;
    if (isHead) item.font.setBold(true);
    const int margin = style->pixelMetric(QStyle::PM_FocusFrameHMargin, &item, item.widget) + 1;
    const int indent = isHead ? 0 : item.fontMetrics.averageCharWidth() * 2;
    const QRect room = item.rect.adjusted(margin + indent, 0, -margin, 0);
    painter->save();
    painter->setClipRect(item.rect);
    painter->setPen(item.palette.color(isChosen ? QPalette::HighlightedText : QPalette::Text));
    if (isHead) painter->setPen(item.palette.color(QPalette::Active, QPalette::Text));
    drawLine(*painter, room, item.font, text, isHead ? QStringList() : m_words);
    painter->restore();
}

} // namespace korvel
