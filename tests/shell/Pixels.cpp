// SPDX-License-Identifier: MIT
#include "tests/shell/Pixels.h"

#include <QApplication>
#include <QScreen>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <numeric>

namespace korvel::testing
{

QImage onScreen(QWidget& widget)
{
    // What is laid out in the first round is painted in the second.
    for (int round = 0; round < 2; ++round)
        QApplication::processEvents();
    if (widget.visibleRegion() != QRegion(widget.rect())) return widget.grab().toImage();
    const QWidget& window = *widget.window();
    const QRect room(widget.mapTo(&window, QPoint()), widget.size());
    return window.screen()
        ->grabWindow(window.winId(), room.x(), room.y(), room.width(), room.height())
        .toImage();
}

double luminance(QRgb colour)
{
    static const auto linear = [] { // asked for every pixel of every window
        std::array<double, 256> light{};
        for (std::size_t part = 0; part < light.size(); ++part) {
            const double value = static_cast<double>(part) / 255.0;
            light[part] = value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
        }
        return light;
    }();
    const auto light = [](int part) { return linear[static_cast<std::size_t>(part)]; };
    return 0.2126 * light(qRed(colour)) + 0.7152 * light(qGreen(colour)) +
           0.0722 * light(qBlue(colour));
}

std::map<QRgb, int> coloursOf(const QImage& image, const QRect& part)
{
    const QImage seen = image.copy(part & image.rect()).convertToFormat(QImage::Format_ARGB32);
    std::map<QRgb, int> counts;
    for (int y = 0; y < seen.height(); ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(seen.constScanLine(y));
        for (int x = 0, end = 0; x < seen.width(); x = end) { // in runs: most of it is ground
            while (end < seen.width() && line[end] == line[x])
                ++end;
            counts[line[x]] += end - x;
        }
    }
    return counts;
}

bool isLike(QRgb one, QRgb other)
{
    constexpr int most = 120;
    return std::abs(qRed(one) - qRed(other)) + std::abs(qGreen(one) - qGreen(other)) +
               std::abs(qBlue(one) - qBlue(other)) <=
           most;
}

int strokesAbout(const QImage& image, QPointF place, int reach, const QColor& colour,
                 const QColor& ground)
{
    using Parts = std::array<double, 3>;
    const auto partsOf = [](QRgb of, const QColor& from) {
        return Parts{double(qRed(of) - from.red()), double(qGreen(of) - from.green()),
                     double(qBlue(of) - from.blue())};
    };
    const auto product = [](const Parts& a, const Parts& b) {
        return std::inner_product(a.begin(), a.end(), b.begin(), 0.0);
    };
    const Parts whole = partsOf(colour.rgb(), ground);
    const QPoint corner = place.toPoint() - QPoint(reach, reach);
    const QSize size(2 * reach + 1, 2 * reach + 1);
    int strokes = 0;
    for (const auto& [seen, count] : coloursOf(image, QRect(corner, size))) {
        const Parts parts = partsOf(seen, ground);
        const double share = product(parts, whole) / product(whole, whole);
        Parts rest = parts;
        for (std::size_t i = 0; i < rest.size(); ++i)
            rest[i] -= share * whole[i];
        if (share > 0.4 && product(rest, rest) < 400) strokes += count;
    }
    return strokes;
}

double contrast(QRgb one, QRgb other, double strayLight)
{
    const double first = luminance(one), second = luminance(other);
    return (std::max(first, second) + strayLight) / (std::min(first, second) + strayLight);
}

double strongestContrast(const QImage& image, const QRect& part, double strayLight)
{
    const auto counts = coloursOf(image, part);
    if (counts.empty()) return 1;
    const auto most = std::max_element(counts.begin(), counts.end(),
                                       [](auto& a, auto& b) { return a.second < b.second; });
    double best = 1;
    for (const auto& [colour, count] : counts)
        best = std::max(best, contrast(colour, most->first, strayLight));
    return best;
}

} // namespace korvel::testing
