// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/sheet/NoteLabel.h"

#include "shell/machine/AsQString.h"

namespace korvel
{

QLabel* addNoteLabel(QWidget* parent, const QString& name)
{
    auto* label = new QLabel(parent);
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    return label;
}

void keepRoom(QWidget& control)
{
    QSizePolicy policy = control.sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    control.setSizePolicy(policy);
}

void showNote(QLabel* label, const std::string& words)
{
    label->setText(asQString(words));
    label->setVisible(!words.empty());
}

} // namespace korvel
