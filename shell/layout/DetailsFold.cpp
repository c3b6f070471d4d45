// SPDX-License-Identifier: MIT
#include "shell/layout/DetailsFold.h"

#include <QSignalBlocker>

namespace korvel
{

DetailsFold::DetailsFold(QWidget* folded, QWidget* parent) : QToolButton(parent), m_folded(folded)
{
    setObjectName("cmdDetails");
    setText("Detai&ls");
    setToolTip("Opens and closes the details");
    setCheckable(true);
    setAutoRaise(true);
    setFocusPolicy(Qt::StrongFocus);
    setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    connect(this, &QToolButton::toggled, this, [this](bool isOpen) {
        show(isOpen);
        if (onFold) onFold(isOpen);
    });
    show(false);
}

void DetailsFold::open(bool isOpen)
{
    const QSignalBlocker quiet(this);
    setChecked(isOpen);
    show(isOpen);
}

void DetailsFold::show(bool isOpen)
{
    setArrowType(isOpen ? Qt::DownArrow : Qt::RightArrow);
    m_folded->setVisible(isOpen);
}

} // namespace korvel
