// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/TideHead.h"

#include "forms/frmTIDE/sheet/NoteLabel.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"

#include <QHBoxLayout>
#include <QPushButton>

namespace korvel
{

TideHead::TideHead(QWidget* parent) : QWidget(parent), m_labels(headResults, this)
{
    layOutHead();
    layOutHalfHours();
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

void TideHead::layOutHead()
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
    // All of the line as high as its button, so that it begins where one begins to read.
    m_txtFind->setMinimumHeight(cmdToday->sizeHint().height());
    for (ResultLabel* label :
         std::initializer_list<ResultLabel*>{m_lblPlace, m_lblDate, m_labels[HeadShown::zoneTime],
                                             m_labels[HeadShown::flood], m_labels[HeadShown::ebb]})
        label->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    auto* find = new QLabel("&Find");
    find->setBuddy(m_txtFind);

    using namespace HeadShown;
    for (const std::size_t direction : {flood, ebb}) {
        m_labels[direction]->setRoom("+ : WNW ");
        keepRoom(*m_labels[direction]);
        m_labels[direction]->hide();
    }
    auto* row = new WrappingRow(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->startGroup();
    for (QWidget* each : std::initializer_list<QWidget*>{find, m_txtFind})
        row->addWidget(each);
    row->startGroup();
    for (QWidget* each : std::initializer_list<QWidget*>{m_lblPlace, m_lblDate, cmdToday})
        row->addWidget(each);
    row->addStretch();
    row->startGroup();
    for (QWidget* each : std::initializer_list<QWidget*>{m_labels[flood], m_labels[ebb],
                                                         new QLabel(headResults[zoneTime].caption),
                                                         m_labels[zoneTime]})
        row->addWidget(each);
}

void TideHead::layOutHalfHours()
{
    using namespace HeadShown;
    m_labels[highestLowest]->setToolTip("Zone time in hours and minutes, highest first");
    m_labels[highestLowest]->setRoom("00.-00: -00.00m   00.-00: -00.00m ");
    m_halfHours = new QWidget;
    auto* row = new QHBoxLayout(m_halfHours);
    layOutBody(*row);
    row->addWidget(new QLabel(headResults[highestLowest].caption));
    row->addWidget(m_labels[highestLowest]);
    row->addStretch(1);
}

void TideHead::showChoice(const TideChoice& choice)
{
    m_lblPlace->setText(asQString(choice.lblPlace));
    m_lblDate->setText(asQString(choice.lblDate));
}

void TideHead::showFigures(const TidePrediction& four)
{
    m_labels.show(four);
    for (const std::size_t direction : {HeadShown::flood, HeadShown::ebb})
        m_labels[direction]->setVisible(four.kind == TideKind::Stream);
}

} // namespace korvel
