// SPDX-License-Identifier: MIT
#include "forms/frmSky/frmSky.h"

#include "forms/frmSky/pages/SkyDisc.h"
#include "tests/shell/PaintedTexts.h"
#include "tests/shell/Pixels.h"
#include "tests/shell/ShellTesting.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QHelpEvent>
#include <QLabel>
#include <QTest>
#include <QToolTip>

#include <algorithm>
#include <cmath>
#include <set>

namespace korvel
{
namespace
{

using namespace korvel::testing;
using ::testing::HasSubstr;

class frmSkyTest : public WindowTest
{
protected:
    /// The ship in the North Pacific, typed from box to box.
    frmSky& openWithShip()
    {
        auto& window = open<frmSky>();
        type(window, "txtSky(0)", "2026/11/22 12:00\r35.123\r142.031\r75\r14.5\r22\r\r9\r");
        return window;
    }
    static QAbstractItemModel& rowsOf(const QWidget& window, const char* table)
    {
        return *dynamic_cast<QAbstractItemView&>(control(window, table)).model();
    }
    static QPoint placeOf(const SkyDisc& disc, double altitude, double bearing)
    {
        const double radius = (90 - altitude) / 90, turn = bearing * 3.14159265 / 180;
        return disc.toPixel(radius * std::sin(turn), radius * std::cos(turn)).toPoint();
    }
    static int roundOf(const QWidget& window)
    {
        const auto& rows = rowsOf(window, "tblStars");
        int marked = 0;
        for (int row = 0; row < rows.rowCount(); ++row)
            marked += rows.index(row, 0).data().toString().contains("●");
        return marked;
    }
};

// An evening's plan by the keys alone: ship, day, round, sights, unknown body.
TEST_F(frmSkyTest, anEveningIsPlannedByKeys)
{
    auto& window = openWithShip();
    EXPECT_EQ(text(window, "lblSky(1)"), "16:44 – 17:14");
    EXPECT_EQ(text(window, "lblShips(4)"), "16:18") << "sunset";
    EXPECT_EQ(focused(), "txtSky(7)");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown, Qt::ControlModifier);
    EXPECT_EQ(text(window, "txtSky(7)"), "2026/11/23");
    EXPECT_EQ(text(window, "lblSky(3)"), "Mon 2026/11/23, TD +9");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageUp, Qt::ControlModifier);
    click(window, "cmdDay(1)");
    EXPECT_EQ(text(window, "txtSky(7)"), "2026/11/23");
    click(window, "cmdDay(0)");
    EXPECT_EQ(text(window, "txtSky(7)"), "2026/11/22");

    QTest::keyClick(QApplication::focusWidget(), Qt::Key_S, Qt::AltModifier);
    EXPECT_TRUE(QTest::qWaitFor([] { return focused() == "txtSky(8)"; }, 1000));
    EXPECT_EQ(text(window, "lblStars(0)"), "16:59");
    EXPECT_EQ(roundOf(window), 5);
    type(window, "txtSky(8)", "17:05");
    EXPECT_EQ(text(window, "lblStars(0)"), "17:05");
    type(window, "txtSky(8)", "27:05");
    EXPECT_EQ(text(window, "lblStars(0)"), "");
    EXPECT_EQ(roundOf(window), 0);
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("Minute of the stars"));
    type(window, "txtSky(8)", "\b");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
    ASSERT_EQ(program().plannedSights().size(), 5u);
    EXPECT_EQ(program().plannedSights()[0].body, "Polaris");
}

TEST_F(frmSkyTest, discAndTableChooseTheSameBody)
{
    auto& window = openWithShip();
    click(window, "cmdPage(1)");
    auto& disc = dynamic_cast<SkyDisc&>(control(window, "picSky"));
    auto& table = dynamic_cast<QAbstractItemView&>(control(window, "tblStars"));
    disc.setFocus();
    QTest::keyClick(&disc, Qt::Key_Right);
    EXPECT_EQ(table.currentIndex().row(), 0) << "Polaris, a degree east of north";
    QTest::keyClick(&disc, Qt::Key_Left);
    QTest::keyClick(&disc, Qt::Key_Left);
    const int west = table.currentIndex().row();
    EXPECT_GT(west, 4);
    // A press on a star: Mirfak bears 047, 28 high, Polaris 001, 35 high.
    QTest::mouseClick(&disc, Qt::LeftButton, {}, placeOf(disc, 35, 1));
    EXPECT_EQ(table.currentIndex().row(), 0);
    const QPoint at = placeOf(disc, 28.16, 46.8);
    QTest::mouseClick(&disc, Qt::LeftButton, {}, at);
    EXPECT_EQ(table.currentIndex().row(), 1);
    // Once round by the keys, clockwise from the north, and on from the last to the first.
    const auto azimuthOf = [&](int row) {
        return rowsOf(window, "tblStars").index(row, 4).data().toString().toDouble();
    };
    const int bodies = rowsOf(window, "tblStars").rowCount();
    std::set<int> rows;
    for (int step = 0; step < bodies; ++step) {
        const double before = azimuthOf(table.currentIndex().row());
        QTest::keyClick(&disc, step % 2 ? Qt::Key_Right : Qt::Key_Down);
        const double now = azimuthOf(table.currentIndex().row());
        EXPECT_TRUE(now >= before || before > 300) << before << " " << now;
        rows.insert(table.currentIndex().row());
    }
    EXPECT_EQ(rows.size(), std::size_t(bodies)) << "each once";
    const int last = table.currentIndex().row();
    QTest::keyClick(&disc, Qt::Key_Home); // no key of the disc
    EXPECT_EQ(table.currentIndex().row(), last);
    QTest::keyClick(&disc, Qt::Key_Up);
    EXPECT_LE(azimuthOf(table.currentIndex().row()), azimuthOf(last));
    QTest::keyClick(&disc, Qt::Key_Right);
    EXPECT_EQ(table.currentIndex().row(), last);
    // With the head up the same star stands elsewhere.
    click(window, "optUp(1)");
    QTest::mouseClick(&disc, Qt::LeftButton, {}, at);
    EXPECT_NE(table.currentIndex().row(), 1);
}

