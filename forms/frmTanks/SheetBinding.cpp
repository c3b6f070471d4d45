// SPDX-License-Identifier: MIT
#include "forms/frmTanks/SheetBinding.h"

#include "shell/machine/AsQString.h"

#include <QKeyEvent>

namespace korvel
{

void SheetBinding::bind(EntryBox* box, Text text)
{
    m_bound.push_back({box, text});
    connect(box, &QLineEdit::textChanged, this, [this, box, text] {
        if (m_isFilling) return;
        m_work.type([box, &text](TankSheet& sheet) { text(sheet) = box->value(); },
                    box->objectName().toStdString());
    });
    box->onLeave = [this] { m_work.endTyping(); };
    box->onUndo = [this] {
        emit undoWanted();
        return true;
    };
    box->installEventFilter(this);
}

void SheetBinding::fill()
{
    m_isFilling = true;
    TankSheet sheet = m_work.sheet();
    for (const Bound& each : m_bound) {
        const QString text = asQString(each.text(sheet));
        if (each.box->text() != text) each.box->setText(text);
    }
    m_isFilling = false;
}

std::vector<EntryBox*> SheetBinding::boxes() const
{
    std::vector<EntryBox*> boxes;
    for (const Bound& each : m_bound)
        boxes.push_back(each.box);
    return boxes;
}

bool SheetBinding::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress ||
        !static_cast<QKeyEvent*>(event)->matches(QKeySequence::Redo))
        return QObject::eventFilter(watched, event);
    emit redoWanted();
    return true;
}

} // namespace korvel
