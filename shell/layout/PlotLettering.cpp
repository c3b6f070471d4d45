// SPDX-License-Identifier: MIT
#include "shell/layout/PlotLettering.h"

#include <algorithm>
#include <array>
#include <limits>

namespace korvel
{
namespace
{

// What a place costs; a line through the words is read past, other words or a mark are not.
constexpr double perLine = 10, perMark = 1000, perNearerMark = 5, perStep = 0.01;

/// Beside a point: where the nearer edge of the words lies, -1 left or above, 1 right or below.
constexpr std::array<std::pair<int, int>, 8> sides = {
    {{1, -1}, {1, 1}, {-1, -1}, {-1, 1}, {1, 0}, {-1, 0}, {0, -1}, {0, 1}}};

QRectF roomBeside(const QPointF& point, const QSizeF& words, std::pair<int, int> side,
                  double distance)
{
    QRectF room(QPointF(), words);
    room.moveCenter(point + QPointF(side.first * (words.width() / 2 + distance),
                                    side.second * (words.height() / 2 + distance)));
    return room;
}

bool crosses(const QLineF& line, const QRectF& room)
{
    if (room.contains(line.p1()) || room.contains(line.p2())) return true;
    const std::array<QPointF, 4> corners = {room.topLeft(), room.topRight(), room.bottomRight(),
                                            room.bottomLeft()};
    for (std::size_t i = 0; i < corners.size(); ++i)
        if (QLineF(corners[i], corners[(i + 1) % corners.size()]).intersects(line, nullptr) ==
            QLineF::BoundedIntersection)
            return true;
    return false;
}

} // namespace

void PlotLettering::keepOff(const QPolygonF& line)
{
    for (qsizetype i = 1; i < line.size(); ++i)
        m_lines.emplace_back(line[i - 1], line[i]);
}

/// @param point that the words belong to
double PlotLettering::trouble(const QRectF& room, const QPointF& point) const
{
    const auto inTheWay = [&room](const QRectF& mark) { return mark.intersects(room); };
    const auto through = [&room](const QLineF& line) { return crosses(line, room); };
    const double away = QLineF(room.center(), point).length();
    const auto isNearer = [&](const QRectF& mark) {
        return !mark.contains(point) && QLineF(room.center(), mark.center()).length() < away;
    };
    const auto taken =
        std::ranges::count_if(m_marks, inTheWay) + std::ranges::count_if(m_words, inTheWay);
    return perMark * static_cast<double>(taken) +
           perLine * static_cast<double>(std::ranges::count_if(m_lines, through)) +
           perNearerMark * static_cast<double>(std::ranges::count_if(m_marks, isNearer));
}

QRectF PlotLettering::place(const QSizeF& words, const std::vector<QPointF>& points)
{
    QRectF best;
    double least = std::numeric_limits<double>::infinity();
    double step = 0; // the later a place is tried the less it is wanted
    for (const double distance : {m_unit, 2 * m_unit, 4 * m_unit, 7 * m_unit, 11 * m_unit}) {
        for (const QPointF& point : points) {
            for (const auto& side : sides) {
                QRectF room = roomBeside(point, words, side, distance);
                room.moveLeft(std::clamp(room.left(), m_area.left(),
                                         std::max(m_area.left(), m_area.right() - room.width())));
                room.moveTop(std::clamp(room.top(), m_area.top(),
                                        std::max(m_area.top(), m_area.bottom() - room.height())));
                const double cost = trouble(room, point) + perStep * step++;
                if (cost >= least) continue;
                least = cost;
                best = room;
            }
        }
    }
    m_words.push_back(best);
    return best;
}

} // namespace korvel
