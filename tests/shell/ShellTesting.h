// SPDX-License-Identifier: MIT
#pragma once

#include "shell/machine/ProgramFolder.h"
#include "shell/main/frmKORVEL2000.h"
#include "tests/app/FakeMachine.h"

#include <gmock/gmock.h>

#include <QEvent>
#include <QTemporaryDir>

#include <functional>
#include <string>
#include <vector>

/// What the tests of windows share: a program in a folder of its own, and an officer's hands.
namespace korvel::testing
{

/// Says whether it rings.
class FakeBell : public Bell
{
public:
    void start() override { ringing = true; }
    void stop() override { ringing = false; }
    void ringOnce() override { ++tones; }

    bool ringing = false;
    int tones = 0;
};

/// A program folder of its own, and everything that a window needs of the program.
class WindowTest : public ::testing::Test
{
protected:
    WindowTest();
    ~WindowTest() override;

    Program& program() { return m_main->program(); }
    frmKORVEL2000& mainWindow() { return *m_main; }

    /// Makes a window and shows it. It is closed at the end of the test at the latest.
    template <typename Window>
    Window& open()
    {
        auto* window = new Window(program());
        show(window);
        return *window;
    }
    /// Closes a window as its cross does and waits until it is gone.
    static void close(QWidget& window);

    std::string fileText(const std::string& name) const;
    void writeFile(const std::string& name, const std::string& bytes);
    /// A file that the officer has there already. @return its path
    std::string newFile(const char* name, const std::string& bytes) const;

    QTemporaryDir folder;
    FakeQuestions questions;
    FakeClock clock;
    FakeBell bell;
    ProgramFolder files{folder.path()};

private:
    void show(QWidget* window);

    std::unique_ptr<frmKORVEL2000> m_main;
    std::vector<QPointer<QWidget>> m_opened;
};

/// Counts how often what it watches is painted.
class Paints : public QObject
{
public:
    bool eventFilter(QObject*, QEvent* event) override
    {
        seen += event->type() == QEvent::Paint;
        return false;
    }
    int seen = 0;
};

/// A window on the screen by its object name; none when it is not there.
QWidget* shown(const QString& name);

/// A control of a window by its object name; fails the test when it is not there.
QWidget& control(const QWidget& window, const std::string& name);

/// Text of a box or a label by its object name.
std::string text(const QWidget& window, const std::string& name);

/// Types into a box with real key events, from its start, all selected: "\b" is Backspace, "\r"
/// Enter. @return the text of another control after each key
std::vector<std::string> whileTyping(const QWidget& window, const std::string& box,
                                     const std::string& keys, const std::string& watched);

/// Types a text into a box, replacing what stands there.
void type(const QWidget& window, const std::string& box, const std::string& keys);

/// Clicks on a control in its middle.
void click(const QWidget& window, const std::string& name);

/// Chooses a menu entry by its object name; fails the test when it is greyed out.
void choose(const QWidget& window, const std::string& entry);
bool isTicked(const QWidget& window, const std::string& entry);

/// Object name of the control that has the focus.
std::string focused();

} // namespace korvel::testing
