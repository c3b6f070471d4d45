// SPDX-License-Identifier: MIT
#pragma once

#include <QApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>

/// What the benchmarks of windows share: a key event, and the barest window that answers one.
namespace korvel::bench
{

/// The baseline: a box that copies its text to a label.
class BareWindow : public QWidget
{
public:
    BareWindow()
    {
        auto* row = new QHBoxLayout(this);
        auto* label = new QLabel;
        row->addWidget(&box);
        row->addWidget(label);
        QObject::connect(&box, &QLineEdit::textChanged, label, &QLabel::setText);
    }

    QLineEdit box;
};

/// Presses and releases a key in a box and waits until everything that it changed is painted.
inline void keyToPaint(QWidget& box, int key, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
    QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
    QApplication::sendEvent(&box, &press);
    QApplication::sendEvent(&box, &release);
    QApplication::processEvents();
}

/// Two keys, a digit and its erasure, so that the text is the same after each round.
inline void digitAndBack(QWidget& box)
{
    keyToPaint(box, Qt::Key_5, "5");
    keyToPaint(box, Qt::Key_Backspace, {});
}

/// Shows a window and gives the focus to one of its boxes, the cursor behind its text.
inline void prepare(QWidget& window, QLineEdit& box)
{
    window.show();
    window.activateWindow();
    box.setFocus(Qt::OtherFocusReason);
    QApplication::processEvents();
    box.end(false); // a box selects its text when its window comes to the front
    QApplication::processEvents();
}

} // namespace korvel::bench
