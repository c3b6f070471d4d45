// SPDX-License-Identifier: MIT
#include "calculator_windows.h"
#include "tests/SourceFolder.h"
#include "tests/shell/ShellTesting.h"

#include <QAbstractSlider>
#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QTest>
#include <QTimer>

#include <filesystem>
#include <random>

// A child's hand on the keyboard. KORVEL_RANDOM_KEYS says how many keys each window gets; with
// sanitizers and 10000 keys it is the trial before a release.

namespace korvel
{
namespace
{

using namespace korvel::testing;

constexpr int keysOfEveryRun = 150;

/// Answers whatever is asked, sensibly or not.
class RandomQuestions : public Questions
{
public:
    explicit RandomQuestions(std::mt19937& chance) : m_chance(chance) {}

    Answer ask(const Message&) override
    {
        constexpr Answer answers[] = {Answer::Yes, Answer::No, Answer::Ok, Answer::Cancel};
        return answers[m_chance() % 4];
    }
    std::optional<std::string> input(const std::string&, const std::string&,
                                     const std::string& offered) override
    {
        return m_chance() % 3 == 0 ? std::nullopt : std::optional(offered);
    }
    std::optional<std::string> fileToWrite(const std::string&, const std::string&) override
    {
        return std::nullopt;
    }
    std::optional<std::string> fileToRead(const std::string&, const std::string&) override
    {
        return std::nullopt;
    }
    void beep() override {}

private:
    std::mt19937& m_chance;
};

class RandomKeysTest : public ::testing::TestWithParam<CatalogueEntry>
{
protected:
    RandomKeysTest()
    {
        // Dialogs of the toolkit (printing, file names) wait for somebody.
        QObject::connect(&m_attendant, &QTimer::timeout, [] {
            if (auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget()))
                dialog->reject();
            if (QWidget* popup = QApplication::activePopupWidget()) popup->close();
        });
        m_attendant.start(20);
        std::filesystem::copy(
            sourceFile("data"), folder.path().toStdString(),
            std::filesystem::copy_options::recursive); // tides without it are blank
        main.start();
    }

    void openTheWindow()
    {
        main.openWindow(GetParam().name);
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->objectName() == GetParam().name && each->isVisible()) window = each;
        for (const auto* box : window->findChildren<QLineEdit*>())
            QObject::connect(box, &QLineEdit::textChanged, [this] { ++changes; });
        for (const auto* bar : window->findChildren<QAbstractSlider*>())
            QObject::connect(bar, &QAbstractSlider::valueChanged, [this] { ++changes; });
        window->findChild<QLineEdit*>()->setFocus();
    }

    void closeAllBut(const QWidget* one)
    {
        for (QWidget* each : QApplication::topLevelWidgets())
            if (each->isVisible() && each->objectName().startsWith("frm") && each != &main &&
                each != one)
                each->close();
    }

    /// Some entries and keys lead to other windows: the hand comes back from them.
    void comeBack()
    {
        if (!window || window->isActiveWindow()) return;
        closeAllBut(window);
        window->activateWindow();
        if (!window->focusWidget()) window->findChild<QLineEdit*>()->setFocus();
    }

    void press()
    {
        static constexpr std::string_view typed = "0123456789.-/: 00112233NSEWabc,'\"";
        static constexpr Qt::Key others[] = {
            Qt::Key_Return, Qt::Key_Tab,      Qt::Key_Backtab, Qt::Key_Backspace,
            Qt::Key_Delete, Qt::Key_Up,       Qt::Key_Down,    Qt::Key_Left,
            Qt::Key_Right,  Qt::Key_Home,     Qt::Key_End,     Qt::Key_PageUp,
            Qt::Key_Space,  Qt::Key_PageDown, Qt::Key_F5,      Qt::Key_F6};
        QWidget* to = QApplication::focusWidget();
        if (!to) to = window;
        const auto kind = chance() % 20;
        if (kind < 12)
            QTest::keyClick(to, typed[chance() % typed.size()]);
        else if (kind < 17)
            QTest::keyClick(to, others[chance() % std::size(others)]);
        else if (kind < 19)
            QTest::keyClick(to, static_cast<Qt::Key>(Qt::Key_A + chance() % 26),
                            Qt::ControlModifier);
        else
            QTest::keyClick(to, static_cast<Qt::Key>(Qt::Key_A + chance() % 26),
                            Qt::ControlModifier | Qt::ShiftModifier);
    }

    /// Chooses one of the window's entries.
    void chooseEntry()
    {
        const auto entries = window->findChildren<QAction*>(QRegularExpression("^mnu.*\\)$"));
        QAction* entry = entries[static_cast<int>(chance() % unsigned(entries.size()))];
        if (entry->isEnabled() && !entry->menu()) entry->trigger();
    }

    QTemporaryDir folder;
    /// Another child with --gtest_shuffle --gtest_random_seed=N.
    std::mt19937 chance{20261121u + unsigned(::testing::UnitTest::GetInstance()->random_seed())};
    RandomQuestions questions{chance};
    FakeClock clock;
    FakeBell bell;
    ProgramFolder files{folder.path()};
    frmKORVEL2000 main{{questions, clock, files, bell}, calculatorWindows()};
    QPointer<QWidget> window;
    int changes = 0; ///< of its boxes and scroll bars

private:
    QTimer m_attendant;
};

TEST_P(RandomKeysTest, nothingEndsTheProgram)
{
    bool set = false;
    const int asked = qEnvironmentVariableIntValue("KORVEL_RANDOM_KEYS", &set);
    const int keys = set ? asked : keysOfEveryRun;
    QApplication::clipboard()->setText("35°30.5'N 139-45.2E\t1,5\n");
    for (int i = 0; i < keys; ++i) {
        if (!window) openTheWindow();
        chance() % 40 == 0 ? chooseEntry() : press();
        comeBack();
        if (i % 50 == 0) QApplication::processEvents();
        clock.time += 1.0 / 86400;
    }
    // 150 keys may all be for menus and questions.
    if (set) {
        EXPECT_GT(changes, keys / 200) << "the keys went elsewhere";
    }
    closeAllBut(nullptr);
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

INSTANTIATE_TEST_SUITE_P(Windows, RandomKeysTest, ::testing::ValuesIn(calculatorWindows()),
                         [](const auto& tested) { return tested.param.name.toStdString(); });

} // namespace
} // namespace korvel
