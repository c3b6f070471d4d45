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
#include <QPaintEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
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

/// Every role in a colour of its own, the letters brighter than the ground as at night.
QPalette distinctColours()
{
    QPalette palette;
    for (int role = 0; role < QPalette::NColorRoles; ++role)
        palette.setColor(static_cast<QPalette::ColorRole>(role), QColor(10 + 5 * role, 60, 90));
    palette.setColor(QPalette::WindowText, QColor(250, 240, 230));
    palette.setColor(QPalette::Disabled, QPalette::WindowText, QColor(200, 190, 180));
    return palette;
}

constexpr QRect drawnRoom(0, 0, 60, 40);

template <typename Option>
Option optionOf(QStyle::State state = QStyle::State_Enabled)
{
    Option option;
    option.rect = drawnRoom;
    option.palette = distinctColours();
    option.state = state;
    option.fontMetrics = QFontMetrics(QApplication::font());
    return option;
}

/// What a style draws, and the role whose colour stands at a place.
class Drawn
{
public:
    template <typename Draw>
    explicit Drawn(Draw draw)
    {
        QPainter painter(&m_image);
        draw(m_style, &painter);
    }

    QPalette::ColorRole at(int x, int y) const
    {
        const QPalette palette = distinctColours();
        for (int role = 0; role < QPalette::NColorRoles; ++role)
            if (palette.color(static_cast<QPalette::ColorRole>(role)).rgba() == m_image.pixel(x, y))
                return static_cast<QPalette::ColorRole>(role);
        return QPalette::NoRole;
    }
    int count(const QColor& colour, const QRect& part = drawnRoom) const
    {
        const auto found = korvel::testing::coloursOf(m_image, part);
        const auto one = found.find(colour.rgba());
        return one == found.end() ? 0 : one->second;
    }

private:
    ScreenStyle m_style;
    QImage m_image = imageOf(drawnRoom.width(), drawnRoom.height());
};

constexpr QStyle::State enabled = QStyle::State_Enabled, focused = enabled | QStyle::State_HasFocus,
                        chosen = enabled | QStyle::State_On;

TEST(ScreenStyle, aBoxShowsItsFocusAndItsCaret)
{
    QLineEdit box;
    box.setGeometry(drawnRoom);
    const auto panel = [&](auto element, QStyle::State state, int frame, const QWidget* widget) {
        return Drawn([&](const ScreenStyle& style, QPainter* painter) {
            auto option = optionOf<QStyleOptionFrame>(state);
            option.lineWidth = frame;
            style.drawPrimitive(element, &option, painter, widget);
        });
    };
    const auto line = QStyle::PE_PanelLineEdit;
    const QColor caret = distinctColours().color(QPalette::Text);
    EXPECT_EQ(panel(line, focused, 1, nullptr).at(1, 1), QPalette::Highlight);
    EXPECT_EQ(panel(line, enabled, 1, nullptr).at(0, 0), QPalette::Dark);
    EXPECT_EQ(panel(line, enabled, 1, nullptr).at(1, 1), QPalette::Base);
    EXPECT_EQ(panel(line, enabled, 0, nullptr).at(0, 0), QPalette::Base) << "of another box";
    EXPECT_EQ(panel(QStyle::PE_FrameLineEdit, enabled, 0, nullptr).at(0, 0), QPalette::Dark);
    EXPECT_EQ(panel(line, {}, 1, nullptr).at(30, 20), QPalette::Window) << "takes nothing";
    EXPECT_GT(panel(line, focused, 1, &box).count(caret), 10);
    for (const QStyle::State state : {enabled, QStyle::State(QStyle::State_HasFocus)})
        EXPECT_EQ(panel(line, state, 1, &box).count(caret), 0);
    EXPECT_EQ(panel(QStyle::PE_FrameLineEdit, focused, 1, &box).count(caret), 0);
    EXPECT_EQ(panel(QStyle::PE_Frame, focused, 1, &box).at(1, 1), QPalette::Highlight);
    EXPECT_EQ(panel(QStyle::PE_FrameMenu, focused, 1, &box).at(1, 1), QPalette::NoRole);
    EXPECT_EQ(panel(QStyle::PE_Frame, enabled, 1, &box).at(30, 20), QPalette::NoRole);
    EXPECT_EQ(panel(QStyle::PE_PanelTipLabel, focused, 1, &box).at(1, 1), QPalette::ToolTipBase);
}

