// SPDX-License-Identifier: MIT
// How controls, icons and sheets are drawn, by day and by night.
#include "shell/screen/ColourScheme.h"
#include "shell/screen/Looks.h"
#include "shell/screen/NightTint.h"
#include "shell/screen/ScreenStyle.h"
#include "tests/shell/Pixels.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QGroupBox>
#include <QImage>
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

TEST(ColourScheme, linesOfAPictureAreToldApart)
{
    for (const ColourScheme& scheme : allSchemes()) {
        std::set<QRgb> lines;
        for (const QColor& line : {scheme.grid, scheme.equator, scheme.route, scheme.secondary,
                                   scheme.tertiary, scheme.marker}) {
            EXPECT_TRUE(line.isValid());
            EXPECT_TRUE(lines.insert(line.rgb()).second) << line.name().toStdString();
        }
        for (const QColor& colour :
             {scheme.accent, scheme.clock, scheme.memo, scheme.unit, scheme.echo, scheme.done,
              scheme.notice, scheme.fault, scheme.dimmed, scheme.paper, scheme.ink, scheme.curve,
              scheme.datum})
            EXPECT_TRUE(colour.isValid());
        EXPECT_NE(scheme.notice, scheme.fault);
        EXPECT_NE(scheme.notice, scheme.done);
        EXPECT_NE(scheme.curve, scheme.datum);
    }
}

QImage imageOf(int width, int height, const QColor& ground = Qt::transparent)
{
    QImage image(width, height, QImage::Format_ARGB32);
    image.fill(ground);
    return image;
}

TEST(NightTint, keepsTheShadesOfAPicture)
{
    QImage picture = imageOf(4, 2, Qt::white);
    picture.setPixelColor(1, 0, Qt::black);
    picture.setPixelColor(2, 0, QColor(51, 51, 51));
    picture.setPixelColor(3, 0, QColor(255, 255, 255, 0));
    picture.setPixelColor(3, 1, QColor(102, 102, 102, 128));
    const QColor brightest(250, 150, 50);
    const QImage made = tinted(QPixmap::fromImage(picture), brightest)
                            .toImage()
                            .convertToFormat(QImage::Format_ARGB32);
    EXPECT_EQ(made.pixel(0, 0), qRgb(250, 150, 50));
    EXPECT_EQ(made.pixel(1, 0), qRgb(0, 0, 0));
    EXPECT_EQ(made.pixel(2, 0), qRgb(50, 30, 10));
    EXPECT_EQ(qAlpha(made.pixel(3, 0)), 0);
    EXPECT_EQ(made.pixel(0, 1), qRgb(250, 150, 50));
    EXPECT_EQ(qAlpha(made.pixel(3, 1)), 128);
    EXPECT_NEAR(qRed(made.pixel(3, 1)), 100, 2);
}

