// SPDX-License-Identifier: MIT
#pragma once

#include <QHash>
#include <QPainter>
#include <QRawFont>

namespace korvel
{

/// Draws short texts of figures that change with every key. The toolkit's own way shapes each text
/// anew, as Arabic would need it; figures need their glyphs side by side and no more.
class FigureText
{
public:
    /// Draws in the painter's font and pen. Text beyond plain figures and Latin letters is left to
    /// the toolkit.
    void draw(QPainter& painter, const QRectF& room, Qt::Alignment alignment, const QString& text);

    /// Width of a text as it is drawn, in pixels.
    double width(const QFont& letters, const QString& text);

private:
    struct Glyph {
        quint32 index = 0;
        double advance = 0;
    };
    bool isSimple(const QString& text) const;
    void useFont(const QFont& font);
    Glyph glyphOf(QChar character);

    QFont m_font;
    QRawFont m_rawFont;
    QHash<QChar, Glyph> m_glyphs;
};

} // namespace korvel
