// SPDX-License-Identifier: MIT
// How controls, icons and sheets are drawn, by day and by night.
#include "shell/screen/ColourScheme.h"
#include "shell/screen/Looks.h"
#include "shell/screen/MessageIcon.h"
#include "shell/screen/NightTint.h"
#include "shell/screen/ScreenStyle.h"
#include "shell/screen/WidgetColours.h"
#include "tests/shell/Pixels.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QScrollBar>
#include <QSizeGrip>
#include <QStyleFactory>
#include <QStyleOption>
#include <QTest>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>
#include <memory>
#include <set>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

namespace korvel
{
namespace
{

using korvel::testing::contrast;
using korvel::testing::luminance;

std::vector<ColourScheme> allSchemes()
{
    return {ColourScheme::day(), ColourScheme::night(0), ColourScheme::night(1),
            ColourScheme::night(2)};
}

TEST(ColourScheme, luminancesAreThoseOfTheStandard)
{
    for (const char* name : {"#000000", "#ffffff", "#0a0a0a", "#0b0b0b", "#ff0000", "#00ff00",
                             "#0000ff", "#1f5f99", "#801020"}) {
        const QColor colour(name);
        EXPECT_NEAR(relativeLuminance(colour), luminance(colour.rgb()), 1e-6) << name;
    }
    for (const QColor& hue : {QColor(255, 144, 48), QColor(255, 74, 40), QColor(40, 90, 200)})
        for (const double wanted : {0.0008, 0.01, 0.05, 0.12}) {
            const QColor made = atLuminance(hue, wanted);
            EXPECT_NEAR(relativeLuminance(made), wanted, 1e-4) << hue.name().toStdString();
            // The same hue: each part the same share of the light.
            const double factor = wanted / relativeLuminance(hue);
            EXPECT_NEAR(luminance(qRgb(made.red(), 0, 0)),
                        factor * luminance(qRgb(hue.red(), 0, 0)), 0.005);
            EXPECT_NEAR(luminance(qRgb(0, 0, made.blue())),
                        factor * luminance(qRgb(0, 0, hue.blue())), 0.005);
        }
    EXPECT_EQ(atLuminance(QColor(255, 74, 40), 500), QColor(255, 255, 255)) << "no more than all";
    const double stray[] = {0.05, 0.05, 0.02, 0.005};
    for (std::size_t i = 0; i < allSchemes().size(); ++i)
        EXPECT_EQ(strayLight(allSchemes()[i].palette), stray[i]) << i;
}

QImage imageOf(int width, int height, const QColor& ground = Qt::transparent)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(ground);
    return image;
}

TEST(ColourScheme, everyColourIsOneByDayAndByNight)
{
    for (const ColourScheme& scheme : {ColourScheme::day(), ColourScheme::night(0)})
        for (const auto colour :
             {&ColourScheme::accent, &ColourScheme::clock, &ColourScheme::memo, &ColourScheme::unit,
              &ColourScheme::echo, &ColourScheme::done, &ColourScheme::notice, &ColourScheme::fault,
              &ColourScheme::dimmed, &ColourScheme::paper, &ColourScheme::ink, &ColourScheme::grid,
              &ColourScheme::equator, &ColourScheme::route, &ColourScheme::secondary,
              &ColourScheme::tertiary, &ColourScheme::marker, &ColourScheme::curve,
              &ColourScheme::datum})
            EXPECT_TRUE((scheme.*colour).isValid());
}

TEST(ScreenStyle, aGroupIsAsWideAsItsHeadInBoldLetters)
{
    QGroupBox group("Corrections of the sextant altitude");
    QFont bold = group.font();
    bold.setBold(true);
    EXPECT_NEAR(group.minimumSizeHint().width(),
                QFontMetrics(bold).horizontalAdvance(group.title()), 1);
}

TEST(ScreenStyle, sizesFollowTheZoom)
{
    ScreenStyle style;
    const int before = style.pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, nullptr);
    style.setZoom(200);
    EXPECT_EQ(style.pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, nullptr), 2 * before);
}

TEST(ScreenStyle, buttonsOfADialogHaveWordsAlone)
{
    const QDialogButtonBox box(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    for (const QAbstractButton* button : box.buttons())
        EXPECT_TRUE(button->icon().isNull()) << button->text().toStdString();
}

TEST(MessageIcon, aWarningIsNoQuestion)
{
    EXPECT_STREQ(messageSign(QStyle::SP_MessageBoxQuestion), "?");
    EXPECT_STREQ(messageSign(QStyle::SP_MessageBoxInformation), "i");
    EXPECT_STREQ(messageSign(QStyle::SP_MessageBoxWarning), "!");
    EXPECT_STREQ(messageSign(QStyle::SP_MessageBoxCritical), "!");
}

TEST(WidgetColours, aColourThatIsThereIsNotSetAgain)
{
    struct Counted : QLabel {
        int changes = 0;
        void changeEvent(QEvent* event) override
        {
            changes += event->type() == QEvent::PaletteChange;
        }
    } label;
    for (const QColor& colour : {QColor(Qt::red), QColor(Qt::red), QColor(Qt::blue)})
        setTextColour(&label, colour);
    EXPECT_EQ(label.changes, 2);
    EXPECT_EQ(label.palette().color(QPalette::WindowText), QColor(Qt::blue));
}

TEST(NightTint, aSheetStandsOffByNightAsByDay)
{
    for (int step = 0; step < 3; ++step) {
        const ColourScheme night = ColourScheme::night(step);
        QApplication::setPalette(night.palette);
        const double stray = strayLight(night.palette);
        QImage sheet = imageOf(256, 1);
        for (int grey = 0; grey < 256; ++grey)
            sheet.setPixelColor(grey, 0, QColor(grey, grey, grey));
        const QImage made = sheetAtNight(QPixmap::fromImage(sheet), night.palette).toImage();
        const QRgb ground = night.palette.color(QPalette::Base).rgb();
        EXPECT_EQ(made.pixel(255, 0), ground);
        const double most = luminance(night.palette.color(QPalette::WindowText).rgb());
        for (const int grey : {0, 40, 90, 140, 190, 230, 250}) {
            const double wanted = contrast(sheet.pixel(grey, 0), qRgb(255, 255, 255));
            const double seen = contrast(made.pixel(grey, 0), ground, stray);
            const double brightest = (most + stray) / (luminance(ground) + stray);
            EXPECT_NEAR(seen / std::min(wanted, brightest), 1, 0.1) << grey << " " << step;
        }
    }
    QApplication::setPalette(ColourScheme::day().palette);
}

} // namespace
} // namespace korvel
