// SPDX-License-Identifier: MIT
#pragma once

#include <QLabel>
#include <QLineEdit>

#include <functional>
#include <string>

#include "app/position_text.h"
#include "app/shell/FigureText.h"

namespace korvel
{

/// The name of a member of a control array: "txtGC(2)".
QString memberName(const QString& array, int index);

/// A text box with the entry behaviour that all windows share: the whole text is selected when the
/// box receives focus, also by mouse, and Enter moves on to the next box of the window's order.
class EntryBox : public QLineEdit
{
public:
    explicit EntryBox(QWidget* parent = nullptr);

    std::string value() const { return text().toStdString(); }

    /// Where Enter goes; nullptr leaves it in the box, all selected.
    void setNext(EntryBox* next) { m_next = next; }

    /// What Enter does on top, before it moves on.
    std::function<void()> onEnter;
    /// What is done with the text when the focus has gone to another control of the program; a look
    /// into a menu or another program leaves a half-typed text alone.
    std::function<void()> onLeave;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    EntryBox* m_next = nullptr;
    bool m_focusedByMouse = false;
    bool m_interrupted = false; ///< a question or an alarm took the focus while somebody typed
};

/// A text box whose calculation runs when a key is released, not while it goes down. Text that
/// comes without a key (recalled, pasted by mouse, from an input method) counts at once.
class KeyUpBox : public EntryBox
{
public:
    explicit KeyUpBox(QWidget* parent = nullptr);

    /// Called when the text differs from what the box last held.
    std::function<void()> onKeyUp;

    /// Shows a text that is a result of the window's own and starts nothing.
    void fill(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;

private:
    void settle();

    QString m_held;
    bool m_keyGoingDown = false;
};

/// Lets Enter go through the boxes in this order, from the last back to the first.
void setEntryOrder(const std::vector<EntryBox*>& boxes);

/// A label with a result: one step larger than captions, selectable and copyable.
class ResultLabel : public QLabel
{
public:
    explicit ResultLabel(QWidget* parent = nullptr);

    /// What copying the whole label gives, when that is not its own text.
    std::function<QString()> copyText;

    /// Keeps the label at one size, wide enough for a text, so that a new result makes it paint and
    /// never the window lay itself out. A longer text than any before widens it.
    void reserve(const QString& longest);
    /// Shows a text in the reserved size.
    void showReserved(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void setSelectable(bool selectable);
    void copy();

    FigureText m_figures;
};

/// A box for a latitude or a longitude. Beside it stands what was understood; what is pasted from
/// other instruments is turned into the packed form, a pair fills both boxes.
class PositionBox : public EntryBox
{
public:
    PositionBox(Axis axis, QWidget* parent = nullptr);

    /// The label that shows the value in full, with a quiet hint where one is due. Place it beside
    /// the box; it belongs to the same parent.
    QLabel* echo() const { return m_echo; }

    /// For tables: the echo has room for the figure alone, a hint shows as "!" and in the tool tip.
    void setBriefEcho();
    /// What the echo says in full, hint included.
    QString fullEcho() const { return accessibleDescription(); }

    /// Makes a latitude and a longitude box one position.
    static void pair(PositionBox* latitude, PositionBox* longitude);

    /// Pastes a text as the box would from the clipboard.
    void pasteText(const QString& text);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void showEcho();
    QString positionToCopy() const;

    Axis m_axis;
    PositionBox* m_partner = nullptr;
    bool m_briefEcho = false;
    ResultLabel* m_echo;
    QString m_remark;     ///< how a pasted text was taken
    QString m_remarkedAt; ///< the box text that the remark belongs to
};

} // namespace korvel
