// SPDX-License-Identifier: MIT
#include "shell/controls/PictureBox.h"
#include "tests/scenes/Steps.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QListWidget>
#include <QMenu>
#include <QMimeData>
#include <QTest>

#include <algorithm>

namespace korvel::testing
{
namespace
{

/// Enters a control as by the Tab key, also when it has the focus already.
void enter(QWidget& widget)
{
    if (widget.hasFocus()) widget.clearFocus();
    widget.setFocus(Qt::TabFocusReason);
}

void openWindow(Stage& stage, const Words& words)
{
    stage.main().openWindow(QString::fromStdString(wordAt(words, 0)));
    stage.turnTo(wordAt(words, 0));
}

/// A window's own cross, and the wait until it is gone.
void closeWindow(Stage& stage, const Words&)
{
    const QPointer<QWidget> closing(&stage.window());
    closing->close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    if (closing && closing->isVisible()) throw std::runtime_error("the window stays open");
}

void type(Stage& stage, const Words& words)
{
    enter(stage.control(wordAt(words, 0)));
    const std::string& keys = wordAt(words, 1);
    if (keys.empty()) pressKey("Del");
    if (words.size() == 2) {
        pressKeysOf(keys);
        return;
    }
    if (words[2].text.starts_with("txt")) { // the next box
        pressKeysOf(keys);
        type(stage, {words.begin() + 2, words.end()});
        return;
    }
    // A control that is watched, and its text after each key.
    QWidget& watched = stage.control(wordAt(words, 2));
    std::size_t place = 3;
    pressKeysOf(keys, [&] {
        wordAt(words, place);
        expectText(text(*watched.window(), watched.objectName().toStdString()), {words[place]}, 0);
        ++place;
    });
}

Qt::MouseButton buttonOf(const std::string& name)
{
    if (name == "right") return Qt::RightButton;
    if (name == "middle") return Qt::MiddleButton;
    return Qt::LeftButton;
}

void click(Stage& stage, const Words& words)
{
    QWidget& target = stage.control(wordAt(words, 0));
    QPoint place = target.rect().center();
    // The rest of an option's rectangle takes no click.
    if (target.inherits("QRadioButton") || target.inherits("QCheckBox")) place.setX(8);
    const std::string further = words.size() > 1 ? words[1].text : "";
    QTest::mouseClick(&target, buttonOf(further), {}, place);
    if (further.ends_with(')') || further.starts_with("cmd"))
        click(stage, {words.begin() + 1, words.end()});
}

/// The pointer over a control; over a picture with a scale in the scale's own units.
void mouse(Stage& stage, const Words& words)
{
    QWidget& target = stage.control(wordAt(words, 1));
    QPoint place = QPointF(numberAt(words, 2), numberAt(words, 3)).toPoint();
    if (auto* picture = qobject_cast<PictureBox*>(&target))
        place = picture->toPixel(numberAt(words, 2), numberAt(words, 3)).toPoint();
    const Qt::MouseButton button = buttonOf(words.size() > 4 ? words[4].text : "left");
    const std::string& how = wordAt(words, 0);
    if (how == "press")
        QTest::mousePress(&target, button, {}, place);
    else if (how == "release")
        QTest::mouseRelease(&target, button, {}, place);
    else if (how == "move")
        QTest::mouseMove(&target, place);
    else
        throw std::runtime_error("a mouse does not " + how);
}

/// Entries of menus; in front of one, what is typed into the box that it opens.
void choose(Stage& stage, const Words& words)
{
    for (const Word& word : words) {
        if (word.quoted) {
            stage.questions.willType(word.text);
            continue;
        }
        QAction& action = stage.entry(word.text);
        if (!action.isEnabled()) throw std::runtime_error(word.text + " is greyed out");
        action.trigger();
    }
}

/// An entry that stores, and what the memories then hold.
void store(Stage& stage, const Words& words)
{
    stage.questions.willAnswer(Answer::Yes);
    choose(stage, {words.begin(), words.begin() + 1});
    if (words.size() > 1) play(stage, "memory", {words.begin() + 1, words.end()});
}

/// A step in another window.
void in(Stage& stage, const Words& words)
{
    const std::string window = stage.window().objectName().toStdString();
    stage.turnTo(wordAt(words, 0));
    play(stage, wordAt(words, 1), {words.begin() + 2, words.end()});
    stage.turnTo(window);
}

/// The paper of the window in hand. With what it has and lacks the window is in hand again.
void paper(Stage& stage, const Words& words)
{
    const std::string window = stage.window().objectName().toStdString();
    pressKey("F2");
    stage.turnTo("frmPaper");
    for (auto begin = words.begin(); begin != words.end();) {
        const auto end =
            std::find_if(begin + 1, words.end(), [](const Word& word) { return !word.quoted; });
        Words seen{{"txtPaper", false}};
        seen.insert(seen.end(), begin, end);
        play(stage, "see", seen);
        begin = end;
    }
    if (!words.empty()) stage.turnTo(window);
}

/// Opens a menu of the menu bar and closes it again: captions are written when it opens.
void pull(Stage& stage, const Words& words)
{
    auto* menu = stage.window().findChild<QMenu*>(QString::fromStdString(wordAt(words, 0)));
    if (!menu) throw std::runtime_error("no menu " + words[0].text);
    menu->popup(stage.window().pos());
    menu->close();
    if (words.size() > 1) pull(stage, {words.begin() + 1, words.end()});
}

/// Chooses from the menu of the right button by a part of the caption.
void contextMenu(Stage& stage, const Words& words)
{
    QWidget& target = stage.control(wordAt(words, 0));
    const QString caption = QString::fromStdString(wordAt(words, 1));
    bool found = false;
    QTimer::singleShot(0, &target, [&] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (QAction* action : menu ? menu->actions() : QList<QAction*>())
            if (!found && action->isEnabled() && action->text().remove('&').contains(caption)) {
                found = true;
                menu->setActiveAction(action);
                QTest::keyClick(menu, Qt::Key_Return);
            }
        if (menu && !found) menu->close();
    });
    const QPoint middle = target.rect().center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, middle, target.mapToGlobal(middle));
    QApplication::sendEvent(&target, &event);
    QApplication::processEvents();
    if (!found) throw std::runtime_error("no entry " + words[1].text + " in the context menu");
}