/// A cross that is black on the night; a bright bubble turned into a dark one.
TEST(NightTint, iconsAreSeenOnTheDark)
{
    const QColor brightest(250, 150, 50);
    for (const auto& [colour, ground, lit] :
         {std::tuple(QColor(Qt::black), QColor(Qt::transparent), true),
          {QColor(90, 90, 90), QColor(Qt::transparent), true},
          {QColor(Qt::white), QColor(Qt::transparent), true},
          {QColor(200, 200, 200), QColor(Qt::transparent), true},
          {QColor(Qt::black), QColor(Qt::white), false}}) {
        QImage picture = imageOf(16, 16, ground);
        for (int i = 4; i < 12; ++i)
            for (int k = 6; k < 10; ++k)
                picture.setPixelColor(i, k, colour);
        const QIcon icon = tinted(QIcon(QPixmap::fromImage(picture)), brightest);
        const QImage made = icon.pixmap(16).toImage();
        EXPECT_EQ(qGray(made.pixel(8, 8)) > qGray(brightest.rgb()) / 2, lit)
            << colour.name().toStdString();
        QImage sheet = imageOf(40, 20, Qt::black);
        QPainter painter(&sheet);
        icon.paint(&painter, QRect(0, 0, 40, 20));
        painter.end();
        EXPECT_EQ(sheet.pixel(20, 10), made.pixel(8, 8)) << "in the middle of its room";
        EXPECT_EQ(sheet.pixel(2, 10), qRgb(0, 0, 0));
    }
    EXPECT_TRUE(tinted(QIcon(), brightest).isNull());
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

/// To which side of a picture an arrow points: its ink gets narrower that way.
std::string pointsTo(const QImage& image, const QRect& part)
{
    const QRgb ground = image.pixel(part.topLeft() + QPoint(part.width() / 2, 1));
    double x = 0, y = 0, all = 0;
    QRect ink;
    for (int row = part.top() + 1; row < part.bottom(); ++row)
        for (int column = part.left() + 1; column < part.right(); ++column)
            if (image.pixel(column, row) != ground) {
                x += column;
                y += row;
                ++all;
                ink |= QRect(column, row, 1, 1);
            }
    // The middle of the ink lies away from the point.
    const double level = x / all - (ink.left() + ink.right()) / 2.0;
    const double upright = y / all - (ink.top() + ink.bottom()) / 2.0;
    if (std::abs(level) > std::abs(upright)) return level > 0 ? "left" : "right";
    return upright > 0 ? "up" : "down";
}

TEST(ScreenStyle, arrowsPointWhereTheyLead)
{
    const ScreenStyle style;
    const std::pair<QStyle::PrimitiveElement, const char*> rows[] = {
        {QStyle::PE_IndicatorArrowDown, "down"}, {QStyle::PE_IndicatorSpinDown, "down"},
        {QStyle::PE_IndicatorArrowUp, "up"},     {QStyle::PE_IndicatorSpinUp, "up"},
        {QStyle::PE_IndicatorArrowLeft, "left"}, {QStyle::PE_IndicatorArrowRight, "right"}};
    for (const auto& [element, side] : rows) {
        QImage image = imageOf(41, 41, Qt::white);
        QPainter painter(&image);
        QStyleOption option;
        option.rect = image.rect();
        option.state = QStyle::State_Enabled;
        option.palette = ColourScheme::day().palette;
        style.drawPrimitive(element, &option, &painter, nullptr);
        painter.end();
        EXPECT_EQ(pointsTo(image, image.rect()), side) << element;
    }
    for (const bool level : {false, true}) {
        QScrollBar bar(level ? Qt::Horizontal : Qt::Vertical);
        bar.resize(level ? QSize(200, 24) : QSize(24, 200));
        QStyleOptionSlider option;
        option.initFrom(&bar);
        option.orientation = bar.orientation();
        option.subControls = QStyle::SC_All;
        option.maximum = 100;
        const QImage image = bar.grab().toImage();
        const auto arrow = [&](QStyle::SubControl which) {
            return pointsTo(
                image, bar.style()->subControlRect(QStyle::CC_ScrollBar, &option, which, &bar));
        };
        EXPECT_EQ(arrow(QStyle::SC_ScrollBarSubLine), level ? "left" : "up");
        EXPECT_EQ(arrow(QStyle::SC_ScrollBarAddLine), level ? "right" : "down");
    }
}

TEST(ScreenStyle, sizesGrowWithTheZoomAndNothingElseDoes)
{
    ScreenStyle style;
    const std::unique_ptr<QStyle> own(QStyleFactory::create("Fusion"));
    const QStyle::PixelMetric growing[] = {
        QStyle::PM_IndicatorWidth,          QStyle::PM_IndicatorHeight,
        QStyle::PM_ExclusiveIndicatorWidth, QStyle::PM_ExclusiveIndicatorHeight,
        QStyle::PM_ScrollBarExtent,         QStyle::PM_ScrollBarSliderMin,
        QStyle::PM_SmallIconSize,           QStyle::PM_ButtonIconSize,
        QStyle::PM_ListViewIconSize,        QStyle::PM_LargeIconSize,
        QStyle::PM_MessageBoxIconSize,      QStyle::PM_MenuButtonIndicator};
    for (const auto metric : growing)
        EXPECT_EQ(style.pixelMetric(metric, nullptr, nullptr), own->pixelMetric(metric)) << metric;
    style.setZoom(200);
    for (const auto metric : growing)
        EXPECT_EQ(style.pixelMetric(metric, nullptr, nullptr), 2 * own->pixelMetric(metric));
    EXPECT_EQ(style.pixelMetric(QStyle::PM_LayoutHorizontalSpacing, nullptr, nullptr),
              own->pixelMetric(QStyle::PM_LayoutHorizontalSpacing));
    EXPECT_EQ(
        style.styleHint(QStyle::SH_DialogButtonBox_ButtonsHaveIcons, nullptr, nullptr, nullptr), 0);
    EXPECT_EQ(style.styleHint(QStyle::SH_ComboBox_Popup, nullptr, nullptr, nullptr),
              own->styleHint(QStyle::SH_ComboBox_Popup));
    EXPECT_EQ(style.standardPixmap(QStyle::SP_MessageBoxQuestion, nullptr, nullptr).width(),
              2 * own->pixelMetric(QStyle::PM_MessageBoxIconSize));
    EXPECT_EQ(style.standardIcon(QStyle::SP_DirIcon, nullptr, nullptr).pixmap(16).toImage(),
              own->standardIcon(QStyle::SP_DirIcon).pixmap(16).toImage());
    std::set<QByteArray> signs;
    for (const auto which : {QStyle::SP_MessageBoxQuestion, QStyle::SP_MessageBoxInformation,
                             QStyle::SP_MessageBoxWarning}) {
        const QImage sign = style.standardIcon(which, nullptr, nullptr).pixmap(32).toImage();
        signs.insert(QByteArray(reinterpret_cast<const char*>(sign.constBits()),
                                static_cast<qsizetype>(sign.sizeInBytes())));
    }
    EXPECT_EQ(signs.size(), 3u);
}

/// A group without a title under a line of its own; a group drawn with every result in it.
TEST(ScreenStyle, aGroupIsAHeadOverAHairline)
{
    const auto hairlinesOf = [](const QString& title) {
        QGroupBox group(title);
        group.resize(120, 80);
        const QImage image = group.grab().toImage();
        int lines = 0;
        for (int y = 0; y < image.height(); ++y)
            lines += image.pixel(110, y) == group.palette().color(hairRole).rgb() &&
                     image.pixel(60, y) == group.palette().color(hairRole).rgb();
        return lines;
    };
    EXPECT_EQ(hairlinesOf("Results"), 1);
    EXPECT_EQ(hairlinesOf(""), 0);
    QGroupBox with("Results"), without;
    EXPECT_GE(with.contentsRect().top(), QFontMetrics(with.font()).height());
    EXPECT_LT(without.contentsRect().top(), 6);
}

/// A corner to be drawn at that is lost on the dark.
TEST(ScreenStyle, aGripHasTheColourOfOutlines)
{
    QWidget window;
    QSizeGrip grip(&window);
    for (const ColourScheme& scheme : allSchemes()) {
        grip.setPalette(scheme.palette);
        grip.resize(16, 16);
        const QImage image = grip.grab().toImage();
        EXPECT_EQ(image.pixel(image.rect().center()), scheme.palette.color(QPalette::Dark).rgb());
        EXPECT_NE(image.pixel(1, 8), scheme.palette.color(QPalette::Dark).rgb());
    }
}

/// A caret in a box that nobody types into; two in a row of them.
TEST(ScreenStyle, theCaretIsWhereTheKeysGo)
{
    QWidget window;
    auto* column = new QVBoxLayout(&window);
    QLineEdit *box = new QLineEdit("12345"), *other = new QLineEdit;
    column->addWidget(box);
    column->addWidget(other);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    const auto pictureAt = [box](int place) {
        box->deselect();
        box->setCursorPosition(place);
        return box->grab().toImage();
    };
    other->setFocus();
    EXPECT_EQ(pictureAt(1), pictureAt(4));
    box->setFocus();
    EXPECT_NE(pictureAt(1), pictureAt(4));
    box->setEnabled(false);
    EXPECT_EQ(pictureAt(1), pictureAt(4));
}

/// Letters that are measured again at each change of colours.
TEST(Looks, nothingIsDoneTwice)
{
    struct Changes : QObject {
        bool eventFilter(QObject*, QEvent* event) override
        {
            seen += event->type() == QEvent::FontChange ||
                    event->type() == QEvent::ApplicationFontChange;
            return false;
        }
        int seen = 0;
    } changes;
    QPushButton button("Record");
    button.ensurePolished();
    applyLooks({}, ColourScheme::day());
    QCoreApplication::processEvents();
    button.installEventFilter(&changes);
    applyLooks({}, ColourScheme::day());
    QCoreApplication::processEvents();
    EXPECT_EQ(changes.seen, 0);
    const double before = button.font().pointSizeF();
    applyLooks({false, 0, 150}, ColourScheme::day());
    EXPECT_EQ(button.font().pointSizeF(), 1.5 * before);
    EXPECT_GT(changes.seen, 0);
    applyLooks({}, ColourScheme::day());
    EXPECT_EQ(button.font().pointSizeF(), before);
}

} // namespace
} // namespace korvel
