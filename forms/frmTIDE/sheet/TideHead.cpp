// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/TideHead.h"

#include "forms/frmTIDE/sheet/NoteLabel.h"
#include "shell/controls/Panels.h"
#include "shell/controls/WrappingRow.h"
#include "shell/machine/AsQString.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace korvel
{

TideHead::TideHead(QWidget* parent) : QWidget(parent), m_labels(headResults, this)
{
    auto* column = new QVBoxLayout(this);
    layOutBody(*column, Spacing::Dense);
    column->addWidget(headLine());
    column->addWidget(figuresLine());
    m_lblRemark = addNoteLabel(this, "lblRemark");
    m_lblUncertainty = addNoteLabel(this, "lblUncertainty");
    m_lblEstimates = addNoteLabel(this, "lblEstimates");
    for (QLabel* label : {m_lblRemark, m_lblUncertainty, m_lblEstimates}) {
        label->hide();
        column->addWidget(label);
    }
}

void TideHead::makeFindBox()
{
    m_txtFind = new EntryBox(this);
    m_txtFind->setObjectName("txtFind");
    m_txtFind->declare("Find a station", "three letters of its name and Enter");
    m_txtFind->setPlaceholderText("three letters, Enter");
    m_txtFind->setFixedWidth(20 * fontMetrics().averageCharWidth());
    m_txtFind->setMaxLength(40);
    m_txtFind->onEnter = [this] { onFind(m_txtFind->value()); };
}

QWidget* TideHead::headLine()
{
    m_lblPlace = new ResultLabel(this);
    m_lblPlace->setObjectName("lblPlace");
    m_lblPlace->declare("Place");
    QFont bold = m_lblPlace->font();
    bold.setBold(true);
    m_lblPlace->setFont(bold);
    m_lblPlace->setRoom("San Francisco, Golden");
    m_lblDate = new DateLabel(this);
    m_lblDate->setObjectName("lblDate");
    m_lblDate->declare("Date; Enter asks for another one");
    m_lblDate->setToolTip("Choose the date");
    m_lblDate->onClick = [this] { onDate(); };
    m_lblDate->setRoom("0000/00/00  ");
    m_labels[HeadShown::zoneTime]->setRoom("00.00hW");

    auto* cmdToday = new QPushButton("T&oday");
    cmdToday->setObjectName("cmdToday");
    cmdToday->setToolTip("Show the ship's date of today");
    connect(cmdToday, &QPushButton::clicked, this, [this] { onToday(); });
    makeFindBox();
    auto* find = new QLabel("&Find");
    find->setBuddy(m_txtFind);

    auto* line = new QWidget;
    auto* row = new WrappingRow(line);
    row->startGroup();
    for (QWidget* each : {static_cast<QWidget*>(m_lblPlace), static_cast<QWidget*>(m_lblDate),
                          static_cast<QWidget*>(cmdToday)})
        row->addWidget(each);
    row->addStretch();
    row->startGroup();
    row->addWidget(find);
    row->addWidget(m_txtFind);
    row->startGroup();
    row->addWidget(new QLabel(headResults[HeadShown::zoneTime].caption));
    row->addWidget(m_labels[HeadShown::zoneTime]);
    return line;
}

QWidget* TideHead::figuresLine()
{
    using namespace HeadShown;
    m_labels[highestLowest]->setToolTip("Zone time in hours and minutes, highest first");
    m_labels[highestLowest]->setRoom("00.-00: -00.00m   00.-00: -00.00m ");
    m_labels[flood]->setRoom("+ : WNW ");
    m_labels[ebb]->setRoom("+ : WNW ");

    auto* line = new QWidget;
    auto* row = new WrappingRow(line);
    row->startGroup();
    row->addWidget(new QLabel(headResults[highestLowest].caption));
    row->addWidget(m_labels[highestLowest]);
    row->addStretch();
    row->startGroup();
    row->addWidget(m_labels[flood]);
    row->addWidget(m_labels[ebb]);
    return line;
}

void TideHead::showChoice(const TideChoice& choice)
{
    m_lblPlace->setText(asQString(choice.lblPlace));
    m_lblDate->setText(asQString(choice.lblDate));
}

void TideHead::showFigures(const TidePrediction& four, const StationLines& lines)
{
    m_labels.show(four);
    for (const std::size_t direction : {HeadShown::flood, HeadShown::ebb})
        m_labels[direction]->setVisible(four.kind == TideKind::Stream);
    showNote(m_lblRemark, four.remark);
    showNote(m_lblUncertainty, lines.uncertainty);
    showNote(m_lblEstimates, lines.estimates);
}

} // namespace korvel
