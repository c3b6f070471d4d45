// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/TideFoot.h"

#include "forms/frmTIDE/sheet/NoteLabel.h"
#include "shell/controls/Panels.h"
#include "shell/machine/AsQString.h"

#include <QVBoxLayout>

namespace korvel
{

TideFoot::TideFoot(QWidget* parent)
    : QWidget(parent), m_lblStation(addNoteLabel(this, "lblStation")),
      m_lblAccuracy(addNoteLabel(this, "lblAccuracy")),
      m_lblSource(addNoteLabel(this, "lblSource")), m_lblInUse(addNoteLabel(this, "lblInUse")),
      m_progress(new QProgressBar(this))
{
    auto* column = new QVBoxLayout(this);
    layOutBody(*column, Spacing::Dense);
    for (QLabel* label : {m_lblStation, m_lblAccuracy, m_lblSource, m_lblInUse})
        column->addWidget(label);
    m_lblAccuracy->hide();
    m_progress->setObjectName("barExtend");
    m_progress->setAccessibleName("Predictions that are made, per cent");
    m_progress->hide();
    column->addWidget(m_progress);
}

void TideFoot::showStation(const StationLines& lines)
{
    m_lblStation->setText(asQString(lines.station) + ".  Not for navigation.");
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
