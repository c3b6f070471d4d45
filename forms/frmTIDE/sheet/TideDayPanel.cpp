// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/TideDayPanel.h"

#include "shell/controls/Panels.h"
#include "shell/controls/WrappingRow.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr std::array<Field, 2> questionFields = {{
    {"txtAtTime", "Hei&ght at", "Time of the day", "h:mm zone time", FieldKind::Moment,
     "zone time"},
    {"txtAtHeight", "Fro&m a height of", "Height or rate", "metres or knots", FieldKind::Figure,
     "m or kn", lowestAsked, highestAsked},
}};

using namespace DayShown;
constexpr std::size_t rows = TideDayTexts::rows;

} // namespace

TideDayPanel::TideDayPanel(QWidget* parent)
    : QWidget(parent), m_boxes(questionFields, this), m_labels(dayResults, this)
{
    for (ResultLabel* label : m_labels.all())
        label->setFont(font()); // beside the texts of the day, which stay the largest
    auto* column = new QVBoxLayout(this);
    layOutBody(*column);
    column->setSpacing(0);
    auto* row = new WrappingRow;
    row->setGap(2 * fontMetrics().height());
    row->addLayout(layOutWaters());
    row->addLayout(layOutQuestions());
    column->addLayout(row);
    column->addLayout(layOutAnswers());
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        m_boxes[i]->setMaxLength(16);
        connect(m_boxes[i], &QLineEdit::textChanged, this, [this] { answer(); });
    }
}

QGridLayout* TideDayPanel::layOutWaters()
{
    auto* grid = new QGridLayout;
    layOutLines(*grid);
    grid->setHorizontalSpacing(4 * fontMetrics().averageCharWidth());
    grid->addWidget(columnHead("Four constituents, to the minute"), 0, 0);
    m_allHeading = columnHead("All constituents (difference)");
    grid->addWidget(m_allHeading, 0, 1);
    for (std::size_t i = 0; i < rows; ++i) {
        const int line = static_cast<int>(i) + 1;
        ResultLabel *four = m_labels[waters + i], *all = m_labels[watersByAll + i];
        four->setRoom("Least flood 00:00   -00.00 kn");
        all->setRoom("00:00   -00.00 kn   (-000 min, -00.00 kn)");
        grid->addWidget(four, line, 0);
        grid->addWidget(all, line, 1);
        four->hide();
        all->hide();
    }
    grid->setRowStretch(static_cast<int>(rows) + 1, 1);
    return grid;
}

QGridLayout* TideDayPanel::layOutQuestions()
{
    auto* grid = new QGridLayout;
    layOutLines(*grid);
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        const int row = static_cast<int>(i);
        m_captions[i] = new QLabel(questionFields[i].caption);
        m_captions[i]->setBuddy(m_boxes[i]);
        m_boxes[i]->setFixedWidth(9 * fontMetrics().horizontalAdvance('0'));
        grid->addWidget(m_captions[i], row, 0);
        grid->addWidget(m_boxes[i], row, 1);
        m_unit = new QLabel(questionFields[i].unit);
        grid->addWidget(m_unit, row, 2);
    }
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(static_cast<int>(m_boxes.size()), 1);
    return grid;
}

/// What is longer than a line of figures takes the whole width: four spans and the same by all
/// constituents have no room beside the waters.
QGridLayout* TideDayPanel::layOutAnswers()
{
    auto* grid = new QGridLayout;
    layOutLines(*grid);
    grid->setHorizontalSpacing(fontMetrics().averageCharWidth());
    grid->addWidget(m_labels[range], 0, 0, 1, 3);
    grid->addWidget(m_labels[now], 1, 0, 1, 3);
    m_answerHeading = new QLabel(dayResults[heightThen].caption);
    grid->addWidget(m_answerHeading, 2, 0);
    grid->addWidget(m_labels[heightThen], 2, 1);
    grid->addWidget(m_labels[heightByAll], 2, 2);
    grid->addWidget(new QLabel(dayResults[timesOf].caption), 3, 0);
    grid->addWidget(m_labels[timesOf], 3, 1, 1, 2);
    grid->addWidget(m_labels[timesByAll], 4, 1, 1, 2);
    for (const std::size_t sentence : {range, now, heightByAll, timesOf, timesByAll})
        m_labels[sentence]->setEliding();
    QSizePolicy ofNow = m_labels[now]->sizePolicy();
    ofNow.setRetainSizeWhenHidden(true); // its line stays on other days
    m_labels[now]->setSizePolicy(ofNow);
    // A line stays where it is, asked or not: the curve must not jump while a question is typed.
    m_labels[timesByAll]->setMinimumHeight(fontMetrics().height());
    grid->setColumnStretch(2, 1);
    return grid;
}

void TideDayPanel::showDay(const TideDayShown& day, bool withAll)
{
    m_day = day;
    if (!withAll) m_day->all.reset();
    const bool tide = day.four.kind == TideKind::Tide;
    m_captions[0]->setText(tide ? "Hei&ght at" : "&Rate at");
    m_captions[1]->setText(tide ? "Fro&m a height of" : "Fro&m a rate of");
    m_answerHeading->setText(tide ? dayResults[heightThen].caption : "Rate then");
    m_unit->setText(tide ? "m" : "kn");
    const std::vector<WaterLine> lines = waterLines(*m_day);
    m_allHeading->setVisible(m_day->all.has_value());
    for (std::size_t i = 0; i < rows; ++i) {
        WaterLine& line = m_texts.waters[i];
        line = i < lines.size() ? lines[i] : WaterLine{};
        m_labels[waters + i]->setVisible(!line.four.empty());
        m_labels[watersByAll + i]->setVisible(!line.all.empty());
    }
    m_texts.range = rangeText(*m_day);
    answer();
}

void TideDayPanel::showNow(const std::string& text)
{
    m_texts.now = text;
    m_labels.show(m_texts);
    m_labels[now]->setVisible(!text.empty());
}

void TideDayPanel::answer()
{
    if (!m_day) return;
    m_texts.height = heightAt(*m_day, m_boxes[0]->value());
    m_texts.times = timesOfHeight(*m_day, m_boxes[1]->value());
    m_labels.show(m_texts);
    for (const std::size_t answer : {heightByAll, timesByAll})
        m_labels[answer]->setVisible(m_day->all.has_value());
    if (onAnswers) onAnswers(m_texts.height, m_texts.times);
}

std::vector<PaperFigure> TideDayPanel::questions() const
{
    std::vector<PaperFigure> asked;
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        if (!m_boxes[i]->value().empty()) asked.push_back(m_boxes.paperFigure(i));
    const bool isStream = m_day && m_day->four.kind == TideKind::Stream;
    if (!m_boxes[1]->value().empty())
        asked.back() = {isStream ? "Rate asked for" : "Height asked for", asked.back().value,
                        isStream ? "kn" : "m", asked.back().shown};
    return asked;
}

} // namespace korvel
