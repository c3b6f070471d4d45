// SPDX-License-Identifier: MIT
#include "forms/frmSunMoon/frmSunMoon.h"

#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QClipboard>
#include <QScrollBar>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::StartsWith;

/// Counts what is written to the disk.
class CountingFiles : public ProgramFolder
{
public:
    using ProgramFolder::ProgramFolder;
    std::optional<std::string> save(const std::string& name, const std::string& bytes) override
    {
        ++saves;
        return ProgramFolder::save(name, bytes);
    }
    int saves = 0;
};

class frmSunMoonTest : public WindowTest
{
protected:
    static std::string box(const char* array, int row)
    {
        return memberName(array, row).toStdString();
    }
    static void fillRow(const QWidget& window, int row, const std::string& place,
                        const std::string& TD, const std::string& latitude,
                        const std::string& longitude)
    {
        whileTyping(window, box("txtLocation", row),
                    place + "\r" + TD + "\r" + latitude + "\r" + longitude + "\r", "txtSunMoon");
    }
    /// What a row shows, blanks included.
    static std::vector<std::string> shown(const QWidget& window, int row)
    {
        std::vector<std::string> texts;
        for (const char* label : {"lblSunRiseTime", "lblSunRiseAz", "lblSunSetTime", "lblSunSetAz",
                                  "lblMoonRiseTime", "lblMoonSetTime"})
            texts.push_back(text(window, box(label, row)));
        return texts;
    }
    static std::string oneRow(const std::string& fields)
    {
        std::string record = fields;
        for (int i = 4; i < 64; ++i)
            record += "\"\"\r\n";
        return record;
    }
    static constexpr const char* tokyo = "\"Tokyo\"\r\n\"9\"\r\n\"35.393\"\r\n\"139.447\"\r\n";
};

TEST_F(frmSunMoonTest, rowsFollowEveryKeyAndEnterLeadsToTheNextPlace)
{
    auto& window = open<frmSunMoon>();
    EXPECT_EQ(text(window, "txtSunMoon"), "2005/3/14") << "the fake clock keeps JST, TD is 9";
    type(window, "txtSunMoon", "2024/6/21");
    fillRow(window, 0, "Tokyo", "9", "35.393", "139.447");
    EXPECT_EQ(focused(), "txtLocation(1)");
    EXPECT_THAT(shown(window, 0),
                ElementsAre("0425LT", "<060.7>", "1900LT", "<299.3>", "1834LT", "0305LT"));
    EXPECT_THAT(shown(window, 1), ElementsAre("", "", "", "", "", "")) << "an empty row is blank";
    EXPECT_THAT(whileTyping(window, "txtLatitude(0)", "63.01\b\b", "lblSunRiseAz(0)"),
                ElementsAre("<066.4>", "<028.8>", "<028.8>", "<028.8>", "", "<028.8>", "<028.8>"))
        << "cos A = sin d / cos l with d = 23 26";
    fillRow(window, 15, "", "", "", "");
    EXPECT_EQ(focused(), "txtLocation(0)") << "Enter wraps";
}

TEST_F(frmSunMoonTest, theDateBarAndToday)
{
    auto& window = open<frmSunMoon>();
    auto& bar = static_cast<QScrollBar&>(control(window, "scrMoonSun"));
    type(window, "txtSunMoon", "05/04/13");
    EXPECT_EQ(bar.value(), 0) << "only when the date is left";
    whileTyping(window, "txtSunMoon", "05/04/13\r", "txtSunMoon");
    EXPECT_EQ(bar.value(), 30);
    QTest::keyClick(&bar, Qt::Key_Right);
    EXPECT_EQ(text(window, "txtSunMoon"), "2005/4/14");
    const std::string age = text(window, "lblMoonAge");
    whileTyping(window, "txtSunMoon", "2005/4/\r", "txtSunMoon");
    EXPECT_EQ(bar.value(), 31);
    EXPECT_EQ(text(window, "lblMoonAge"), age) << "left as it was";
    EXPECT_THAT(text(window, "lblNotice"), StartsWith("The date cannot be read"));

    // 22:00 of the day before in UTC, and ship's time is behind it still.
    clock.time = 38425.0 + 7.0 / 24;
    program().saved().setTD(-9.5F);
    fillRow(window, 1, "Busan", "9", "35.06", "129.02");
    click(window, "cmdToday");
    EXPECT_EQ(text(window, "txtSunMoon"), "2005/3/13") << "the ship's date, not the computer's";
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(text(window, "txtLocation(0)"), "Today");
    EXPECT_EQ(text(window, "txtTD(0)"), "-9.5");
    EXPECT_EQ(text(window, "txtLocation(1)"), "Busan");
    EXPECT_EQ(focused(), "txtLatitude(0)");
}

