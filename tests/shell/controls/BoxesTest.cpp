// SPDX-License-Identifier: MIT
#include "shell/controls/MeantFigure.h"
#include "shell/controls/NoticeLine.h"
#include "shell/controls/PictureBox.h"
#include "shell/controls/PositionBox.h"
#include "tests/shell/PaintedTexts.h"
#include "tests/shell/ShellTesting.h"

#include <gmock/gmock.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDialog>
#include <QMenu>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

namespace korvel
{
namespace
{

using korvel::testing::Paints;

/// Two boxes of a window that is in front.
class BoxesTest : public ::testing::Test
{
protected:
    BoxesTest()
    {
        auto* column = new QVBoxLayout(&window);
        for (QWidget* each : std::initializer_list<QWidget*>{&box, &other, &held})
            column->addWidget(each);
        box.setNext(&other);
        other.setNext(&other);
        window.show();
        window.activateWindow();
        EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
        other.setFocus(Qt::TabFocusReason);
        box.setText("142.305");
    }
    static void lose(QWidget& widget, Qt::FocusReason reason)
    {
        QFocusEvent event(QEvent::FocusOut, reason);
        QApplication::sendEvent(&widget, &event);
    }
    static void gain(QWidget& widget, Qt::FocusReason reason)
    {
        QFocusEvent event(QEvent::FocusIn, reason);
        QApplication::sendEvent(&widget, &event);
    }

