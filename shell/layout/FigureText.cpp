// SPDX-License-Identifier: MIT
#include "shell/layout/FigureText.h"

#include <QGlyphRun>
#include <QPaintEngine>

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

constexpr QChar degreeSign(0xb0);

} // namespace

bool FigureText::isSimple(const QString& text) const
{
    return std::all_of(text.begin(), text.end(), [](QChar each) {
        return (each >= u' ' && each <= u'~') || each == degreeSign;
    });
}

void FigureText::useFont(const QFont& font)
{
    if (m_rawFont.isValid() && font == m_font) return;
    m_font = font;
    m_rawFont = QRawFont::fromFont(font);
    m_glyphs.fill({});
}

const FigureText::Glyph& FigureText::glyphOf(QChar character)
{
    const bool isLast = character == degreeSign;
    Glyph& glyph = m_glyphs.at(isLast ? simpleCharacters - 1 : character.unicode() - u' ');
    if (glyph.advance >= 0) return glyph;
    const auto indexes = m_rawFont.glyphIndexesForString(QString(character));
    glyph.advance = 0;
    if (!indexes.isEmpty()) {
        glyph.index = indexes.first();
        glyph.advance = m_rawFont.advancesForGlyphIndexes(indexes).first().x();
    }
    return glyph;
}

double FigureText::width(const QFont& letters, const QString& text)
{
    useFont(letters);
    if (!isSimple(text) || !m_rawFont.isValid())
        return QFontMetricsF(letters).horizontalAdvance(text);
    double wide = 0;
    for (const QChar each : text)
        wide += glyphOf(each).advance;
    return wide;
}

FigureText::Line FigureText::lineOf(const QRectF& room, Qt::Alignment alignment,
                                    const QString& text)
{
    Line line;
    line.indexes.reserve(text.size());
    line.places.reserve(text.size());
    for (const QChar each : text) {
        const Glyph& glyph = glyphOf(each);
        line.indexes << glyph.index;
        line.places << QPointF(line.wide, 0);
        line.wide += glyph.advance;
    }
    const double high = m_rawFont.ascent() + m_rawFont.descent();
    QPointF at(room.left(), room.top() + m_rawFont.ascent());
    if (alignment & Qt::AlignRight) at.rx() = room.right() - line.wide;
    if (alignment & Qt::AlignHCenter) at.rx() = room.center().x() - line.wide / 2;
    if (alignment & Qt::AlignVCenter) at.ry() += (room.height() - high) / 2;
    if (alignment & Qt::AlignBottom) at.ry() += room.height() - high;
    // On whole pixels the glyphs are as sharp as the toolkit's.
    line.start = {std::round(at.x()), std::round(at.y())};
    return line;
}

void FigureText::draw(QPainter& painter, const QRectF& room, Qt::Alignment alignment,
                      const QString& text, const QRectF& seen)
{
    if (text.isEmpty()) return;
    useFont(painter.font());
    // A recorded picture keeps texts, not glyphs.
    const bool isRecorded = painter.paintEngine()->type() == QPaintEngine::Picture;
    if (isRecorded || !isSimple(text) || !m_rawFont.isValid()) {
        painter.drawText(room, static_cast<int>(alignment) | Qt::TextSingleLine, text);
        return;
    }
    Line line = lineOf(room, alignment, text);
    if (!seen.isEmpty()) {
        const auto isBefore = [&](qsizetype i) { return line.right(i) + overhang() < seen.left(); };
        const auto isBehind = [&](qsizetype i) { return line.left(i) - overhang() > seen.right(); };
        qsizetype first = 0, end = line.indexes.size();
        while (first < end && isBefore(first))
            ++first;
        while (end > first && isBehind(end - 1))
            --end;
        line.indexes = line.indexes.mid(first, end - first);
        line.places = line.places.mid(first, end - first);
    }
    QGlyphRun run;
    run.setRawFont(m_rawFont);
    run.setGlyphIndexes(line.indexes);
    run.setPositions(line.places);
    painter.drawGlyphRun(line.start, run);
}

QRectF FigureText::difference(const QFont& letters, const QRectF& room, Qt::Alignment alignment,
                              const QString& before, const QString& after)
{
    useFont(letters);
    if (!isSimple(before) || !isSimple(after) || !m_rawFont.isValid()) return room;
    const Line old = lineOf(room, alignment, before), now = lineOf(room, alignment, after);
    const auto isSame = [&](qsizetype i, qsizetype k) {
        return before[i] == after[k] && old.left(i) == now.left(k);
    };
    qsizetype first = 0, endOld = before.size(), endNow = after.size();
    while (first < std::min(endOld, endNow) && isSame(first, first))
        ++first;
    while (endOld > first && endNow > first && isSame(endOld - 1, endNow - 1)) {
        --endOld;
        --endNow;
    }
    double left = room.right(), right = room.left();
    const auto spans = [&](const Line& line, qsizetype end) {
        if (first >= end) return;
        left = std::min(left, line.left(first) - overhang());
        right = std::max(right, line.right(end - 1) + overhang());
    };
    spans(old, endOld);
    spans(now, endNow);
    if (left >= right) return {};
    return QRectF(left, room.top(), right - left, room.height()) & room;
}

} // namespace korvel
