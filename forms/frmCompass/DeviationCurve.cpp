// SPDX-License-Identifier: MIT
#include "forms/frmCompass/DeviationCurve.h"

#include "app/reading/Format.h"
#include "forms/frmCompass/CompassTexts.h"
#include "navlib/angles.h"

#include <algorithm>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using NavFunc113::DeviationFit;
using NavFunc113::DeviationPoint;

std::string headText(Degrees head)
{
    return courseText(head, "000");
}

std::vector<DeviationCurve::Point> pointsOf(const CompassBook& book, CompassKind kind,
                                            CountsSince since)
{
    std::vector<DeviationCurve::Point> points;
    for (std::size_t i = 0; i < book.size(); ++i) {
        const CompassReading& reading = book[i].at(kind);
        if (!reading.head || !reading.deviation || (since && book[i].UTC < *since)) continue;
        points.push_back({i, {*reading.head, *reading.deviation}, false, {}});
    }
    return points;
}

std::vector<DeviationPoint> goodPoints(const std::vector<DeviationCurve::Point>& points)
{
    std::vector<DeviationPoint> good;
    for (const DeviationCurve::Point& point : points)
        if (!point.isBlunder) good.push_back(point.at);
    return good;
}

void markBlunders(DeviationCurve& curve, const CompassBook& book, Remarks& remarks)
{
    for (const std::size_t i : NavFunc113::Blunders(goodPoints(curve.points))) {
        DeviationCurve::Point& point = curve.points[i];
        point.isBlunder = true;
        remarks.warn("Left out: " + minuteText(book[point.line].UTC) + ", deviation " +
                     eastWestText(point.at.deviation) + " on " + headText(point.at.heading) +
                     ", contradicts the other lines");
    }
}

std::string whatIsMissing(const std::vector<DeviationPoint>& points)
{
    const std::string line = points.size() == 1 ? " line" : " lines";
    if (points.size() < DeviationFit::fewestPoints)
        return "No curve: " + std::to_string(points.size()) + line +
               " with head and deviation, it needs " + std::to_string(DeviationFit::fewestPoints);
    return "No curve: lines on more headings are needed, first near " +
           headText(NavFunc113::OpenHeading(points).value_or(Degrees(0)));
}

void tellCurve(DeviationCurve& curve)
{
    const auto& found = curve.fit->coefficients();
    const std::array<Degrees, 5> values{found.A, found.B, found.C, found.D, found.E};
    for (std::size_t i = 0; i < values.size(); ++i)
        curve.coefficients[i] =
            std::string(1, static_cast<char>('A' + i)) + " " + eastWestText(values[i]);
    curve.scatter = Format(curve.fit->scatter(), "0.0°");
    for (DeviationCurve::Point& point : curve.points)
        point.residual = point.at.deviation - found.at(point.at.heading);
}

} // namespace

DeviationCurve deviationCurve(const CompassBook& book, CompassKind kind, CountsSince since)
{
    DeviationCurve curve;
    Remarks remarks;
    curve.points = pointsOf(book, kind, since);
    markBlunders(curve, book, remarks);
    const auto good = goodPoints(curve.points);
    curve.fit = DeviationFit::of(good);
    if (curve.fit)
        tellCurve(curve);
    else
        remarks.fault(whatIsMissing(good));
    curve.notice = remarks.text();
    return curve;
}

std::string doubtAbout(const CompassLine& line, const CompassBook& before,
                       const CountsSinceByCompass& since)
{
    Remarks remarks;
    for (const CompassKind kind : {CompassKind::Standard, CompassKind::Steering}) {
        const CompassReading& reading = line.at(kind);
        if (!reading.head || !reading.deviation) continue;
        const auto fit = deviationCurve(before, kind, since[static_cast<std::size_t>(kind)]).fit;
        if (!fit) continue;
        const Degrees ofCurve = fit->coefficients().at(*reading.head);
        const Degrees off = fabs(*reading.deviation - ofCurve);
        if (off <= fit->tolerance(*reading.head)) continue;
        remarks.warn(std::string(compassNames[static_cast<std::size_t>(kind)]) + ": deviation " +
                     eastWestText(*reading.deviation) + " on " + headText(*reading.head) +
                     " lies " + Format(off, "0.0°") + " from the curve of the book (" +
                     eastWestText(ofCurve) + ")");
    }
    return remarks.text();
}

std::string besideCurve(const NavFunc113::DeviationFit& fit, const CompassReading& reading)
{
    if (!reading.head || !reading.deviation) return {};
    const Degrees ofCurve = fit.coefficients().at(*reading.head);
    const Degrees off = fabs(*reading.deviation - ofCurve);
    const bool fits = off <= fit.tolerance(*reading.head);
    return "Curve " + eastWestText(ofCurve) + " on " + headText(*reading.head) + ": " +
           (fits ? "fits" : Format(off, "0.0°") + " off");
}

std::vector<std::array<std::string, 6>> curveLines(const DeviationCurve& curve,
                                                   const CompassBook& book)
{
    std::vector<DeviationCurve::Point> points = curve.points;
    std::ranges::stable_sort(points, {},
                             [](const DeviationCurve::Point& point) { return point.at.heading; });
    std::vector<std::array<std::string, 6>> lines;
    for (const DeviationCurve::Point& point : points) {
        const auto onCurve = curve.fit
                                 ? eastWestText(curve.fit->coefficients().at(point.at.heading))
                                 : std::string();
        lines.push_back({courseText(point.at.heading, "000.0"), eastWestText(point.at.deviation),
                         onCurve, point.residual ? eastWestText(*point.residual) : "",
                         minuteText(book[point.line].UTC), point.isBlunder ? "left out" : ""});
    }
    return lines;
}

std::vector<std::array<std::string, 3>> deviationCard(const DeviationCurve& curve)
{
    std::vector<std::array<std::string, 3>> rows;
    if (!curve.fit) return rows;
    constexpr int step = 15;
    for (int head = 0; head < 360; head += step) {
        const Degrees deviation = curve.fit->coefficients().at(Degrees(head));
        const Degrees magnetic = Degrees(head) + deviation;
        rows.push_back(
            {headText(Degrees(head)), eastWestText(deviation),
             courseText(NavFunc113::CourseOfParts(sin(magnetic), cos(magnetic)), "000.0")});
    }
    return rows;
}

} // namespace korvel
