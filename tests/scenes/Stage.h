// SPDX-License-Identifier: MIT
#pragma once

#include "shell/machine/MessageQuestions.h"
#include "tests/scenes/Script.h"
#include "tests/shell/ShellTesting.h"

#include <QDir>
#include <QTimer>

#include <deque>
#include <memory>

class QAction;
class QDialog;

namespace korvel::testing
{

/// A program folder that counts what is written, and whose disk can fail.
class StageFiles : public ProgramFolder
{
public:
    using ProgramFolder::ProgramFolder;
    std::optional<std::string> save(const std::string& name, const std::string& bytes) override;
    std::optional<std::string> append(const std::string& name, const std::string& bytes) override
    {
        return refusal ? refusal : ProgramFolder::append(name, bytes);
    }
    std::optional<std::string> saveAnywhere(const std::string& path,
                                            const std::string& bytes) override
    {
        const bool isWhole = QDir::isAbsolutePath(QString::fromStdString(path));
        return refusal   ? refusal
               : isWhole ? ProgramFolder::saveAnywhere(path, bytes)
                         : save(path, bytes);
    }
    Content readAnywhere(const std::string& path) override { return read(path); }

    int saves = 0;
    std::optional<std::string> refusal; ///< reason for which nothing can be saved
};

/// Where a scene is played: the whole program with every window, in a folder of its own, with a
/// clock, a bell and answers of the scene's. What goes wrong throws std::runtime_error.
class Stage
{
public:
    Stage();
    ~Stage();

    /// The program; made when a scene first asks for it, so that files can be laid out before.
    frmKORVEL2000& main();
    Program& program() { return main().program(); }
    /// Ends the program without ceremony; its files stay. The next call of main() starts anew.
    void end();

    /// The window that steps are about: the one last opened, until another is named.
    QWidget& window() const;
    void turnTo(const std::string& name);
    QWidget& control(const std::string& name) const;
    QAction& entry(const std::string& name) const;

    std::string filePath(const std::string& name) const;

    /// A real box that the scene expects, and what is pressed in it.
    struct ExpectedBox {
        std::string text; ///< a part of it
        std::vector<Word> keys;
    };
    std::deque<ExpectedBox> boxes;
    /// Text of the pages printed last.
    std::string printedText() const { return readPage("-layout"); }
    /// The pages printed last with the box of every word, as XML.
    std::string printedBoxes() const { return readPage("-bbox"); }

    QTemporaryDir folder;
    FakeQuestions questions;
    bool realQuestions = false;
    FakeClock clock;
    FakeBell bell;
    StageFiles files{folder.path()};
    std::shared_ptr<void> fullDisk; ///< while it lives, no file gets longer than 1 kB
    QSize notedSize;                ///< of the window in hand

private:
    std::string readPage(const QString& as) const;
    /// Looks after boxes that wait for an answer: an unexpected one would wait for ever.
    void attend();
    void answer(QDialog& box);

    MessageQuestions m_realQuestions;
    std::unique_ptr<frmKORVEL2000> m_main;
    std::string m_window = "frmKORVEL2000";
    QTimer m_attendant;
    QPointer<QDialog> m_answered;
};

/// One key, or a combination as "Ctrl+C", for whichever control has the focus.
void pressKey(const std::string& name);
/// Types a text, key after key; \b is Backspace, \r Enter.
void pressKeysOf(const std::string& text, const std::function<void()>& afterEach = {});

} // namespace korvel::testing
