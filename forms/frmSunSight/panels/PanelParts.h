// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/Panels.h"
#include "shell/controls/ResultLabel.h"

#include <QGroupBox>

#include <array>
#include <string>

class QPushButton;

/// What the panels of the sun sight window are built from.
namespace korvel
{

/// A result with its name, in words for assistive tools.
ResultLabel* makeResult(const QString& array, int index, const QString& words, QWidget* parent);

template <std::size_t N>
std::array<ResultLabel*, N> makeResults(const QString& array,
                                        const std::array<const char*, N>& words, QWidget* parent)
{
    std::array<ResultLabel*, N> made{};
    for (std::size_t i = 0; i < N; ++i)
        made[i] = makeResult(array, static_cast<int>(i), words[i], parent);
    return made;
}

/// Sentences, not figures, are read in the size of captions. Their room is fixed, so that nothing
/// moves while the officer types.
void makeSentence(ResultLabel* label, int lines);

/// Room for a result that is still to come.
void setRoom(ResultLabel* label, const char* sample);

/// Shows a text; what a sentence has no room for is in its tool tip.
void showText(ResultLabel* label, const std::string& text);

/// A button that Enter in a box does not press.
QPushButton* makeButton(const QString& name, const QString& caption, const QString& tip,
                        QWidget* parent);

} // namespace korvel
