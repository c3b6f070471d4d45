// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankRecord.h"
#include "forms/frmTanks/frmTanks.h"
#include "shell/controls/Boxes.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QTest>

#include <sys/stat.h>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;

/// What no box and no file may take without a word.
class frmTanksInputTest : public WindowTest
{
protected:
    /// A loading, bunkers and voyages: every box of a figure rests on what stands around it.
    frmTanks& openWhole()
    {
        TankSheet sheet;
        for (TankList& list : sheet.lists) {
            list.grades[0].name = "Gas oil";
            list.grades[0].table = "54C";
            list.grades[0].density = "842.8";
            list.grades[0].coefficient = "0.00084";
            list.rows.resize(1);
            list.rows[0].tank = "1P";
            list.rows[0].surveys = {TankReading{"", "10", "1", "20", "1"},
                                    TankReading{"", "100", "1", "20", "1"}};
            list.times = {"2026/11/21 10:00", "2026/11/22 02:00"};
        }
        for (auto& voyages : sheet.voyages)
            for (std::size_t i = 0; i < 5; ++i)
                voyages[i] = {"A", "100.1", "100"};
        writeFile("KV_Tanks.ini", tankRecordText(sheet));
        auto& window = open<frmTanks>();
        EXPECT_EQ(window.notice().toStdString(), "");
        return window;
    }
    static std::vector<EntryBox*> boxesSeen(const frmTanks& window)
    {
        std::vector<EntryBox*> seen;
        for (EntryBox* box : window.findChildren<EntryBox*>())
            if (box->isVisible()) seen.push_back(box);
        return seen;
    }
    static bool isFigure(const EntryBox& box) { return box.recordKind == FieldKind::Figure; }

    TankSheet onDisk()
    {
        program().saveRecords();
        return readTankRecord(fileText("KV_Tanks.ini")).sheet;
    }
};

TEST_F(frmTanksInputTest, everyBoxAnswersInTheLineAndLosesNothing)
{
    auto& window = openWhole();
    const TankSheet before = onDisk();
    std::size_t tried = 0;
    for (int page = 0; page < 5; ++page) {
        click(window, QString("cmdTankPage(%1)").arg(page).toStdString());
        for (EntryBox* box : boxesSeen(window)) {
            const std::string name = box->objectName().toStdString();
            if (!isFigure(*box) && box->recordKind != FieldKind::Moment) continue;
            const QString was = box->text();
            for (const char* bad : {"abc", "1e308", "-99999999", "99999999999", "1,2", "-"}) {
                // A voyage that is being typed counts as soon as both of its figures are there.
                if (page == 4 && std::string(bad) == "-") continue;
                box->setText(bad);
                EXPECT_THAT(window.notice().toStdString(), Not(IsEmpty())) << name << ": " << bad;
                ++tried;
            }
            EXPECT_THAT(tankRecordText(onDisk()), HasSubstr("=" + box->value() + "\n")) << name;
            box->setText(was);
            EXPECT_EQ(window.notice().toStdString(), "") << name << ": mended";
        }
    }
    EXPECT_GT(tried, 600U);
    EXPECT_TRUE(onDisk() == before);
}

TEST_F(frmTanksInputTest, whatIsPastedIsCutToABoxAndNeverARow)
{
    auto& window = openWhole();
    for (int page = 0; page < 5; ++page) {
        click(window, QString("cmdTankPage(%1)").arg(page).toStdString());
        for (EntryBox* box : boxesSeen(window)) {
            const QString was = box->text();
            box->setFocus(Qt::TabFocusReason);
            // A box ends a text itself; signs that no file can hold are not to reach the record.
            for (const QString& junk :
                 {QString(QChar::Null) + "\t\x1b[2J", QString("\x89PNG"), QString(100000, '9')}) {
                QApplication::clipboard()->setText(junk);
                box->selectAll();
                QTest::keyClick(box, Qt::Key_V, Qt::ControlModifier);
            }
            EXPECT_LE(box->text().size(), 100);
            EXPECT_THAT(window.notice().toStdString(), HasSubstr("the rest was left out"))
                << box->objectName().toStdString();
            box->setText(was);
        }
    }
    EXPECT_EQ(onDisk().list(ListKind::Cargo).rows.size(), 1U);
}

TEST_F(frmTanksInputTest, noFileThatIsNoneStopsTheWindowOrChangesTheList)
{
    auto& window = openWhole();
    const TankSheet before = onDisk();
    const std::string pipe = folder.filePath("endless.csv").toStdString();
    ASSERT_EQ(mkfifo(pipe.c_str(), 0600), 0);
    writeFile("empty.csv", "");
    writeFile("zeros.csv", std::string(5000000, '\0'));
    QElapsedTimer waited;
    waited.start();
    std::size_t refused = questions.asked.size();
    for (const std::string& path :
         {pipe, folder.filePath("none.csv").toStdString(), folder.path().toStdString(),
          folder.filePath("empty.csv").toStdString(), folder.filePath("zeros.csv").toStdString(),
          std::string("/dev/zero")}) {
        questions.willType(path);
        questions.willAnswer(Answer::Ok);
        choose(window, "mnuTankList(1)");
        const std::string& said = questions.asked.back();
        EXPECT_THAT(said, HasSubstr("The list is as it was")) << path;
        EXPECT_LT(said.find(" was not "), said.find(": ")) << said;
        EXPECT_EQ(questions.asked.size(), ++refused) << path;
        EXPECT_TRUE(onDisk() == before) << path;
    }
    EXPECT_LT(waited.elapsed(), 20000) << "none of them is waited for";
}

TEST_F(frmTanksInputTest, aFolderThatCannotBeWrittenIsNamedAndNothingIsLost)
{
    auto& window = openWhole();
    const TankSheet before = onDisk();
    writeFile("file", "no folder");
    for (const std::string& path :
         {std::string("/proc/none/list.csv"), folder.filePath("none/list.csv").toStdString(),
          folder.filePath("file/list.csv").toStdString(), folder.path().toStdString()}) {
        questions.willType(path);
        questions.willAnswer(Answer::Ok);
        choose(window, "mnuTankList(2)");
        EXPECT_THAT(questions.asked.back(), HasSubstr("could not be written")) << path;
        EXPECT_FALSE(window.notice().contains("Saved")) << path;
    }
    EXPECT_TRUE(onDisk() == before);
}

} // namespace
} // namespace korvel
