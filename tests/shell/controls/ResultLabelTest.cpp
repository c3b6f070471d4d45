// SPDX-License-Identifier: MIT
#include "shell/controls/ResultLabels.h"
#include "shell/layout/FigureText.h"
#include "shell/layout/WrappedText.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QFontDatabase>
#include <QHelpEvent>
#include <QImage>
#include <QMenu>
#include <QPainter>
#include <QTest>
#include <QToolTip>

namespace korvel
{
namespace
{

/// Darkness of all that a label paints.
long inkOf(QWidget& label)
{
    const QImage picture = label.grab().toImage().convertToFormat(QImage::Format_Grayscale8);
    long ink = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x)
            ink += 255 - qGray(picture.pixel(x, y));
    return ink;
}

TEST(ResultLabel, itsRoomHoldsEveryStroke)
{
    for (const QString& family : QFontDatabase::families(QFontDatabase::Latin)) {
        for (const double points : {9.0, 10.8, 14.0, 21.6}) {
            ResultLabel label;
            QFont font = label.font();
            font.setFamily(family);
            font.setPointSizeF(points);
            label.setFont(font);
            label.setAlignment(Qt::AlignRight | Qt::AlignVCenter);
            label.setStyleSheet("background: white; color: black");
            label.setRoom("0000LT");
            label.resize(label.sizeHint());
            label.setText("0622LT");
            const long inRoom = inkOf(label);
            label.resize(2 * label.width(), label.height());
            const long whole = inkOf(label);
            EXPECT_GE(inRoom, whole - whole / 100) << family.toStdString() << " " << points;
        }
    }
}

TEST(ResultLabel, aTipTellsWhatIsCutAndWhatWasGiven)
{
    ResultLabel label;
    label.setText("73.6");
    label.show();
    const auto tip = [&](const char* own, int width) {
        QToolTip::hideText();
        label.setToolTip(own);
        label.resize(width, label.sizeHint().height());
        QHelpEvent asked(QEvent::ToolTip, QPoint(), QPoint());
        QApplication::sendEvent(&label, &asked);
        return QToolTip::isVisible() ? QToolTip::text().toStdString() : "";
    };
    EXPECT_EQ(tip("", 200), "");
    EXPECT_EQ(tip("", 8), "73.6");
    EXPECT_EQ(tip("by the log", 200), "by the log");
    EXPECT_EQ(tip("by the log", 8), "73.6\nby the log");
    const int wide = label.fontMetrics().horizontalAdvance(label.text());
    for (const int missing : {1, 2}) {
        label.resize(wide - missing, label.height());
        EXPECT_EQ(label.isCut(), missing == 2) << "a layout shares pixels out";
    }
    label.setRoom("00", 2);
    EXPECT_TRUE(label.wordWrap());
}

/// A label as it stands on a screen where only what changes is painted.
class OnScreen
{
public:
    explicit OnScreen(ResultLabel& label)
        : m_label(label), m_screen(label.size(), QImage::Format_RGB32)
    {
        paint(label.rect());
    }

    void show(const QString& text) { paint(m_label.changeText(text)); }
    const QImage& picture() const { return m_screen; }

private:
    void paint(const QRect& part)
    {
        if (part.isEmpty()) return;
        QPainter painter(&m_screen);
        painter.fillRect(part, Qt::white);
        m_label.render(&painter, part.topLeft(), part, QWidget::RenderFlags());
    }