    QWidget window;
    EntryBox box, other;
    KeyUpBox held;
};

TEST_F(BoxesTest, theBeginningIsSeenAndAllIsSelected)
{
    EXPECT_EQ(box.cursorPosition(), 0) << "142 is not to be read as 42";
    QTest::mouseClick(&box, Qt::LeftButton);
    EXPECT_EQ(box.selectedText(), "142.305");
    QTest::mouseClick(&box, Qt::LeftButton, {}, QPoint(box.width() - 5, box.height() / 2));
    EXPECT_FALSE(box.hasSelectedText()) << "the second click places the cursor";
    EXPECT_EQ(box.cursorPosition(), 7);
    int left = 0, entered = 0;
    box.onLeave = [&] { ++left; };
    box.onEnter = [&] { ++entered; };
    lose(box, Qt::PopupFocusReason);
    lose(box, Qt::ActiveWindowFocusReason);
    EXPECT_EQ(box.cursorPosition(), 7) << "a look into a menu or another program";
    EXPECT_EQ(left, 0);
    QTest::keyClick(&box, Qt::Key_Enter);
    EXPECT_EQ(entered, 1);
    EXPECT_EQ(left, 1);
    EXPECT_EQ(box.cursorPosition(), 0);
    EXPECT_TRUE(other.hasFocus());
    other.setText("7");
    QTest::keyClick(&other, Qt::Key_Return);
    EXPECT_EQ(other.selectedText(), "7") << "its own next";
    QTest::mousePress(&box, Qt::LeftButton);
    QTest::keyClick(&box, Qt::Key_End);
    QTest::mouseRelease(&box, Qt::LeftButton);
    EXPECT_FALSE(box.hasSelectedText()) << "a key in between";
}

TEST_F(BoxesTest, aBoxThatTakesTheKeysInTheMiddleOfANumber)
{
    box.setFocus(Qt::TabFocusReason);
    QTest::keyClicks(&box, "35");
    {
        QDialog alarm;
        alarm.setModal(true);
        alarm.show();
        lose(box, Qt::ActiveWindowFocusReason);
    }
    gain(box, Qt::ActiveWindowFocusReason);
    EXPECT_FALSE(box.hasSelectedText()) << "the next digit would replace those before it";
    gain(box, Qt::PopupFocusReason);
    EXPECT_FALSE(box.hasSelectedText());
    gain(box, Qt::ActiveWindowFocusReason);
    EXPECT_EQ(box.selectedText(), "35") << "that was once";
}

TEST_F(BoxesTest, noControlCharacterGetsIn)
{
    box.setFocus(Qt::TabFocusReason);
    box.clear();
    box.insert(QString("3\x01\t5\n") + QChar(0x2028) + "\x7f");
    EXPECT_EQ(box.text(), "3 5  ");
    EXPECT_EQ(box.cursorPosition(), 5);
    // A joiner between letters is a part of the word; elsewhere nobody sees it, as no mark of
    // direction is seen.
    const QString joiner(QChar(0x200C)), letter(QChar(0x0645)), vowel(QChar(0x064E));
    const std::pair<QString, QString> rows[] = {
        {letter + joiner + letter, letter + joiner + letter},
        {letter + vowel + joiner + letter, letter + vowel + joiner + letter},
        {joiner + letter, letter},
        {letter + joiner, letter},
        {"3" + joiner + "5", "35"},
        {letter + joiner + "5", letter + "5"},
        {"5" + joiner + letter, "5" + letter},
        {letter + QChar(0x200F) + letter, letter + letter},
        {"35" + QString(QChar(0x2212)) + "1", "35" + QString(QChar(0x2212)) + "1"}};
    for (const auto& [typed, kept] : rows) {
        box.clear();
        box.insert(typed);
        EXPECT_EQ(box.text(), kept) << typed.toStdString();
        EXPECT_EQ(box.cursorPosition(), kept.size());
    }
}

TEST_F(BoxesTest, aKeyCountsWhenItIsReleased)
{
    std::vector<std::string> seen;
    held.onKeyUp = [&] { seen.push_back(held.value()); };
    held.setFocus(Qt::TabFocusReason);
    QTest::keyPress(&held, Qt::Key_1);
    EXPECT_THAT(seen, ::testing::IsEmpty());
    QTest::keyRelease(&held, Qt::Key_1);
    QTest::keyClick(&held, Qt::Key_Shift);
    held.setText("12");
    held.fill("a result of its own");
    QTest::keyPress(&held, Qt::Key_2);
    lose(held, Qt::TabFocusReason);
    EXPECT_THAT(seen, ::testing::ElementsAre("1", "12", "a result of its own2"));
    held.fill(QString(80, '9'));
    EXPECT_EQ(held.text().size(), 80);
    held.fill("1");
    held.setText(QString(80, '9'));
    EXPECT_EQ(held.text().size(), EntryBox::longestFigure);
}

TEST_F(BoxesTest, theFootTellsWhatABoxTakes)
{
    Paints paints;
    NoticeLine foot;
    foot.setParent(&window);
    foot.resize(300, 40);
    foot.show();
    QTest::qWait(20);
    foot.installEventFilter(&paints);
    box.setAccessibleName("Latitude");
    box.setLimits("-90 to 90");
    box.setFocus(Qt::TabFocusReason);
    QTest::qWait(20);
    EXPECT_EQ(foot.hint(), "Latitude; -90 to 90");
    EXPECT_GT(paints.seen, 0);
    other.setFocus(Qt::TabFocusReason);
    EXPECT_TRUE(foot.hint().startsWith("Latitude")) << "a box without a name";
    foot.say("b", "second");
    foot.say("a", "first");
    EXPECT_EQ(foot.text(), "first  second");
    EXPECT_EQ(foot.toolTip(), "first  second");
    EXPECT_EQ(foot.firstSaid(), "first");
    foot.say("a", {});
    EXPECT_EQ(foot.text(), "second");
    EXPECT_EQ(foot.sizeHint().height(), 2 * foot.fontMetrics().lineSpacing()) << "two lines";
}

/// Two boxes that take the word from each other; a calculation that says it too.
TEST_F(BoxesTest, eachBoxThatWasReadInPartIsNamedOnce)
{
    NoticeLine foot;
    box.setObjectName("txtOne");
    box.declare("Latitude", {});
    other.setObjectName("txtOther");
    other.declare("Speed", {});
    for (EntryBox* each : {&box, &other}) {
        each->setReading({.name = {}, .low = 0, .high = 90});
        each->setText("1,5");
        foot.sayHalfRead(*each, each->halfRead());
    }
    const std::string part = "only 1 was read, write 1.5";
    EXPECT_EQ(foot.text().toStdString(), "Latitude: " + part + "  Speed: " + part);
    EXPECT_EQ(foot.accessibleDescription(), "Fault  F4 writes it.");
    foot.say("Dead reckoning", QString::fromStdString("Departure: " + part));
    EXPECT_EQ(foot.text().toStdString(), "Departure: " + part);
    EXPECT_EQ(foot.level(), NoticeLevel::Fault);
    foot.say("Dead reckoning", {});
    other.setText("91,5");
    EXPECT_FALSE(other.halfRead()) << "beyond its limits all of it is refused";
    foot.sayHalfRead(other, other.halfRead());
    EXPECT_EQ(foot.text().toStdString(), "Latitude: " + part);
    foot.resize(900, foot.height());
    korvel::testing::PaintedTexts sheet(foot.size());
    foot.render(&sheet);
    EXPECT_THAT(sheet.rows().at(0), ::testing::EndsWith(part + "  F4 writes it."));
}

/// A figure on a page that nobody sees written instead of the one that is complained of.
TEST_F(BoxesTest, theKeyWritesWhatIsSeenAndWasReadInPart)
{
    for (EntryBox* each : {&box, &other}) {
        each->setReading({.name = {}, .low = 0, .high = 200});
        each->setText("1,5");
    }
    held.setFocus(Qt::TabFocusReason);
    box.hide();
    writeMeantFigure(window);
    EXPECT_EQ(box.text(), "1,5");
    EXPECT_EQ(other.text(), "1.5");
    EXPECT_TRUE(other.hasFocus());
    EXPECT_EQ(other.selectedText(), "1.5");
    writeMeantFigure(window); // nothing is left that is seen
    EXPECT_EQ(box.text(), "1,5");
    box.show();
    box.setEnabled(false);
    writeMeantFigure(window);
    EXPECT_EQ(box.text(), "1,5");
    box.setEnabled(true);
    other.setText("2,5");
    other.setFocus(Qt::TabFocusReason);
    writeMeantFigure(window);
    EXPECT_EQ(other.text(), "2.5") << "the box in hand before the others";
    EXPECT_EQ(box.text(), "1,5");
}

/// The figures of a conversion are copied with the unit of their box.
TEST_F(BoxesTest, aBoxThatShowsAResultIsCopiedInFull)
{
    held.setResultUnit("nm");
    held.setText("12.5");
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&held, &asked);
    auto* menu = held.findChild<QMenu*>();
    ASSERT_TRUE(menu);
    menu->actions().back()->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(), "12.5 nm");
}

