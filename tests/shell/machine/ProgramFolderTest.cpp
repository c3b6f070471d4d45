// SPDX-License-Identifier: MIT
#include "shell/machine/ProgramFolder.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <cerrno>
#include <csignal>
#include <cstdio>
#include <string>
#include <utility>

#include <fcntl.h>

#include <sys/resource.h>
#include <sys/stat.h>

namespace
{

bool renamingFails = false;

} // namespace

/// Stands in for the system's own in this program: the last step of a save can fail.
extern "C" int rename(const char* from, const char* to) noexcept
{
    if (!renamingFails) return renameat(AT_FDCWD, from, AT_FDCWD, to);
    errno = EIO;
    return -1;
}

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

TEST(ProgramFolder, readsAtAPosition)
{
    const QTemporaryDir folder;
    ProgramFolder files(folder.path());
    QDir(folder.path()).mkdir("Harmonic Constants");
    const char* const name = "Harmonic Constants/HC_O'Neill.txt";
    ASSERT_EQ(files.save(name, "0123456789"), std::nullopt);
    const struct {
        std::int64_t offset;
        std::size_t length;
        const char* bytes;
    } rows[] = {{0, 4, "0123"}, {7, 3, "789"}, {7, 4, "789"}, {10, 1, ""}, {99, 5, ""}, {3, 0, ""}};
    for (const auto& [offset, length, bytes] : rows) {
        const auto content = files.readAt(name, offset, length);
        EXPECT_EQ(content.status, Status::Read) << offset;
        EXPECT_EQ(content.bytes, bytes) << offset << " " << length;
        EXPECT_EQ(content.size, 10);
    }
    EXPECT_EQ(files.look("KV_X.ini").status, Status::Missing);
    EXPECT_EQ(files.look(name).bytes, "");

    // The factors of a century are larger than any file that is read whole.
    QFile huge(folder.filePath("huge.txt"));
    ASSERT_TRUE(huge.open(QIODevice::WriteOnly) && huge.resize(qint64(3) << 30));
    EXPECT_EQ(files.read("huge.txt").status, Status::Unreadable);
    EXPECT_EQ(files.readAt("huge.txt", (std::int64_t(3) << 30) - 2, 9).bytes, std::string(2, '\0'));
    ASSERT_TRUE(huge.resize(1 << 24));
    EXPECT_EQ(files.read("huge.txt").bytes.size(), 1u << 24);
    ASSERT_TRUE(huge.resize((1 << 24) + 1));
    EXPECT_EQ(files.read("huge.txt").status, Status::Unreadable);
}

TEST(ProgramFolder, refusesWhatIsNoFileWithoutWaitingForIt)
{
    const QTemporaryDir folder;
    ProgramFolder files(folder.path());
    QDir(folder.path()).mkdir("folder");
    ASSERT_EQ(mkfifo(folder.filePath("pipe").toLocal8Bit(), 0600), 0);
    ASSERT_TRUE(QFile::link("/dev/zero", folder.filePath("device")));
    ASSERT_TRUE(QFile::link("nowhere", folder.filePath("link")));
    const std::pair<std::string, const char*> rows[] = {
        {"folder", "it is a folder"},
        {"pipe", "it is no plain file"},
        {"device", "it is no plain file"},
        {"link", "it is a link that leads nowhere"}};
    for (const auto& [name, reason] : rows) {
        const QFileInfo before(folder.filePath(QString::fromStdString(name)));
        const bool isSymLink = before.isSymLink();
        EXPECT_EQ(files.read(name).status, Status::Unreadable) << name;
        EXPECT_EQ(files.readAt(name, 0, 1).reason, reason);
        EXPECT_EQ(files.look(name).status, Status::Unreadable) << name;
        // A save makes the file that a link means. What is written to a device is never tried: as
        // root a save that does not refuse would replace the machine's own.
        if (isSymLink) continue;
        EXPECT_EQ(files.save(name, "a").value_or(""), reason);
        EXPECT_EQ(files.append(name, "a").value_or(""), reason);
        EXPECT_EQ(files.rename(name, "kept").value_or(""), reason);
        EXPECT_EQ(files.remove(name).value_or(""), reason);
        const QFileInfo after(before.filePath());
        EXPECT_TRUE(after.exists() && !after.isFile() && after.isSymLink() == isSymLink) << name;
    }
    ProgramFolder nowhere(folder.filePath("missing"));
    EXPECT_NE(nowhere.save("KV_X.ini", "a").value_or(""), "");
}

TEST(ProgramFolder, renamesAndRemoves)
{
    const QTemporaryDir folder;
    ProgramFolder files(folder.path());
    ASSERT_EQ(files.save("KV_X.ini", "a"), std::nullopt);
    ASSERT_EQ(files.save("KV_Y.ini", "b"), std::nullopt);
    EXPECT_NE(files.rename("KV_X.ini", "KV_Y.ini").value_or(""), "") << "the name is taken";
    EXPECT_NE(files.rename("KV_Z.ini", "KV_Q.ini").value_or(""), "") << "there is no such file";
    EXPECT_EQ(files.rename("KV_X.ini", "KV_X damaged.ini"), std::nullopt);
    EXPECT_EQ(files.remove("KV_Y.ini"), std::nullopt);
    EXPECT_EQ(files.remove("KV_Y.ini"), std::nullopt);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), QStringList{"KV_X damaged.ini"});
    EXPECT_EQ(files.read("KV_X damaged.ini").bytes, "a");
}

TEST(ProgramFolder, aSaveThatFailsAtAnyStepLeavesTheOldFile)
{
    const QTemporaryDir folder;
    ProgramFolder files(folder.path());
    ASSERT_EQ(files.save("KV_X.ini", "old\r\n"), std::nullopt);
    ASSERT_EQ(files.append("Journal.txt", "kept\n"), std::nullopt);

    // The limit on file sizes makes every further byte fail, as a full disk does.
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{4096, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    const auto whileWriting = files.save("KV_X.ini", std::string(100000, 'x'));
    const auto whileFlushing = files.save("KV_X.ini", std::string(5000, 'x'));
    const auto whileAdding = files.append("Journal.txt", std::string(5000, 'x'));
    setrlimit(RLIMIT_FSIZE, &before);
    std::signal(SIGXFSZ, handler);

    renamingFails = true;
    const auto whileRenaming = files.save("KV_X.ini", "new\r\n");
    renamingFails = false;

    EXPECT_NE(whileWriting.value_or(""), "");
    EXPECT_NE(whileFlushing.value_or(""), "");
    EXPECT_NE(whileRenaming.value_or(""), "");
    EXPECT_NE(whileAdding.value_or(""), "");
    EXPECT_EQ(files.append("Journal.txt", "more\n"), std::nullopt);
    EXPECT_EQ(files.read("Journal.txt").bytes, "kept\nmore\n");
    EXPECT_EQ(files.names("Jour", ".txt"), std::vector<std::string>{"Journal.txt"});
    EXPECT_EQ(files.remove("Journal.txt"), std::nullopt);
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
    const ProgramFolder asFound(folder.path(), ProgramFolder::Remnants::Left);
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files).size(), 5) << "another program's, perhaps";
    const ProgramFolder files(folder.path());
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files, QDir::Name),
              (QStringList{"KV_X.ini", "KV_X.ini.backup1", "notes.ini.Ab3dEf"}));
}

} // namespace
} // namespace korvel