TEST_F(frmSunMoonTest, doubtsAreSaidByRowAndEvent)
{
    auto& window = open<frmSunMoon>();
    type(window, "txtSunMoon", "2024/6/21");
    fillRow(window, 0, "Bergen", "1", "60.235", "5.193");
    EXPECT_EQ(text(window, "lblNotice"), "Bergen: moonrise refined 2320LT");
    EXPECT_THAT(control(window, "lblMoonRiseTime(0)").toolTip().toStdString(), HasSubstr("2320LT"));
    type(window, "txtLatitude(0)", "");
    EXPECT_EQ(text(window, "lblNotice"), "Bergen: latitude: empty");
}

TEST_F(frmSunMoonTest, oneSaveForOneAction)
{
    CountingFiles counting(folder.path());
    frmKORVEL2000 main({questions, clock, counting, bell}, {});
    std::string record;
    for (int i = 0; i < frmSunMoon::rows; ++i)
        record += tokyo;
    writeFile("KV_SunMoon.ini", record);
    frmSunMoon window(main.program());
    window.setAttribute(Qt::WA_DeleteOnClose, false);
    QApplication::processEvents();
    EXPECT_LE(counting.saves, 1);
    EXPECT_EQ(fileText("KV_SunMoon.ini"), record) << "read whole before anything is written";
    counting.saves = 0;
    static_cast<QScrollBar&>(control(window, "scrMoonSun")).setValue(5);
    QApplication::processEvents();
    EXPECT_EQ(counting.saves, 0) << "the date is no part of the record";
    QApplication::clipboard()->setText("12°30.0'S 030°15.0'W");
    static_cast<PositionBox&>(control(window, "txtLatitude(7)"))
        .pasteText(QApplication::clipboard()->text());
    QApplication::processEvents();
    EXPECT_EQ(counting.saves, 1) << "a pair fills two boxes";
    EXPECT_THAT(fileText("KV_SunMoon.ini"), HasSubstr("\"-12.300\"\r\n\"-30.150\""));
}

TEST_F(frmSunMoonTest, memoriesGoToTheRowInFocus)
{
    writeFile("KV_SunMoon.ini", oneRow(tokyo));
    auto& window = open<frmSunMoon>();
    control(window, "txtTD(0)").setFocus();
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuSUNMOON(0)");
    EXPECT_DOUBLE_EQ(program().saved().memoLongitude().packed(), 139.447);
    control(window, "txtTD(5)").setFocus();
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuSUNMOON(3)");
    EXPECT_EQ(text(window, "txtLatitude(5)"), "35.393");
    EXPECT_EQ(text(window, "txtLongitude(5)"), "139.447");
    EXPECT_EQ(text(window, "echo txtLatitude(5)"), "35°39.3' N");
    control(window, "txtTD(0)").setFocus();
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuSUNMOON(1)");
    EXPECT_NEAR(program().saved().singleMemo(), 92.9, 2) << "about east at the equinox";
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuAC(0)");
    EXPECT_EQ(questions.asked.back(), "Are you sure to clear all contents?");
    EXPECT_THAT(shown(window, 5), ElementsAre("", "", "", "", "", ""));
    close(window);
    EXPECT_EQ(fileText("KV_SunMoon.ini"), oneRow("\"\"\r\n\"\"\r\n\"\"\r\n\"\"\r\n"));
}

TEST_F(frmSunMoonTest, aDamagedFileIsKeptAside)
{
    writeFile("KV_SunMoon.ini", tokyo);
    questions.willAnswer(Answer::Ok);
    auto& window = open<frmSunMoon>();
    fillRow(window, 0, "Busan", "9", "35.06", "129.02");
    QApplication::processEvents();
    close(window);
    EXPECT_EQ(fileText("KV_SunMoon damaged 2005-03-14 0945.ini"), tokyo);
}

} // namespace
} // namespace korvel