    ResultLabel& m_label;
    QImage m_screen;
};

TEST(ResultLabel, paintsWhatChangesAndLeavesNothingBehind)
{
    for (const QString& family : QFontDatabase::families(QFontDatabase::Latin)) {
        for (const Qt::Alignment side : {Qt::AlignLeft, Qt::AlignHCenter, Qt::AlignRight}) {
            ResultLabel label;
            QFont letters(family, 13);
            letters.setItalic(side == Qt::AlignHCenter); // as of a result that is dimmed
            label.setFont(letters);
            label.setAlignment(side | Qt::AlignVCenter);
            label.resize(110, 24);
            OnScreen screen(label);
            for (const char* const text : {"104.4",
                                           "104.6",
                                           "1104.6",
                                           "104.6",
                                           "-104.6",
                                           "99.9",
                                           "100.0",
                                           "7.1",
                                           "7\u00b0.1",
                                           "",
                                           "W",
                                           "fj Wf",
                                           "j.f'W",
                                           "0 \u6771",
                                           "0 \u5317",
                                           "12",
                                           "no room for all of this",
                                           "no room for all of that",
                                           "1\n2",
                                           "1",
                                           "-1"}) {
                screen.show(text);
                ResultLabel anew;
                anew.setFont(label.font());
                anew.setAlignment(label.alignment());
                anew.resize(label.size());
                anew.setText(text);
                EXPECT_TRUE(screen.picture() == OnScreen(anew).picture())
                    << family.toStdString() << " " << text;
            }
        }
    }
    ResultLabel label;
    label.resize(300, 24);
    label.setText("1234567890123456");
    EXPECT_LT(label.changeText("1234567890123457").width(), 60) << "one figure of many";
    EXPECT_LT(label.changeText("9234567890123457").width(), 60) << "the first of them";
    EXPECT_TRUE(label.changeText("9234567890123457").isEmpty()) << "the same once more";
}

TEST(ResultLabel, takesTheFocusWhileItShowsSomething)
{
    QWidget window;
    ResultLabel label(&window);
    EXPECT_EQ(label.focusPolicy(), Qt::NoFocus);
    label.setText("12.5");
    EXPECT_EQ(label.focusPolicy(), Qt::TabFocus);
    QFocusEvent byTab(QEvent::FocusIn, Qt::TabFocusReason);
    QApplication::sendEvent(&label, &byTab);
    EXPECT_EQ(label.selectedText(), "12.5");
    QApplication::clipboard()->clear();
    QTest::keyClick(&label, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "12.5");
    label.copyText = [] { return QString("in full"); };
    QTest::keyClick(&label, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "in full");
    label.setSelection(0, 2);
    QTest::keyClick(&label, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QApplication::clipboard()->text(), "12");
    QFocusEvent intoMenu(QEvent::FocusOut, Qt::PopupFocusReason);
    QApplication::sendEvent(&label, &intoMenu);
    EXPECT_EQ(label.focusPolicy(), Qt::StrongFocus) << "the selection stays";
    QFocusEvent away(QEvent::FocusOut, Qt::TabFocusReason);
    QApplication::sendEvent(&label, &away);
    EXPECT_EQ(label.focusPolicy(), Qt::TabFocus);
    label.setText("");
    EXPECT_EQ(label.focusPolicy(), Qt::NoFocus) << "nothing to stop at";
    label.passByTab();
    label.setText("12.5");
    EXPECT_EQ(label.focusPolicy(), Qt::NoFocus);
}

TEST(ResultLabel, copiesInFullWhatItIsAndItsUnit)
{
    ResultLabel label;
    label.declare("Row 1, course to the next fix", "degrees true");
    EXPECT_EQ(label.accessibleName(), "Row 1, course to the next fix, degrees true");
    label.setText("<073.6>");
    QContextMenuEvent asked(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QApplication::sendEvent(&label, &asked);
    auto* menu = label.findChild<QMenu*>();
    ASSERT_TRUE(menu);
    EXPECT_EQ(menu->actions().size(), 3) << "nothing is selected";
    for (QAction* entry : menu->actions())
        if (entry->text() == "Copy in &full") entry->trigger();
    EXPECT_EQ(QApplication::clipboard()->text(),
              "Row 1, course to the next fix 073.6 degrees true");
}

TEST(ResultLabels, aTextThatIsNotThereLeavesTheLabelAnEmptyOneBlanksIt)
{
    struct Shown {
        std::string speed;
        std::optional<std::string> kept;
        std::array<std::string, 2> both;
    };
    constexpr std::array<Result<Shown>, 3> table = {{
        {"lblSpeed", "Speed", "knots", Weight::Answer, &Shown::speed},
        {"lblKept", "Kept", "", Weight::Figure, &Shown::kept, "What is kept"},
        {"lblSecond", "", "", Weight::Remark, textAt<&Shown::both, 1>, "Second"},
    }};
    QWidget window;
    const ResultLabels<Shown> labels(table, &window);
    EXPECT_EQ(labels[0]->accessibleName(), "Speed, knots");
    EXPECT_EQ(labels[0]->weight(), Weight::Answer);
    EXPECT_EQ(labels[1]->accessibleName(), "What is kept");
    const auto texts = [&] {
        return QStringList({labels[0]->text(), labels[1]->text(), labels[2]->text()});
    };
    labels.show({"12.5", "9", {"a", "b"}});
    EXPECT_EQ(texts(), QStringList({"12.5", "9", "b"}));
    labels.show({"", {}, {"c", ""}});
    EXPECT_EQ(texts(), QStringList({"", "9", ""}));
}

TEST(ResultLabel, whatItSaysEntersItsSizeInNoWayAndWhatDoesNotFitIsNotSilent)
{
    struct Case {
        const char* text;
        bool isCut[3]; ///< in one line, in two, in three
    };
    const Case cases[] = {
        {"", {false, false, false}},
        {"35.27", {false, false, false}},
        {"the first and the second", {true, false, false}},
        {"the first and\nthe second", {true, false, false}},
        {"the first and the second and the", {true, false, false}},
        {"one\ntwo\nthree", {true, true, false}},
        {"the first and the second and the third and the rest", {true, true, true}},
        {"aWordLongerThanTheLine", {true, false, false}},
    };
    for (const auto& [text, isCut] : cases)
        for (int lines = 1; lines <= 3; ++lines) {
            ResultLabel label;
            label.setRoom("the first and the", lines);
            label.setWordWrap(true);
            const QSize room = label.sizeHint();
            label.resize(room);
            label.setText(text);
            EXPECT_EQ(label.sizeHint(), room) << text;
            EXPECT_FALSE(label.hasHeightForWidth());
            EXPECT_EQ(label.isCut(), isCut[lines - 1]) << text << " in " << lines;
            const ShownLines shown = shownLines(text, label.font(), room);
            EXPECT_LE(shown.lines.size(), lines) << text;
            EXPECT_EQ(shown.isWhole, !shown.lines.join("").contains(QChar(0x2026))) << text;
            for (const QString& line : shown.lines)
                EXPECT_LE(label.fontMetrics().horizontalAdvance(line), room.width())
                    << line.toStdString();
        }
}

} // namespace
} // namespace korvel
