// SPDX-License-Identifier: MIT
#include "shell/controls/Boxes.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QMenu>
#include <QMouseEvent>
#include <QValidator>

#include <algorithm>
#include <utility>

namespace korvel
{
namespace
{

// The longest number of double precision has 309 digits.
constexpr int longestResult = 400;

/// Neither seen nor heard: marks of direction, joiners and the like. A joiner between letters is a
/// part of the word, as in Persian.
bool isUnseen(const QString& text, qsizetype i)
{
    if (text[i].category() != QChar::Other_Format) return false;
    const bool isJoiner = text[i] == u'\u200C' || text[i] == u'\u200D';
    const auto isLetterAt = [&text](qsizetype at) {
        return at >= 0 && at < text.size() &&
               (text[at].isLetter() || text[at].isMark() || text[at].isSurrogate());
    };
    return !isJoiner || !isLetterAt(i - 1) || !isLetterAt(i + 1);
}

/// Every way into a box leads through its validator: keys, paste, drop, middle click, an input
/// method. A control character in a record would make all of it unreadable.
class WithoutControls : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString& text, int& cursor) const override
    {
        const auto isControl = [&text](qsizetype i) {
            const QChar::Category category = text[i].category();
            return category == QChar::Other_Control || category == QChar::Separator_Line ||
                   category == QChar::Separator_Paragraph || isUnseen(text, i);
        };
        QString clean;
        for (qsizetype i = 0; i < text.size(); ++i) {
            const QChar each = text[i];
            if (!isControl(i))
                clean += each;
            else if (each.isSpace())
                clean += u' ';
            else if (i < cursor)
                --cursor;
        }
        if (clean != text) text = clean;
        return Acceptable;
    }
};

} // namespace

QString memberName(const QString& array, int index)
{
    return QString("%1(%2)").arg(array).arg(index);
}

EntryBox::EntryBox(QWidget* parent) : QLineEdit(parent)
{
    setMinimumWidth(fontMetrics().horizontalAdvance("-139.4523000"));
    setMaxLength(longestFigure);
    setValidator(new WithoutControls(this));
    // What is too long for the box shows its beginning: 142 degrees are not to be read as 42.
    // Never under a hand that types, whether the window is the active one or not.
    connect(this, &QLineEdit::textEdited, this, [this] { m_isEdited = true; });
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!std::exchange(m_isEdited, false) && !hasFocus()) setCursorPosition(0);
    });
}

const std::string& EntryBox::value() const
{
    // Asked of every box at each key, which changes one of them.
    if (const QString typed = text(); typed != m_valueText) {
        m_value = typed.toStdString();
        m_valueText = typed;
    }
    return m_value;
}

void EntryBox::setLimits(const QString& limits)
{
    m_limits = limits;
    if (describesLimits()) setAccessibleDescription(limits);
}

void EntryBox::declare(const QString& words, const QString& writing)
{
    m_words = words;
    setAccessibleName(writing.isEmpty() ? words : words + ", " + writing);
}

void EntryBox::setReading(const NumberField& reading)
{
    m_reading = reading;
    m_halfReadText = {};
    m_halfRead.reset();
}

const std::optional<NumberReading>& EntryBox::halfRead() const
{
    if (!m_reading || text() == m_halfReadText) return m_halfRead;
    m_halfReadText = text();
    m_halfRead.reset();
    if (isUnderstood && isUnderstood(value())) return m_halfRead;
    NumberReading reading = readField(value(), *m_reading);
    const bool isHalf = reading.kind == NumberReading::Kind::Beginning && !reading.remark.empty();
    if (isHalf) m_halfRead = std::move(reading);
    return m_halfRead;
}

void EntryBox::focusInEvent(QFocusEvent* event)
{
    QLineEdit::focusInEvent(event);
    m_focusedByMouse = event->reason() == Qt::MouseFocusReason;
    // A context menu that closes must not undo what was selected for it, and an alarm in the middle
    // of a number must not make the next digit replace the ones before it.
    if (event->reason() != Qt::PopupFocusReason && !m_interrupted) selectAll();
    m_interrupted = false;
}

void EntryBox::focusOutEvent(QFocusEvent* event)
{
    QLineEdit::focusOutEvent(event);
    m_interrupted =
        event->reason() == Qt::ActiveWindowFocusReason && QApplication::activeModalWidget();
    const bool leaves =
        event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason;
    if (leaves) setCursorPosition(0);
    if (leaves && onLeave) onLeave();
}

void EntryBox::mousePressEvent(QMouseEvent* event)
{
    // The click that brings the focus selects all; its own cursor placement would undo that.
    if (m_focusedByMouse && event->button() == Qt::LeftButton) return;
    QLineEdit::mousePressEvent(event);
}

void EntryBox::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_focusedByMouse && event->button() == Qt::LeftButton) {
        m_focusedByMouse = false;
        selectAll();
        return;
    }
    QLineEdit::mouseReleaseEvent(event);
}

void EntryBox::keyPressEvent(QKeyEvent* event)
{
    m_focusedByMouse = false;
    if (event->matches(QKeySequence::Undo) && onUndo && onUndo()) return;
    if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter) {
        QLineEdit::keyPressEvent(event);
        return;
    }
    if (onEnter) onEnter();
    if (m_next && m_next != this)
        m_next->setFocus(Qt::TabFocusReason);
    else
        selectAll();
}

KeyUpBox::KeyUpBox(QWidget* parent) : EntryBox(parent)
{
    connect(this, &QLineEdit::textChanged, this, [this] {
        if (!m_keyGoingDown) settle();
    });
}

void KeyUpBox::fill(const QString& text)
{
    m_held = text.left(longestResult);
    // A result is shown in full; the limit is for what is typed. No text that stands there is cut
    // on the way: it would count as typed.
    setMaxLength(longestResult);
    setText(m_held);
    setMaxLength(std::max<int>(longestFigure, static_cast<int>(m_held.size())));
}

void KeyUpBox::keyPressEvent(QKeyEvent* event)
{
    m_keyGoingDown = true;
    EntryBox::keyPressEvent(event);
    m_keyGoingDown = false;
}

void KeyUpBox::keyReleaseEvent(QKeyEvent* event)
{
    EntryBox::keyReleaseEvent(event);
    settle();
}

void KeyUpBox::focusOutEvent(QFocusEvent* event)
{
    settle(); // a key may be released in the next box
    EntryBox::focusOutEvent(event);
}

void KeyUpBox::contextMenuEvent(QContextMenuEvent* event)
{
    if (m_resultUnit.isEmpty()) return EntryBox::contextMenuEvent(event);
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose); // the window may be closed under it
    menu->addSeparator();
    addCopies(*menu, {text(), plainFigure(text()), figureInFull({}, text(), m_resultUnit)}, *this);
    menu->popup(event->globalPos());
}

void KeyUpBox::settle()
{
    if (text() == m_held) return;
    m_held = text();
    if (onKeyUp) onKeyUp();
}

std::vector<FieldKind> recordKinds(const std::vector<EntryBox*>& boxes)
{
    std::vector<FieldKind> kinds;
    kinds.reserve(boxes.size());
    for (const EntryBox* box : boxes)
        kinds.push_back(box->recordKind);
    return kinds;
}

void setEntryOrder(const std::vector<EntryBox*>& boxes)
{
    for (std::size_t i = 0; i < boxes.size(); ++i)
        boxes[i]->setNext(boxes[(i + 1) % boxes.size()]);
}

} // namespace korvel
