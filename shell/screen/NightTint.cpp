// SPDX-License-Identifier: MIT
#include "shell/screen/NightTint.h"

#include "shell/screen/ColourScheme.h"

#include <QIconEngine>
#include <QPainter>

#include <array>

namespace korvel
{
namespace
{

/// The colour for each shade of grey.
using Shades = std::array<QRgb, 256>;

QPixmap inShades(const QPixmap& picture, const Shades& shades)
{
    QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < image.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            const QRgb shade = shades.at(static_cast<std::size_t>(qGray(line[x])));
            line[x] = (shade & RGB_MASK) | (line[x] & ~RGB_MASK);
        }
    }
    QPixmap made = QPixmap::fromImage(image);
    made.setDevicePixelRatio(picture.devicePixelRatio());
    return made;
}

/// Whether a picture is dark on nothing, as arrows and crosses are: its shades turned round, it is
/// seen on a dark ground.
bool isDark(const QPixmap& picture)
{
    const QImage image = picture.toImage().convertToFormat(QImage::Format_ARGB32);
    qint64 shades{}, opaque{};
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x) {
            const QRgb pixel = image.pixel(x, y);
            shades += qint64{qGray(pixel)} * qAlpha(pixel);
            opaque += qAlpha(pixel);
        }
    constexpr int middle = 128;
    return shades < middle * opaque;
}

QPixmap iconAtNight(QPixmap picture, const QColor& brightest)
{
    if (isDark(picture)) {
        const double ratio = picture.devicePixelRatio();
        QImage inverse = picture.toImage();
        inverse.invertPixels();
        picture = QPixmap::fromImage(inverse);
        picture.setDevicePixelRatio(ratio);
    }
    return tinted(picture, brightest);
}

class TintedIcon : public QIconEngine
{
public:
    TintedIcon(QIcon own, const QColor& brightest) : m_own(std::move(own)), m_brightest(brightest)
    {
    }

    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return iconAtNight(m_own.pixmap(size, mode, state), m_brightest);
    }
    void paint(QPainter* painter, const QRect& room, QIcon::Mode mode, QIcon::State state) override
    {
        const double ratio = painter->device()->devicePixelRatioF();
        const QPixmap picture =
            iconAtNight(m_own.pixmap(room.size(), ratio, mode, state), m_brightest);
        QRect place(QPoint(), picture.deviceIndependentSize().toSize());
        place.moveCenter(room.center());
        painter->drawPixmap(place, picture);
    }
    QSize actualSize(const QSize& size, QIcon::Mode mode, QIcon::State state) override
    {
        return m_own.actualSize(size, mode, state);
    }
    QIconEngine* clone() const override { return new TintedIcon(m_own, m_brightest); }

private:
    QIcon m_own;
    QColor m_brightest;
};

} // namespace

QPixmap tinted(const QPixmap& picture, const QColor& brightest)
{
    Shades shades;
    for (int grey = 0; grey < 256; ++grey)
        shades.at(static_cast<std::size_t>(grey)) =
            qRgb(brightest.red() * grey / 255, brightest.green() * grey / 255,
                 brightest.blue() * grey / 255);
    return inShades(picture, shades);
}

QIcon tinted(const QIcon& icon, const QColor& brightest)
{
    return icon.isNull() ? icon : QIcon(new TintedIcon(icon, brightest));
}

QPixmap sheetAtNight(const QPixmap& sheet, const QPalette& night)
{
    const QColor text = night.color(QPalette::WindowText);
    const QColor ground = night.color(QPalette::Base);
    const double stray = strayLight(night), onWhite = strayLight(ColourScheme::day().palette);
    const double darkest = relativeLuminance(ground);
    Shades shades;
    for (int grey = 0; grey < 256; ++grey) {
        const double offWhite =
            (1 + onWhite) / (relativeLuminance(QColor(grey, grey, grey)) + onWhite);
        const double wanted = offWhite * (darkest + stray) - stray;
        shades.at(static_cast<std::size_t>(grey)) =
            grey == 255 ? ground.rgb()
                        : atLuminance(text, std::min(wanted, relativeLuminance(text))).rgb();
    }
    return inShades(sheet, shades);
}

} // namespace korvel
