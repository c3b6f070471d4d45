// SPDX-License-Identifier: MIT
#pragma once

#include <QProxyStyle>

class QRadioButton;
class QStyleOptionSlider;

namespace korvel
{

/// How controls are drawn: flat, with an outline that can be told from the ground in every colour
/// scheme and a broader one for the focus. The toolkit's own outlines are shades of the ground,
/// which is nothing at all on a dark one, and its icons are white.
class ScreenStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ScreenStyle();

    /// Sizes of boxes, bars and icons in percent of the toolkit's own; letters are not its matter.
    void setZoom(int percent) { m_zoom = percent; }

    void polish(QWidget* widget) override;
    using QProxyStyle::polish;
    bool eventFilter(QObject* watched, QEvent* event) override;

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                            QPainter* painter, const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option,
                         const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option,
                    const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                           const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;
    QIcon standardIcon(StandardPixmap which, const QStyleOption* option,
                       const QWidget* widget) const override;
    QPixmap standardPixmap(StandardPixmap which, const QStyleOption* option,
                           const QWidget* widget) const override;

private:
    QPixmap messageIcon(StandardPixmap which, const QStyleOption* option,
                        const QWidget* widget) const;
    void drawScrollBar(const QStyleOptionSlider& option, QPainter& painter,
                       const QWidget* widget) const;

    int m_zoom = 100;
};

/// Has an option drawn as a part of a switch: filled while it is chosen, without a mark.
void drawAsSwitchPart(QRadioButton& option);

} // namespace korvel
