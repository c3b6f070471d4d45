// SPDX-License-Identifier: MIT
#include "tests/shell/ShellTesting.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QTest>

namespace korvel::testing
{

WindowTest::WindowTest() : m_main(new frmKORVEL2000({questions, clock, files, bell}, {})) {}

WindowTest::~WindowTest()
{
    for (const QPointer<QWidget>& window : m_opened)
        if (window) close(*window);
}

void WindowTest::show(QWidget* window)
{
    m_opened.emplace_back(window);
    window->show();
    window->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(window));
}

void WindowTest::close(QWidget& window)
{
    const QPointer<QWidget> alive(&window);
    window.close();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
    EXPECT_TRUE(alive.isNull() || !alive->isVisible());
}

std::string WindowTest::fileText(const std::string& name) const
{
    QFile file(folder.filePath(QString::fromStdString(name)));
    if (!file.open(QIODevice::ReadOnly)) return "(no file)";
    return file.readAll().toStdString();
}

void WindowTest::writeFile(const std::string& name, const std::string& bytes)
{
    QFile file(folder.filePath(QString::fromStdString(name)));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

std::string WindowTest::newFile(const char* name, const std::string& bytes) const
{
    const QString path = folder.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(QByteArray::fromStdString(bytes));
    return path.toStdString();
}

QWidget* shown(const QString& name)
{
    for (QWidget* each : QApplication::topLevelWidgets())
        if (each->objectName() == name && each->isVisible()) return each;
    return nullptr;
}

QWidget& control(const QWidget& window, const std::string& name)
{
    if (auto* found = window.findChild<QWidget*>(QString::fromStdString(name))) return *found;
    throw std::runtime_error("no control " + name);
}

std::string text(const QWidget& window, const std::string& name)
{
    QWidget& widget = control(window, name);
    if (auto* box = qobject_cast<QLineEdit*>(&widget)) return box->text().toStdString();
    if (auto* label = qobject_cast<QLabel*>(&widget)) return label->text().toStdString();
    throw std::runtime_error("no text in " + name);
}

namespace
{

/// Enters a box as by the Tab key, also when it has the focus already.
void enter(QWidget& widget)
{
    if (widget.hasFocus()) widget.clearFocus();
    widget.setFocus(Qt::TabFocusReason);
}

} // namespace

std::vector<std::string> whileTyping(const QWidget& window, const std::string& box,
                                     const std::string& keys, const std::string& watched)
{
    auto& widget = control(window, box);
    enter(widget);
    std::vector<std::string> seen;
    for (char key : keys) {
        QWidget* focus = QApplication::focusWidget();
        if (!focus) focus = &widget;
        if (key == '\b')
            QTest::keyClick(focus, Qt::Key_Backspace);
        else if (key == '\r')
            QTest::keyClick(focus, Qt::Key_Return);
        else
            QTest::keyClick(focus, key);
        seen.push_back(text(window, watched));
    }
    return seen;
}

void type(const QWidget& window, const std::string& box, const std::string& keys)
{
    enter(control(window, box));
    if (keys.empty()) QTest::keyClick(&control(window, box), Qt::Key_Delete);
    whileTyping(window, box, keys, box);
}

void click(const QWidget& window, const std::string& name)
{
    QTest::mouseClick(&control(window, name), Qt::LeftButton);
}

namespace
{

QAction& entryOf(const QWidget& window, const std::string& entry)
{
    if (auto* found = window.findChild<QAction*>(QString::fromStdString(entry))) return *found;
    throw std::runtime_error("no menu entry " + entry);
}

} // namespace

void choose(const QWidget& window, const std::string& entry)
{
    QAction& action = entryOf(window, entry);
    EXPECT_TRUE(action.isEnabled()) << entry << " is greyed out";
    action.trigger();
}

bool isTicked(const QWidget& window, const std::string& entry)
{
    return entryOf(window, entry).isChecked();
}

std::string focused()
{
    const QWidget* widget = QApplication::focusWidget();
    return widget ? widget->objectName().toStdString() : "";
}

} // namespace korvel::testing
