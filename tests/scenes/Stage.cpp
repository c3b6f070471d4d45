// SPDX-License-Identifier: MIT
#include "tests/scenes/Stage.h"

#include "calculator_windows.h"

#include <QAction>
#include <QApplication>
#include <QInputDialog>
#include <QMessageBox>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QTest>

namespace korvel::testing
{

std::optional<std::string> StageFiles::save(const std::string& name, const std::string& bytes)
{
    if (refusal) return refusal;
    ++saves;
    return ProgramFolder::save(name, bytes);
}

Stage::Stage()
{
    QObject::connect(&m_attendant, &QTimer::timeout, &m_attendant, [this] { attend(); });
    m_attendant.start(10);
}

Stage::~Stage()
{
    // Closing is part of every scene: a question that nobody expects would come here.
    for (QWidget* each : QApplication::topLevelWidgets())
        if (m_main && each != m_main.get() && each->isVisible()) each->close();
    EXPECT_TRUE(boxes.empty()) << "never shown: " << boxes.front().text;
    end();
}

frmKORVEL2000& Stage::main()
{
    if (!m_main) {
        Questions& asking = realQuestions ? static_cast<Questions&>(m_realQuestions) : questions;
        m_main = std::make_unique<frmKORVEL2000>(Machine{asking, clock, files, bell},
                                                 calculatorWindows());
    }
    return *m_main;
}

void Stage::end()
{
    m_main.reset();
    m_window = "frmKORVEL2000";
}

QWidget& Stage::window() const
{
    for (QWidget* each : QApplication::topLevelWidgets())
        if (each->objectName().toStdString() == m_window &&
            (each->isVisible() || each == m_main.get()))
            return *each;
    throw std::runtime_error("no window " + m_window);
}

void Stage::turnTo(const std::string& name)
{
    m_window = name;
    if (name == "frmKORVEL2000") main();
    QWidget& turned = window();
    if (!turned.isVisible()) return;
    turned.activateWindow();
    if (!QTest::qWaitForWindowActive(&turned)) throw std::runtime_error(name + " is not in front");
}

QWidget& Stage::control(const std::string& name) const
{
    QWidget& here = window();
    const QString wanted = QString::fromStdString(name);
    if (here.objectName() == wanted) return here;
    if (auto* found = here.findChild<QWidget*>(wanted)) return *found;
    throw std::runtime_error("no control " + name);
}

QAction& Stage::entry(const std::string& name) const
{
    if (auto* found = window().findChild<QAction*>(QString::fromStdString(name))) return *found;
    throw std::runtime_error("no menu entry " + name);
}

std::string Stage::filePath(const std::string& name) const
{
    return folder.filePath(QString::fromStdString(name)).toStdString();
}

std::string Stage::readPage(const QString& as) const
{
    QProcess reader;
    reader.start("pdftotext", {as, folder.filePath("page.pdf"), "-"});
    if (!reader.waitForFinished()) throw std::runtime_error("pdftotext is not there");
    if (reader.exitCode() != 0)
        throw std::runtime_error("no page: " + reader.readAllStandardError().toStdString());
    return reader.readAllStandardOutput().toStdString();
}

void Stage::attend()
{
    auto* box = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    // An alarm waits for nobody; a scene looks at it in its own time.
    if (!box || box == m_answered || box->objectName() == "alarmBox") return;
    m_answered = box;
    answer(*box);
}

namespace
{

std::string textOf(const QDialog& box)
{
    if (auto* message = qobject_cast<const QMessageBox*>(&box))
        return message->text().toStdString();
    if (auto* input = qobject_cast<const QInputDialog*>(&box))
        return input->labelText().toStdString();
    return box.windowTitle().toStdString();
}

} // namespace

void Stage::answer(QDialog& box)
{
    if (auto* print = qobject_cast<QPrintDialog*>(&box)) {
        print->printer()->setOutputFileName(folder.filePath("page.pdf"));
        print->done(QDialog::Accepted);
        return;
    }
    if (box.objectName() == "dlgPreview") {
        box.accept();
        return;
    }
    if (boxes.empty()) {
        ADD_FAILURE() << "unexpected box: " << textOf(box);
        box.reject();
        return;
    }
    const ExpectedBox expected = boxes.front();
    boxes.pop_front();
    EXPECT_THAT(textOf(box), ::testing::HasSubstr(expected.text));
    // Keys that come before the box has the focus would go to whatever had it.
    EXPECT_TRUE(QTest::qWaitFor([&box] {
        const QWidget* focus = QApplication::focusWidget();
        return focus && focus->window() == &box;
    }));
    for (const Word& key : expected.keys)
        key.quoted ? pressKeysOf(key.text) : pressKey(key.text);
    // A button that a key presses is seen going down before it acts.
    if (!QTest::qWaitFor([&box] { return !box.isVisible(); })) {
        ADD_FAILURE() << "still open after its keys: " << textOf(box);
        box.reject();
    }
}

namespace
{

QWidget& focusWidget()
{
    if (QWidget* popup = QApplication::activePopupWidget()) return *popup;
    if (QWidget* focus = QApplication::focusWidget()) return *focus;
    if (QWidget* active = QApplication::activeWindow()) return *active;
    throw std::runtime_error("nothing has the focus");
}

} // namespace

void pressKey(const std::string& name)
{
    const QKeySequence sequence(QString::fromStdString(name));
    if (sequence.isEmpty() || sequence[0].key() == Qt::Key_unknown)
        throw std::runtime_error("no key " + name);
    QTest::keyClick(&focusWidget(), sequence[0].key(), sequence[0].keyboardModifiers());
}

void pressKeysOf(const std::string& text, const std::function<void()>& afterEach)
{
    for (const QChar letter : QString::fromStdString(text)) {
        QWidget& focus = focusWidget();
        if (letter == '\b')
            QTest::keyClick(&focus, Qt::Key_Backspace);
        else if (letter == '\r')
            QTest::keyClick(&focus, Qt::Key_Return);
        else if (letter == '\t')
            QTest::keyClick(&focus, Qt::Key_Tab);
        else if (letter.unicode() < 128)
            QTest::keyClick(&focus, letter.toLatin1());
        else
            QTest::sendKeyEvent(QTest::Click, &focus, Qt::Key_unknown, QString(letter), {});
        if (afterEach) afterEach();
    }
}

} // namespace korvel::testing
