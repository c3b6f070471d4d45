// SPDX-License-Identifier: MIT
#include "shell/screen/ScreenStyle.h"

#include "shell/screen/ColourScheme.h"
#include "shell/screen/MessageIcon.h"
#include "shell/screen/NightTint.h"

#include <QAbstractScrollArea>
#include <QApplication>
#include <QGroupBox>
#include <QPaintEvent>
#include <QPainter>
#include <QRadioButton>
#include <QStyleOption>

#include <array>

namespace korvel
{
namespace
{

constexpr int focusWidth = 2;
constexpr int outlineWidth = 1;
constexpr int caretWidth = 2;

QColor outlineOf(const QStyleOption& option)
{
    return option.palette.color(QPalette::Dark);
}

/// Draws a flat panel: its ground, and an outline that is broader and in another colour while the
/// control has the focus, so that not the colour alone shows it.
void drawPanel(QPainter& painter, const QStyleOption& option, const QBrush& ground, bool focus)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    const int width = focus ? focusWidth : outlineWidth;
    painter.fillRect(option.rect, ground);
    const QColor outline = focus ? option.palette.color(QPalette::Highlight) : outlineOf(option);
    for (int i = 0; i < width; ++i) {
        painter.setPen(outline);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(option.rect.adjusted(i, i, -i - 1, -i - 1));
    }
    painter.restore();
}

bool hasFocus(const QStyleOption& option)
{
    return option.state & QStyle::State_HasFocus;
}

QColor markColour(const QStyleOption& option)
{
    const auto group = option.state & QStyle::State_Enabled ? QPalette::Active : QPalette::Disabled;
    return option.palette.color(group, QPalette::WindowText);
}

/// The toolkit's own caret inverts the ground, which is white at night.
void drawCaret(QPainter& painter, const QStyleOption& option, const QWidget& box)
{
    if (!hasFocus(option) || !(option.state & QStyle::State_Enabled)) return;
    const QRect place = box.inputMethodQuery(Qt::ImCursorRectangle).toRect();
    const QRect caret(place.center().x(), place.top(), caretWidth, place.height());
    painter.fillRect(caret & option.rect, option.palette.text());
}

void drawTick(QPainter& painter, const QStyleOption& option)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF box = option.rect;
    if (option.state & QStyle::State_NoChange) {
        painter.fillRect(box.adjusted(box.width() / 4, box.height() * 0.4, -box.width() / 4,
                                      -box.height() * 0.4),
                         markColour(option));
    } else {
        painter.setPen(QPen(markColour(option), box.width() / 7, Qt::SolidLine, Qt::RoundCap));
        const auto at = [&](double x, double y) {
            return box.topLeft() + QPointF(x * box.width(), y * box.height());
        };
        painter.drawPolyline(QPolygonF{at(0.24, 0.52), at(0.43, 0.72), at(0.77, 0.28)});
    }
    painter.restore();
}

void drawCheckBox(QPainter& painter, const QStyleOption& option)
{
    drawPanel(painter, option, option.palette.base(), false);
    if (option.state & (QStyle::State_On | QStyle::State_NoChange)) drawTick(painter, option);
}

void drawRadioButton(QPainter& painter, const QStyleOption& option)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF ring = QRectF(option.rect).adjusted(1, 1, -1, -1);
    painter.setPen(QPen(outlineOf(option), 1.3));
    painter.setBrush(option.palette.base());
    painter.drawEllipse(ring);
    if (option.state & QStyle::State_On) {
        const double gap = ring.width() / 4;
        painter.setPen(Qt::NoPen);
        painter.setBrush(markColour(option));
        painter.drawEllipse(ring.adjusted(gap, gap, -gap, -gap));
    }
    painter.restore();
}

void drawArrow(QPainter& painter, const QStyleOption& option, int quarterTurns)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF room = option.rect;
    const double half = std::min({room.width(), room.height(), 16.0}) * 0.3;
    painter.translate(room.center());
    painter.rotate(90 * quarterTurns);
    painter.setPen(Qt::NoPen);
    painter.setBrush(markColour(option));
    painter.drawPolygon(QPolygonF{{-half, -half / 2}, {half, -half / 2}, {0, half / 2}});
    painter.restore();
}

/// A group is a head over a hairline.
QFont headLetters(QFont captions)
{
    captions.setBold(true);
    return captions;
}

int headHeight(const QFont& captions)
{
    constexpr int belowLetters = 4;
    return QFontMetrics(headLetters(captions)).height() + belowLetters;
}

