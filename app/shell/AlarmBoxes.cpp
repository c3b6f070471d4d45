// SPDX-License-Identifier: MIT
#include "app/shell/AlarmBoxes.h"

#include "app/Questions.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPushButton>

namespace korvel
{
namespace
{

constexpr std::chrono::milliseconds firstSecond{1000};

} // namespace

AlarmBoxes::AlarmBoxes(Bell& bell) : m_bell(bell)
{
    m_firstSecond.setSingleShot(true);
    m_firstSecond.setTimerType(Qt::PreciseTimer);
    m_firstSecond.setInterval(firstSecond);
    connect(&m_firstSecond, &QTimer::timeout, this, &AlarmBoxes::takeKeyboard);
}

AlarmBoxes::~AlarmBoxes()
{
    delete m_box;
}

void AlarmBoxes::show(const std::vector<Due>& due)
{
    m_waiting.insert(m_waiting.end(), due.begin(), due.end());
    if (!m_box) showNext();
}

void AlarmBoxes::showNext()
{
    if (m_waiting.empty()) return;
    const Due due = m_waiting.front();
    m_waiting.pop_front();
    QWidget* active = QApplication::activeWindow();
    if (active && active != m_acknowledged) m_hand = active;
    m_passedDown.clear();
    m_box = new QMessageBox(QMessageBox::Warning, programTitle, QString::fromStdString(due.text),
                            QMessageBox::Ok);
    m_box->setObjectName("alarmBox");
    m_box->setTextFormat(Qt::PlainText);
    m_box->setAttribute(Qt::WA_DeleteOnClose);
    m_box->setAttribute(Qt::WA_ShowWithoutActivating);
    m_box->setModal(false);
    m_box->setWindowFlag(Qt::WindowStaysOnTopHint);
    connect(m_box, &QMessageBox::finished, this, [this] {
        m_firstSecond.stop();
        m_bell.stop();
        m_acknowledged = std::exchange(m_box, nullptr);
        showNext();
    });
    m_box->installEventFilter(this);
    m_box->button(QMessageBox::Ok)->installEventFilter(this);
    m_box->show();
    m_box->raise();
    m_firstSecond.start();
    if (due.alarm)
        m_bell.start();
    else
        m_bell.ringOnce();
}

void AlarmBoxes::takeKeyboard()
{
    if (!m_box) return;
    const bool working = QApplication::applicationState() == Qt::ApplicationActive;
    const QPoint place = m_box->pos();
    m_box->hide(); // a window that is shown keeps the modality that it was shown with
    // Modality first: it takes the flags of the window back to those of a plain box.
    m_box->setWindowModality(Qt::ApplicationModal);
    m_box->setWindowFlag(Qt::WindowStaysOnTopHint);
    m_box->setAttribute(Qt::WA_ShowWithoutActivating, !working);
    m_box->move(place);
    m_box->show();
    m_box->raise();
    if (working)
        m_box->activateWindow();
    else
        QApplication::alert(m_box);
}

bool AlarmBoxes::eventFilter(QObject* watched, QEvent* event)
{
    const bool isKey = event->type() == QEvent::KeyPress || event->type() == QEvent::KeyRelease ||
                       event->type() == QEvent::ShortcutOverride;
    return (isKey && passOn(static_cast<const QKeyEvent&>(*event))) ||
           QObject::eventFilter(watched, event);
}

/// Gives a key to the window under the officer's hand. @return false when it is the box's own
bool AlarmBoxes::passOn(const QKeyEvent& key)
{
    const bool release = key.type() == QEvent::KeyRelease;
    const bool theirs = release ? m_passedDown.count(key.key()) > 0 : m_firstSecond.isActive();
    if (!theirs) return false;
    QWidget* hand = m_hand ? m_hand->focusWidget() : nullptr;
    if (release)
        m_passedDown.erase(key.key());
    else if (key.type() == QEvent::KeyPress)
        m_passedDown.insert(key.key());
    if (!hand) hand = m_hand;
    QKeyEvent copy(key.type(), key.key(), key.modifiers(), key.text(), key.isAutoRepeat());
    if (hand) QApplication::sendEvent(hand, &copy);
    return true;
}

} // namespace korvel
