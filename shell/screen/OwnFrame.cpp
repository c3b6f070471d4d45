// SPDX-License-Identifier: MIT
#include "shell/screen/OwnFrame.h"

#include "shell/screen/OwnTitle.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>
#include <QMouseEvent>
#include <QSizeGrip>
#include <QToolButton>
#include <QWindow>

#include <algorithm>

namespace korvel
{
OwnFrame::OwnFrame(QMainWindow& window) : QWidget(&window), m_window(window), m_title(new QLabel)
{
    setObjectName("ownFrame");
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(fontMetrics().averageCharWidth());
    row->addWidget(m_title);
    m_title->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    connect(addFrameButton(*row, "–", "cmdMinimise", "Minimise"), &QToolButton::clicked, &window,
            &QWidget::showMinimized);
    connect(addFrameButton(*row, "×", "cmdCloseWindow", "Close"), &QToolButton::clicked, &window,
            &QWidget::close);
    connect(&window, &QWidget::windowTitleChanged, this, &OwnFrame::fitTitle);
    window.menuBar()->installEventFilter(this);
    window.installEventFilter(this);
}

void OwnFrame::hold(bool own)
{
    if (m_window.windowHandle()) m_window.windowHandle()->setFlag(Qt::FramelessWindowHint, own);
    if (own == m_isHeld) return;
    m_isHeld = own;
    if (!own) return giveBack();
    QMenuBar& bar = *m_window.menuBar();
    // The menus keep their room and the bar its height: nothing below it moves.
    const QSize menus = bar.sizeHint();
    setFixedHeight(menus.height());
    m_title->clear();
    bar.setCornerWidget(this);
    QWidget& content = *m_window.centralWidget(); // the bar itself is not asked how wide it must be
    m_leastWidth = content.minimumWidth();
    content.setMinimumWidth(std::max(m_leastWidth, menus.width() + sizeHint().width()));
    show();
    m_corner = new QSizeGrip(&m_window);
    m_corner->show();
    fitTitle();
}

void OwnFrame::giveBack()
{
    QMenuBar& bar = *m_window.menuBar();
    bar.setCornerWidget(nullptr);
    m_window.centralWidget()->setMinimumWidth(m_leastWidth);
    setParent(&m_window);
    hide();
    delete m_corner;
}

void OwnFrame::fitTitle()
{
    if (!m_isHeld) return;
    const QMenuBar& bar = *m_window.menuBar();
    int taken = 0;
    for (const QAction* menu : bar.actions())
        taken = std::max(taken, bar.actionGeometry(const_cast<QAction*>(menu)).right());
    const int buttons = sizeHint().width() - m_title->sizeHint().width();
    const int free = std::max(0, bar.width() - taken - buttons - 2 * layout()->spacing());
    const QString title =
        m_title->fontMetrics().elidedText(m_window.windowTitle(), Qt::ElideRight, free);
    // A few letters of it say nothing.
    m_title->setText(title.size() > 3 ? title : QString());
    if (width() != sizeHint().width()) m_window.menuBar()->setCornerWidget(this); // lays out
    if (m_corner) {
        m_corner->resize(m_corner->sizeHint());
        m_corner->move(m_window.rect().bottomRight() - m_corner->rect().bottomRight());
        m_corner->raise();
    }
}

bool OwnFrame::moveByMenuBar(QEvent& event)
{
    const auto& press = static_cast<const QMouseEvent&>(event);
    const bool isFree = !m_window.menuBar()->actionAt(press.pos());
    return isFree && press.button() == Qt::LeftButton && m_window.windowHandle()->startSystemMove();
}

bool OwnFrame::eventFilter(QObject* watched, QEvent* event)
{
    if (!m_isHeld) return false;
    if (event->type() == QEvent::Resize)
        QMetaObject::invokeMethod(this, &OwnFrame::fitTitle, Qt::QueuedConnection);
    return event->type() == QEvent::MouseButtonPress && watched == m_window.menuBar() &&
           moveByMenuBar(*event);
}

} // namespace korvel
