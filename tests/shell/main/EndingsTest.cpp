// SPDX-License-Identifier: MIT
#include "shell/machine/FaultGuard.h"
#include "shell/machine/FolderLock.h"
#include "shell/machine/SessionQuestions.h"
#include "shell/machine/TerminationWatch.h"
#include "shell/main/Attend.h"
#include "shell/main/frmKORVEL2000.h"
#include "tests/app/FakeMachine.h"
#include "tests/shell/ShellTesting.h"

#include <QFile>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

#include <csignal>
#include <filesystem>
#include <thread>

#include <sys/stat.h>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;
using korvel::testing::FakeClock;
using korvel::testing::FakeQuestions;

TEST(TerminationWatch, saysSoFromTheEventLoop)
{
    const auto before = std::signal(SIGTERM, SIG_DFL);
    TerminationWatch watch;
    QSignalSpy requested(&watch, &TerminationWatch::requested);
    for (const int signal : {SIGTERM, SIGINT, SIGHUP}) {
        std::raise(signal);
        EXPECT_EQ(requested.count(), 0) << "not from within the signal";
        EXPECT_TRUE(requested.wait(1000)) << signal;
        requested.clear();
    }
    EXPECT_FALSE(requested.wait(700)) << "once";
    std::signal(SIGTERM, before);
}

TEST(SessionQuestions, nobodyIsAskedWhenTheSessionHasEnded)
{
    FakeQuestions officer;
    SessionQuestions questions(officer);
    officer.willAnswer(Answer::Yes);
    EXPECT_EQ(questions.ask({"", "", Buttons::YesNo}), Answer::Yes);
    officer.willType("9");
    EXPECT_EQ(questions.input("", "", ""), "9");
    EXPECT_FALSE(questions.haveEnded());
    officer.willAnswer(Answer::Yes, [&] { questions.endSession(); });
    EXPECT_EQ(questions.ask({"", "", Buttons::YesNo}), Answer::Cancel) << "ended under the box";
    EXPECT_EQ(questions.ask({"", "", Buttons::OkCancel}), Answer::Cancel);
    EXPECT_EQ(questions.ask({"", "", Buttons::Ok}), Answer::Ok);
    EXPECT_TRUE(questions.haveEnded());
    EXPECT_EQ(questions.input("", "", ""), std::nullopt);
    SessionQuestions others(officer);
    officer.willType("9", [&] { others.endSession(); });
    EXPECT_EQ(others.input("", "", ""), std::nullopt) << "ended under the box";
}

