// SPDX-License-Identifier: MIT
#pragma once

#include "shell/layout/FigureText.h"

#include <QPainter>

#include <functional>

namespace korvel
{

/// Says from left to right what the lines and marks of a picture are.
class Legend
{
public:
    /// @param start left end of the line of text, at half its height
    Legend(QPainter& painter, FigureText& figures, QPointF start, const QColor& textColour);

    void line(const QPen& pen, const QString& words);
    /// Goes on in another line of text.
    void goOnAt(QPointF start) { m_at = start; }
    /// @param draw draws the mark around a point
    void mark(const std::function<void(QPointF)>& draw, const QString& words);

    /// Width of a legend with these words and this many lines and marks.
    static int width(const QFontMetrics& metrics, const QString& allWords, int lines, int marks);

private:
    void text(const QString& words);

    QPainter& m_painter;
    FigureText& m_figures;
    QPointF m_at;
    QColor m_textColour;
    double m_unit; ///< height of a line of text
};

} // namespace korvel
