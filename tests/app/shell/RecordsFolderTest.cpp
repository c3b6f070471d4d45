// SPDX-License-Identifier: MIT
#include "app/shell/EarlierRecords.h"
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
struct Machine {
    QTemporaryDir root;
    QString bin = root.path() + "/usr/bin";
    QString share = root.path() + "/usr/share/korvel2000";
    QString portable = root.path() + "/stick";
    QString home = root.path() + "/officer/korvel2000";

    Machine()
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
    const Machine machine;
    const QString nowhere = "/proc/self/korvel2000";
    const struct {
        const char* fault;
        QString program, officers, data, records;
    } rows[] = {
        {"portable records leave the stick", machine.portable, machine.home, machine.portable,
         machine.portable},
        {"root writes records into the system", machine.bin, machine.home, machine.share,
         machine.home},
        {"records are lost in a protected folder", "/proc/self", machine.home, "/proc/self",
         machine.home},
        {"no folder at all ends the program", "/proc/self", nowhere, "/proc/self", "/proc/self"},
    };
    for (const auto& [fault, program, officers, data, records] : rows) {
        const Places places = choosePlaces(program, officers);
        EXPECT_EQ(places.data, data) << fault;
        EXPECT_EQ(places.records, records) << fault;
    }
    EXPECT_TRUE(QDir(machine.home).isEmpty()) << "the trial of a folder leaves something there";
    EXPECT_EQ(QDir(machine.portable).entryList(QDir::Files), QStringList("AF2005.txt"));
}

TEST(RecordsFolder, hidesShippedFilesAndNeverTouchesThem)
{
    const Machine machine;
    Machine::write(machine.share + "/KV_GC.ini", "damaged");
    RecordsFolder files(choosePlaces(machine.bin, machine.home));
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

    EXPECT_EQ(Machine::read(machine.share + "/AF2005.txt"), "shipped");
    EXPECT_EQ(QDir(machine.share).entryList(QDir::Files), QStringList({"AF2005.txt", "KV_GC.ini"}));
    EXPECT_EQ(QDir(machine.home).entryList(QDir::Files), QStringList("KV_GC damaged.ini"));
}

TEST(RecordsFolder, takesOverAnEarlierPortableFolderOnce)
{
    const Machine machine;
    const Places places = choosePlaces(machine.bin, machine.home);
    Machine::write(machine.portable + "/KV_GC.ini", "earlier");
    Machine::write(machine.portable + "/KV_ETA.ini", "earlier");
    QFile::setPermissions(machine.portable + "/KV_ETA.ini", QFile::ReadOwner);
    const auto choose = [&] { return machine.portable; };

    testing::FakeQuestions questions;
    questions.willAnswer(Answer::No);
    settleRecords(places, {"korvel2000"}, questions, choose);
    EXPECT_THAT(questions.asked, ElementsAre(HasSubstr(machine.home.toStdString())));
    EXPECT_TRUE(QDir(machine.home).isEmpty());

    Machine::write(machine.portable + "/AF2005.txt", "longer than what is shipped");
    questions.willAnswer(Answer::Yes);
    questions.willAnswer(Answer::Ok);
    settleRecords(places, {"korvel2000"}, questions, choose);
    EXPECT_THAT(questions.asked.back(), HasSubstr("Taken over: KV_ETA.ini, KV_GC.ini, AF2005.txt"));
    EXPECT_EQ(Machine::read(machine.home + "/AF2005.txt"), "longer than what is shipped");
    EXPECT_TRUE(QFile::permissions(machine.home + "/KV_ETA.ini") & QFile::WriteOwner);

    // Records that are there are neither asked about again nor written over.
    questions.asked.clear();
    settleRecords(places, {"korvel2000"}, questions, choose);
    EXPECT_THAT(questions.asked, IsEmpty());
    Machine::write(machine.home + "/KV_GC.ini", "present");
    questions.willAnswer(Answer::Ok);
    settleRecords(places, {"korvel2000", "--take-records", machine.portable}, questions, choose);
    EXPECT_THAT(questions.asked.back(), AllOf(HasSubstr("left as they are: "), HasSubstr("KV_GC")));
    EXPECT_EQ(Machine::read(machine.home + "/KV_GC.ini"), "present");

    questions.willAnswer(Answer::Ok);
    settleRecords(places, {"korvel2000", "--take-records", machine.share}, questions, choose);
    EXPECT_THAT(questions.asked.back(), HasSubstr("There are no records in"));
}

} // namespace
} // namespace korvel