void drawHead(QPainter& painter, const QStyleOptionGroupBox& option)
{
    painter.save();
    painter.setFont(headLetters(painter.font()));
    painter.setPen(option.palette.color(QPalette::WindowText));
    const int height = headHeight(painter.font());
    painter.drawText(QRect(option.rect.left(), option.rect.top(), option.rect.width(), height),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextShowMnemonic, option.text);
    painter.fillRect(option.rect.left(), option.rect.top() + height - 1, option.rect.width(), 1,
                     option.palette.color(hairRole));
    painter.restore();
}

constexpr const char* switchPart = "isSwitchPart";

const QStyleOptionButton* asSwitchPart(const QStyleOption* option, const QWidget* widget)
{
    const bool isPart = widget && widget->property(switchPart).toBool();
    return isPart ? qstyleoption_cast<const QStyleOptionButton*>(option) : nullptr;
}

/// A part that cannot be chosen now has no ground of its own, as a box that takes nothing.
QBrush groundOfPart(const QStyleOptionButton& option)
{
    const bool isChosen = option.state & QStyle::State_On;
    if (!(option.state & QStyle::State_Enabled))
        return option.palette.brush(isChosen ? QPalette::AlternateBase : QPalette::Window);
    return isChosen ? option.palette.brush(accentRole) : option.palette.base();
}

QColor lettersOfPart(const QStyleOptionButton& option)
{
    if (!(option.state & QStyle::State_Enabled)) return markColour(option);
    return option.palette.color(option.state & QStyle::State_On ? QPalette::Base : quietRole);
}

void drawSwitchPart(QPainter& painter, const QStyleOptionButton& option)
{
    const bool isChosen = option.state & QStyle::State_On;
    drawPanel(painter, option, groundOfPart(option), hasFocus(option));
    painter.save();
    if (isChosen && hasFocus(option)) { // its outline alone is lost beside the ground
        painter.setPen(QPen(option.palette.color(QPalette::Base), focusWidth));
        painter.drawRect(option.rect.adjusted(4, 4, -4, -4));
    }
    if (isChosen) painter.setFont(headLetters(painter.font()));
    painter.setPen(lettersOfPart(option));
    painter.drawText(option.rect, Qt::AlignCenter | Qt::TextShowMnemonic, option.text);
    painter.restore();
}

QSize sizeOfPart(const QStyleOptionButton& option, const QFont& letters)
{
    const QFontMetrics bold(headLetters(letters));
    const int words = bold.size(Qt::TextShowMnemonic, option.text).width();
    return {std::max(2 * bold.height(), words + bold.height()), bold.height() * 3 / 2};
}

/// Quarters of a turn, clockwise, from an arrow that points down.
std::optional<int> quarterTurnsOf(QStyle::PrimitiveElement element)
{
    switch (element) {
    case QStyle::PE_IndicatorArrowDown:
    case QStyle::PE_IndicatorSpinDown:
        return 0;
    case QStyle::PE_IndicatorArrowUp:
    case QStyle::PE_IndicatorSpinUp:
        return 2;
    case QStyle::PE_IndicatorArrowLeft:
        return 1;
    case QStyle::PE_IndicatorArrowRight:
        return 3;
    default:
        return std::nullopt;
    }
}

/// Draws a control that has an icon with one in the colours of the palette, whoever made it and
/// whenever. @return false when the control is not of that kind
template <typename Option, typename Draw>
bool drawTinted(const QStyleOption& option, QIcon Option::*icon, Draw draw)
{
    const auto* own = qstyleoption_cast<const Option*>(&option);
    if (!own || (own->*icon).isNull()) return false;
    Option copy(*own);
    copy.*icon = tinted(own->*icon, option.palette.color(QPalette::WindowText));
    draw(copy);
    return true;
}

bool isMessageIcon(QStyle::StandardPixmap which)
{
    return which >= QStyle::SP_MessageBoxInformation && which <= QStyle::SP_MessageBoxQuestion;
}

} // namespace

void drawAsSwitchPart(QRadioButton& option)
{
    option.setProperty(switchPart, true);
}

ScreenStyle::ScreenStyle() : QProxyStyle("Fusion") {}

void ScreenStyle::polish(QWidget* widget)
{
    QProxyStyle::polish(widget);
    if (qobject_cast<QGroupBox*>(widget)) widget->installEventFilter(this);
}

