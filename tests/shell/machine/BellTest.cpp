// SPDX-License-Identifier: MIT
#include "shell/machine/SystemBell.h"

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

#include <gtest/gtest.h>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

/// A machine whose only programs are the players that a test puts there. Each writes its name into
/// a log when the file it was given has something in it.
class BellTest : public ::testing::Test
{
protected:
    BellTest() : m_path(qgetenv("PATH")) { qputenv("PATH", m_folder.path().toLocal8Bit()); }
    ~BellTest() override { qputenv("PATH", m_path); }

    void install(const char* player, const char* ending)
    {
        QFile script(m_folder.filePath(QString::fromLatin1(player)));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\nfor file; do :; done\n[ -s \"$file\" ] && echo " +
                     QByteArray(player) + " >> " + logName().toLocal8Bit() + "\n" + ending + "\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    QStringList played() const
    {
        QFile log(logName());
        if (!log.open(QIODevice::ReadOnly)) return {};
        return QString::fromLatin1(log.readAll()).split(u'\n', Qt::SkipEmptyParts);
    }
    QString logName() const { return m_folder.filePath(QStringLiteral("log")); }

    QTemporaryDir m_folder;
    QByteArray m_path;
    int m_beeps = 0;
    SystemBell m_bell{{[this] { ++m_beeps; }, 400ms}};
};

TEST_F(BellTest, withoutPlayersTheDesktopsBellRepeats)
{
    m_bell.start();
    EXPECT_EQ(m_beeps, 1) << "at once";
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_beeps == 3; }));
    m_bell.stop();
    QTest::qWait(700);
    EXPECT_EQ(m_beeps, 3);
}

TEST_F(BellTest, thePlayerThatWorksIsFoundAndKept)
{
    install("pw-play", "exit 1");
    install("paplay", "exit 0");
    install("aplay", "exit 0");
    m_bell.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return played().size() >= 4; }));
    m_bell.stop();
    EXPECT_EQ(played().mid(0, 4), QStringList({"pw-play", "paplay", "paplay", "paplay"}));
    EXPECT_EQ(m_beeps, 0);
}

TEST_F(BellTest, playersThatFailOrHangGiveWayToTheDesktopsBell)
{
    install("pw-play", "exit 1");
    install("paplay", "kill -SEGV $$");
    install("aplay", "exec /bin/sleep 60");
    m_bell.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return m_beeps == 2; }));
    m_bell.stop();
    EXPECT_EQ(played(), QStringList({"pw-play", "paplay", "aplay"}));
}

TEST_F(BellTest, isSilentAtOnceWhenStoppedAndRingsAgain)
{
    install("aplay", "exec /bin/sleep 60");
    m_bell.start();
    m_bell.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return played().size() == 1; }));
    m_bell.stop();
    m_bell.stop();
    QTest::qWait(700);
    EXPECT_EQ(m_beeps, 0) << "a player that was stopped has not failed";
    m_bell.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return played().size() == 2; }));
}

TEST_F(BellTest, aToneThatWasCleanedAwayIsMadeAnew)
{
    // The player takes the file away, and notes when there was one.
    install("aplay", "/bin/rm -f \"$file\"");
    m_bell.start();
    EXPECT_TRUE(QTest::qWaitFor([&] { return played().size() >= 3; }));
    m_bell.stop();
}

TEST_F(BellTest, onceIsOnce)
{
    install("aplay", "exit 0");
    m_bell.ringOnce();
    QTest::qWait(900);
    EXPECT_EQ(played().size(), 1);
}

} // namespace
} // namespace korvel
