// SPDX-License-Identifier: MIT
#include "shell/machine/EarlierRecords.h"
#include "tests/app/FakeMachine.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

namespace korvel
{
namespace
{

using ::testing::AllOf;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

/// A folder with an installed program and its data, a portable one and an officer's home.
struct Folders {
    QTemporaryDir root;
    QString bin = root.path() + "/usr/bin";
    QString share = root.path() + "/usr/share/korvel2000";
    QString portable = root.path() + "/stick";
    QString home = root.path() + "/officer/korvel2000";

    Folders()
    {
        for (const QString& folder : {bin, share, portable})
            QDir().mkpath(folder);
        for (const QString& folder : {share, portable})
            write(folder + "/AF2005.txt", "shipped");
    }

    static void write(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size());
    }
    static std::string read(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "missing";
    }
};

TEST(RecordsFolder, liesWhereTheOfficerMayWrite)
{
    const Folders folders;
    const QString nowhere = "/proc/self/korvel2000";
    const struct {
        const char* fault;
        QString program, officers, data, records;
    } rows[] = {
        {"portable records leave the stick", folders.portable, folders.home, folders.portable,
         folders.portable},
        {"root writes records into the system", folders.bin, folders.home, folders.share,
         folders.home},
        {"records are lost in a protected folder", "/proc/self", folders.home, "/proc/self",
         folders.home},
        {"no folder at all ends the program", "/proc/self", nowhere, "/proc/self", "/proc/self"},
    };
    for (const auto& [fault, program, officers, data, records] : rows) {
        const Places places = choosePlaces(program, officers);
        EXPECT_EQ(places.data, data) << fault;
        EXPECT_EQ(places.records, records) << fault;
    }
    EXPECT_TRUE(QDir(folders.home).isEmpty()) << "the trial of a folder leaves something there";
    EXPECT_EQ(QDir(folders.portable).entryList(QDir::Files), QStringList("AF2005.txt"));
}

TEST(RecordsFolder, hidesShippedFilesAndNeverTouchesThem)
{
    const Folders folders;
    Folders::write(folders.share + "/KV_GC.ini", "damaged");
    RecordsFolder files(choosePlaces(folders.bin, folders.home));
    EXPECT_EQ(files.read("AF2005.txt").bytes, "shipped");
    EXPECT_THAT(files.path("AF2005.txt"), HasSubstr("usr/share"));

    EXPECT_EQ(files.save("AF2005.txt", "extended"), std::nullopt);
    EXPECT_EQ(files.readAt("AF2005.txt", 0, 3).bytes, "ext");
    EXPECT_THAT(files.path("AF2005.txt"), HasSubstr("/officer/"));
    EXPECT_EQ(files.rename("AF2005.txt", "AF2005.txt.before"), std::nullopt);
    EXPECT_EQ(files.read("AF2005.txt").bytes, "shipped");
    EXPECT_EQ(files.rename("KV_GC.ini", "KV_GC damaged.ini"), std::nullopt);
    EXPECT_EQ(files.read("KV_GC damaged.ini").bytes, "damaged");
    EXPECT_EQ(files.remove("AF2005.txt.before"), std::nullopt);
    EXPECT_THAT(files.path("KV_ETA.ini"), HasSubstr("/officer/"));

    EXPECT_EQ(Folders::read(folders.share + "/AF2005.txt"), "shipped");
    EXPECT_EQ(QDir(folders.share).entryList(QDir::Files), QStringList({"AF2005.txt", "KV_GC.ini"}));
    EXPECT_EQ(QDir(folders.home).entryList(QDir::Files), QStringList("KV_GC damaged.ini"));
}

TEST(RecordsFolder, takesOverAnEarlierPortableFolderOnce)
{
    const Folders folders;
    const Places places = choosePlaces(folders.bin, folders.home);
    Folders::write(folders.portable + "/KV_GC.ini", "earlier");
    Folders::write(folders.portable + "/KV_ETA.ini", "earlier");
    QFile::setPermissions(folders.portable + "/KV_ETA.ini", QFile::ReadOwner);
    const auto choose = [&] { return folders.portable; };

    testing::FakeQuestions questions;
    questions.willAnswer(Answer::No);
    settleRecords(places, {"korvel2000"}, questions, choose);
    EXPECT_THAT(questions.asked, ElementsAre(HasSubstr(folders.home.toStdString())));
    EXPECT_TRUE(QDir(folders.home).isEmpty());

    Folders::write(folders.portable + "/AF2005.txt", "longer than what is shipped");
    questions.willAnswer(Answer::Yes);
    questions.willAnswer(Answer::Ok);
    settleRecords(places, {"korvel2000"}, questions, choose);
    EXPECT_THAT(questions.asked.back(), HasSubstr("Taken over: KV_ETA.ini, KV_GC.ini, AF2005.txt"));
    EXPECT_EQ(Folders::read(folders.home + "/AF2005.txt"), "longer than what is shipped");
    EXPECT_TRUE(QFile::permissions(folders.home + "/KV_ETA.ini") & QFile::WriteOwner);

    // Records that are there are neither asked about again nor written over.
    questions.asked.clear();
    settleRecords(places, {"korvel2000"}, questions, choose);
    EXPECT_THAT(questions.asked, IsEmpty());
    Folders::write(folders.home + "/KV_GC.ini", "present");
    questions.willAnswer(Answer::Ok);
    settleRecords(places, {"korvel2000", "--take-records", folders.portable}, questions, choose);
    EXPECT_THAT(questions.asked.back(), AllOf(HasSubstr("left as they are: "), HasSubstr("KV_GC")));
    EXPECT_EQ(Folders::read(folders.home + "/KV_GC.ini"), "present");

    questions.willAnswer(Answer::Ok);
    settleRecords(places, {"korvel2000", "--take-records", folders.share}, questions, choose);
    EXPECT_THAT(questions.asked.back(), HasSubstr("There are no records in"));
}

TEST(RecordsFolder, takesOverWhatIsReadToo)
{
    const Folders folders;
    const Places places = choosePlaces(folders.bin, folders.home);
    constexpr int largest = 1 << 20; // of a record that is read at all
    Folders::write(folders.portable + "/KV_Large.ini", QByteArray(largest, '1'));
    Folders::write(folders.portable + "/KV_TooLarge.ini", QByteArray(largest + 1, '1'));
    EXPECT_EQ(takeRecords(folders.portable, places),
              "Records are kept in\r" + folders.home.toStdString() +
                  "\r\rTaken over: KV_Large.ini.\rCould not be copied: KV_TooLarge.ini.")
        << "nor are factors of the shipped length the officer's own";
    EXPECT_EQ(QDir(folders.home).entryList(QDir::Files), QStringList("KV_Large.ini"));
}

} // namespace
} // namespace korvel