// What is drawn stands where the sky has it: the round in its colour, the Sun below the western
// horizon on its rim, the ship's head on hers.
TEST_F(frmSkyTest, discShowsTheSkyNorthOrHeadUp)
{
    auto& window = openWithShip();
    click(window, "cmdPage(1)");
    auto& disc = dynamic_cast<SkyDisc&>(control(window, "picSky"));
    const ColourScheme& colours = program().colours();
    const auto isDrawn = [&](double altitude, double bearing, const QColor& colour) {
        const QPoint at = placeOf(disc, altitude, bearing);
        const int reach = colour == colours.equator ? 4 : 2; // the Sun's ring is a thin one
        return coloursOf(onScreen(disc),
                         QRect(at - QPoint(reach, reach), QSize(2 * reach + 1, 2 * reach + 1)))
            .contains(colour.rgb());
    };
    for (const bool isHeadUp : {false, true}) {
        click(window, isHeadUp ? "optUp(1)" : "optUp(0)");
        const double up = isHeadUp ? 75 : 0;
        EXPECT_TRUE(isDrawn(28.16, 46.8 - up, colours.route)) << "Mirfak, of the round";
        EXPECT_TRUE(isDrawn(35.9, 0.8 - up, colours.route)) << "Polaris";
        EXPECT_TRUE(isHeadUp || isDrawn(0, 248.6, colours.equator)) << "the Sun";
        EXPECT_FALSE(isDrawn(0, 68.6 - up, colours.equator));
        EXPECT_TRUE(isDrawn(3, 75 - up, colours.secondary)) << "the ship's head";
        EXPECT_FALSE(isDrawn(3, 255 - up, colours.secondary));
        PaintedTexts sheet(disc.size());
        disc.render(&sheet);
        const double line = disc.fontMetrics().height();
        const QPointF zenith = disc.toPixel(0, 0);
        const double horizon = disc.toPixel(1, 0).x() - zenith.x();
        int words = 0, ticks = 0, longTicks = 0;
        for (const PaintedText& each : sheet.texts()) {
            const QPointF middle = each.at + QPointF(each.width, -0.7 * line) / 2;
            const auto isNear = [&](double altitude, double bearing) {
                return QLineF(placeOf(disc, altitude, bearing - up), middle).length();
            };
            const auto point = QString("NESW").indexOf(each.text);
            const int bearing = point < 0 ? each.text.toInt() : 90 * static_cast<int>(point);
            words += (bearing > 0 || point == 0) && isNear(-6.5, bearing) < 0.4 * line;
            EXPECT_TRUE(each.text != "Mirfak" || isNear(28.16, 46.8) < 3 * line);
        }
        EXPECT_EQ(words, 12);
        for (const QLineF& each : sheet.lines()) {
            const double out = QLineF(zenith, each.p2()).length() - horizon;
            const double deep = each.length() / horizon * 90;
            ticks += std::abs(out) < 1 && std::abs(deep - 1.5) < 0.1;
            longTicks += std::abs(out) < 1 && std::abs(deep - 3) < 0.1;
        }
        EXPECT_EQ(ticks, 24);
        EXPECT_EQ(longTicks, 12);
    }
    // By midnight the Sun is too far below the horizon to light any of it.
    type(window, "txtSky(8)", "23:30");
    for (int bearing = 0; bearing < 360; bearing += 5)
        EXPECT_FALSE(isDrawn(0, bearing, colours.equator)) << bearing;
    // What the disc tells beside the pointer: the body, and none between them.
    type(window, "txtSky(8)", "");
    click(window, "optUp(0)");
    const auto tipAt = [&](double altitude, double bearing) {
        const QPoint at = placeOf(disc, altitude, bearing);
        QHelpEvent hover(QEvent::ToolTip, at, disc.mapToGlobal(at));
        QApplication::sendEvent(&disc, &hover);
        return QToolTip::text().toStdString();
    };
    EXPECT_THAT(tipAt(28.16, 46.8), ::testing::MatchesRegex("Mirfak  28°.*  046.8"));
    tipAt(-30, 45); // in the corner
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
}

