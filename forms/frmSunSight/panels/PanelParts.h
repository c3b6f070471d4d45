// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/ResultLabel.h"
#include "shell/layout/Panels.h"

#include <QGroupBox>

class QPushButton;

/// What the panels of the sun sight window are built from.
namespace korvel
{

/// Sentences, not figures, are read in the size of captions. Their room is fixed, so that nothing
/// moves while the officer types; what it has no room for is in the tool tip.
void makeSentence(ResultLabel* label, int lines);

/// A button that Enter in a box does not press.
QPushButton* makeButton(const QString& name, const QString& caption, const QString& tip,
                        QWidget* parent);

} // namespace korvel
