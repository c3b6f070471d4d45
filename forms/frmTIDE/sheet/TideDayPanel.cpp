// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/TideDayPanel.h"

#include "shell/controls/Boxes.h"
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

} // namespace

TideDayPanel::TideDayPanel(QWidget* parent) : QWidget(parent), m_boxes(questionFields, this)
{
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

ResultLabel* TideDayPanel::addLabel(const QString& name, const QString& accessibleName)
{
    auto* label = new ResultLabel(this);
    label->setObjectName(name);
    label->declare(accessibleName);
    label->setFont(font()); // beside the texts of the day, which stay the largest
    return label;
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
        const int index = static_cast<int>(i);
        m_lblWater[i] = addLabel(memberName("lblWater", index), "High or low water");
        m_lblWaterAll[i] = addLabel(memberName("lblWaterAll", index),
                                    "The same water by all constituents and the difference");
        m_lblWater[i]->setRoom("Least flood 00:00   -00.00 kn");
        m_lblWaterAll[i]->setRoom("00:00   -00.00 kn   (-000 min, -00.00 kn)");
        grid->addWidget(m_lblWater[i], index + 1, 0);
        grid->addWidget(m_lblWaterAll[i], index + 1, 1);
        m_lblWater[i]->hide();
        m_lblWaterAll[i]->hide();
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
    m_lblRange = addLabel("lblRange", "Range of the day and the Moon");
    m_lblNow = addLabel("lblNow", "At this moment");
    m_lblAnswer = {addLabel("lblHeightAt", "Height at the time asked for"),
                   addLabel("lblTimesOf", "When the water stands at that height or more")};
    m_lblAnswerAll = {addLabel("lblHeightAtAll", "The same by all constituents"),
                      addLabel("lblTimesOfAll", "The same by all constituents")};
    auto* grid = new QGridLayout;
    layOutLines(*grid);
    grid->setHorizontalSpacing(fontMetrics().averageCharWidth());
    grid->addWidget(m_lblRange, 0, 0, 1, 3);
    grid->addWidget(m_lblNow, 1, 0, 1, 3);
    m_answerHeading = new QLabel("Height then");
    grid->addWidget(m_answerHeading, 2, 0);
    grid->addWidget(m_lblAnswer[0], 2, 1);
    grid->addWidget(m_lblAnswerAll[0], 2, 2);
    grid->addWidget(new QLabel("That or more"), 3, 0);
    grid->addWidget(m_lblAnswer[1], 3, 1, 1, 2);
    grid->addWidget(m_lblAnswerAll[1], 4, 1, 1, 2);
    for (ResultLabel* label :
         {m_lblRange, m_lblNow, m_lblAnswerAll[0], m_lblAnswer[1], m_lblAnswerAll[1]})
        label->setEliding();
    QSizePolicy ofNow = m_lblNow->sizePolicy();
    ofNow.setRetainSizeWhenHidden(true); // its line stays on other days
    m_lblNow->setSizePolicy(ofNow);
    // A line stays where it is, asked or not: the curve must not jump while a question is typed.
    m_lblAnswerAll[1]->setMinimumHeight(fontMetrics().height());
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
    m_answerHeading->setText(tide ? "Height then" : "Rate then");
    m_unit->setText(tide ? "m" : "kn");
    const std::vector<WaterLine> lines = waterLines(*m_day);
    m_allHeading->setVisible(m_day->all.has_value());
    for (std::size_t i = 0; i < rows; ++i) {
        const WaterLine line = i < lines.size() ? lines[i] : WaterLine{};
        m_lblWater[i]->setText(QString::fromStdString(line.four));
        m_lblWaterAll[i]->setText(QString::fromStdString(line.all));
        m_lblWater[i]->setVisible(!line.four.empty());
        m_lblWaterAll[i]->setVisible(!line.all.empty());
    }
    m_lblRange->setText(QString::fromStdString(rangeText(*m_day)));
    answer();
}

void TideDayPanel::showNow(const std::string& text)
{
    m_lblNow->setText(QString::fromStdString(text));
    m_lblNow->setVisible(!text.empty());
}

void TideDayPanel::answer()
{
    if (!m_day) return;
    m_answers = {heightAt(*m_day, m_boxes[0]->value()), timesOfHeight(*m_day, m_boxes[1]->value())};
    for (std::size_t i = 0; i < m_answers.size(); ++i) {
        m_lblAnswer[i]->setText(QString::fromStdString(m_answers[i].text));
        m_lblAnswerAll[i]->setText(QString::fromStdString(m_answers[i].all));
        m_lblAnswerAll[i]->setVisible(m_day->all.has_value());
    }
    if (onAnswers) onAnswers(m_answers[0], m_answers[1]);
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
