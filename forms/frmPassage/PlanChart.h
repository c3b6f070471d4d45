// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanReckoning.h"

#include <string>
#include <vector>

/// The chart of a whole plan on Mercator's projection, where rhumb lines are straight.
namespace korvel
{

/// A place on the chart, in degrees of longitude from Greenwich. A plan is drawn in one piece: x
/// goes on beyond 180 where the ship does.
struct ChartSpot {
    double x{}; ///< east positive
    double y{}; ///< Mercator's, north positive
};

/// y of a latitude; beyond 85 degrees that of 85. Source: Mercator's projection of the sphere,
/// ln tan(45 deg + lat / 2).
double mercatorY(NavFunc113::Degrees latitude);
NavFunc113::Degrees latitudeAtY(double y);

struct PlanChart {
    struct Leg {
        std::size_t row; ///< that it leads to
        LegKind kind;
        std::vector<ChartSpot> points;
    };
    struct Mark {
        std::size_t row;
        ChartSpot at;
    };
    std::vector<Leg> legs;
    std::vector<Mark> marks; ///< of the rows that have positions

    bool isEmpty() const { return marks.empty(); }
};

/// Makes the chart of a plan and keeps the curves of legs that stayed as they were, so that a key
/// costs the same in a long plan.
class PlanChartMaker
{
public:
    PlanChart chartOf(const PlanReckoning& plan);

private:
    struct Way {
        NavFunc113::GeoPoint from, to;
        LegKind kind = LegKind::Rhumb;
        NavFunc113::DegMin limit;

        bool operator==(const Way&) const = default;
    };
    struct Curve {
        Way way;
        std::vector<ChartSpot> points; ///< behind the departure, longitudes as they are
    };
    const Curve& curveTo(const PlanReckoning& plan, std::size_t from, std::size_t row);

    std::vector<Curve> m_curves; ///< by row
};

/// The part of the chart that is seen.
struct ChartView {
    ChartSpot centre;
    double halfWidth = 90;

    /// @param aspect height of the picture by its width
    static ChartView ofAll(const PlanChart& chart, double aspect);
    /// @param by of the width, below 1 nearer; what lies at a spot stays there
    ChartView zoomed(double by, ChartSpot at) const;
    /// @param right, up in half widths
};

/// A line of the graticule.
struct GraticuleLine {
    double at;        ///< x of a meridian, y of a parallel
    std::string text; ///< "140°E", "35°30'N"
};

/// Meridians or parallels of a stretch of the chart, at round figures, so many at most.
std::vector<GraticuleLine> meridiansOf(double west, double east, std::size_t most);
std::vector<GraticuleLine> parallelsOf(double low, double high, std::size_t most);

/// A round number of miles for the scale of a chart.
/// @param most what there is room for
double milesOfScaleBar(double most);

} // namespace korvel
