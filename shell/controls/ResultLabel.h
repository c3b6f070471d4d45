// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/FigureText.h"

#include <QLabel>

#include <functional>
#include <vector>

namespace korvel
{

/// A label with a result: one step larger than captions, selectable and copyable, by mouse and from
/// the keyboard: Tab stops at it while it shows something. Assistive tools get its text behind its
/// accessible name. The tip of a label without one of its own shows its figures in full form where
/// the label keeps the program's packed writing.
class ResultLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ResultLabel(QWidget* parent = nullptr);

    /// What copying the whole label gives, when that is not its own text.
    std::function<QString()> copyText;

    void setText(const QString& text);
    void clear() { setText({}); }

    /// Keeps the label at one size, wide enough for a text, so that a new result makes it paint and
    /// never the window lay itself out. A longer text than any before widens it, up to a limit.
    void reserve(const QString& longest);
    /// Shows a text in the reserved size.
    void showReserved(const QString& text);

    /// Makes the label a line that takes the room it gets and never asks for more: what does not
    /// fit is in the tool tip.
    void setEliding();

    /// Takes the label out of the way of Tab: its text is told elsewhere too.
    void passByTab();

    /// A label of a fixed height has it at every width.
    bool hasHeightForWidth() const override
    {
        return minimumHeight() < maximumHeight() && QLabel::hasHeightForWidth();
    }

protected:
    /// True while the toolkit's own text document shows the text.
    bool isBeingSelected() const { return textInteractionFlags() != Qt::NoTextInteraction; }

    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void setSelectable(bool selectable);
    void stopTabHere();
    void copy();

    FigureText m_figures;
    bool m_isTabStop = true;
    bool m_isEliding = false;
};

/// Lets Tab go through controls in this order; results that are blank as yet keep their place.
void setTabOrderThrough(const std::vector<QWidget*>& controls);

/// Lets assistive tools see the text of every result behind its name. Asked for again it does
/// nothing.
void tellResultsToAssistiveTools();

} // namespace korvel
