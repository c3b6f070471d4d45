// SPDX-License-Identifier: MIT
#include "shell/layout/Legend.h"

#include <cmath>

namespace korvel
{
namespace
{

// In heights of a line of text.
constexpr double lineLength = 2;
constexpr double markWidth = 0.8;
constexpr double beforeText = 0.4;
constexpr double afterText = 1;

} // namespace

Legend::Legend(QPainter& painter, FigureText& figures, QPointF start, const QColor& textColour)
    : m_painter(painter), m_figures(figures), m_at(start), m_textColour(textColour),
      m_unit(QFontMetricsF(painter.font()).height())
{
}

void Legend::line(const QPen& pen, const QString& words)
{
    m_painter.setPen(pen);
    m_painter.drawLine(m_at, m_at + QPointF(lineLength * m_unit, 0));
    m_at.rx() += (lineLength + beforeText) * m_unit;
    text(words);
}

void Legend::mark(const std::function<void(QPointF)>& draw, const QString& words)
{
    draw(m_at + QPointF(markWidth / 2 * m_unit, 0));
    m_at.rx() += (markWidth + beforeText) * m_unit;
    text(words);
}

int Legend::width(const QFontMetrics& metrics, const QString& allWords, int lines, int marks)
{
    const double symbols = lines * (lineLength + beforeText + afterText) +
                           marks * (markWidth + beforeText + afterText);
    return metrics.horizontalAdvance(allWords) +
           static_cast<int>(std::ceil(symbols * metrics.height()));
}

void Legend::text(const QString& words)
{
    m_painter.setPen(m_textColour);
    const double wide = QFontMetricsF(m_painter.font()).horizontalAdvance(words);
    m_figures.draw(m_painter, {m_at.x(), m_at.y() - m_unit / 2, wide + 1, m_unit}, Qt::AlignVCenter,
                   words);
    m_at.rx() += wide + afterText * m_unit;
}

} // namespace korvel
