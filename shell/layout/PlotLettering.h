// SPDX-License-Identifier: MIT
#pragma once

#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

#include <vector>

namespace korvel
{

/// Finds places for the words of a plot: clear of each other and of marks, and clear of lines where
/// there is such a place. Everything is in pixels.
class PlotLettering
{
public:
    /// @param area where words may stand
    /// @param unit distance of words from what they belong to
    PlotLettering(const QRectF& area, double unit) : m_area(area), m_unit(unit) {}

    void keepOff(const QPolygonF& line);
    void keepOff(const QRectF& mark) { m_marks.push_back(mark); }

    /// @param points that the words may stand beside, the best one first
    /// @return the room of the words, which no others will get
    QRectF place(const QSizeF& words, const std::vector<QPointF>& points);

private:
    /// Some pieces of a line.
    struct Line {
        QRectF around;
        QPolygonF points;
    };

    static int crossings(const Line& line, const QRectF& room);
    double trouble(const QRectF& room, const QPointF& point, double most) const;

    QRectF m_area;
    double m_unit;
    std::vector<Line> m_lines; ///< as far as the area shows them
    std::vector<QRectF> m_marks;
    std::vector<QRectF> m_words; ///< that have their place
};

} // namespace korvel
