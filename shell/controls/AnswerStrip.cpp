// SPDX-License-Identifier: MIT
#include "shell/controls/AnswerStrip.h"

#include "shell/layout/WrappingRow.h"
#include "shell/screen/ColourScheme.h"

#include <QGridLayout>

namespace korvel
{
namespace
{

QLabel* quietWords(const QString& text)
{
    auto* words = new QLabel(text);
    words->setForegroundRole(quietRole);
    return words;
}

} // namespace

AnswerStrip::AnswerStrip(QWidget* parent) : QWidget(parent), m_row(new WrappingRow(this))
{
    m_row->setContentsMargins(0, 0, 0, 0);
    sizeByLetters();
}

void AnswerStrip::add(const QString& caption, ResultLabel* answer, const QString& unit,
                      QWidget* below)
{
    auto* cell = new QWidget;
    auto* grid = new QGridLayout(cell);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    grid->addWidget(quietWords(caption), 0, 0, 1, 2);
    grid->addWidget(answer, 1, 0);
    QLabel* words = quietWords(unit);
    words->setAlignment(Qt::AlignLeft | Qt::AlignBottom);
    grid->addWidget(words, 1, 1);
    if (below) grid->addWidget(below, 2, 0, 1, 2);
    // What is said below may take the room that is left; the unit keeps to its figure.
    if (below && below->sizePolicy().expandingDirections() & Qt::Horizontal)
        grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1); // side by side the answers stand on one line
    m_units.push_back({words, answer});
    m_row->addWidget(cell);
    sizeByLetters();
}

/// Answers are wide apart, and a unit stands on the line that its figure stands on.
void AnswerStrip::sizeByLetters()
{
    constexpr int gapInLetters = 4;
    const int letter = fontMetrics().averageCharWidth();
    m_row->setGap(gapInLetters * letter);
    for (const auto& [words, answer] : m_units) {
        const QFontMetrics metrics = answer->fontMetrics();
        const int above = (answer->sizeHint().height() - metrics.height()) / 2;
        words->setContentsMargins(letter, 0, 0,
                                  above + metrics.descent() - words->fontMetrics().descent());
    }
}

} // namespace korvel
