// SPDX-License-Identifier: MIT
#pragma once

#include <QPainter>

#include <functional>

namespace korvel
{

/// Says in one line, from left to right, what the lines and marks of a picture are.
class Legend
{
public:
    /// @param start left end of the line of text, at half its height
    Legend(QPainter& painter, QPointF start, const QColor& textColour);

    void line(const QPen& pen, const QString& words);
    /// @param draw draws the mark around a point
    void mark(const std::function<void(QPointF)>& draw, const QString& words);

    /// Width of a legend with these words and this many lines and marks.
    static int width(const QFontMetrics& metrics, const QString& allWords, int lines, int marks);

private:
    void text(const QString& words);

    QPainter& m_painter;
    QPointF m_at;
    QColor m_textColour;
    double m_unit; ///< height of a line of text
};

} // namespace korvel
