// SPDX-License-Identifier: MIT
// The program from its start to its end, in a folder of its own with a copy of this executable:
// records lie beside the program.
#include "shell/main/RunProgram.h"

#include "calculator_windows.h"
#include "shell/machine/FolderLock.h"
#include "shell/main/frmKORVEL2000.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QTest>
#include <QTimer>

#if defined(__x86_64__)
#include <cpuid.h>
#endif

#include <csignal>
#include <cstdlib>
#include <deque>
#include <filesystem>
#include <thread>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;
using namespace korvel::testing;

/// What the officer does, one step after the other; a step is tried until it says that it is done.
std::deque<std::function<bool()>> steps;

void workOn()
{
    auto* hand = new QTimer(qApp);
    QObject::connect(hand, &QTimer::timeout, [] {
        static bool isBusy = false; // a step may wait in an event loop of its own
        if (isBusy || steps.empty()) return;
        isBusy = true;
        if (steps.front()()) steps.pop_front();
        isBusy = false;
    });
    hand->start(50);
}
Q_COREAPP_STARTUP_FUNCTION(workOn)

/// A question whose text has a part, answered by a key.
std::function<bool()> answered(const QString& part, Qt::Key key)
{
    return [part, key] {
        QWidget* box = QApplication::activeModalWidget();
        if (!box) return false;
        for (const auto* label : box->findChildren<QLabel*>())
            if (label->text().contains(part)) {
                QTest::keyClick(box, key);
                return true;
            }
        return false;
    };
}

int run()
{
    static char name[] = "korvel2000";
    char* arguments[] = {name, nullptr};
    return runProgram(
        1, arguments, [] { return std::make_unique<FakeClock>(); }, calculatorWindows());
}

QString folder()
{
    return QString::fromStdString(std::filesystem::current_path().string());
}

std::string recordOf(const std::string& name)
{
    return ProgramFolder(folder()).read(name).bytes;
}

#if defined(__x86_64__)
/// An object that tells whether the processor counted the upper halves of its vector registers as
/// in use when an event came.
class Probe : public QObject
{
public:
    bool wereInUse = true;

    static bool isPossible()
    {
        unsigned a = 0, b = 0, c = 0, d = 0;
        return __builtin_cpu_supports("avx2") && __get_cpuid_count(0xd, 1, &a, &b, &c, &d) &&
               (a & 4) != 0;
    }

protected:
    bool event(QEvent*) override
    {
        unsigned low = 0, high = 0;
        asm volatile("xgetbv" : "=a"(low), "=d"(high) : "c"(1));
        wereInUse = (low & 4) != 0;
        return true;
    }
};

bool eventsFindVectorRegistersReleased()
{
    Probe probe;
    if (!Probe::isPossible()) return true;
    QEvent event(QEvent::User);
    asm volatile("vpcmpeqd %%ymm0, %%ymm0, %%ymm0" ::: "xmm0"); // as after a fill
    QApplication::sendEvent(&probe, &event);
    return !probe.wereInUse;
}
#else
bool eventsFindVectorRegistersReleased()
{
    return true;
}
#endif

TEST(RunProgram, aProgramThatHoldsTheFolderKeepsTheSecondOut)
{
    FolderLock other(folder());
    steps = {answered("It does not answer", Qt::Key_Return)};
    EXPECT_EQ(run(), 0);
    EXPECT_TRUE(steps.empty()) << "it was said";
}

TEST(RunProgram, anotherStartAFaultAndTheEndOfTheSession)
{
    QPointer<QWidget> weather;
    std::thread other;
    std::atomic<bool> cameToFront = false;
    steps = {
        [&] {
            const QWidget *box = QApplication::activeModalWidget(),
                          *title = shown("frmKORVELstart");
            if (!box || !title) return false;
            EXPECT_GT(box->geometry().top(), title->geometry().bottom());
            EXPECT_NEAR(box->geometry().center().x(), title->geometry().center().x(), 5);
            return true;
        },
        answered("Input time difference", Qt::Key_Return),
        [&] { return shown("frmKORVEL2000") && !shown("frmKORVELstart"); },
        [&] {
            EXPECT_TRUE(eventsFindVectorRegistersReleased()) << "calculations are slow";
            choose(*shown("frmKORVEL2000"), "mnuNAV(1)");
            EXPECT_TRUE(QTest::qWaitForWindowActive(shown("frmCDDR")));
            type(*shown("frmCDDR"), "txtCDDR(0)", "35.3");
            shown("frmKORVEL2000")->showMinimized();
            other = std::thread([&] { cameToFront = FolderLock(folder()).callTheOther(10s); });
            return true;
        },
        [&] { return cameToFront.load(); },
        [&] {
            other.join();
            EXPECT_FALSE(shown("frmKORVEL2000")->isMinimized());
            QTimer::singleShot(0, qApp, [] { throw std::runtime_error("a broken wire"); });
            return true;
        },
        [&] {
            if (!QApplication::activeModalWidget()) return false;
            EXPECT_THAT(recordOf("KV_CDDR.ini"), ::testing::StartsWith("\"35.3\""));
            return answered("a broken wire", Qt::Key_Return)();
        },
        [&] {
            EXPECT_NE(shown("frmCDDR"), nullptr) << "a fault ends nothing";
            shown("frmCDDR")->activateWindow();
            EXPECT_TRUE(QTest::qWaitForWindowActive(shown("frmCDDR")));
            type(*shown("frmCDDR"), "txtCDDR(0)", "36");
            std::raise(SIGTERM);
            return true;
        },
    };
    EXPECT_EQ(run(), 0);
    EXPECT_TRUE(steps.empty()) << steps.size() << " steps are left";
    EXPECT_THAT(recordOf("KV_CDDR.ini"), ::testing::StartsWith("\"36\""));
}

} // namespace
} // namespace korvel

int main(int argc, char* argv[])
{
    if (std::getenv("KORVEL_TEST_FOLDER")) {
        ::testing::InitGoogleMock(&argc, argv);
        return RUN_ALL_TESTS();
    }
    const std::filesystem::path self = std::filesystem::read_symlink("/proc/self/exe");
    const QTemporaryDir folder;
    const auto copy = std::filesystem::path(folder.path().toStdString()) / self.filename();
    std::filesystem::copy(self, copy);
    std::filesystem::current_path(copy.parent_path());
    korvel::ProgramFolder(folder.path()).save("KV_Help.ini", "1\r\n"); // no page of the first start
    setenv("KORVEL_TEST_FOLDER", "here", 1);
    std::string command = copy.string();
    for (int i = 1; i < argc; ++i)
        command += " '" + std::string(argv[i]) + "'";
    return std::system(command.c_str()) == 0 ? 0 : 1;
}
