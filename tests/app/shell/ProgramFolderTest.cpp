// SPDX-License-Identifier: MIT
#include "app/shell/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>

#include <sys/resource.h>

namespace korvel
{
namespace
{

using Status = FileStore::Content::Status;

TEST(ProgramFolder, replacesFilesWhole)
{
    const QTemporaryDir folder;
    ProgramFolder files(folder.path());
    EXPECT_EQ(files.read("KV_X.ini").status, Status::Missing);
    EXPECT_EQ(files.save("KV_X.ini", "long text\r\n"), std::nullopt);
    EXPECT_EQ(files.save("KV_X.ini", "a\r\n"), std::nullopt);
    EXPECT_EQ(files.read("KV_X.ini").bytes, "a\r\n");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"KV_X.ini"});
}

TEST(ProgramFolder, saysWhyAFileCannotBeUsed)
{
    const QTemporaryDir folder;
    QDir(folder.path()).mkdir("KV_X.ini");
    QFile huge(folder.filePath("KV_Y.ini"));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(3) << 30));
    ProgramFolder files(folder.path());
    EXPECT_EQ(files.read("KV_X.ini").status, Status::Unreadable);
    EXPECT_EQ(files.read("KV_Y.ini").status, Status::Unreadable);
    EXPECT_NE(files.save("KV_X.ini", "a").value_or(""), "");
    EXPECT_TRUE(QDir(folder.filePath("KV_X.ini")).exists());

    ProgramFolder nowhere(folder.filePath("missing"));
    EXPECT_NE(nowhere.save("KV_X.ini", "a").value_or(""), "");
}

TEST(ProgramFolder, aDiskThatTakesNoMoreLeavesTheOldFile)
{
    const QTemporaryDir folder;
    ProgramFolder files(folder.path());
    ASSERT_EQ(files.save("KV_X.ini", "old\r\n"), std::nullopt);

    // The limit on file sizes makes every further byte fail, as a full disk does.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{4096, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    const auto reason = files.save("KV_X.ini", std::string(100000, 'x'));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    EXPECT_NE(reason.value_or(""), "");
    EXPECT_EQ(files.read("KV_X.ini").bytes, "old\r\n");
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"KV_X.ini"});
}

TEST(ProgramFolder, clearsTheRemnantsOfASaveThatWasKilled)
{
    const QTemporaryDir folder;
    for (const char* name : {"KV_X.ini", "KV_X.ini.Ab3dEf", "KV_Position Record.ini.zzzzzz",
                             "notes.ini.Ab3dEf", "KV_X.ini.backup1"}) {
        QFile file(folder.filePath(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    }
    const ProgramFolder files(folder.path());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files, QDir::Name),
              (QStringList{"KV_X.ini", "KV_X.ini.backup1", "notes.ini.Ab3dEf"}));
}

} // namespace
} // namespace korvel
