// SPDX-License-Identifier: MIT
#include "shell/main/AlarmBoxes.h"

#include "app/machine/Questions.h"
#include "shell/machine/AsQString.h"
#include "shell/machine/WholeLines.h"

#include <QApplication>
#include <QFontDatabase>
#include <QGridLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QScreen>

namespace korvel
{
namespace
{

constexpr std::chrono::milliseconds firstSecond{1000};
constexpr double largestLetters = 2.5; ///< times the letters of captions; answers have at most 2

/// An alarm is read from the other end of the bridge. A long comment takes smaller letters: the
/// button has to stay on the screen.
void enlarge(const QMessageBox& box, QLabel& text)
{
    const QSize screen = box.screen()->availableSize();
    const QSize room(screen.width() * 2 / 3, screen.height() / 2);
    QFont letters = box.font();
    letters.setWeight(QFont::DemiBold);
    for (double times = largestLetters; times >= 1; times -= 0.25) {
        letters.setPointSizeF(box.font().pointSizeF() * times);
        const QRect taken =
            QFontMetrics(letters).boundingRect(QRect({}, room), Qt::TextWordWrap, text.text());
        if (taken.width() <= room.width() && taken.height() <= room.height()) break;
    }
    text.setFont(letters);
}

/// A window that is narrower than its title shows it cut off.
void makeRoomForTitle(QMessageBox& box)
{
    const QFontMetrics metrics(QFontDatabase::systemFont(QFontDatabase::TitleFont));
    const int buttons = 8 * metrics.height(); // icon, three buttons and the gaps between
    if (auto* grid = qobject_cast<QGridLayout*>(box.layout()))
        grid->setColumnMinimumWidth(grid->columnCount() - 1,
                                    metrics.horizontalAdvance(box.windowTitle()) + buttons);
}

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

void AlarmBoxes::show(const std::vector<DueAlarm>& due)
{
    m_waiting.insert(m_waiting.end(), due.begin(), due.end());
    if (!m_box) showNext();
}

void AlarmBoxes::showNext()
{
    if (m_waiting.empty()) return;
    m_shown = m_waiting.front();
    m_waiting.pop_front();
    QWidget* active = QApplication::activeWindow();
    if (active && active != m_acknowledged) m_hand = active;
    m_passedDown.clear();

    m_box = makeBox();
    m_box->setAttribute(Qt::WA_ShowWithoutActivating);
    m_box->installEventFilter(this);
    m_box->button(QMessageBox::Ok)->installEventFilter(this);
    m_box->show();
    m_box->raise();
    m_firstSecond.start();
    if (m_shown.alarm)
        m_bell.start();
    else
        m_bell.ringOnce();
}

QMessageBox* AlarmBoxes::makeBox()
{
    auto* box = new QMessageBox(QMessageBox::Warning, programTitle, asQString(m_shown.text),
                                QMessageBox::Ok);
    box->setObjectName("alarmBox");
    box->setTextFormat(Qt::PlainText);
    box->setAttribute(Qt::WA_DeleteOnClose);
    // A message box is modal of itself: a key on its way to another window would be dropped.
    box->setModal(false);
    box->setWindowFlag(Qt::WindowStaysOnTopHint);
    if (auto* text = box->findChild<QLabel*>("qt_msgbox_label")) enlarge(*box, *text);
    keepLinesWhole(*box);
    makeRoomForTitle(*box);
    connect(box, &QMessageBox::finished, this, [this] {
        m_firstSecond.stop();
        m_bell.stop();
        m_acknowledged = std::exchange(m_box, nullptr);
        showNext();
    });
    return box;
}

void AlarmBoxes::takeKeyboard()
{
    const bool working = QApplication::applicationState() == Qt::ApplicationActive;
    // A window keeps the modality that it was first shown with: another takes its place.
    const std::unique_ptr<QMessageBox> first(std::exchange(m_box, makeBox()));
    first->disconnect(this);
    // Modality first: it takes the flags of the window back to those of a plain box.
    m_box->setWindowModality(Qt::ApplicationModal);
    m_box->setWindowFlag(Qt::WindowStaysOnTopHint);
    m_box->setAttribute(Qt::WA_ShowWithoutActivating, !working);
    m_box->installEventFilter(this); // a key may have gone down before
    m_box->move(first->pos());
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
