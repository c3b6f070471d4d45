// SPDX-License-Identifier: MIT
#include "forms/conversion/ConversionWindow.h"

#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QClipboard>
#include <QKeyEvent>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;

class frmConversionTest : public WindowTest
{
protected:
    static std::string box(const char* array, int index)
    {
        return memberName(array, index).toStdString();
    }
};

TEST_F(frmConversionTest, calculatesWhenTheKeyIsReleased)
{
    auto& window = open<frmLength>();
    auto& miles = control(window, "txtLength(2)");
    miles.setFocus();
    QTest::keyPress(&miles, '1');
    EXPECT_EQ(text(window, "txtLength(0)"), "");
    QTest::keyRelease(&miles, '1');
    EXPECT_EQ(text(window, "txtLength(0)"), "1852");

    // A key that changes nothing must not turn shown digits into input: a third of a mile in
    // metres, cut to seven digits, is no longer a third of a mile.
    type(window, "txtLength(2)", "0.333333333");
    auto& metres = control(window, "txtLength(0)");
    metres.setFocus();
    QTest::keyClick(&metres, Qt::Key_Right);
    EXPECT_EQ(text(window, "txtLength(2)"), "0.333333333");
    QTest::keyPress(&metres, '9');
    control(window, "txtLength(1)").setFocus();
    EXPECT_NE(text(window, "txtLength(2)"), "0.333333333") << "released in the next box";
}

TEST_F(frmConversionTest, recalledAndPastedNumbersCountWithoutAKey)
{
    auto& window = open<frmPressure>();
    type(window, "txtPressure(0)", "1013.25");
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuMemo(4)");
    EXPECT_NEAR(program().saved().singleMemo(), 101325 / 133.322387415, 1e-9)
        << "in full, not as shown";
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuRem(4)");
    EXPECT_EQ(text(window, "txtPressure(0)"), "1013.25");

    QApplication::clipboard()->setText("2");
    static_cast<QLineEdit&>(control(window, "txtPressure(3)")).selectAll();
    static_cast<QLineEdit&>(control(window, "txtPressure(3)")).paste();
    EXPECT_EQ(text(window, "txtPressure(0)"), "2026.5");
    choose(window, "mnuData(0)");
    EXPECT_EQ(text(window, "txtPressure(0)"), "");
}

TEST_F(frmConversionTest, badInputBlanksAndIsNamed)
{
    auto& window = open<frmWeight>();
    type(window, "txtWeight(0)", "1,234");
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("only 1 was read, write 1234 or 1.234"));
    type(window, "txtWeight(0)", "abc");
    EXPECT_EQ(text(window, "txtWeight(1)"), "");
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("no number"));
    type(window, "txtWeight(3)", std::string(309, '9'));
    EXPECT_EQ(text(window, "txtWeight(3)").size(), 40) << "a box takes what a figure needs";
    EXPECT_GT(text(window, "txtWeight(0)").size(), 40) << "a result is never cut";
}

/// Every window, through its file: the box typed in leads again.
TEST_F(frmConversionTest, settingsOutliveTheWindows)
{
    const auto lasts = [this](auto& window, const char* array, const char* file, int typed,
                              const std::string& figure, int other, const std::string& shown) {
        SCOPED_TRACE(file);
        type(window, box(array, typed), figure);
        EXPECT_EQ(text(window, box(array, other)), shown);
        type(window, box(array, typed), "0" + figure);
        close(window);
        EXPECT_THAT(fileText(file), HasSubstr("\"0" + figure + "\"\r\n"));
        EXPECT_THAT(fileText(file), HasSubstr("\"\r\n" + std::to_string(typed) + "\r\n"));
    };
    lasts(open<frmArea>(), "txtArea", "KV_Area.ini", 2, "1", 7, "2.471054");
    lasts(open<frmLength>(), "txtLength", "KV_Length.ini", 6, "10", 7, "60");
    lasts(open<frmVolume>(), "txtVolume", "KV_Volume.ini", 4, "1", 1, "158.9873");
    lasts(open<frmPressure>(), "txtPressure", "KV_Pressure.ini", 3, "1", 0, "1013.25");
    lasts(open<frmWeight>(), "txtWeight", "KV_Weight.ini", 2, "1", 0, "1016.047");
    auto& window = open<frmVolume>();
    EXPECT_EQ(text(window, "txtVolume(4)"), "01");
    EXPECT_EQ(text(window, "txtVolume(1)"), "158.9873");
    EXPECT_EQ(focused(), "txtVolume(4)");
    EXPECT_THAT(control(window, "txtVolume(4)").toolTip().toStdString(),
                HasSubstr("42 US gallons"));
}

} // namespace
} // namespace korvel
