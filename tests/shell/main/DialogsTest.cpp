// SPDX-License-Identifier: MIT
#include "calculator_windows.h"
#include "shell/machine/MessageQuestions.h"
#include "tests/SourceFolder.h"
#include "tests/shell/ShellTesting.h"

#include <QAction>
#include <QApplication>
#include <QFileDialog>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <fstream>

// The session can end while any dialog of any window waits: the window goes under it, and neither
// it nor the dialog may be touched afterwards.

namespace korvel
{
namespace
{

using namespace korvel::testing;

/// The program with the officer's real boxes, and somebody who ends the session under the first
/// dialog that waits.
class EndedSession
{
public:
    explicit EndedSession(const QString& folder) : m_files(folder)
    {
        QObject::connect(&m_attendant, &QTimer::timeout, &m_attendant, [this] {
            if (!QApplication::activeModalWidget() || m_dialogs++ > 0) return;
            m_main.endSession();
        });
        m_attendant.start(5);
    }

    /// Chooses an entry of a window. @return whether there is one of that number
    bool choose(const QString& window, int number)
    {
        m_main.openWindow(window);
        const auto entries = onScreen(window).findChildren<QAction*>(isEntry);
        if (number >= entries.size()) return false;
        if (entries[number]->isEnabled() && !entries[number]->menu()) entries[number]->trigger();
        QApplication::processEvents();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return true;
    }

    int dialogs() const { return m_dialogs; }

private:
    static QWidget& onScreen(const QString& name)
    {
        if (QWidget* found = shown(name)) return *found;
        throw std::runtime_error("no window " + name.toStdString());
    }

    inline static const QRegularExpression isEntry{"^mnu.*\\)$"};
    MessageQuestions m_questions;
    FakeClock m_clock;
    FakeBell m_bell;
    ProgramFolder m_files;
    frmKORVEL2000 m_main{{m_questions, m_clock, m_files, m_bell}, calculatorWindows()};
    QTimer m_attendant;
    int m_dialogs = 0;
};

class DialogsTest : public ::testing::TestWithParam<CatalogueEntry>
{
};

TEST_P(DialogsTest, theSessionEndsUnderEveryOne)
{
    const QTemporaryDir folder;
    std::filesystem::copy(sourceFile("data"), folder.path().toStdString(),
                          std::filesystem::copy_options::recursive);
    int dialogs = 0;
    std::unique_ptr<EndedSession> session;
    for (int number = 0;; ++number) {
        if (!session || session->dialogs() > 0)
            session = std::make_unique<EndedSession>(folder.path());
        if (!session->choose(GetParam().name, number)) break;
        dialogs += session->dialogs();
    }
    EXPECT_GE(dialogs, 2) << "at least those of saving a paper";
}

/// What a dialog of files showed before somebody typed a name and left it.
struct FileDialogSeen {
    QString folder, filter, name;
    QFileDialog::AcceptMode mode;
};

/// Types a name into the next dialog of files and takes it; without one the dialog is cancelled.
FileDialogSeen inFileDialog(const QString& typed, const std::function<void()>& open)
{
    FileDialogSeen seen;
    QTimer attendant;
    QObject::connect(&attendant, &QTimer::timeout, &attendant, [&] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible()) return;
        attendant.stop();
        auto* name = dialog->findChild<QLineEdit*>("fileNameEdit");
        seen = {dialog->directory().canonicalPath(), dialog->selectedNameFilter(), name->text(),
                dialog->acceptMode()};
        if (typed.isEmpty()) return dialog->reject();
        name->setText(typed);
        QTest::keyClick(name, Qt::Key_Return);
    });
    attendant.start(5);
    open();
    return seen;
}

TEST(MessageQuestions, filesAreChosenWhereTheLastOneWas)
{
    const QTemporaryDir temporary;
    const QString folder = QFileInfo(temporary.path()).canonicalFilePath();
    MessageQuestions questions;
    std::optional<std::string> chosen;
    const auto write = [&] { chosen = questions.fileToWrite("Save", "Course 2026.pdf"); };
    const auto read = [&] { chosen = questions.fileToRead("Open", "csv"); };
    const FileDialogSeen first = inFileDialog(folder + "/Day", write);
    EXPECT_EQ(first.name, "Course 2026.pdf");
    EXPECT_EQ(first.filter, "PDF (*.pdf)");
    EXPECT_EQ(first.mode, QFileDialog::AcceptSave);
    EXPECT_EQ(chosen, (folder + "/Day.pdf").toStdString()) << "with its ending";
    EXPECT_EQ(inFileDialog("", write).folder, folder) << "where the last one was written";
    EXPECT_EQ(chosen, std::nullopt) << "cancelled";
    std::ofstream((folder + "/Fixes.csv").toStdString()) << "1\n";
    const FileDialogSeen opened = inFileDialog("Fixes.csv", read);
    EXPECT_EQ(opened.folder, folder) << "nor has the cancelled one changed that";
    EXPECT_EQ(opened.filter, "CSV (*.csv)");
    EXPECT_EQ(opened.mode, QFileDialog::AcceptOpen);
    EXPECT_EQ(chosen, (folder + "/Fixes.csv").toStdString());
}

/// The cross or Escape taken for No, which would switch an alarm off.
TEST(MessageQuestions, whoeverLeavesHasNotAnswered)
{
    enum { Cross = 0 };
    const struct {
        Buttons buttons;
        int key;
        Answer answer;
    } rows[] = {
        {Buttons::YesNo, Cross, Answer::Cancel},
        {Buttons::YesNo, Qt::Key_Escape, Answer::Cancel},
        {Buttons::YesNo, Qt::Key_Return, Answer::Yes},
        {Buttons::YesNo, Qt::Key_N, Answer::No},
        {Buttons::OkCancel, Cross, Answer::Cancel},
        {Buttons::OkCancel, Qt::Key_Escape, Answer::Cancel},
        {Buttons::OkCancel, Qt::Key_Return, Answer::Ok},
        {Buttons::Ok, Cross, Answer::Ok},
        {Buttons::Ok, Qt::Key_Escape, Answer::Ok},
    };
    for (const auto& [buttons, key, answer] : rows) {
        QTimer attendant;
        QObject::connect(&attendant, &QTimer::timeout, &attendant, [&, key = key] {
            QWidget* box = QApplication::activeModalWidget();
            if (!box || !box->isVisible()) return;
            if (key == Cross)
                box->close();
            else
                QTest::keyClick(box, static_cast<Qt::Key>(key),
                                key == Qt::Key_N ? Qt::AltModifier : Qt::NoModifier);
        });
        attendant.start(5);
        EXPECT_EQ(MessageQuestions().ask({"A question", "Title", buttons}), answer) << key;
    }
}

INSTANTIATE_TEST_SUITE_P(Windows, DialogsTest, ::testing::ValuesIn(calculatorWindows()),
                         [](const auto& tested) { return tested.param.name.toStdString(); });

} // namespace
} // namespace korvel
