// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/TideHead.h"

#include "forms/frmTIDE/sheet/NoteLabel.h"
#include "shell/controls/Panels.h"
#include "shell/controls/WrappingRow.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace korvel
{

TideHead::TideHead(QWidget* parent) : QWidget(parent)
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

ResultLabel* TideHead::addLabel(const QString& name, const QString& accessibleName)
{
    auto* label = new ResultLabel(this);
    label->setObjectName(name);
    label->declare(accessibleName);
    return label;
}

void TideHead::makeFindBox()
{
    m_txtFind = new EntryBox(this);
    m_txtFind->setObjectName("txtFind");
    m_txtFind->setAccessibleName("Find a station, three letters of its name and Enter");
    m_txtFind->setPlaceholderText("three letters, Enter");
    m_txtFind->setFixedWidth(20 * fontMetrics().averageCharWidth());
    m_txtFind->setMaxLength(40);
    m_txtFind->onEnter = [this] { onFind(m_txtFind->value()); };
}

QWidget* TideHead::headLine()
{
    m_lblPlace = addLabel("lblPlace", "Place");
    QFont bold = m_lblPlace->font();
    bold.setBold(true);
    m_lblPlace->setFont(bold);
    m_lblPlace->setRoom("San Francisco, Golden");
    m_lblDate = new DateLabel(this);
    m_lblDate->setObjectName("lblDate");
    m_lblDate->setAccessibleName("Date; Enter asks for another one");
    m_lblDate->setToolTip("Choose the date");
    m_lblDate->onClick = [this] { onDate(); };
    m_lblDate->setRoom("0000/00/00  ");
    m_lblTD = addLabel("lblTD", "Zone time of the station, hours");
    m_lblTD->setRoom("00.00hW");

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
    row->addWidget(new QLabel("Zone time"));
    row->addWidget(m_lblTD);
    return line;
}

QWidget* TideHead::figuresLine()
{
    m_lblTideInfo = addLabel("lblTideInfo", "Highest and lowest of the day with their zone times");
    m_lblTideInfo->setToolTip("Zone time in hours and minutes, highest first");
    m_lblTideInfo->setRoom("00.-00: -00.00m   00.-00: -00.00m ");
    m_lblCuDirection = {addLabel("lblCuDirection(0)", "Direction of the flood stream"),
                        addLabel("lblCuDirection(1)", "Direction of the ebb stream")};
    for (ResultLabel* label : m_lblCuDirection)
        label->setRoom("+ : WNW ");

    auto* line = new QWidget;
    auto* row = new WrappingRow(line);
    row->startGroup();
    row->addWidget(new QLabel("Highest, lowest"));
    row->addWidget(m_lblTideInfo);
    row->addStretch();
    row->startGroup();
    row->addWidget(m_lblCuDirection[0]);
    row->addWidget(m_lblCuDirection[1]);
    return line;
}

void TideHead::showChoice(const TideChoice& choice)
{
    m_lblPlace->setText(QString::fromStdString(choice.lblPlace));
    m_lblDate->setText(QString::fromStdString(choice.lblDate));
}

void TideHead::showFigures(const TidePrediction& four, const StationLines& lines)
{
    m_lblTD->setText(QString::fromStdString(four.lblTD));
    m_lblTideInfo->setText(QString::fromStdString(four.lblTideInfo));
    for (std::size_t i = 0; i < m_lblCuDirection.size(); ++i) {
        m_lblCuDirection[i]->setText(QString::fromStdString(four.lblCuDirection[i]));
        m_lblCuDirection[i]->setVisible(four.kind == TideKind::Stream);
    }
    showNote(m_lblRemark, four.remark);
    showNote(m_lblUncertainty, lines.uncertainty);
    showNote(m_lblEstimates, lines.estimates);
}

} // namespace korvel
