// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/LinePanel.h"

#include "forms/frmSunSight/panels/PanelParts.h"
#include "forms/frmSunSight/sight/LineResults.h"
#include "shell/controls/AnswerStrip.h"
#include "shell/controls/Boxes.h"

#include <QGridLayout>
#include <QVBoxLayout>

namespace korvel
{

LinePanel::LinePanel(QWidget* parent)
    : QWidget(parent), m_noon(new QGroupBox("Meridian passage", parent)),
      m_worksheet(new QGroupBox("Worksheet", this)), m_details(new DetailsFold(m_worksheet, this)),
      m_lblSunBody(sightBodyResults, this), m_lblSunTime(sightTimeResults, this),
      m_lblSunLine(lineResults, this), m_lblSunNoon(noonResults, this),
      m_answers(new AnswerStrip(this))
{
    auto* column = new QVBoxLayout(this);
    layOutBody(*column, Spacing::Dense);
    makeSentence(bodyLabel(), 1);
    layOutWorksheet();
    column->addWidget(layOutLine());
    column->addWidget(m_details, 0, Qt::AlignLeft);
    column->addWidget(m_worksheet);
    layOutNoon();
}

void LinePanel::layOutWorksheet()
{
    auto* grid = gridOf(m_worksheet, Spacing::Dense);
    int row = 0;
    for (ResultLabel* label : m_lblSunTime.all()) {
        makeSentence(label, 1);
        grid->addWidget(label, row++, 0, 1, 2);
    }
    for (std::size_t i = 0; i < worksheetLines; ++i, ++row) {
        m_lblSunTerm[i] = new QLabel;
        // A room of its own: what a line is about changes while one types.
        const QFontMetrics letters = m_lblSunTerm[i]->fontMetrics();
        m_lblSunTerm[i]->setFixedSize(letters.horizontalAdvance("Upper limb: less the diameter"),
                                      letters.lineSpacing());
        m_lblSunTerm[i]->setObjectName(memberName("lblSunTerm", static_cast<int>(i)));
        m_lblSunValue[i] = new ResultLabel(this);
        m_lblSunValue[i]->setObjectName(memberName("lblSunValue", static_cast<int>(i)));
        m_lblSunValue[i]->declare("Worksheet");
        m_lblSunValue[i]->setFont(QFont()); // a column of figures that is added up, not results
        m_lblSunValue[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        m_lblSunValue[i]->setRoom("000.-00'0");
        grid->addWidget(m_lblSunTerm[i], row, 0);
        grid->addWidget(m_lblSunValue[i], row, 1);
    }
}

QGroupBox* LinePanel::layOutLine()
{
    auto* group = new QGroupBox("Line of position");
    auto* grid = gridOf(group, Spacing::Dense);
    using namespace LineShown;
    m_lblSunLine.addAnswer(m_answers, intercept, "000'.0 T");
    m_lblSunLine.addAnswer(m_answers, Zn, "000.0");
    int row = 0;
    for (const std::size_t figure : {declination, GHA, DR, Hc}) {
        m_lblSunLine[figure]->setRoom("000.-00'0W", figure == DR ? 2 : 1);
        m_lblSunLine[figure]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        grid->addWidget(new QLabel(lineResults[figure].caption), row, 0);
        grid->addWidget(m_lblSunLine[figure], row++, 1);
    }
    grid->setColumnStretch(0, 1);
    m_lblSunLine[intercept]->setToolTip("T: towards the Sun, A: away");
    return group;
}

void LinePanel::layOutNoon()
{
    auto* grid = gridOf(m_noon, Spacing::Dense);
    using namespace NoonShown;
    makeSentence(m_lblSunNoon[passage], 1);
    makeSentence(m_lblSunNoon[greatest], 1);
    makeSentence(m_lblSunNoon[note], 2);
    makeSentence(m_lblSunNoon[exMeridian], 1);
    m_lblSunNoon[latitude]->setRoom("00-.00'0N");
    m_passage = new QLabel(noonResults[passage].caption);
    m_passage->setMinimumWidth(m_passage->sizeHint().width()); // the longest that stands there
    grid->addWidget(m_passage, 0, 0);
    grid->addWidget(m_lblSunNoon[greatest], 0, 1);
    grid->addWidget(m_lblSunNoon[passage], 1, 0, 1, 2);
    grid->addWidget(new QLabel(noonResults[latitude].caption), 2, 0);
    grid->addWidget(m_lblSunNoon[latitude], 2, 1);
    grid->addWidget(m_lblSunNoon[note], 3, 0, 1, 2);
    grid->addWidget(m_lblSunNoon[exMeridian], 4, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    // A small screen has no room to spare below the last group.
    const QMargins margins = grid->contentsMargins();
    grid->setContentsMargins(margins.left(), 0, margins.right(), 0);
}

std::vector<ResultLabel*> LinePanel::results() const
{
    std::vector<ResultLabel*> all = m_lblSunTime.all();
    all.push_back(bodyLabel());
    all.insert(all.end(), m_lblSunValue.begin(), m_lblSunValue.end());
    all.insert(all.end(), m_lblSunLine.all().begin(), m_lblSunLine.all().end());
    all.insert(all.end(), m_lblSunNoon.all().begin(), m_lblSunNoon.all().end());
    return all;
}

void LinePanel::showResults(const LOPResult& line, const MeridianResult& noon)
{
    m_lblSunBody.show(line);
    m_lblSunTime.show(line);
    showWorksheet(line.worksheet);
    m_lblSunLine.show(line);
    m_passage->setText(noon.caption.empty() ? noonResults[NoonShown::passage].caption
                                            : asQString(noon.caption));
    m_lblSunNoon.show(noon);
}

void LinePanel::showWorksheet(const std::vector<WorksheetLine>& lines)
{
    for (std::size_t i = 0; i < worksheetLines; ++i) {
        const WorksheetLine line = i < lines.size() ? lines[i] : WorksheetLine{};
        m_lblSunTerm[i]->setText(asQString(line.caption));
        m_lblSunValue[i]->declare(line.caption.empty() ? "Worksheet" : m_lblSunTerm[i]->text());
        m_lblSunValue[i]->setText(asQString(line.text));
    }
}

} // namespace korvel
