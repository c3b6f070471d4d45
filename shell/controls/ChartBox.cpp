// SPDX-License-Identifier: MIT
#include "shell/controls/ChartBox.h"

#include <QKeyEvent>
#include <QPalette>
#include <QPen>
#include <QWheelEvent>

#include <cmath>

namespace korvel
{
namespace
{

constexpr double zoomStep = 1.25;
constexpr double panStep = 0.25; // of the half width

/// Where an arrow key goes to, right and up.
std::optional<QPointF> wayOf(int key)
{
    switch (key) {
    case Qt::Key_Left:
        return QPointF(-1, 0);
    case Qt::Key_Right:
        return QPointF(1, 0);
    case Qt::Key_Up:
        return QPointF(0, 1);
    case Qt::Key_Down:
        return QPointF(0, -1);
    default:
        return std::nullopt;
    }
}

} // namespace

ChartBox::ChartBox(QWidget* parent) : PictureBox(parent)
{
    setFocusPolicy(Qt::StrongFocus);
    connect(this, &PictureBox::pressed, this, &ChartBox::press);
    connect(this, &PictureBox::pointed, this, &ChartBox::drag);
    connect(this, &PictureBox::released, this, [this] { m_held.reset(); });
}

QPen ChartBox::rim(const QPen& quiet) const
{
    return hasFocus() && !isOnPaper() ? QPen(palette().color(QPalette::Highlight), 3) : quiet;
}

void ChartBox::keyPressEvent(QKeyEvent* event)
{
    const UserScale& seen = userScale();
    const QPointF middle((seen.left + seen.right) / 2, (seen.top + seen.bottom) / 2);
    if (const auto way = wayOf(event->key()))
        moveBy(*way * panStep * (seen.right - seen.left) / 2);
    else if (event->key() == Qt::Key_Plus || event->key() == Qt::Key_Equal)
        zoomBy(1 / zoomStep, middle);
    else if (event->key() == Qt::Key_Minus)
        zoomBy(zoomStep, middle);
    else if (event->key() == Qt::Key_Home)
        showHome();
    else
        PictureBox::keyPressEvent(event);
}

void ChartBox::wheelEvent(QWheelEvent* event)
{
    constexpr double notch = 120;
    zoomBy(std::pow(zoomStep, -event->angleDelta().y() / notch), toUser(event->position()));
    event->accept(); // the window is not to scroll with it
}

void ChartBox::press(QPointF user, Qt::MouseButtons buttons)
{
    if ((buttons & Qt::LeftButton) && takesHold(user)) m_held = user;
}

void ChartBox::drag(QPointF user, Qt::MouseButtons buttons)
{
    if (m_held && (buttons & Qt::LeftButton)) moveBy(*m_held - user); // it stays under the pointer
}

} // namespace korvel
