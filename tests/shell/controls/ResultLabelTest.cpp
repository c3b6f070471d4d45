// SPDX-License-Identifier: MIT
#include "shell/controls/ResultLabel.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFontDatabase>
#include <QImage>
#include <QTest>

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
            label.reserve("0000LT");
            label.setText("0622LT");
            const long inRoom = inkOf(label);
            label.setFixedWidth(2 * label.width());
            const long whole = inkOf(label);
            EXPECT_GE(inRoom, whole - whole / 100) << family.toStdString() << " " << points;
        }
    }
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

TEST(ResultLabel, keepsItsRoom)
{
    QWidget window;
    ResultLabel label(&window);
    label.reserve("000");
    const int room = label.width();
    label.showReserved("1");
    EXPECT_EQ(label.width(), room);
    label.showReserved("123456");
    EXPECT_EQ(label.width(), label.fontMetrics().horizontalAdvance("123456"));
    label.showReserved(QString(200, '1'));
    EXPECT_EQ(label.width(), label.fontMetrics().horizontalAdvance(QString(60, '1')));
    label.setEliding();
    label.setText("all of a long text");
    EXPECT_EQ(label.toolTip(), "all of a long text");
}

} // namespace
} // namespace korvel
