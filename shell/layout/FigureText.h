// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>
#include <QRawFont>

#include <array>

namespace korvel
{

/// Draws short texts of figures that change with every key. The toolkit's own way shapes each text
/// anew, as Arabic would need it; figures need their glyphs side by side and no more.
class FigureText
{
public:
    /// Draws in the painter's font and pen. Text beyond plain figures and Latin letters is left to
    /// the toolkit.
    /// @param seen where anything is to be painted; empty: everywhere
    void draw(QPainter& painter, const QRectF& room, Qt::Alignment alignment, const QString& text,
              const QRectF& seen = {});

    /// Width of a text as it is drawn, in pixels.
    double width(const QFont& letters, const QString& text);

    /// What of the room has to be painted where one text takes the place of another: a key mostly
    /// changes the last figures of a result.
    QRectF difference(const QFont& letters, const QRectF& room, Qt::Alignment alignment,
                      const QString& before, const QString& after);

private:
    static constexpr std::size_t simpleCharacters = 96; ///< of ASCII, and the degree sign
    struct Glyph {
        quint32 index{};
        double advance = -1; ///< not asked for yet
    };
    /// Glyphs side by side, the first at the left edge of the text.
    struct Line {
        QList<quint32> indexes;
        QList<QPointF> places;
        QPointF start;
        double wide{};

        double left(qsizetype i) const { return start.x() + places[i].x(); }
        double right(qsizetype i) const
        {
            return start.x() + (i + 1 < places.size() ? places[i + 1].x() : wide);
        }
    };
    bool isSimple(const QString& text) const;
    void useFont(const QFont& font);
    const Glyph& glyphOf(QChar character);
    Line lineOf(const QRectF& room, Qt::Alignment alignment, const QString& text);
    /// How far a glyph may reach out of its place.
    double overhang() const { return m_rawFont.ascent() / 3; }

    QFont m_font;
    QRawFont m_rawFont;
    std::array<Glyph, simpleCharacters> m_glyphs;
};

} // namespace korvel
