// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Result.h"
#include "shell/controls/FigureMenu.h"
#include "shell/layout/FigureText.h"

#include <QLabel>

#include <functional>
#include <vector>

namespace korvel
{

/// A label with a result, in the letters of its weight: selectable and copyable, by mouse and from
/// the keyboard: Tab stops at it while it shows something. Assistive tools get its text behind its
/// accessible name. The tip of a label without one of its own shows its figures in full form where
/// the label keeps the program's packed writing.
class ResultLabel : public QLabel, public StoresFigures
{
    Q_OBJECT

public:
    explicit ResultLabel(QWidget* parent = nullptr);

    /// What the figure is, once for assistive tools, papers and whoever draws it.
    /// @param words "Distance"; @param unit "nautical miles"; empty when the text says it
    void declare(const QString& words, const QString& unit = {}, Weight weight = Weight::Figure);
    const QString& words() const { return m_words; }
    const QString& unit() const { return m_unit; }
    Weight weight() const { return m_weight; }

    /// Gives it the letters and the colour of a weight; declare() has given those of its own.
    void dressAs(Weight weight);
    /// The same where it stands in the row in hand of a table.
    void dressAsInHand();

    /// What copying the whole label gives, when that is not its own text in plain form.
    std::function<QString()> copyText;
    /// What a paper says, when the figure is written out there.
    std::function<std::string()> paperText;
    /// What a copy in full calls the figure, where that changes or its words do not tell enough.
    std::function<QString()> wordsInFull;

    void setText(const QString& text) { update(changeText(text)); }
    /// The same for many labels at once: the painting is left to the caller.
    /// @return what of the label is to be painted
    QRect changeText(const QString& text);
    void clear() { setText({}); }

    /// Gives the label room for a text and this many lines of it, by the letters that it has. What
    /// it shows enters its size in no way: a new result makes it paint and never the window lay
    /// itself out. A text that does not fit ends in dots, and all of it is in the tool tip.
    void setRoom(const QString& widest, int lines = 1);

    /// Makes the label as large as its text, for what no key and no calculation changes.
    void setRoomByText() { m_isRoomByText = true; }

    /// Makes the label a line that takes the room it gets and never asks for more.
    void setEliding();

    /// Takes the label out of the way of Tab: its text is told elsewhere too.
    void passByTab();

    /// True while not all of the text can be seen.
    bool isCut() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    bool hasHeightForWidth() const override
    {
        return m_isRoomByText && QLabel::hasHeightForWidth();
    }

signals:
    /// Whoever took its text away: a calculation that ends in a fault knows of no rows.
    void emptied();

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
    QString plainText() const;
    FigureToCopy toCopy() const;

    bool isOneLine() const;
    bool hasOwnTip() const { return !toolTip().isEmpty() && toolTip() != text(); }

    mutable FigureText m_figures;
    QString m_widest = "00000000.000"; ///< what every result fits into but for odd ones
    int m_lines = 1;
    QString m_words;
    QString m_unit;
    Weight m_weight = Weight::Figure;
    bool m_isTabStop = true;
    bool m_isEliding = false;
    bool m_isRoomByText = false;
};

/// Lets Tab go through controls in this order; results that are blank as yet keep their place.
void setTabOrderThrough(const std::vector<QWidget*>& controls);

/// Lets assistive tools see the text of every result behind its name. Asked for again it does
/// nothing.
void tellResultsToAssistiveTools();

} // namespace korvel
