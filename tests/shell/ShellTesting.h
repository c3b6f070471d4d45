// SPDX-License-Identifier: MIT
#pragma once

#include "app/shell/ProgramFolder.h"
#include "app/shell/frmKORVEL2000.h"

#include <gmock/gmock.h>

#include <QTemporaryDir>

#include <deque>
#include <functional>
#include <string>
#include <vector>

/// What the tests of windows share: a machine of fakes, and an officer's hands.
namespace korvel::testing
{

/// Answers that a test has prepared. A question that nobody expects fails the test.
class FakeQuestions : public Questions
{
public:
    ~FakeQuestions() override;

    Answer ask(const Message& message) override;
    std::string input(const std::string& prompt, const std::string& title,
                      const std::string& defaultAnswer) override;
    void beep() override { ++beeps; }

    /// Answers the next message box, in order. @param run happens while the box is open
    void willAnswer(Answer answer, std::function<void()> run = {});
    /// Answers the next input box. An answer of acceptDefault takes what is offered.
    void willType(const std::string& answer);
    static constexpr const char* acceptDefault = "\x01";

    std::vector<std::string> asked;  ///< texts of the message boxes, in order
    std::vector<std::string> titles; ///< their titles
    std::vector<std::string> prompts;
    std::vector<std::string> offered; ///< default answers of the input boxes
    int beeps = 0;

private:
    struct Prepared {
        Answer answer;
        std::function<void()> run;
    };
    std::deque<Prepared> m_answers;
    std::deque<std::string> m_typed;
};

/// A clock that shows what the test wants and can be set without touching the machine's.
class FakeClock : public ComputerClock
{
public:
    NavFunc113::DateTime now() const override { return time; }
    std::optional<std::string> set(NavFunc113::DateTime value) override;

    NavFunc113::DateTime time = 38425.40625; ///< 2005-03-14 09:45
    std::optional<std::string> refusal;      ///< reason for which the clock cannot be set
    std::vector<NavFunc113::DateTime> sets;
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

    QTemporaryDir folder;
    FakeQuestions questions;
    FakeClock clock;
    ProgramFolder files{folder.path()};

private:
    void show(QWidget* window);

    std::unique_ptr<frmKORVEL2000> m_main;
    std::vector<QPointer<QWidget>> m_opened;
};

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
