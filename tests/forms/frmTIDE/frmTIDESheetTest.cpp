// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/frmTIDE.h"

#include "forms/frmTIDE/data/TideData.h"
#include "forms/frmTIDE/pages/frmTIDEPage.h"
#include "forms/frmTIDE/sheet/DayLabels.h"
#include "forms/frmTIDE/sheet/frmTIDEPicture.h"
#include "shell/layout/TypeScale.h"
#include "shell/screen/ColourScheme.h"
#include "tests/forms/frmTIDE/TideFolder.h"
#include "tests/forms/frmTIDE/TideWindow.h"
#include "tests/shell/Pixels.h"
#include "tests/shell/ShellTesting.h"

#include <QApplication>
#include <QDir>
#include <QImage>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPicture>
#include <QProgressBar>
#include <QScrollArea>
#include <QTableWidget>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <set>
#include <string>

namespace korvel
{
namespace
{

using namespace korvel::testing;

class frmTIDESheetTest : public TideWindowTest
{
};

/// Where the parts of an array stand, from the left and from the top, in the window.
QPoint placeOf(const QWidget& window, const std::string& name)
{
    return control(window, name).mapTo(&window, QPoint());
}

TEST_F(frmTIDESheetTest, whatBelongsTogetherStandsTogether)
{
    auto& window = open<frmTIDE>();
    click(window, "cmdDetails");
    setDate(window, "2003/7/15");
    choose(window, yokohama);
    QApplication::processEvents();
    const auto middle = [&](const std::string& name) {
        return placeOf(window, name).y() + control(window, name).height() / 2;
    };
    const auto byAll = [&](int i) {
        return placeOf(window, "lblWaterAll(" + std::to_string(i) + ")");
    };
    for (int i = 0; i < 4; ++i) {
        EXPECT_EQ(byAll(i).y(), byAll(i + 4).y()) << "two columns of four";
        EXPECT_LT(byAll(i).x(), byAll(i + 4).x());
        if (i == 0) continue;
        EXPECT_LT(byAll(i - 1).y(), byAll(i).y());
        EXPECT_EQ(byAll(i - 1).x(), byAll(i).x());
    }
    const int half = control(window, "txtAtTime").height() / 2;
    EXPECT_NEAR(middle("lblHeightAt"), middle("txtAtTime"), half);
    EXPECT_NEAR(middle("lblTimesOf"), middle("txtAtHeight"), half);
    EXPECT_GT(middle("lblHeightAtAll"), middle("lblHeightAt"));
    EXPECT_LT(middle("lblHeightAtAll"), middle("lblTimesOf"));
    EXPECT_GT(middle("lblTimesOfAll"), middle("lblTimesOf"));
    EXPECT_NEAR(middle("lblTD"), middle("lblPlace"), half);
    EXPECT_GT(placeOf(window, "lblTD").x(), placeOf(window, "lblDate").x());
    EXPECT_LT(placeOf(window, "txtFind").x(), placeOf(window, "lblPlace").x());

    // Each caption leads to its box, and says what is asked of a tide or a stream.
    for (const char* words :
         {"Hei&ght at", "Fro&m a height of", "Height then", "m", "High and low water"})
        EXPECT_TRUE(hasLabel(window, words)) << words;
    choose(window, brothersStream);
    QApplication::processEvents();
    for (const char* words : {"&Rate at", "Fro&m a rate of", "Rate then", "kn", "Flood and ebb"})
        EXPECT_TRUE(hasLabel(window, words)) << words;
    std::set<std::string> led;
    for (const QLabel* label : window.findChildren<QLabel*>())
        if (label->buddy())
            led.insert(label->text().toStdString() + ": " +
                       label->buddy()->objectName().toStdString());
    for (const char* each :
         {"&Rate at: txtAtTime", "Fro&m a rate of: txtAtHeight", "&Find: txtFind"})
        EXPECT_EQ(led.count(each), 1u) << each;
}

TEST_F(frmTIDESheetTest, theNextWatersOfTodayAreTheAnswers)
{
    auto& window = open<frmTIDE>(); // on 2005/3/14
    choose(window, yokohama);
    const auto large = [&] {
        std::string names;
        const QFont answer = lettersOf(Weight::Answer);
        for (int i = 0; i < 4; ++i) {
            const QWidget& water = control(window, "lblWater(" + std::to_string(i) + ")");
            if (water.isVisible() && water.font() == answer) names += std::to_string(i) + " ";
        }
        return names;
    };
    setDate(window, "2003/7/15");
    EXPECT_EQ(large(), "0 1 2 ") << "no one of them is the next";
    click(window, "cmdToday");
    EXPECT_EQ(text(window, "lblDate"), "2005/03/14");
    const double now = 9.75; // 09:45 by the clock, which keeps the station's zone time
    std::string next;
    std::set<std::string> kinds;
    for (int i = 0; i < 4; ++i) {
        const std::string water = text(window, "lblWater(" + std::to_string(i) + ")");
        const std::size_t colon = water.find(':');
        if (colon == water.npos) continue;
        const double at =
            std::stoi(water.substr(colon - 2)) + std::stoi(water.substr(colon + 1)) / 60.0;
        const std::string kind = water.substr(0, water.find(' ')); // High or Low
        if (at < now || !kinds.insert(kind).second) continue;
        next += std::to_string(i) + " ";
    }
    EXPECT_EQ(large(), next);
}

/// Whether anything but the background stands in a part of a picture.
bool isInked(const QImage& image, const QRect& part)
{
    return coloursOf(image, part & image.rect()).size() > 1;
}

TEST_F(frmTIDESheetTest, aWaterIsWrittenFromEdgeToEdge)
{
    const auto imageOf = [this](ResultLabel& label) {
        label.setAutoFillBackground(true);
        label.resize(label.sizeHint());
        return label.grab().toImage();
    };
    const QFontMetrics small(lettersOf(Weight::Remark));
    const int letter = small.averageCharWidth();
    WaterLabel water(nullptr);
    water.dress(Weight::Answer, 4);
    water.setText("Least flood 12:34   ~-0.50 kn");
    const QImage image = imageOf(water);
    const int high = image.height(), name = small.horizontalAdvance("Least flood") + letter;
    EXPECT_TRUE(isInked(image, {0, 0, letter, high})) << "the name";
    EXPECT_FALSE(isInked(image, {name - letter + 1, 0, letter - 2, high}));
    EXPECT_TRUE(isInked(image, {name, 0, 2 * letter, high})) << "the time";
    EXPECT_TRUE(isInked(image, {image.width() - letter, 0, letter, high})) << "the unit";
    water.setText("High 04:12   3.50 m");
    const QImage tide = imageOf(water);
    EXPECT_TRUE(isInked(tide, {0, 0, letter, high}));
    const int behindName = small.horizontalAdvance("High") + 2;
    EXPECT_FALSE(isInked(tide, {behindName, 0, name - behindName - 1, high})) << "the name alone";
    EXPECT_TRUE(isInked(tide, {name, 0, 2 * letter, high}));
    // Many waters are written smaller, so that all of them have room.
    const auto lettersAfter = [&water](Weight weight, std::size_t waters) {
        water.dress(weight, waters);
        return water.font().pointSizeF() + water.font().pixelSize();
    };
    const double ofFour = lettersAfter(Weight::Answer, 4), ofFive = lettersAfter(Weight::Answer, 5);
    const double ofSix = lettersAfter(Weight::Answer, 6), ofSeven = lettersAfter(Weight::Answer, 7);
    EXPECT_GT(ofFour, ofFive);
    EXPECT_EQ(ofFive, ofSix);
    EXPECT_GT(ofSix, ofSeven);
    EXPECT_EQ(water.foregroundRole(), accentRole);
    EXPECT_EQ(lettersAfter(Weight::Figure, 7), ofSeven);
    EXPECT_EQ(water.foregroundRole(), QPalette::WindowText);
    EXPECT_GE(WaterLabel::roomOfDay(), 8 * small.lineSpacing());

    NowLabel now(nullptr);
    now.setFont(lettersOf(Weight::Answer));
    now.setText("Now 2003/07/15 03:00   3.30 m rising   all constituents 3.28 m rising");
    const QImage three = imageOf(now);
    const int line = small.lineSpacing();
    EXPECT_TRUE(isInked(three, {0, 0, letter, line})) << "when";
    EXPECT_TRUE(isInked(three, {0, line + 2, letter, three.height() - 2 * line - 4})) << "what";
    EXPECT_TRUE(isInked(three, {0, three.height() - line + 2, letter, line - 2})) << "by all";
    EXPECT_TRUE(isInked(three, {3 * letter, three.height() - line + 2, letter, line - 2}));
}

/// Whether a line of a colour goes through a place of a picture.
bool isDrawnAt(const QImage& image, QPointF place, const QColor& colour)
{
    return strokesAbout(image, place, 1, colour, ColourScheme::day().paper) > 0;
}

TEST_F(frmTIDESheetTest, thePictureHasEachLineWhereItsFiguresSay)
{
    const StationList list(TideFolder::shipped());
    const FullConstants constants(TideFolder::shipped());
    const StationDays station(TideFolder::shipped(), TideKind::Tide, "Kobe", list, constants);
    const TideDayShown day = station.day(37817);
    const auto all = day.all->halfHourly();
    frmTIDEPicture picture;
    const ColourScheme colours = ColourScheme::day();
    picture.setColours(colours);
    picture.resize(1000, 700);
    picture.show();
    picture.showPrediction(day.four, all);
    const double low = picture.userScale().bottom, level = 1.1; // off the grid
    picture.mark({NavFunc113::Hours(4.3)}, level);
    const QImage image = picture.grab().toImage();
    const auto at = [&](double hour, double height, const QColor& colour) {
        return isDrawnAt(image, picture.toPixel(hour, height), colour);
    };
    for (std::size_t i = 1; i + 1 < all.size(); ++i)
        EXPECT_TRUE(at(static_cast<double>(i) / 2, day.four.values[i], colours.curve)) << i;
    // The thin line where it is well off the thick one.
    int seen = 0, apart = 0;
    for (std::size_t i = 1; i + 1 < all.size(); ++i) {
        if (std::fabs(all[i] - day.four.values[i]) < 0.05) continue;
        ++apart;
        seen += at(static_cast<double>(i) / 2, all[i], colours.marker);
    }
    EXPECT_GT(apart, 5);
    EXPECT_GE(seen, apart * 3 / 4) << "of " << apart;
    const auto alongLevel = [&](double height, const QColor& colour) {
        int drawn = 0;
        for (double hour = 0.2; hour < 20; hour += 0.05)
            drawn += at(hour, height, colour);
        return drawn;
    };
    EXPECT_GT(alongLevel(level, colours.marker), 150) << "the level that is asked for";
    EXPECT_GT(alongLevel(0, colours.datum), 300);
    EXPECT_LT(alongLevel(0.5, colours.datum), 60) << "where the curves cross";
    // Levels beyond the scale are not drawn over the hours below it.
    const double below = picture.toUser(QPointF(0, picture.height() - 4)).y();
    ASSERT_LT(below, low);
    picture.mark({}, below);
    const QImage without = picture.grab().toImage();
    int marked = 0;
    for (double hour = 0.2; hour < 20; hour += 0.05)
        marked += isDrawnAt(without, picture.toPixel(hour, below), colours.marker);
    EXPECT_EQ(marked, 0);
    // The mark is a ring about its place on the curve.
    const QPointF mark = picture.toPixel(4.3, day.four.at(NavFunc113::Hours(4.3)));
    const double radius = picture.fontMetrics().height() / 4.0;
    for (const QPointF side : {QPointF(radius, 0), QPointF(-radius, 0)}) {
        EXPECT_TRUE(isDrawnAt(image, mark + side, colours.marker));
        EXPECT_FALSE(isDrawnAt(without, mark + side, colours.marker));
    }
}

TEST_F(frmTIDESheetTest, theCurveStaysAndKeepsItsHeightAtTwiceTheSize)
{
    auto& window = open<frmTIDE>();
    setDate(window, "2003/7/15");
    const auto& picture = control(window, "picTIDE");
    const auto& area = *window.findChild<QScrollArea*>();
    const auto expectStill = [&] {
        choose(window, yokohama);
        QApplication::processEvents();
        const QRect before(picture.mapTo(area.widget(), QPoint()), picture.size());
        for (const char* station : {portDickson, brothersStream}) {
            choose(window, station); // with estimates; with directions and more waters
            QApplication::processEvents();
            EXPECT_EQ(QRect(picture.mapTo(area.widget(), QPoint()), picture.size()), before)
                << station;
        }
        return before.height();
    };
    expectStill();
    while (program().screen().choices().zoom < 200)
        program().screen().zoom(1);
    window.resize(1362, 730); // of a screen of 1366 x 768
    QApplication::processEvents();
    EXPECT_GE(expectStill(), 240);
}

TEST_F(frmTIDESheetTest, answersAreReadWholeAtTheFirstSize)
{
    auto& window = open<frmTIDE>();
    click(window, "cmdDetails");
    setDate(window, "2003/7/15");
    choose(window, yokohama);
    type(window, "txtAtTime", "5:30");
    type(window, "txtAtHeight", "1");
    QApplication::processEvents(); // the layout follows the answers
    for (const char* name : {"lblRange", "lblHeightAt", "lblHeightAtAll", "lblTimesOf",
                             "lblTimesOfAll", "lblWaterAll(0)"}) {
        const auto& label = static_cast<const QLabel&>(control(window, name));
        EXPECT_GT(label.text().size(), 5) << name;
        EXPECT_GE(label.width(), label.fontMetrics().horizontalAdvance(label.text())) << name;
        EXPECT_GE(label.height(), label.fontMetrics().height()) << name;
    }
}

} // namespace
} // namespace korvel
