// SPDX-License-Identifier: MIT
#include "shell/manual/HelpDesk.h"

#include "shell/controls/NoticeLine.h"
#include "shell/manual/HelpWindow.h"
#include "shell/manual/ProgramFacts.h"

#include <QApplication>
#include <QInputDialog>
#include <QKeyEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMessageBox>
#include <QScreen>

namespace korvel
{
namespace
{

/// The window that a control, a menu or a question belongs to.
const QWidget& ownerOf(const QWidget& widget)
{
    const QWidget* owner = widget.window();
    while (owner->parentWidget() && Manual::pageOf(owner->objectName()) == Manual::pages().front())
        owner = owner->parentWidget()->window();
    return *owner;
}

/// What a question says, by which it is found among the messages.
QString questionOf(const QWidget& window)
{
    if (auto* message = qobject_cast<const QMessageBox*>(&window)) return message->text();
    if (auto* input = qobject_cast<const QInputDialog*>(&window)) return input->labelText();
    return {};
}

QStringList pagesOf(const QWidget& window)
{
    return {Manual::pageOf(window.objectName()), Manual::pages().front()};
}

} // namespace

HelpDesk::HelpDesk(FileStore& files) : m_manual(files)
{
    m_manual.facts = [&files] { return programFacts(files); };
    qApp->installEventFilter(this);
}

HelpDesk::~HelpDesk()
{
    delete m_window;
}

HelpTopic HelpDesk::topicOf(const QWidget& control)
{
    const QStringList pages = pagesOf(ownerOf(control));
    if (const QString question = questionOf(*control.window()); !question.isEmpty())
        return {QStringList("messages") + pages, question.simplified()};
    if (dynamic_cast<const HelpWindow*>(control.window()))
        return {{Manual::pages().front()}, "In the manual"};
    if (auto* notices = dynamic_cast<const NoticeLine*>(&control))
        return {{"messages"}, notices->firstSaid()};
    for (const QWidget* each = &control; each && !each->isWindow(); each = each->parentWidget())
        if (const QString name = manualName(*each); !name.isEmpty()) return {pages, name};
    return {pages, {}};
}

HelpTopic HelpDesk::topicOf(const QAction& entry, const QWidget& window)
{
    return {pagesOf(ownerOf(window)), manualName(entry)};
}

void HelpDesk::open(const HelpTopic& topic)
{
    // A question takes the keyboard from all windows but its own children.
    QWidget* question = QApplication::activeModalWidget();
    QPointer<HelpWindow> window = question ? question->findChild<HelpWindow*>() : m_window.data();
    if (!window) {
        window = new HelpWindow(m_manual, question);
        if (!question) dress(*window);
    }
    if (!question) m_window = window;
    window->setWindowState(window->windowState() & ~Qt::WindowMinimized);
    window->show(); // first: a page that is not laid out has no place to scroll to
    window->openAt(topic.pages, topic.name);
    window->raise();
    window->activateWindow();
}

void HelpDesk::openBelow(QWidget& window, const QString& page)
{
    openPage(page);
    if (!m_window) return; // a question has it
    const QRect screen = window.screen()->availableGeometry();
    const QRect taken = window.frameGeometry();
    // Both have the same frame, that of the new window is not known yet.
    const QSize frame = taken.size() - window.size();
    const QPoint corner = window.geometry().topLeft() - taken.topLeft();
    const int least = m_window->minimumSizeHint().height() + frame.height();
    if (screen.height() - taken.height() < least) return;
    const bool moves = screen.bottom() - taken.bottom() < screen.height() / 2;
    if (moves) window.move(taken.x(), screen.top());
    const int top = (moves ? screen.top() : taken.top()) + taken.height();
    QRect room = screen;
    room.setTop(top);
    const QSize size = m_window->size().boundedTo(room.size() - frame);
    const int left = std::min(taken.x(), screen.right() + 1 - size.width() - frame.width());
    m_window->setGeometry({QPoint(left, top) + corner, size});
}

void HelpDesk::openAtFocus()
{
    const QWidget* control = QApplication::focusWidget();
    if (!control) control = QApplication::activeWindow();
    if (control)
        open(topicOf(*control));
    else
        openPage(Manual::pages().front());
}

void HelpDesk::addMenu(QMenuBar& bar)
{
    QMenu* menu = bar.addMenu("&Help");
    menu->setObjectName("mnuHELP");
    const auto add = [&](int index, const char* caption, auto run) {
        QAction* entry = menu->addAction(caption, this, run);
        entry->setObjectName(QString("mnuHELP(%1)").arg(index));
        return entry;
    };
    add(0, "&This window", [this] { openAtFocus(); })->setShortcut(Qt::Key_F1);
    add(1, "&Contents and search", [this] { openPage(Manual::pages().front()); });
    add(2, "&About KORVEL2000", [this] { openPage("about"); });
}

bool HelpDesk::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress || !watched->isWidgetType()) return false;
    auto* key = static_cast<QKeyEvent*>(event);
    if (key->key() != Qt::Key_F1 || key->modifiers() != Qt::NoModifier) return false;
    auto* widget = static_cast<QWidget*>(watched);
    auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (!menu) {
        open(topicOf(*widget));
        return true;
    }
    const QAction* entry = menu->activeAction();
    const HelpTopic topic = entry ? topicOf(*entry, *menu) : topicOf(*menu);
    while (QWidget* popup = QApplication::activePopupWidget())
        popup->close();
    open(topic);
    return true;
}

} // namespace korvel
