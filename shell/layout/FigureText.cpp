// SPDX-License-Identifier: MIT
#include "shell/layout/FigureText.h"

#include <QGlyphRun>
#include <QPaintEngine>

#include <algorithm>
#include <cmath>

namespace korvel
{

bool FigureText::isSimple(const QString& text) const
{
    constexpr char16_t degreeSign = 0xb0;
    return std::all_of(text.begin(), text.end(), [](QChar each) {
        return (each >= u' ' && each <= u'~') || each == QChar(degreeSign);
    });
}

void FigureText::useFont(const QFont& font)
{
    if (m_rawFont.isValid() && font == m_font) return;
    m_font = font;
    m_rawFont = QRawFont::fromFont(font);
    m_glyphs.clear();
}

FigureText::Glyph FigureText::glyphOf(QChar character)
{
    const auto known = m_glyphs.constFind(character);
    if (known != m_glyphs.constEnd()) return *known;
    Glyph glyph;
    const auto indexes = m_rawFont.glyphIndexesForString(QString(character));
    if (!indexes.isEmpty()) {
        glyph.index = indexes.first();
        glyph.advance = m_rawFont.advancesForGlyphIndexes(indexes).first().x();
    }
    return *m_glyphs.insert(character, glyph);
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

void FigureText::draw(QPainter& painter, const QRectF& room, Qt::Alignment alignment,
                      const QString& text)
{
    if (text.isEmpty()) return;
    useFont(painter.font());
    // A recorded picture keeps texts, not glyphs.
    const bool isRecorded = painter.paintEngine()->type() == QPaintEngine::Picture;
    if (isRecorded || !isSimple(text) || !m_rawFont.isValid()) {
        painter.drawText(room, static_cast<int>(alignment) | Qt::TextSingleLine, text);
        return;
    }
    QList<quint32> indexes;
    QList<QPointF> places;
    indexes.reserve(text.size());
    places.reserve(text.size());
    double wide = 0;
    for (const QChar each : text) {
        const Glyph glyph = glyphOf(each);
        indexes << glyph.index;
        places << QPointF(wide, 0);
        wide += glyph.advance;
    }
    const double high = m_rawFont.ascent() + m_rawFont.descent();
    QPointF at(room.left(), room.top() + m_rawFont.ascent());
    if (alignment & Qt::AlignRight) at.rx() = room.right() - wide;
    if (alignment & Qt::AlignHCenter) at.rx() = room.center().x() - wide / 2;
    if (alignment & Qt::AlignVCenter) at.ry() += (room.height() - high) / 2;
    if (alignment & Qt::AlignBottom) at.ry() += room.height() - high;
    QGlyphRun run;
    run.setRawFont(m_rawFont);
    run.setGlyphIndexes(indexes);
    run.setPositions(places);
    // On whole pixels the glyphs are as sharp as the toolkit's.
    painter.drawGlyphRun(QPointF(std::round(at.x()), std::round(at.y())), run);
}

} // namespace korvel