TEST(FaultGuard, savesAndTellsOnceForEachFault)
{
    FaultGuard guard;
    std::vector<std::string> done;
    guard.saveEverything = [&] { done.emplace_back("saved"); };
    guard.tell = [&](const std::string& fault) { done.push_back(fault); };
    EXPECT_TRUE(guard.run([] { return true; }));
    EXPECT_FALSE(guard.run([] { return false; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(done, std::vector<std::string>());
    for (int i = 0; i < 2; ++i)
        EXPECT_FALSE(guard.run([]() -> bool { throw std::runtime_error("no disk"); }));
    EXPECT_EQ(done.size(), 0u) << "not in the middle of an event";
    EXPECT_FALSE(guard.run([]() -> bool { throw 1; }));
    QCoreApplication::processEvents();
    EXPECT_EQ(done, (std::vector<std::string>{"saved", "no disk", "saved", "unknown"}));
}

/// The main window with everything that may call it from outside.
class AttendTest : public ::testing::Test
{
protected:
    AttendTest()
    {
        questions.willType(FakeQuestions::acceptDefault);
        attend({guard, lock, termination}, main, [this] { isOver = true; });
        main.start();
    }
    QTemporaryDir folder;
    FakeQuestions questions;
    FakeClock clock;
    testing::FakeBell bell;
    ProgramFolder files{folder.path()};
    FaultGuard guard;
    FolderLock lock{folder.path()};
    TerminationWatch termination;
    frmKORVEL2000 main{{questions, clock, files, bell}, {}};
    bool isOver = false;
};

TEST_F(AttendTest, aFaultSavesEveryRecord)
{
    QSignalSpy saved(&main.program(), &Program::recordsWanted);
    guard.run([]() -> bool { throw std::runtime_error("no disk"); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return saved.count() == 1; }));
}

TEST_F(AttendTest, anotherStartBringsTheWindowToTheFront)
{
    main.showMinimized();
    FolderLock second(folder.path());
    std::thread other([&] { second.callTheOther(5s); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return !main.isMinimized(); }));
    other.join();
}

TEST_F(AttendTest, theEndOfTheSessionEndsTheWindowUnasked)
{
    QSignalSpy ended(&main, &frmKORVEL2000::ended);
    emit termination.requested();
    EXPECT_EQ(ended.count(), 1);
    EXPECT_FALSE(main.isVisible());
    EXPECT_FALSE(isOver) << "the windows are still going";
    EXPECT_TRUE(QTest::qWaitFor([&] { return isOver; }));
}

class FolderLockTest : public ::testing::Test
{
protected:
    void leaveLock(const QByteArray& content, std::chrono::hours age)
    {
        const QString name = folder.filePath("KV_KORVEL.lock");
        QFile file(name);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(content);
        file.close();
        std::filesystem::last_write_time(name.toStdString(),
                                         std::filesystem::file_time_type::clock::now() - age);
    }
    QTemporaryDir folder;
};

TEST_F(FolderLockTest, oneProgramAFolder)
{
    FolderLock first(folder.path());
    EXPECT_FALSE(first.isHeldByAnother());
    // However long it has been running.
    std::filesystem::last_write_time(folder.filePath("KV_KORVEL.lock").toStdString(),
                                     std::filesystem::file_time_type::clock::now() - 100h);
    FolderLock second(folder.path());
    EXPECT_TRUE(second.isHeldByAnother());
    EXPECT_FALSE(second.callTheOther(200ms)) << "it does not answer";
    EXPECT_FALSE(QFile::exists(folder.filePath("KV_KORVEL.call"))) << "nobody waits any more";

    int calls = 0;
    first.answerCalls([&] { ++calls; });
    bool answered = false;
    std::thread other([&] { answered = second.callTheOther(5s); });
    EXPECT_TRUE(QTest::qWaitFor([&] { return calls > 0; }));
    other.join();
    EXPECT_TRUE(answered);
    QTest::qWait(900);
    EXPECT_EQ(calls, 1);

    const QTemporaryDir elsewhere;
    EXPECT_FALSE(FolderLock(elsewhere.path()).isHeldByAnother());
    EXPECT_FALSE(FolderLock(folder.filePath("missing")).isHeldByAnother()) << "nothing to guard";
}

TEST_F(FolderLockTest, theLockOfACrashedProgramDoesNotStand)
{
    const QByteArray dead = "999999\nkorvel2000\n" + QSysInfo::machineHostName().toUtf8() + "\n";
    for (const auto& [content, age] : {std::pair(dead, 0h), {dead, 100h}, {QByteArray(), 0h}}) {
        leaveLock(content, age);
        EXPECT_FALSE(FolderLock(folder.path()).isHeldByAnother()) << content.toStdString();
    }
    QFile call(folder.filePath("KV_KORVEL.call"));
    ASSERT_TRUE(call.open(QIODevice::WriteOnly));
    FolderLock next(folder.path());
    int calls = 0;
    next.answerCalls([&] { ++calls; });
    QTest::qWait(600);
    EXPECT_EQ(calls, 0) << "a call to the one before";
}

TEST_F(FolderLockTest, whatIsNoFileIsNeverWaitedFor)
{
    const std::string lock = folder.filePath("KV_KORVEL.lock").toStdString();
    const std::string call = folder.filePath("KV_KORVEL.call").toStdString();
    for (const bool isPipe : {true, false}) {
        for (const std::string& name : {lock, call}) {
            std::filesystem::remove(name);
            if (isPipe)
                ASSERT_EQ(mkfifo(name.c_str(), 0600), 0);
            else
                ASSERT_TRUE(std::filesystem::create_directory(name));
        }
        FolderLock first(folder.path());
        EXPECT_FALSE(first.isHeldByAnother()) << isPipe;
        EXPECT_THAT(first.fault(), ::testing::HasSubstr("KV_KORVEL.lock")) << isPipe;
        EXPECT_FALSE(first.callTheOther(50ms)) << isPipe;
    }
    std::filesystem::remove(lock);
    EXPECT_EQ(FolderLock(folder.path()).fault(), "");
}

} // namespace
} // namespace korvel
