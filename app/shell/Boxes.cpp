// SPDX-License-Identifier: MIT
#include "app/shell/Boxes.h"

#include "app/reading.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QFocusEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

#include <memory>

namespace korvel
{

QString memberName(const QString& array, int index)
{
    return QString("%1(%2)").arg(array).arg(index);
}

EntryBox::EntryBox(QWidget* parent) : QLineEdit(parent)
{
    setMinimumWidth(fontMetrics().horizontalAdvance("-139.4523000"));
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
    if (onLeave && event->reason() != Qt::PopupFocusReason &&
        event->reason() != Qt::ActiveWindowFocusReason)
        onLeave();
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
    m_held = text;
    setText(text);
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

void KeyUpBox::settle()
{
    if (text() == m_held) return;
    m_held = text();
    if (onKeyUp) onKeyUp();
}

void setEntryOrder(const std::vector<EntryBox*>& boxes)
{
    for (std::size_t i = 0; i < boxes.size(); ++i)
        boxes[i]->setNext(boxes[(i + 1) % boxes.size()]);
}

ResultLabel::ResultLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSelectable(false);
    QFont larger = font();
    larger.setPointSizeF(larger.pointSizeF() * 1.2);
    setFont(larger);
    setMinimumHeight(fontMetrics().lineSpacing()); // an empty one keeps its room
}

/// The toolkit keeps a text document behind a label that can be selected or take the focus. It is
/// most of the time from a key to the painted labels, so it is there only while somebody selects.
void ResultLabel::setSelectable(bool selectable)
{
    setTextInteractionFlags(selectable ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                       : Qt::NoTextInteraction);
}

void ResultLabel::reserve(const QString& longest)
{
    setFixedSize(fontMetrics().horizontalAdvance(longest), fontMetrics().height());
}

void ResultLabel::showReserved(const QString& text)
{
    if (text == this->text()) return;
    const int wide = fontMetrics().horizontalAdvance(text);
    if (wide > minimumWidth()) setFixedWidth(wide);
    setText(text);
}

void ResultLabel::paintEvent(QPaintEvent* event)
{
    if (textInteractionFlags() != Qt::NoTextInteraction || textFormat() != Qt::PlainText ||
        wordWrap() || text().contains('\n')) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    m_figures.draw(painter, contentsRect(), alignment(), text());
}

void ResultLabel::mousePressEvent(QMouseEvent* event)
{
    setSelectable(true);
    setFocus(Qt::MouseFocusReason);
    QLabel::mousePressEvent(event);
}

void ResultLabel::focusOutEvent(QFocusEvent* event)
{
    QLabel::focusOutEvent(event);
    // Its own context menu and a look into another program leave the selection alone.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        setSelectable(false);
}

void ResultLabel::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else
        QLabel::keyPressEvent(event);
}

void ResultLabel::contextMenuEvent(QContextMenuEvent* event)
{
    QMenu menu(this);
    menu.addAction("&Copy", this, [this] { copy(); });
    menu.exec(event->globalPos());
}

void ResultLabel::copy()
{
    const bool part = hasSelectedText() && selectedText() != text();
    const QString copied = part ? selectedText() : copyText ? copyText() : text();
    if (!copied.isEmpty()) QApplication::clipboard()->setText(copied);
}

PositionBox::PositionBox(Axis axis, QWidget* parent)
    : EntryBox(parent), m_axis(axis), m_echo(new ResultLabel(parent))
{
    m_echo->setFont(font());
    m_echo->copyText = [this] { return positionToCopy(); };
    connect(this, &QLineEdit::textChanged, this, [this] { showEcho(); });
    connect(this, &QObject::objectNameChanged, this,
            [this](const QString& name) { m_echo->setObjectName("echo " + name); });
    // Room for the longest echo, so that the window keeps its shape while the officer types.
    m_echo->reserve("000°00.0' W (minutes 75)");
}

void PositionBox::pair(PositionBox* latitude, PositionBox* longitude)
{
    latitude->m_partner = longitude;
    longitude->m_partner = latitude;
}

void PositionBox::setBriefEcho()
{
    m_briefEcho = true;
    m_echo->reserve("000°00.000' W !");
    showEcho();
}

void PositionBox::showEcho()
{
    const Echo echo = positionEcho(value(), m_axis);
    QString hint = QString::fromStdString(echo.hint);
    if (!m_remark.isEmpty() && m_remarkedAt == text()) {
        if (!hint.isEmpty()) hint += "; ";
        hint += m_remark;
    }
    const QString full = QString::fromStdString(echo.text);
    const QString remark = m_briefEcho ? " !" : " (" + hint + ")";
    m_echo->showReserved(hint.isEmpty() ? full : full + remark);
    m_echo->setToolTip(hint);
    setAccessibleDescription(hint.isEmpty() ? full : full + ", " + hint);
}

QString PositionBox::positionToCopy() const
{
    const PositionBox* latitude = m_axis == Axis::Latitude ? this : m_partner;
    const PositionBox* longitude = m_axis == Axis::Latitude ? m_partner : this;
    if (!latitude || !longitude || !readLeadingNumber(latitude->value()) ||
        !readLeadingNumber(longitude->value()))
        return QString::fromStdString(positionForCopy(readNumber(value()), m_axis));
    return QString::fromStdString(
        positionForCopy(readNumber(latitude->value()), readNumber(longitude->value())));
}

void PositionBox::pasteText(const QString& pasted)
{
    const auto position = parsePosition(pasted.toStdString(), m_axis);
    if (!position) {
        insert(pasted.simplified());
        return;
    }
    PositionBox* latitude = m_axis == Axis::Latitude ? this : m_partner;
    PositionBox* longitude = m_axis == Axis::Latitude ? m_partner : this;
    const auto fill = [&](PositionBox* box, const std::optional<std::string>& packed) {
        if (!box || !packed) return;
        box->m_remark = QString::fromStdString(position->remark);
        box->m_remarkedAt = QString::fromStdString(*packed);
        if (box->text() == box->m_remarkedAt)
            box->showEcho();
        else
            box->setText(box->m_remarkedAt);
    };
    fill(latitude, position->latitude);
    fill(longitude, position->longitude);
}

void PositionBox::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Paste))
        pasteText(QApplication::clipboard()->text());
    else
        EntryBox::keyPressEvent(event);
}

void PositionBox::mouseReleaseEvent(QMouseEvent* event)
{
    const QClipboard* clipboard = QApplication::clipboard();
    if (event->button() == Qt::MiddleButton && clipboard->supportsSelection())
        pasteText(clipboard->text(QClipboard::Selection));
    else
        EntryBox::mouseReleaseEvent(event);
}

void PositionBox::contextMenuEvent(QContextMenuEvent* event)
{
    const std::unique_ptr<QMenu> menu(createStandardContextMenu());
    if (auto* paste = menu->findChild<QAction*>("edit-paste")) {
        paste->disconnect();
        connect(paste, &QAction::triggered, this,
                [this] { pasteText(QApplication::clipboard()->text()); });
    }
    menu->addSeparator();
    menu->addAction("Copy p&osition", this,
                    [this] { QApplication::clipboard()->setText(positionToCopy()); });
    menu->exec(event->globalPos());
}

void PositionBox::dropEvent(QDropEvent* event)
{
    const QString dropped = event->mimeData()->text();
    if (!parsePosition(dropped.toStdString(), m_axis)) {
        EntryBox::dropEvent(event);
        return;
    }
    setFocus(Qt::OtherFocusReason);
    pasteText(dropped);
    event->acceptProposedAction();
}

} // namespace korvel
