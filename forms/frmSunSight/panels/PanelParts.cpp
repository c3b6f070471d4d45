// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/panels/PanelParts.h"

#include <QPushButton>

namespace korvel
{

void makeSentence(ResultLabel* label, int lines)
{
    label->setFont(QFont());
    label->setRoom({}, lines);
    label->setEliding();
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

QPushButton* makeButton(const QString& name, const QString& caption, const QString& tip,
                        QWidget* parent)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    return button;
}

} // namespace korvel