/// A half-read position south or west; a degree beyond the pole or the date line read in part.
TEST(PositionBox, readsWithinItsAxis)
{
    QWidget window;
    PositionBox latitude(Axis::Latitude, &window), longitude(Axis::Longitude, &window);
    const struct {
        PositionBox& box;
        const char* typed;
        bool isHalfRead;
    } rows[] = {{latitude, "-89 12.4", true},    {latitude, "89 12.4", true},
                {latitude, "-90,5", true},       {latitude, "-91 12.4", false},
                {latitude, "91 12.4", false},    {latitude, "-179 12.4", false},
                {longitude, "-179 12.4", true},  {longitude, "179 12.4", true},
                {longitude, "-181 12.4", false}, {longitude, "181 12.4", false},
                {latitude, "35.124", false}};
    for (const auto& [box, typed, isHalfRead] : rows) {
        box.setText(typed);
        EXPECT_EQ(box.halfRead().has_value(), isHalfRead) << typed;
    }
}

TEST(PositionBox, aPairIsPastedAndCopiedAsOne)
{
    QWidget window;
    PositionBox latitude(Axis::Latitude, &window), longitude(Axis::Longitude, &window);
    latitude.pasteText("35-30.5N 139-45.2E");
    EXPECT_EQ(latitude.text(), "35.305");
    EXPECT_EQ(longitude.text(), "") << "no pair yet";
    PositionBox::pair(&latitude, &longitude);
    for (PositionBox* each : {&latitude, &longitude}) {
        latitude.clear();
        longitude.clear();
        each->pasteText(" 35-30.5N 139-45.2E. ");
        EXPECT_EQ(latitude.text(), "35.305");
        EXPECT_EQ(longitude.text(), "139.452");
        EXPECT_EQ(static_cast<ResultLabel*>(each->echo())->copyText(),
                  QString::fromUtf8("35°30.5'N 139°45.2'E"));
    }
    latitude.declare("Departure latitude");
    EXPECT_EQ(static_cast<ResultLabel*>(latitude.echo())->wordsInFull(), "Departure latitude");
    latitude.setText("x");
    EXPECT_EQ(static_cast<ResultLabel*>(longitude.echo())->copyText(),
              QString::fromUtf8("139°45.2'E"));
    // How a text was taken is said as long as it stands there.
    latitude.pasteText("35.5083");
    const QString taken = latitude.fullEcho();
    EXPECT_NE(taken.indexOf(", "), -1) << taken.toStdString();
    const QString packed = latitude.text();
    latitude.setText("1");
    EXPECT_EQ(latitude.fullEcho(), QString::fromUtf8("01°00.0' N"));
    latitude.setText(packed);
    EXPECT_EQ(latitude.fullEcho(), taken);
    latitude.pasteText("35-30.5N");
    EXPECT_EQ(latitude.fullEcho(), QString::fromUtf8("35°30.5' N"));
}

