// SPDX-License-Identifier: MIT
#include "tests/shell/PaintedTexts.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <map>

namespace korvel::testing
{

std::vector<std::string> PaintedTexts::rows() const
{
    std::map<int, std::vector<PaintedText>> byHeight;
    for (const PaintedText& each : texts())
        byHeight[static_cast<int>(std::lround(each.at.y()))].push_back(each);
    std::vector<std::string> rows;
    for (auto& [height, row] : byHeight) {
        std::ranges::stable_sort(row, {}, [](const PaintedText& each) { return each.at.x(); });
        std::string all;
        for (const PaintedText& each : row)
            all += (all.empty() ? "" : " ") + each.text.toStdString();
        rows.push_back(all);
    }
    return rows;
}

int PaintedTexts::metric(PaintDeviceMetric metric) const
{
    constexpr int dotsPerInch = 96;
    switch (metric) {
    case PdmWidth:
        return m_size.width();
    case PdmHeight:
        return m_size.height();
    case PdmDpiX:
    case PdmDpiY:
    case PdmPhysicalDpiX:
    case PdmPhysicalDpiY:
        return dotsPerInch;
    case PdmDevicePixelRatio:
        return 1;
    case PdmDevicePixelRatioScaled:
        return static_cast<int>(devicePixelRatioFScale());
    default:
        return 0;
    }
}

void PaintedTexts::Engine::drawLines(const QLineF* drawn, int count)
{
    for (int i = 0; i < count; ++i)
        lines.push_back(painter()->combinedTransform().map(drawn[i]));
}

void PaintedTexts::Engine::drawPolygon(const QPointF* points, int count, PolygonDrawMode mode)
{
    for (int i = 1; mode == PolylineMode && i < count; ++i) {
        const QLineF line(points[i - 1], points[i]);
        drawLines(&line, 1);
    }
}

void PaintedTexts::Engine::drawTextItem(const QPointF& at, const QTextItem& item)
{
    texts.push_back({item.text(), painter()->combinedTransform().map(at), item.width(),
                     item.font().pixelSize()});
}

} // namespace korvel::testing
