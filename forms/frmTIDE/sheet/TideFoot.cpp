// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/TideFoot.h"

#include "forms/frmTIDE/sheet/NoteLabel.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"
#include "shell/screen/ColourScheme.h"

#include <QHBoxLayout>
#include <QVBoxLayout>

namespace korvel
{

TideFoot::TideFoot(QWidget* parent, QWidget* range, const std::vector<QWidget*>& details)
    : QWidget(parent), m_lblStation(addNoteLabel(this, "lblStation")),
      m_lblRemark(addNoteLabel(this, "lblRemark")),
      m_lblUncertainty(addNoteLabel(this, "lblUncertainty")),
      m_lblEstimates(addNoteLabel(this, "lblEstimates")),
      m_lblAccuracy(addNoteLabel(this, "lblAccuracy")),
      m_lblSource(addNoteLabel(this, "lblSource")), m_lblInUse(addNoteLabel(this, "lblInUse")),
      m_progress(new QProgressBar(this)), m_folded(new QWidget(this)),
      m_details(new DetailsFold(m_folded, this))
{
    auto* column = new QVBoxLayout(this);
    layOutBody(*column, Spacing::Dense);
    column->addLayout(layOutLine(range));
    column->addWidget(m_lblStation);
    column->addLayout(layOutNotes());
    column->addLayout(layOutFile());
    layOutDetails(details);
    column->addWidget(m_folded);
    for (QLabel* label : {m_lblStation, m_lblUncertainty, m_lblAccuracy, m_lblSource})
        label->setForegroundRole(quietRole);
}

QLayout* TideFoot::layOutLine(QWidget* range)
{
    auto* row = new WrappingRow;
    row->setGap(3 * fontMetrics().height() / 2);
    row->addWidget(range);
    row->addStretch();
    row->addWidget(m_details);
    return row;
}

/// What comes and goes with station, month and day has a room of its own: the curve stays as it is.
QLayout* TideFoot::layOutNotes()
{
    auto* column = new QVBoxLayout;
    layOutBody(*column);
    column->setSpacing(0);
    for (QLabel* label : {m_lblEstimates, m_lblUncertainty, m_lblRemark}) {
        keepRoom(*label);
        label->setMinimumHeight(label->fontMetrics().lineSpacing());
        label->hide();
    }
    auto* row = new QHBoxLayout;
    row->addWidget(m_lblUncertainty, 2);
    row->addWidget(m_lblEstimates, 3);
    column->addLayout(row);
    column->addWidget(m_lblRemark);
    return column;
}

QLayout* TideFoot::layOutFile()
{
    m_lblInUse->setForegroundRole(quietRole);
    m_progress->setObjectName("barExtend");
    m_progress->setAccessibleName("Predictions that are made, per cent");
    auto* row = new QHBoxLayout;
    for (QWidget* each : {static_cast<QWidget*>(m_lblInUse), static_cast<QWidget*>(m_progress)}) {
        keepRoom(*each);
        each->hide();
        row->addWidget(each, 1);
    }
    return row;
}

void TideFoot::layOutDetails(const std::vector<QWidget*>& details)
{
    auto* column = new QVBoxLayout(m_folded);
    layOutBody(*column, Spacing::Dense);
    for (QWidget* each : details)
        column->addWidget(each);
    for (QLabel* label : {m_lblAccuracy, m_lblSource})
        column->addWidget(label);
}

void TideFoot::showStation(const StationLines& lines, const std::string& remark)
{
    m_lblStation->setText(asQString(lines.station) + ".  Not for navigation.");
    showNote(m_lblRemark, remark);
    showNote(m_lblUncertainty, lines.uncertainty);
    showNote(m_lblEstimates, lines.estimates);
    showNote(m_lblAccuracy, lines.accuracy);
    m_lblSource->setText(asQString(lines.source));
}

void TideFoot::showDates(const TideDates& dates, const std::string& factorsFile)
{
    const bool isShipped = dates.lastSerial() == TideDates().lastSerial();
    m_lblInUse->setVisible(!isShipped);
    m_lblInUse->setText(asQString("Predictions to " + TideDates::label(dates.lastSerial()) +
                                  " with " + factorsFile));
}

} // namespace korvel
