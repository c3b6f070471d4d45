// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/frmTIDE.h"

#include "forms/frmTIDE/sheet/DayLabels.h"
#include "shell/layout/TypeScale.h"
#include "tests/forms/frmTIDE/TideWindow.h"
#include "tests/shell/PaintedTexts.h"

#include <QApplication>
#include <QLabel>
#include <QScreen>
#include <QScrollArea>

#include <set>
#include <string>
#include <tuple>

namespace korvel
{
namespace
{

using namespace korvel::testing;

class frmTIDESheetTest : public TideWindowTest
{
};

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

TEST_F(frmTIDESheetTest, aDayOfManyWatersHasSmallerOnes)
{
    WaterLabel label(nullptr);
    const auto lettersOfOne = [&](std::size_t waters) {
        label.dress(Weight::Figure, waters);
        return label.font();
    };
    EXPECT_EQ(lettersOfOne(6), lettersOf(Weight::Figure));
    EXPECT_NE(lettersOfOne(7), lettersOf(Weight::Figure));
}

// A part that is selected to be copied is seen, in the text as it is copied; all of it in its
// places.
TEST_F(frmTIDESheetTest, whatIsSelectedOfALabelIsSeen)
{
    WaterLabel water(nullptr);
    NowLabel now(nullptr);
    const std::tuple<ResultLabel*, const char*, const char*> labels[] = {
        {&water, "High water 04:57   1.87 m", "High water|04:57|1.87| m|"},
        {&now, "Now, 09:45   1.23 m falling   springs", "Now, 09:45|1.23| m falling|springs|"}};
    for (const auto& [label, words, pieces] : labels) {
        label->setText(words);
        label->setTextInteractionFlags(Qt::TextSelectableByKeyboard);
        label->resize(label->sizeHint());
        const auto painted = [each = label] {
            PaintedTexts sheet(each->size());
            each->render(&sheet);
            std::string all;
            for (const PaintedText& text : sheet.texts())
                all += text.text.toStdString() + "|";
            return all;
        };
        EXPECT_EQ(painted(), pieces);
        label->setSelection(0, int(label->text().size()));
        EXPECT_EQ(painted(), pieces);
        label->setSelection(5, 3);
        EXPECT_NE(painted(), pieces);
        label->setText("");
        EXPECT_EQ(painted(), "");
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
    questions.willType("Yokohama");
    whileShown(window, "mnuStation(1)", "dlgCheck", [](QWidget& dialog) {
        EXPECT_LT(dialog.height(), dialog.screen()->availableSize().height()) << "27 lines of it";
    });
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
