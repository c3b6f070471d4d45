// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/DayLabels.h"

#include "shell/layout/TypeScale.h"
#include "shell/screen/ColourScheme.h"

#include <QPainter>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr const char* parting = "   "; // between the parts of a text

QFont smallLetters()
{
    QFont letters = lettersOf(Weight::Remark);
    letters.setWeight(QFont::Normal); // a painter takes what is not said from its widget
    return letters;
}

/// Draws words of a label, in reverse where all of it is selected.
class WordPen
{
public:
    explicit WordPen(const ResultLabel& label)
        : m_painter(const_cast<ResultLabel*>(&label)), m_isSelected(label.hasSelectedText()),
          m_reversed(label.palette().color(QPalette::HighlightedText))
    {
        if (m_isSelected)
            m_painter.fillRect(label.rect(), label.palette().color(QPalette::Highlight));
    }
    /// @param at on the line that the letters stand on
    /// @return where the next word begins
    double draw(QPointF at, const QFont& letters, const QColor& colour, const QString& words)
    {
        m_painter.setFont(letters);
        m_painter.setPen(m_isSelected ? m_reversed : colour);
        m_painter.drawText(at, words);
        return at.x() + QFontMetricsF(letters).horizontalAdvance(words);
    }

private:
    QPainter m_painter;
    bool m_isSelected;
    QColor m_reversed;
};

} // namespace

WaterLabel::WaterLabel(QWidget* parent) : ResultLabel(parent) {}

void WaterLabel::dress(Weight weight, std::size_t waters)
{
    constexpr std::size_t ofAnswers = 4, ofFigures = 6; // that the room holds
    m_hasRowOfAnswer = waters <= ofAnswers;
    const bool isAnswer = weight == Weight::Answer;
    if (waters > ofFigures) {
        setFont(smallLetters());
        setForegroundRole(isAnswer ? accentRole : QPalette::WindowText);
    } else if (m_hasRowOfAnswer || !isAnswer) {
        dressAs(weight);
    } else {
        dressAsInHand();
    }
    updateGeometry();
}

int WaterLabel::roomOfDay()
{
    constexpr int mostWaters = 8;
    return std::max(4 * QFontMetrics(lettersOf(Weight::Answer)).lineSpacing(),
                    mostWaters * QFontMetrics(smallLetters()).lineSpacing());
}

int WaterLabel::nameWidth() const
{
    const QFontMetrics small(smallLetters());
    return small.horizontalAdvance("Least flood") + small.averageCharWidth();
}

/// That of an answer, whatever its letters are now: a water becomes the next one while one looks.
QSize WaterLabel::sizeHint() const
{
    const QFontMetrics large(lettersOf(Weight::Answer)), small(smallLetters());
    const int width = nameWidth() + large.horizontalAdvance("00:00 ~-00.00") +
                      2 * large.averageCharWidth() + small.horizontalAdvance(" kn");
    return {width, (m_hasRowOfAnswer ? large : fontMetrics()).lineSpacing()};
}

void WaterLabel::paintEvent(QPaintEvent* event)
{
    if (hasSelectedText() && selectedText() != text()) return ResultLabel::paintEvent(event);
    const QString water = text().section(parting, 0, 0), figure = text().section(parting, 1);
    const QString value = figure.section(' ', 0, 0), unit = ' ' + figure.section(' ', 1);
    const QFontMetricsF large(font()), small(smallLetters());
    const double base = (height() + large.ascent() - large.descent()) / 2;
    const QColor ink = palette().color(QPalette::WindowText), quiet = palette().color(quietRole);
    const QColor own = palette().color(foregroundRole());
    WordPen pen(*this);
    pen.draw({0, base}, smallLetters(), ink, water.section(' ', 0, -2));
    pen.draw({double(nameWidth()), base}, font(), own, water.section(' ', -1));
    const double end = width() - small.horizontalAdvance(" kn");
    pen.draw({end - large.horizontalAdvance(value), base}, font(), own, value);
    pen.draw({end, base}, smallLetters(), quiet, unit);
}

NowLabel::NowLabel(QWidget* parent) : ResultLabel(parent) {}

QSize NowLabel::sizeHint() const
{
    const QFontMetrics large(font()), small(smallLetters());
    return {small.horizontalAdvance("all constituents ~-00.00 m falling "),
            large.lineSpacing() + 2 * small.lineSpacing()};
}

void NowLabel::paintEvent(QPaintEvent* event)
{
    if (hasSelectedText() && selectedText() != text()) return ResultLabel::paintEvent(event);
    const QString state = text().section(parting, 1, 1);
    const QFontMetricsF large(font()), small(smallLetters());
    const QColor quiet = palette().color(quietRole);
    WordPen pen(*this);
    pen.draw({0, small.ascent()}, smallLetters(), quiet, text().section(parting, 0, 0));
    const double base = small.lineSpacing() + large.ascent();
    const double end =
        pen.draw({0, base}, font(), palette().color(foregroundRole()), state.section(' ', 0, 0));
    pen.draw({end, base}, smallLetters(), quiet, ' ' + state.section(' ', 1));
    pen.draw({0, base + large.descent() + small.ascent()}, smallLetters(), quiet,
             text().section(parting, 2));
}

} // namespace korvel