void drop(Stage& stage, const Words& words)
{
    QWidget& target = stage.control(wordAt(words, 0));
    QMimeData data;
    data.setText(QString::fromStdString(wordAt(words, 1)));
    const QPoint middle = target.rect().center();
    QDragEnterEvent comes(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &comes);
    if (!comes.isAccepted()) throw std::runtime_error(words[0].text + " takes no drop");
    QDropEvent falls(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
    QApplication::sendEvent(&target, &falls);
}

/// A scroll bar, a choice in a list: by number, for what has no key of its own.
void set(Stage& stage, const Words& words)
{
    QWidget& target = stage.control(wordAt(words, 0));
    const int value = static_cast<int>(numberAt(words, 1));
    if (auto* bar = qobject_cast<QAbstractSlider*>(&target))
        bar->setValue(value);
    else if (auto* choice = qobject_cast<QComboBox*>(&target))
        choice->setCurrentIndex(value);
    else if (auto* list = qobject_cast<QListWidget*>(&target))
        list->setCurrentRow(value);
    else
        throw std::runtime_error("nothing to set in " + words[0].text);
    if (words.size() > 2) set(stage, {words.begin() + 2, words.end()});
}

void clipboard(Stage&, const Words& words)
{
    QApplication::clipboard()->setText(QString::fromStdString(wordAt(words, 0)));
}

void hold(Stage& stage, const Words& words)
{
    QTest::keyPress(&stage.control(wordAt(words, 0)), wordAt(words, 1).at(0));
}

void letGo(Stage& stage, const Words& words)
{
    QTest::keyRelease(&stage.control(wordAt(words, 0)), wordAt(words, 1).at(0));
}

} // namespace

const std::map<std::string, Verb>& handVerbs()
{
    static const std::map<std::string, Verb> verbs = {
        {"start", [](Stage& stage, const Words&) { stage.main().start(); }},
        {"open", openWindow},
        {"window", [](Stage& stage, const Words& words) { stage.turnTo(wordAt(words, 0)); }},
        {"in", in},
        {"close", closeWindow},
        {"enter",
         [](Stage& stage, const Words& words) {
             enter(stage.control(wordAt(words, 0)));
             for (std::size_t i = 1; i < words.size(); ++i)
                 pressKey(words[i].text);
         }},
        {"type", type},
        {"keys", [](Stage&, const Words& words) { pressKeysOf(wordAt(words, 0)); }},
        {"press",
         [](Stage&, const Words& words) {
             for (const Word& word : words)
                 pressKey(word.text);
         }},
        {"paper", paper},
        {"hold", hold},
        {"let-go", letGo},
        {"click", click},
        {"mouse", mouse},
        {"choose", choose},
        {"store", store},
        {"pull", pull},
        {"context-menu", contextMenu},
        {"drop", drop},
        {"set", set},
        {"clipboard", clipboard},
        {"paste",
         [](Stage& stage, const Words& words) {
             clipboard(stage, {words.begin() + 1, words.end()});
             enter(stage.control(wordAt(words, 0)));
             pressKey("Ctrl+V");
         }},
    };
    return verbs;
}

} // namespace korvel::testing
