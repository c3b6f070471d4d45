// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/frmSunSight.h"

#include "forms/frmSunSight/SightPicture.h"
#include "tests/forms/frmSunSight/WorkedSights.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QListWidget>
#include <QMouseEvent>
#include <QRadioButton>
#include <QTest>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::AllOf;
using ::testing::HasSubstr;
using ::testing::Not;
using ::testing::StartsWith;

class frmSunSightTest : public WindowTest
{
protected:
    static std::string at(const char* array, int index)
    {
        return memberName(array, index).toStdString();
    }
    static void typeSight(const QWidget& window, const SightTexts& sight)
    {
        const std::string texts[] = {sight.date,       sight.time, sight.TD,
                                     sight.watchError, sight.Hs,   sight.indexError,
                                     sight.heightOfEye};
        for (int i = 0; i < 7; ++i)
            type(window, at("txtSunSight", i), texts[i]);
    }
    static void typeTrack(const QWidget& window, const TrackTexts& track)
    {
        type(window, "txtSunDR(0)", track.latitude);
        type(window, "txtSunDR(1)", track.longitude);
        type(window, "txtSunRun(0)", track.time);
        type(window, "txtSunRun(1)", track.course);
        type(window, "txtSunRun(2)", track.speed);
    }
    static void record(const QWidget& window, const SightTexts& sight)
    {
        typeSight(window, sight);
        click(window, "cmdRecord");
    }
    static QListWidget& list(const QWidget& window)
    {
        return static_cast<QListWidget&>(control(window, "lstSunSight"));
    }
    static const SightPlot& plot(const QWidget& window)
    {
        return static_cast<SightPicture&>(control(window, "picSunSight")).plot();
    }
};

TEST_F(frmSunSightTest, sunRunSunFromRawReadings)
{
    auto& window = open<frmSunSight>();
    typeTrack(window, worked::track2020);
    record(window, worked::morning2020);
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("two lines at least"));
    record(window, worked::noon2020);
    EXPECT_EQ(list(window).count(), 2);
    ASSERT_EQ(plot(window).lines.size(), 2U);
    EXPECT_EQ(plot(window).lines[0].label, "1145-1530") << "advanced for the run";

    // Published figures: 14 06.0N 052 25.8W, by two independent methods.
    questions.willAnswer(Answer::Yes);
    choose(window, "mnuMemo(0)");
    const NavFunc113::Position fix{NavFunc113::DegMinToDeg(program().saved().memoLatitude()),
                                   NavFunc113::DegMinToDeg(program().saved().memoLongitude())};
    EXPECT_LT(worked::milesBetween(fix, 14.060, -52.258), 0.5);
    EXPECT_THAT(text(window, "lblSunFix(2)"), StartsWith("R FIX 2020/12/17 15:30:00"));

    // Off: the fix goes, the sight stays.
    list(window).setCurrentRow(0);
    QTest::keyClick(&list(window), Qt::Key_Space);
    EXPECT_EQ(text(window, "lblSunFix(0)"), "");
    EXPECT_EQ(plot(window).lines.size(), 1U);
    EXPECT_THAT(list(window).item(0)->text().toStdString(), HasSubstr("off"));
    QTest::keyClick(&list(window), Qt::Key_Space);
    choose(window, "mnuSight(4)");
    EXPECT_EQ(text(window, "txtSunRun(0)"), "2020/12/17 15:30:00");
    EXPECT_NEAR(plot(window).fix->x, 0, 0.3) << "the fix is the new DR position";
}

TEST_F(frmSunSightTest, recordedSightsAreEditedDeletedAndKept)
{
    auto& window = open<frmSunSight>();
    record(window, worked::morning2020);
    EXPECT_THAT(fileText("KV_SunSight.ini"), HasSubstr("SIGHT;on;UTC;L;2020/12/17;11:45:11"))
        << "on the disk at once";
    questions.willAnswer(Answer::Ok);
    click(window, "cmdRecord");
    EXPECT_EQ(questions.asked.back(), "Recorded already!");
    record(window, worked::noon2020);
    type(window, "txtSunSight(4)", "9x");
    list(window).setCurrentRow(0);
    click(window, "cmdEdit");
    EXPECT_EQ(text(window, "txtSunSight(4)"), "24.350");
    type(window, "txtSunSight(4)", "24.360");
    click(window, "cmdRecord");
    EXPECT_EQ(list(window).count(), 2) << "put back, not added";
    EXPECT_THAT(list(window).item(0)->text().toStdString(), HasSubstr("Hs 24.-36'0"));
    type(window, "txtSunSight(4)", "");
    questions.willAnswer(Answer::Ok);
    QTest::keyClick(&window, Qt::Key_F6);
    EXPECT_THAT(questions.asked.back(), StartsWith("Not recorded"));
    questions.willAnswer(Answer::No);
    click(window, "cmdDelete");
    EXPECT_EQ(list(window).count(), 2);
    questions.willAnswer(Answer::Yes);
    click(window, "cmdDelete");
    EXPECT_EQ(list(window).count(), 1);
    close(window);
    EXPECT_EQ(list(open<frmSunSight>()).count(), 1);
}

