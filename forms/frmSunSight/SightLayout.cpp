// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/SightLayout.h"

#include "forms/frmSunSight/panels/EntryPanel.h"
#include "forms/frmSunSight/panels/FixPanel.h"
#include "forms/frmSunSight/panels/LinePanel.h"
#include "forms/frmSunSight/panels/SightListPanel.h"
#include "shell/layout/Panels.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

constexpr int columnGap = 16;

} // namespace

void layOut(const SightPanels& panels, QWidget& content)
{
    auto* grid = new QGridLayout(&content);
    layOutBody(*grid, Spacing::Dense);
    auto* typed = new QVBoxLayout;
    layOutBody(*typed, Spacing::Dense);
    typed->addWidget(&panels.entry);
    typed->addStretch(1);
    grid->addLayout(typed, 0, 0, 3, 1);
    auto* answers = new QVBoxLayout;
    layOutBody(*answers, Spacing::Groups);
    answers->addWidget(&panels.lines);
    answers->addWidget(panels.lines.noon());
    answers->addWidget(panels.fixes.fixPart(), 1);
    grid->addLayout(answers, 0, 1);
    grid->addWidget(&panels.fixes, 0, 2);
    grid->addWidget(&panels.sights, 1, 1, 1, 2);
    grid->addWidget(panels.entry.qualityRow(), 2, 1, 1, 2);
    grid->addWidget(panels.fixes.seriesPart(), 3, 1, 1, 2);
    grid->setHorizontalSpacing(columnGap);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(0, 1);
}

} // namespace korvel