/// A group box draws nothing but its title and its frame: where a result in it is painted anew
/// neither has to be.
bool ScreenStyle::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Paint) return QProxyStyle::eventFilter(watched, event);
    const auto* group = qobject_cast<QGroupBox*>(watched);
    const QRect painted = static_cast<QPaintEvent*>(event)->rect();
    return group && !group->isCheckable() && group->contentsRect().contains(painted);
}

void ScreenStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option,
                                QPainter* painter, const QWidget* widget) const
{
    if (const auto turns = quarterTurnsOf(element)) return drawArrow(*painter, *option, *turns);
    switch (element) {
    case PE_FrameLineEdit:
    case PE_PanelLineEdit: {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (element == PE_PanelLineEdit && frame && frame->lineWidth == 0)
            painter->fillRect(option->rect, option->palette.base());
        else
            drawPanel(*painter, *option,
                      option->state & State_Enabled ? option->palette.base()
                                                    : option->palette.window(),
                      hasFocus(*option));
        if (element == PE_PanelLineEdit && widget) drawCaret(*painter, *option, *widget);
        return;
    }
    case PE_PanelButtonCommand:
    case PE_PanelButtonBevel:
    case PE_PanelButtonTool: {
        const bool down = option->state & (State_Sunken | State_On);
        drawPanel(*painter, *option,
                  down ? option->palette.brush(QPalette::AlternateBase) : option->palette.button(),
                  hasFocus(*option));
        return;
    }
    case PE_IndicatorCheckBox:
    case PE_IndicatorItemViewItemCheck:
        return drawCheckBox(*painter, *option);
    case PE_IndicatorRadioButton:
        return drawRadioButton(*painter, *option);
    case PE_IndicatorMenuCheckMark:
        return drawTick(*painter, *option);
    case PE_FrameFocusRect:
        painter->save();
        painter->setPen(QPen(option->palette.color(QPalette::Highlight), focusWidth));
        painter->drawRect(option->rect.adjusted(1, 1, -1, -1));
        painter->restore();
        return;
    case PE_Frame:
    case PE_FrameMenu:
    case PE_PanelTipLabel: {
        const QBrush ground = element == PE_PanelTipLabel
                                  ? option->palette.brush(QPalette::ToolTipBase)
                                  : QBrush(Qt::NoBrush);
        drawPanel(*painter, *option, ground, element == PE_Frame && hasFocus(*option));
        return;
    }
    default:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void ScreenStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const
{
    if (element == CE_Splitter || element == CE_SizeGrip) {
        const QPoint middle = option->rect.center();
        const QSize half(std::min(1, option->rect.width() / 2), option->rect.height() / 8);
        painter->fillRect(QRect(middle - QPoint(half.width(), half.height()),
                                middle + QPoint(half.width(), half.height())),
                          outlineOf(*option));
        return;
    }
    if (element == CE_HeaderSection) { // names of columns over a hairline, as in every table
        painter->fillRect(option->rect, option->palette.window());
        painter->fillRect(QRect(option->rect.bottomLeft(), QSize(option->rect.width(), 1)),
                          option->palette.color(hairRole));
        return;
    }
    if (element == CE_RadioButton) {
        if (const auto* part = asSwitchPart(option, widget)) return drawSwitchPart(*painter, *part);
    }
    const auto draw = [&](const QStyleOption& with) {
        QProxyStyle::drawControl(element, &with, painter, widget);
    };
    const bool done =
        isNight(option->palette) && (drawTinted(*option, &QStyleOptionViewItem::icon, draw) ||
                                     drawTinted(*option, &QStyleOptionToolButton::icon, draw) ||
                                     drawTinted(*option, &QStyleOptionButton::icon, draw) ||
                                     drawTinted(*option, &QStyleOptionMenuItem::icon, draw) ||
                                     drawTinted(*option, &QStyleOptionComboBox::currentIcon, draw));
    if (!done) draw(*option);
}

void ScreenStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                     QPainter* painter, const QWidget* widget) const
{
    if (control == CC_ScrollBar) {
        if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option))
            return drawScrollBar(*bar, *painter, widget);
    }
    if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option))
        return drawHead(*painter, *group);
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    if (control == CC_SpinBox || control == CC_ComboBox)
        drawPanel(*painter, *option, Qt::NoBrush, hasFocus(*option));
}

