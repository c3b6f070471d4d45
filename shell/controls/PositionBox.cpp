// SPDX-License-Identifier: MIT
#include "shell/controls/PositionBox.h"

#include "app/reading/Reading.h"
#include "shell/machine/AsQString.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QMouseEvent>

namespace korvel
{
namespace
{

constexpr int longestPaste = 1000; // letters: a position in its sentence, not a book

} // namespace

PositionBox::PositionBox(Axis axis, QWidget* parent)
    : EntryBox(parent), m_axis(axis), m_echo(new ResultLabel(parent))
{
    const bool isLatitude = axis == Axis::Latitude;
    const double greatest = isLatitude ? 90 : 180;
    setReading({.name = {},
                .low = -greatest,
                .high = greatest,
                .kind = isLatitude ? FieldKind::Latitude : FieldKind::Longitude});
    m_echo->setFont(font());
    m_echo->passByTab(); // the box tells it with itself
    m_echo->copyText = [this] { return positionToCopy(); };
    m_echo->wordsInFull = [this] { return words(); };
    connect(this, &QLineEdit::textChanged, this, [this] { showEcho(); });
    connect(this, &QObject::objectNameChanged, this,
            [this](const QString& name) { m_echo->setObjectName("echo " + name); });
    // Room for the longest echo, so that the window keeps its shape while the officer types.
    m_echo->setRoom("000°00.0' W (minutes 75)");
}

void PositionBox::pair(PositionBox* latitude, PositionBox* longitude)
{
    latitude->m_partner = longitude;
    longitude->m_partner = latitude;
}

void PositionBox::setBriefEcho()
{
    m_briefEcho = true;
    m_echo->setRoom("000°00.000' W !");
    showEcho();
}

void PositionBox::showEcho()
{
    const Echo echo = positionEcho(value(), m_axis);
    QString hint = asQString(echo.hint);
    if (!m_remark.isEmpty() && m_remarkedAt == text()) {
        if (!hint.isEmpty()) hint += "; ";
        hint += m_remark;
    }
    const QString full = asQString(echo.text);
    const QString remark = m_briefEcho ? " !" : " (" + hint + ")";
    m_echo->setText(hint.isEmpty() ? full : full + remark);
    m_echo->setToolTip(hint);
    setAccessibleDescription(hint.isEmpty() ? full : full + ", " + hint);
}

QString PositionBox::positionToCopy() const
{
    const PositionBox* latitude = m_axis == Axis::Latitude ? this : m_partner;
    const PositionBox* longitude = m_axis == Axis::Latitude ? m_partner : this;
    if (!latitude || !longitude || !readLeadingNumber(latitude->value()) ||
        !readLeadingNumber(longitude->value()))
        return asQString(positionForCopy(NavFunc113::DegMin(readNumber(value())), m_axis));
    return asQString(positionForCopy(NavFunc113::DegMin(readNumber(latitude->value())),
                                     NavFunc113::DegMin(readNumber(longitude->value()))));
}

void PositionBox::pasteText(const QString& text)
{
    // Out of a sentence a position comes with its closing full stop.
    QString pasted = text.left(longestPaste).trimmed();
    if (pasted.size() > 1 && (pasted.endsWith('.') || pasted.endsWith(QChar(0x3002))))
        pasted.chop(1);
    const auto position = parsePosition(pasted.toStdString(), m_axis);
    if (!position) {
        insert(pasted.simplified());
        return;
    }
    PositionBox* latitude = m_axis == Axis::Latitude ? this : m_partner;
    PositionBox* longitude = m_axis == Axis::Latitude ? m_partner : this;
    const auto fill = [&](PositionBox* box, const std::optional<std::string>& packed) {
        if (!box || !packed) return;
        box->m_remark = asQString(position->remark);
        box->m_remarkedAt = asQString(*packed);
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
    QMenu* menu = createStandardContextMenu();
    menu->setAttribute(Qt::WA_DeleteOnClose); // the window may be closed under it
    for (QAction* paste : menu->actions()) {
        // The toolkit gives its entries no names; the text is the one that it looked up itself.
        if (!paste->text().startsWith(QLineEdit::tr("&Paste"))) continue;
        paste->disconnect();
        connect(paste, &QAction::triggered, this,
                [this] { pasteText(QApplication::clipboard()->text()); });
    }
    menu->addSeparator();
    menu->addAction("Copy p&osition", this,
                    [this] { QApplication::clipboard()->setText(positionToCopy()); });
    menu->popup(event->globalPos());
}

void PositionBox::dropEvent(QDropEvent* event)
{
    const QString dropped = event->mimeData()->text();
    if (!parsePosition(dropped.left(longestPaste).toStdString(), m_axis)) {
        EntryBox::dropEvent(event);
        return;
    }
    setFocus(Qt::OtherFocusReason);
    pasteText(dropped);
    event->acceptProposedAction();
}

} // namespace korvel