TEST(ScreenStyle, handlesHeadsAndFrames)
{
    const auto control = [](auto element) {
        return Drawn([&](const ScreenStyle& style, QPainter* painter) {
            const auto option = optionOf<QStyleOptionHeader>();
            style.drawControl(element, &option, painter, nullptr);
        });
    };
    for (const auto handle : {QStyle::CE_Splitter, QStyle::CE_SizeGrip}) {
        EXPECT_EQ(control(handle).at(30, 19), QPalette::Dark);
        EXPECT_EQ(control(handle).count(QColor(Qt::transparent)), 2367) << "all but 3 by 11";
    }
    EXPECT_EQ(control(QStyle::CE_HeaderSection).count(distinctColours().color(hairRole)), 60);
    EXPECT_EQ(control(QStyle::CE_HeaderSection).at(0, 39), hairRole);
    EXPECT_EQ(control(QStyle::CE_HeaderSection).at(0, 0), QPalette::Window);
    const auto framed = [](auto which, auto option) {
        return Drawn([&](const ScreenStyle& style, QPainter* painter) {
            style.drawComplexControl(which, &option, painter, nullptr);
        });
    };
    EXPECT_EQ(framed(QStyle::CC_ComboBox, optionOf<QStyleOptionComboBox>(focused)).at(1, 1),
              QPalette::Highlight);
    EXPECT_EQ(framed(QStyle::CC_SpinBox, optionOf<QStyleOptionSpinBox>(focused)).at(1, 1),
              QPalette::Highlight);
    auto plain = optionOf<QStyleOptionToolButton>(focused);
    plain.subControls = {};
    EXPECT_EQ(framed(QStyle::CC_ToolButton, plain).at(1, 1), QPalette::NoRole);
    // The arrows of a bar point away from its middle.
    const QColor arrow = distinctColours().color(QPalette::WindowText);
    auto bar = optionOf<QStyleOptionSlider>();
    bar.maximum = 100;
    bar.subControls = QStyle::SC_All;
    for (const auto way : {Qt::Horizontal, Qt::Vertical}) {
        bar.orientation = way;
        if (way == Qt::Horizontal) bar.state |= QStyle::State_Horizontal;
        bar.rect = way == Qt::Horizontal ? QRect(0, 0, 60, 14) : QRect(0, 0, 14, 40);
        const Drawn drawn = framed(QStyle::CC_ScrollBar, bar);
        const QRect first = way == Qt::Horizontal ? QRect(0, 0, 14, 7) : QRect(0, 0, 7, 14);
        const QRect other = first.translated(way == Qt::Horizontal ? QPoint(0, 7) : QPoint(7, 0));
        EXPECT_NEAR(drawn.count(arrow, first), drawn.count(arrow, other), 3) << way;
        bar.state &= ~QStyle::State(QStyle::State_Horizontal);
    }
}

TEST(ScreenStyle, aPartOfASwitchIsFilledWhileItIsChosen)
{
    QRadioButton part, plain;
    drawAsSwitchPart(part);
    const auto option = [&](QStyle::State state, const QWidget& widget) {
        return Drawn([&](const ScreenStyle& style, QPainter* painter) {
            const auto button = optionOf<QStyleOptionButton>(state);
            style.drawControl(QStyle::CE_RadioButton, &button, painter, &widget);
        });
    };
    const QStyle::State off = {};
    EXPECT_EQ(option(chosen, part).at(4, 5), accentRole);
    EXPECT_EQ(option(enabled, part).at(4, 5), QPalette::Base);
    EXPECT_EQ(option(off, part).at(4, 5), QPalette::Window);
    EXPECT_EQ(option(QStyle::State_On, part).at(4, 5), QPalette::AlternateBase);
    EXPECT_EQ(option(chosen | focused, part).at(4, 5), QPalette::Base)
        << "the outline of the focus";
    EXPECT_EQ(option(focused, part).at(1, 1), QPalette::Highlight);
    EXPECT_EQ(option(focused, part).at(10, 4), QPalette::Base);
    EXPECT_EQ(option(chosen, plain).at(40, 2), QPalette::NoRole);
    const ScreenStyle style;
    const auto button = optionOf<QStyleOptionButton>();
    const auto rect = [&](auto which, const QWidget& widget) {
        return style.subElementRect(which, &button, &widget);
    };
    EXPECT_EQ(rect(QStyle::SE_RadioButtonIndicator, part), drawnRoom);
    EXPECT_NE(rect(QStyle::SE_RadioButtonIndicator, plain), drawnRoom);
    EXPECT_NE(rect(QStyle::SE_RadioButtonContents, part), drawnRoom);
}

