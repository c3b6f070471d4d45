// SPDX-License-Identifier: MIT
#include "shell/screen/OwnTitle.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QSizeGrip>
#include <QToolButton>
#include <QWindow>

namespace korvel
{

QToolButton* addFrameButton(QHBoxLayout& row, const QString& sign, const QString& name,
                            const QString& says)
{
    auto* button = new QToolButton;
    button->setText(sign);
    button->setObjectName(name);
    button->setAccessibleName(says);
    button->setToolTip(says);
    button->setAutoRaise(true);
    button->setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Ignored);
    button->setFocusPolicy(Qt::NoFocus);
    row.addWidget(button);
    return button;
}

OwnTitle::OwnTitle(QWidget& window) : QWidget(&window), m_window(window), m_title(new QLabel)
{
    setObjectName("ownFrame");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(fontMetrics().averageCharWidth(), 0, 0, 0);
    row->addWidget(m_title, 1);
    m_title->setTextFormat(Qt::PlainText);
    m_title->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // no title widens it
    connect(addFrameButton(*row, "×", "cmdCloseWindow", "Close"), &QToolButton::clicked, &window,
            &QWidget::close);
    connect(&window, &QWidget::windowTitleChanged, m_title, &QLabel::setText);
    hide();
    window.installEventFilter(this);
}

void OwnTitle::hold(bool own)
{
    if (m_window.windowHandle()) m_window.windowHandle()->setFlag(Qt::FramelessWindowHint, own);
    // A message box lays itself out anew before it is shown again.
    const bool isInPlace = m_window.layout() && m_window.layout()->menuBar() == this;
    if (own == m_isHeld && own == isInPlace) return;
    m_isHeld = own;
    if (m_window.layout()) m_window.layout()->setMenuBar(own ? this : nullptr);
    setVisible(own);
    delete m_corner;
    if (!own) return;
    m_title->setText(m_window.windowTitle());
    setFixedHeight(fontMetrics().height() * 3 / 2);
    if (m_window.windowType() != Qt::Window) return;
    m_corner = new QSizeGrip(&m_window);
    m_corner->show();
    placeCorner();
}

void OwnTitle::placeCorner()
{
    if (!m_corner) return;
    m_corner->resize(m_corner->sizeHint());
    m_corner->move(m_window.rect().bottomRight() - m_corner->rect().bottomRight());
    m_corner->raise();
}

bool OwnTitle::eventFilter(QObject*, QEvent* event)
{
    if (event->type() == QEvent::Resize) placeCorner();
    return false;
}

void OwnTitle::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && m_window.windowHandle())
        m_window.windowHandle()->startSystemMove();
}

} // namespace korvel
