// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/TideDayPanel.h"

#include "forms/frmTIDE/sheet/DayLabels.h"
#include "forms/frmTIDE/sheet/NoteLabel.h"
#include "shell/layout/Panels.h"
#include "shell/layout/TypeScale.h"
#include "shell/screen/ColourScheme.h"

#include <QGridLayout>
#include <QVBoxLayout>

#include <algorithm>

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

constexpr int columnGap = 8, sideGap = 16;

} // namespace

TideDayPanel::TideDayPanel(QWidget* parent)
    : QWidget(parent), m_boxes(questionFields, this), m_waters(new QWidget(parent)),
      m_byAll(new QWidget(parent)),
      m_labels(dayResults, this, [this](std::size_t result) { return make(result); })
{
    layOutWaters();
    layOutByAll();
    layOutQuestions();
    for (std::size_t i = 0; i < m_boxes.size(); ++i) {
        m_boxes[i]->setMaxLength(16);
        connect(m_boxes[i], &QLineEdit::textChanged, this, [this] { answer(); });
    }
}

ResultLabel* TideDayPanel::make(std::size_t result)
{
    if (result < waters + rows) return new WaterLabel(m_waters);
    return result == now ? new NowLabel(m_waters) : nullptr;
}

void TideDayPanel::layOutWaters()
{
    auto* column = new QVBoxLayout(m_waters);
    layOutBody(*column);
    column->setSpacing(0);
    column->addWidget(m_labels[now]);
    keepRoom(*m_labels[now]); // on other days
    m_waterHeading = sectionHead("High and low water");
    column->addSpacing(sideGap);
    column->addWidget(m_waterHeading);
    auto* list = new QWidget;
    list->setFixedHeight(WaterLabel::roomOfDay());
    auto* lines = new QVBoxLayout(list);
    layOutBody(*lines);
    lines->setSpacing(0);
    for (std::size_t i = 0; i < rows; ++i) {
        m_labels[waters + i]->hide();
        lines->addWidget(m_labels[waters + i]);
    }
    lines->addStretch(1);
    column->addWidget(list);
    column->addStretch(1);
}

void TideDayPanel::layOutByAll()
{
    auto* grid = new QGridLayout(m_byAll);
    layOutLines(*grid);
    grid->setHorizontalSpacing(columnGap);
    grid->addWidget(columnHead("All constituents (difference)"), 0, 0, 1, 2);
    for (std::size_t i = 0; i < rows; ++i) {
        const int row = static_cast<int>(i) % (static_cast<int>(rows) / 2);
        const int column = static_cast<int>(i) / (static_cast<int>(rows) / 2);
        ResultLabel* all = m_labels[watersByAll + i];
        all->setFont(font());
        all->setRoom("00:00   -00.00 kn   (-000 min, -00.00 kn)");
        keepRoom(*all);
        grid->addWidget(all, row + 1, column);
        all->hide();
    }
    grid->setColumnStretch(2, 1);
}

/// Box and answer stand in one line, however many times of a height there are.
void TideDayPanel::layOutQuestions()
{
    auto* grid = new QGridLayout(this);
    layOutLines(*grid);
    grid->setHorizontalSpacing(columnGap);
    for (std::size_t i = 0; i < m_boxes.size(); ++i)
        layOutQuestion(grid, i);
    const std::array<std::pair<std::size_t, std::size_t>, 2> answers = {
        {{heightThen, heightByAll}, {timesOf, timesByAll}}};
    for (std::size_t i = 0; i < answers.size(); ++i) {
        const auto [four, all] = answers[i];
        const int row = 2 * static_cast<int>(i);
        grid->addWidget(m_labels[four], row, 4);
        grid->addWidget(m_labels[all], row + 1, 4);
        m_labels[all]->setFont(font());
        m_labels[all]->setForegroundRole(quietRole);
        for (const std::size_t each : {four, all}) {
            m_labels[each]->setEliding();
            keepRoom(*m_labels[each]);
        }
    }
    grid->setColumnStretch(4, 1);
    m_labels[range]->setFont(font());
    m_labels[range]->setRoom("Range 10.00 m, springs to neaps (Moon's age 29.0 days)");
}

void TideDayPanel::layOutQuestion(QGridLayout* grid, std::size_t question)
{
    const int row = 2 * static_cast<int>(question);
    QLabel*& caption = m_captions[question];
    caption = new QLabel(questionFields[question].caption);
    caption->setBuddy(m_boxes[question]);
    m_boxes[question]->setFixedWidth(9 * fontMetrics().horizontalAdvance('0'));
    m_units[question] = new QLabel(questionFields[question].unit);
    m_units[question]->setForegroundRole(quietRole);
    m_headings[question] = new QLabel(dayResults[question == 0 ? heightThen : timesOf].caption);
    int column = 0;
    for (QWidget* each : std::initializer_list<QWidget*>{caption, m_boxes[question],
                                                         m_units[question], m_headings[question]})
        grid->addWidget(each, row, column++);
}

void TideDayPanel::showDay(const TideDayShown& day, bool withAll)
{
    m_day = day;
    if (!withAll) m_day->all.reset();
    const bool tide = day.four.kind == TideKind::Tide;
    m_captions[0]->setText(tide ? "Hei&ght at" : "&Rate at");
    m_captions[1]->setText(tide ? "Fro&m a height of" : "Fro&m a rate of");
    m_headings[0]->setText(tide ? dayResults[heightThen].caption : "Rate then");
    m_units[1]->setText(tide ? "m" : "kn");
    m_waterHeading->setText(tide ? "High and low water" : "Flood and ebb");
    const std::vector<WaterLine> lines = waterLines(*m_day);
    for (std::size_t i = 0; i < rows; ++i) {
        WaterLine& line = m_texts.waters[i];
        line = i < lines.size() ? lines[i] : WaterLine{};
        m_labels[waters + i]->setVisible(!line.four.empty());
        m_labels[watersByAll + i]->setVisible(!line.all.empty());
    }
    m_texts.range = rangeText(*m_day);
    answer();
    dressWaters();
}

void TideDayPanel::showNow(const std::string& text, std::optional<NavFunc113::Hours> hour)
{
    m_texts.now = text;
    m_now = hour;
    m_labels.show(m_texts);
    m_labels[now]->setVisible(!text.empty());
    dressWaters();
}

/// The next high and the next low water are answers, and on any other day all waters are.
void TideDayPanel::dressWaters()
{
    if (!m_day) return;
    const std::vector<WaterPair> pairs = watersOf(*m_day);
    const std::vector<std::size_t> next = nextWaters(pairs, m_now);
    for (std::size_t i = 0; i < rows; ++i) {
        const bool isAnswer = !m_now || std::ranges::find(next, i) != next.end();
        static_cast<WaterLabel*>(m_labels[waters + i])
            ->dress(isAnswer ? Weight::Answer : Weight::Figure, std::min(rows, pairs.size()));
    }
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