/// The toolkit's icons are black or white.
TEST(ScreenStyle, iconsAtNightHaveTheColourOfTheLetters)
{
    const auto blackIn = [&](auto element, auto option, auto icon) {
        int black = 0;
        for (const Qt::GlobalColor colour : {Qt::white, Qt::black}) {
            QPixmap shown(16, 16);
            shown.fill(colour);
            option.*icon = QIcon(shown);
            const Drawn drawn([&](const ScreenStyle& style, QPainter* painter) {
                style.drawControl(element, &option, painter, nullptr);
            });
            EXPECT_GT(drawn.count(distinctColours().color(QPalette::WindowText)), 100) << element;
            black += drawn.count(Qt::black);
        }
        return black;
    };
    auto tool = optionOf<QStyleOptionToolButton>();
    tool.iconSize = {16, 16};
    EXPECT_EQ(blackIn(QStyle::CE_ToolButtonLabel, tool, &QStyleOptionToolButton::icon), 0);
    auto push = optionOf<QStyleOptionButton>();
    push.iconSize = {16, 16};
    EXPECT_EQ(blackIn(QStyle::CE_PushButtonLabel, push, &QStyleOptionButton::icon), 0);
    auto item = optionOf<QStyleOptionViewItem>();
    item.features = QStyleOptionViewItem::HasDecoration;
    item.decorationSize = {16, 16};
    EXPECT_EQ(blackIn(QStyle::CE_ItemViewItem, item, &QStyleOptionViewItem::icon), 0);
    auto entry = optionOf<QStyleOptionMenuItem>();
    entry.maxIconWidth = 20;
    EXPECT_EQ(blackIn(QStyle::CE_MenuItem, entry, &QStyleOptionMenuItem::icon), 0);
    auto combo = optionOf<QStyleOptionComboBox>();
    combo.iconSize = {16, 16};
    EXPECT_EQ(blackIn(QStyle::CE_ComboBoxLabel, combo, &QStyleOptionComboBox::currentIcon), 0);
    const ScreenStyle style;
    const std::unique_ptr<QStyle> toolkits(QStyleFactory::create("Fusion"));
    for (const auto which : {QStyle::SP_TitleBarMenuButton, QStyle::SP_ArrowUp, QStyle::SP_DirIcon})
        EXPECT_EQ(style.standardPixmap(which, nullptr, nullptr).toImage(),
                  toolkits->standardPixmap(which).toImage());
}

/// A result that is painted anew in a group had the group's title painted with it.
TEST(ScreenStyle, aGroupPaintsWhereItsTitleOrFrameIs)
{
    ScreenStyle style;
    QGroupBox group("Corrections"), ticked("Corrections");
    ticked.setCheckable(true);
    for (QGroupBox* each : {&group, &ticked})
        each->setFixedSize(200, 100);
    const QRect inside = group.contentsRect();
    ASSERT_GT(inside.top(), 0);
    QPaintEvent within(inside), whole(group.rect());
    EXPECT_TRUE(style.eventFilter(&group, &within));
    EXPECT_FALSE(style.eventFilter(&group, &whole));
    QPaintEvent tickedWithin(ticked.contentsRect());
    EXPECT_FALSE(style.eventFilter(&ticked, &tickedWithin));
    QWidget other;
    EXPECT_FALSE(style.eventFilter(&other, &within));
    group.setTitle("");
    EXPECT_EQ(group.contentsRect().top(), 0);
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
    EXPECT_EQ(ColourScheme::night(3).ink, ColourScheme::night(2).ink) << "no darker than that";
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
