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

/// Pieces of a line that are looked at one by one only where their rectangle meets the words.
constexpr qsizetype piecesTogether = 8;

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

/// Edges that touch meet too, as they do for a line: a line across has a rectangle without height.
bool meet(const QRectF& one, const QRectF& other)
{
    return one.left() <= other.right() && other.left() <= one.right() &&
           one.top() <= other.bottom() && other.top() <= one.bottom();
}

double distanceSquared(const QPointF& one, const QPointF& other)
{
    return QPointF::dotProduct(other - one, other - one);
}

/// Whether the straight piece enters the room: not all corners lie on one side of it.
bool crosses(const QPointF& from, const QPointF& to, const QRectF& room)
{
    if (!meet(QRectF(from, to).normalized(), room)) return false;
    const QPointF way = to - from;
    const auto side = [&](const QPointF& corner) {
        return way.x() * (corner.y() - from.y()) - way.y() * (corner.x() - from.x());
    };
    const auto [least, most] = std::minmax({side(room.topLeft()), side(room.topRight()),
                                            side(room.bottomLeft()), side(room.bottomRight())});
    return least <= 0 && most >= 0;
}

} // namespace

void PlotLettering::keepOff(const QPolygonF& line)
{
    for (qsizetype i = 1; i < line.size(); i += piecesTogether) {
        const QPolygonF part = line.mid(i - 1, piecesTogether + 1);
        if (meet(part.boundingRect(), m_area)) m_lines.push_back({part.boundingRect(), part});
    }
}

/// How often the line goes through the room of the words.
int PlotLettering::crossings(const Line& line, const QRectF& room)
{
    const qsizetype points = meet(line.around, room) ? line.points.size() : 0;
    int found = 0;
    for (qsizetype i = 1; i < points; ++i)
        found += crosses(line.points[i - 1], line.points[i], room);
    return found;
}

/// @param point that the words belong to
/// @param most a place that costs so much is out: the rest of its cost is not counted
double PlotLettering::trouble(const QRectF& room, const QPointF& point, double most) const
{
    const auto inTheWay = [&room](const QRectF& mark) { return meet(mark, room); };
    const auto taken =
        std::ranges::count_if(m_marks, inTheWay) + std::ranges::count_if(m_words, inTheWay);
    double cost = perMark * static_cast<double>(taken);
    const double away = distanceSquared(room.center(), point);
    for (const QRectF& mark : m_marks)
        if (!mark.contains(point) && distanceSquared(room.center(), mark.center()) < away)
            cost += perNearerMark;
    for (const Line& line : m_lines) {
        if (cost >= most) break;
        cost += perLine * crossings(line, room);
    }
    return cost;
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
                const double late = perStep * step++;
                if (late >= least) break; // no later one is better
                const double cost = trouble(room, point, least - late) + late;
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
