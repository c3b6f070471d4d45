// SPDX-License-Identifier: MIT
#include "shell/controls/ResultLabel.h"

#include <gtest/gtest.h>

#include <QFontDatabase>
#include <QImage>

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

} // namespace
} // namespace korvel