void ScreenStyle::drawScrollBar(const QStyleOptionSlider& option, QPainter& painter,
                                const QWidget* widget) const
{
    QStyleOption part = option;
    drawPanel(painter, part, option.palette.base(), hasFocus(option));
    const auto rectOf = [&](SubControl which) {
        return proxy()->subControlRect(CC_ScrollBar, &option, which, widget);
    };
    painter.fillRect(rectOf(SC_ScrollBarSlider).adjusted(2, 2, -2, -2), outlineOf(option));
    const bool level = option.orientation == Qt::Horizontal;
    part.rect = rectOf(SC_ScrollBarSubLine);
    drawArrow(painter, part, level ? 1 : 2);
    part.rect = rectOf(SC_ScrollBarAddLine);
    drawArrow(painter, part, level ? 3 : 0);
}

QRect ScreenStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option,
                                  SubControl part, const QWidget* widget) const
{
    const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option);
    if (!group) return QProxyStyle::subControlRect(control, option, part, widget);
    const int height =
        group->text.isEmpty() ? 0 : headHeight(widget ? widget->font() : QApplication::font());
    if (part == SC_GroupBoxLabel)
        return {option->rect.topLeft(), QSize(option->rect.width(), height)};
    return option->rect.adjusted(0, height, 0, 0);
}

QRect ScreenStyle::subElementRect(SubElement element, const QStyleOption* option,
                                  const QWidget* widget) const
{
    if (element == SE_RadioButtonIndicator && asSwitchPart(option, widget)) return option->rect;
    return QProxyStyle::subElementRect(element, option, widget);
}

int ScreenStyle::pixelMetric(PixelMetric metric, const QStyleOption* option,
                             const QWidget* widget) const
{
    const int own = QProxyStyle::pixelMetric(metric, option, widget);
    switch (metric) {
    case PM_DefaultFrameWidth:
        // Lists and pages have room for the outline of the focus beside what they show.
        return qobject_cast<const QAbstractScrollArea*>(widget) ? std::max(own, focusWidth) : own;
    case PM_TextCursorWidth:
        return 0; // it is drawn with the panel
    case PM_IndicatorWidth:
    case PM_IndicatorHeight:
    case PM_ExclusiveIndicatorWidth:
    case PM_ExclusiveIndicatorHeight:
    case PM_ScrollBarExtent:
    case PM_ScrollBarSliderMin:
    case PM_SmallIconSize:
    case PM_ButtonIconSize:
    case PM_ListViewIconSize:
    case PM_LargeIconSize:
    case PM_MessageBoxIconSize:
    case PM_MenuButtonIndicator:
        return own * m_zoom / 100;
    default:
        return own;
    }
}

QSize ScreenStyle::sizeFromContents(ContentsType type, const QStyleOption* option,
                                    const QSize& contents, const QWidget* widget) const
{
    QSize own = QProxyStyle::sizeFromContents(type, option, contents, widget);
    // The toolkit draws the column of ticks as broad as the entry is high, and reckons with a fixed
    // breadth: large letters would not fit.
    if (type == CT_MenuItem) own.rwidth() += own.height();
    if (const auto* group = qstyleoption_cast<const QStyleOptionGroupBox*>(option))
        own.setWidth(QFontMetrics(headLetters(widget ? widget->font() : QApplication::font()))
                         .size(Qt::TextShowMnemonic, group->text)
                         .width());
    if (type == CT_RadioButton) {
        if (const auto* part = asSwitchPart(option, widget))
            return sizeOfPart(*part, widget->font());
    }
    return own;
}

int ScreenStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                           QStyleHintReturn* data) const
{
    if (hint == SH_Table_GridLineColor)
        return static_cast<int>(
            (option ? option->palette : QApplication::palette()).color(QPalette::Dark).rgba());
    if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0; // their words say it
    return QProxyStyle::styleHint(hint, option, widget, data);
}

/// The icons of message boxes are the program's own drawing in the colours of the palette: the
/// toolkit's are white bubbles.
QPixmap ScreenStyle::messageIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const
{
    return drawnMessageIcon(which, option ? option->palette : QApplication::palette(),
                            pixelMetric(PM_MessageBoxIconSize, option, widget));
}

QPixmap ScreenStyle::standardPixmap(StandardPixmap which, const QStyleOption* option,
                                    const QWidget* widget) const
{
    return isMessageIcon(which) ? messageIcon(which, option, widget)
                                : QProxyStyle::standardPixmap(which, option, widget);
}

QIcon ScreenStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                const QWidget* widget) const
{
    return isMessageIcon(which) ? QIcon(messageIcon(which, option, widget))
                                : QProxyStyle::standardIcon(which, option, widget);
}

} // namespace korvel