TEST_F(frmSkyTest, buttonsFollowWhatThereIs)
{
    auto& window = open<frmSky>();
    click(window, "cmdPage(1)");
    EXPECT_FALSE(control(window, "cmdSend").isEnabled());
    EXPECT_EQ(rowsOf(window, "tblStars").rowCount() + rowsOf(window, "tblUnknown").rowCount(), 0);
    QTest::keyClick(&window, Qt::Key_F6);
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("There is no round yet."));
    QTest::keyClick(&control(window, "picSky"), Qt::Key_Right); // there is none to go to
    type(window, "txtSky(0)", "2026/11/22 12:00\r35.123\r142.031\r");
    click(window, "cmdPage(1)");
    EXPECT_TRUE(control(window, "cmdSend").isEnabled());
    const int stars = rowsOf(window, "tblStars").rowCount();
    EXPECT_GT(stars, 10);
    type(window, "txtSky(8)", "5:00");
    EXPECT_NE(rowsOf(window, "tblStars").rowCount(), 2 * stars) << "added to those before";
    click(window, "cmdSend");
    EXPECT_EQ(program().plannedSights().size(), 5U);
    // The present time goes into the box of the page that is shown.
    click(window, "cmdPage(2)");
    QTest::keyClick(&window, Qt::Key_F5);
    EXPECT_EQ(text(window, "txtSky(9)"), "2005/03/14 09:45:00");
    EXPECT_EQ(focused(), "txtSky(10)");
    click(window, "cmdPage(0)");
    click(window, "cmdNow");
    EXPECT_EQ(text(window, "txtSky(0)"), "2005/03/14 09:45");
    EXPECT_EQ(focused(), "txtSky(1)");
    const auto labels = window.findChildren<QLabel*>(); // behind course and bearing, index error
    EXPECT_EQ(std::ranges::count(labels, QString("° true"), &QLabel::text), 2);
    EXPECT_EQ(std::ranges::count(labels, QString("′, on the arc +"), &QLabel::text), 1);
    // Without a day the next one is that after the ship's today.
    type(window, "txtSky(1)", "");
    type(window, "txtSky(7)", "");
    click(window, "cmdDay(1)");
    EXPECT_EQ(text(window, "txtSky(7)"), "2005/03/15");
}

TEST_F(frmSkyTest, recordBringsBoxesAndChoicesBack)
{
    {
        auto& window = openWithShip();
        click(window, "cmdPage(1)");
        click(window, "optCount(2)");
        click(window, "optTwilight(0)");
        close(window);
    }
    EXPECT_THAT(fileText("KV_Sky.ini"), HasSubstr("txtSky(1)=35.123\n"));
    auto& window = open<frmSky>();
    EXPECT_EQ(text(window, "lblSky(0)"), "05:22 – 05:52");
    EXPECT_EQ(text(window, "lblStars(0)"), "05:37");
    EXPECT_EQ(roundOf(window), 7);
    close(window);
    // A damaged one is named, and what can be read of it is taken.
    writeFile("KV_Sky.ini", "KORVEL2000 twilight and stars 1\nnonsense\ntxtSky(1)=35\nup=99\n");
    questions.willAnswer(Answer::Ok);
    auto& again = open<frmSky>();
    EXPECT_EQ(text(again, "txtSky(1)"), "35");
    EXPECT_TRUE(static_cast<QAbstractButton&>(control(again, "optUp(0)")).isChecked());
}

TEST_F(frmSkyTest, unknownBodyAndAlmanac)
{
    auto& window = open<frmSky>();
    type(window, "txtSky(0)", "1981/1/14 15:22:28\r-27.185\r67.18\r\r\r\r\r0\r");
    click(window, "cmdPage(2)");
    type(window, "txtSky(9)", "15:22:28\r29.35\r29");
    EXPECT_EQ(text(window, "lblUnknown(0)"), "Elnath");
    EXPECT_EQ(rowsOf(window, "tblUnknown").rowCount(), 3);

    click(window, "cmdPage(3)");
    EXPECT_FALSE(control(window, "txtAlmanac").property("plainText").toString().isEmpty());
    type(window, "txtSky(12)", "2101/1/1");
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("1950 to 2100"));
    EXPECT_FALSE(control(window, "cmdSaveAlmanac").isEnabled());
    type(window, "txtSky(12)", "2026/11/22");
    const QString page = control(window, "txtAlmanac").property("plainText").toString();
    EXPECT_TRUE(page.startsWith("2026 November 22, 23, 24"));
    EXPECT_TRUE(page.contains("Not an official almanac"));
    // What a page complains of is not said on the others.
    click(window, "cmdPage(0)");
    type(window, "txtSky(1)", "95");
    EXPECT_THAT(window.notice().toStdString(), HasSubstr("Latitude"));
    click(window, "cmdPage(3)");
    EXPECT_EQ(window.notice(), "");
    questions.willType(folder.filePath("pages.pdf").toStdString());
    click(window, "cmdSaveAlmanac");
    EXPECT_THAT(fileText("pages.pdf"), ::testing::StartsWith("%PDF"));
}

} // namespace
} // namespace korvel