struct Picture : PictureBox {
    void draw(QPainter&) override
    {
        onPaper = isOnPaper() ? plotArea() : QRectF();
        drawnIn = colours().ink;
    }
    using PictureBox::lineHeight;
    QRectF onPaper;
    QColor drawnIn;
};

/// Results that are not there, and labels that are none, told of a picture.
TEST(PictureBox, tellsTheResultsThatAreSeen)
{
    QWidget window;
    auto* picture = new Picture;
    picture->setParent(&window);
    for (const auto& [name, text, isSeen] : {std::tuple("Speed", "12", true),
                                             {"", "kn", true},
                                             {"Course", "", true},
                                             {"Drift", "3", false},
                                             {"Set", "045", true}}) {
        auto* label = new ResultLabel(&window);
        label->setAccessibleName(name);
        label->setText(text);
        label->setVisible(isSeen);
    }
    window.show();
    const auto* told = QAccessible::queryAccessibleInterface(picture);
    EXPECT_EQ(told->text(QAccessible::Description), "Speed: 12; Set: 045");
    for (int i = 0; i < 12; ++i) {
        auto* label = new ResultLabel(&window);
        label->setAccessibleName("More");
        label->setText("1");
        label->show();
    }
    EXPECT_EQ(told->text(QAccessible::Description).count(": "), 12) << "nobody listens longer";
    picture->setAccessibleName("Speeds");
    EXPECT_EQ(told->text(QAccessible::Name), "Speeds");
    picture->setAccessibleDescription("A circle");
    EXPECT_EQ(told->text(QAccessible::Description), "A circle");
}

TEST(PictureBox, countsInItsUserScale)
{
    Picture picture;
    picture.resize(220, 130);
    picture.setPlotMargins({10, 20, 10, 10});
    picture.setUserScale({-50, 100, 50, 0});
    EXPECT_EQ(picture.plotArea(), QRectF(10, 20, 200, 100));
    EXPECT_EQ(picture.toPixel(-50, 100), QPointF(10, 20));
    EXPECT_EQ(picture.toPixel(25, 75), QPointF(160, 45));
    EXPECT_EQ(picture.toUser({160, 45}), QPointF(25, 75));
    QSignalSpy pressed(&picture, &PictureBox::pressed), pointed(&picture, &PictureBox::pointed);
    QSignalSpy released(&picture, &PictureBox::released), left(&picture, &PictureBox::left);
    QTest::mousePress(&picture, Qt::LeftButton, {}, QPoint(160, 45));
    EXPECT_EQ(pressed.value(0).value(0), QPointF(25, 75));
    QTest::mouseMove(&picture, QPoint(110, 70));
    QTest::mouseRelease(&picture, Qt::LeftButton, {}, QPoint(10, 20));
    EXPECT_EQ(released.value(0).value(0), QPointF(-50, 100));
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&picture, &leave);
    EXPECT_EQ(left.count(), 1);
    QImage paper(400, 300, QImage::Format_RGB32);
    QPainter painter(&paper);
    picture.setColours(ColourScheme::night(0));
    picture.drawOn(painter, paper.size(), ColourScheme::day());
    EXPECT_EQ(picture.onPaper, QRectF(10, 20, 380, 270));
    EXPECT_EQ(picture.drawnIn, ColourScheme::day().ink);
    picture.grab();
    EXPECT_EQ(picture.drawnIn, ColourScheme::night(0).ink);
    EXPECT_EQ(picture.plotArea(), QRectF(10, 20, 200, 100)) << "on the screen as before";
    QFont larger = picture.font();
    larger.setPointSizeF(2 * larger.pointSizeF());
    picture.setFont(larger);
    EXPECT_EQ(picture.lineHeight(), QFontMetricsF(larger).height());
}

} // namespace
} // namespace korvel