TEST_F(frmSunSightTest, markFreezesTheSecondWhateverTheWatchKeeps)
{
    auto& window = open<frmSunSight>();
    clock.time = 38425.0 + 1.0 / 24 + 40.0 / 86400; // 2005-03-14 01:00:40 JST
    type(window, "txtSunSight(3)", "-75");
    QTest::keyClick(&window, Qt::Key_F5);
    EXPECT_EQ(text(window, "lblSunTime(0)"), "2005/03/13 16:00:40 UTC");
    EXPECT_EQ(text(window, "txtSunSight(1)"), "15:59:25") << "a watch 75 s slow shows less";
    EXPECT_EQ(text(window, "lblSunTime(2)"), "watch 75 s slow, added");
    EXPECT_EQ(focused(), "txtSunSight(4)") << "the altitude comes next";
    static_cast<QRadioButton&>(control(window, "optSunScale(1)")).click();
    type(window, "txtSunSight(2)", "9");
    click(window, "cmdMark");
    EXPECT_EQ(text(window, "txtSunSight(0)"), "2005/03/14");
}

TEST_F(frmSunSightTest, unusableInputsAreNamedAndTheRestIsShown)
{
    auto& window = open<frmSunSight>();
    typeTrack(window, worked::track2020);
    typeSight(window, worked::morning2020);
    EXPECT_EQ(text(window, "lblNotice"), "");
    type(window, "txtSunSight(9)", "10l3");
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("Pressure"));
    EXPECT_EQ(text(window, "lblSunLine(4)"), "") << "no intercept without pressure";
    EXPECT_NE(text(window, "lblSunLine(5)"), "") << "the azimuth does not need it";
    type(window, "txtSunSight(9)", "");
    EXPECT_EQ(text(window, "lblSunValue(9)"), "+0.0'") << "air - sea";
    EXPECT_NE(text(window, "lblSunNoon(0)"), "");
}

TEST_F(frmSunSightTest, thePointerReadsThePosition)
{
    auto& window = open<frmSunSight>();
    typeTrack(window, worked::track2020);
    auto& picture = static_cast<SightPicture&>(control(window, "picSunSight"));
    EXPECT_NEAR(picture.plotArea().width(), picture.plotArea().height(), 1) << "angles are true";
    const auto point = [&](QPointF pixel) {
        QMouseEvent move(QEvent::MouseMove, pixel, picture.mapToGlobal(pixel), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(&picture, &move);
    };
    point(picture.toPixel(0, 30));
    const std::string latitude = text(window, "lblSunCursor(0)");
    EXPECT_THAT(latitude, StartsWith("  14.-3")) << "30 miles north of 14 02 N";
    point({1, 1});
    EXPECT_EQ(text(window, "lblSunCursor(0)"), "");
}

TEST_F(frmSunSightTest, aDamagedFileLosesNoSight)
{
    {
        auto& window = open<frmSunSight>();
        record(window, worked::morning2020);
        record(window, worked::noon2020);
        close(window);
    }
    const std::string whole = fileText("KV_SunSight.ini");
    const std::string damaged = whole.substr(whole.find("SIGHT;") - 40, 200);
    writeFile("KV_SunSight.ini", damaged);
    questions.willAnswer(Answer::Ok);
    auto& window = open<frmSunSight>();
    EXPECT_EQ(list(window).count(), 2);
    EXPECT_THAT(text(window, "lblNotice"), HasSubstr("2 recorded sights"));
    EXPECT_EQ(fileText("KV_SunSight.ini"), damaged) << "looking changes nothing";
    record(window, worked::morning1990);
    EXPECT_EQ(fileText("KV_SunSight damaged 2005-03-14 0945.ini"), damaged);
    record(window, worked::noon1990);
    close(window);
    EXPECT_THAT(fileText("KV_SunSight.ini"),
                AllOf(HasSubstr("2020/12/17;11:45:11"), HasSubstr("2020/12/17;15:30:00"),
                      HasSubstr("1990/12/16;14:37:10")));
    EXPECT_THAT(fileText("KV_SunSight.ini"), Not(HasSubstr("off;")));
}

} // namespace
} // namespace korvel
