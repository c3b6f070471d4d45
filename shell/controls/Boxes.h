// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/NumberField.h"
#include "app/records/SettingsRecord.h"
#include "shell/controls/FigureMenu.h"

#include <QLineEdit>

#include <functional>
#include <string>
#include <vector>

namespace korvel
{

/// The name of a member of a control array: "txtGC(2)".
QString memberName(const QString& array, int index);

/// A text box with the entry behaviour that all windows share: the whole text is selected when the
/// box receives focus, also by mouse, and Enter moves on to the next box of the window's order.
/// Control characters never get into it, whatever brings them: a line end or tab becomes a blank.
class EntryBox : public QLineEdit
{
    Q_OBJECT

public:
    explicit EntryBox(QWidget* parent = nullptr);

    /// The text; good until it changes.
    const std::string& value() const;

    /// Greatest number of characters of a number, a date or a position; of a text for the log, and
    /// of a search: a pasted page is none.
    static constexpr int longestFigure = 40;
    static constexpr int longestText = 100;

    /// What its text looks like in the window's record.
    FieldKind recordKind = FieldKind::Text;

    /// Where Enter goes; nullptr leaves it in the box, all selected.
    void setNext(EntryBox* next) { m_next = next; }

    /// What the calculations accept, in words: "-90 to 90"; told to whoever comes to the box.
    void setLimits(const QString& limits);
    const QString& limits() const { return m_limits; }

    /// Names the box for assistive tools.
    /// @param words what it is, for remarks too; with the row where it stands in one
    /// @param writing how it is written: "hours, east positive"
    void declare(const QString& words, const QString& writing = {});
    const QString& words() const { return m_words; }

    /// Says that the box takes a number, and which. Its name is the box's own.
    void setReading(const NumberField& reading);
    /// Whether a text is read whole though a number is only its beginning: "6 ft 3 in".
    std::function<bool(const std::string& text)> isUnderstood;
    /// What of the text is read where that is only its beginning, and what all of it may have been
    /// meant as; nothing when it is read whole, or not at all.
    const std::optional<NumberReading>& halfRead() const;

    /// What Enter does on top, before it moves on.
    std::function<void()> onEnter;
    /// What is done with the text when the focus has gone to another control of the program; a look
    /// into a menu or another program leaves a half-typed text alone.
    std::function<void()> onLeave;
    /// Takes a change of several boxes back. @return false when there is none: Ctrl+Z is then the
    /// box's own
    std::function<bool()> onUndo;

protected:
    /// Whether the accessible description is free for the limits.
    virtual bool describesLimits() const { return true; }

    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    EntryBox* m_next = nullptr;
    QString m_words;
    QString m_limits;
    std::optional<NumberField> m_reading;
    mutable QString m_valueText; ///< what m_value was made from
    mutable std::string m_value;
    mutable QString m_halfReadText; ///< what m_halfRead was read from
    mutable std::optional<NumberReading> m_halfRead;
    bool m_isEdited = false; ///< the text is being changed by hand
    bool m_focusedByMouse = false;
    bool m_interrupted = false; ///< a question or an alarm took the focus while somebody typed
};

/// A text box whose calculation runs when a key is released, not while it goes down. Text that
/// comes without a key (recalled, pasted by mouse, from an input method) counts at once.
class KeyUpBox : public EntryBox, public StoresFigures
{
    Q_OBJECT

public:
    explicit KeyUpBox(QWidget* parent = nullptr);

    /// Called when the text differs from what the box last held.
    std::function<void()> onKeyUp;

    /// Shows a text that is a result of the window's own and starts nothing.
    void fill(const QString& text);

    /// Unit of a box that shows results: its menu offers the copies that a result has.
    void setResultUnit(const QString& unit) { m_resultUnit = unit; }

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void settle();

    QString m_held;
    QString m_resultUnit;
    bool m_keyGoingDown = false;
};

/// The kinds of their texts in a record.
std::vector<FieldKind> recordKinds(const std::vector<EntryBox*>& boxes);

/// Lets Enter go through the boxes in this order, from the last back to the first.
void setEntryOrder(const std::vector<EntryBox*>& boxes);

} // namespace korvel
