// SPDX-License-Identifier: MIT
#include "forms/frmWind/WindPicture.h"

#include "app/reading/Format.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using NavFunc113::Knots;

constexpr double margin = 1.15;     // of the outermost ring, for the labels
constexpr Knots longestDrawn(2000); // far outside the picture, and what a painter can still clip

WindVector vectorOf(Degrees bearing, Knots speed)
{
    const Knots length = std::min(speed, longestDrawn);
    return {length.value() * sin(bearing), length.value() * cos(bearing)};
}

Knots ringStepFor(Knots strongest)
{
    Knots step(5);
    for (const Knots wider : {Knots(10), Knots(20), Knots(50)})
        if (strongest > 4 * step) step = wider;
    return step;
}

} // namespace

WindPicture pictureOfWind(const WindFigures& figures, WindOrientation orientation, Knots heldRadius)
{
    WindPicture picture;
    const Knots strongest = std::max({figures.shipSpeed, figures.apparentSpeed, figures.trueSpeed});
    const Knots step = heldRadius > Knots(0) ? heldRadius / 4 : ringStepFor(strongest);
    for (int ring = 1; ring <= 4; ++ring)
        picture.rings.push_back(ring * step);
    const Knots radius = picture.rings.back();
    const double edge = radius.value() * margin;
    picture.scale = {-edge, edge, edge, -edge};

    // Directions are turned so that what is up lies at 0.
    const bool headUp = orientation == WindOrientation::HeadUp;
    const Degrees bow = headUp ? Degrees(0) : figures.course;
    picture.heading = vectorOf(bow, figures.shipSpeed);
    picture.apparentWind = vectorOf(bow + figures.relativeDirection, figures.apparentSpeed);
    picture.trueWind =
        vectorOf(figures.trueDirection - (headUp ? figures.course : Degrees(0)), figures.trueSpeed);
    constexpr std::array points{"N", "E", "S", "W"};
    constexpr std::array relative{"0", "90", "180", "-90"};
    for (std::size_t i = 0; i < points.size(); ++i)
        picture.compass[i] = {vectorOf(NavFunc113::quarterTurn * static_cast<double>(i), radius),
                              headUp ? relative[i] : points[i]};
    return picture;
}

WindPointer windAt(const WindVector& place, WindOrientation orientation, Degrees course)
{
    Degrees bearing = NavFunc113::RadToDeg(NavFunc113::ArcTan2(double(place.y), place.x));
    if (orientation == WindOrientation::NorthUp)
        bearing = NavFunc113::WithinHalfTurn(bearing - course);
    const double whole = std::round(bearing.value());
    const double speed = std::hypot(place.x, place.y);
    return {"Relative:" + Format(whole, "000/") + Format(speed, "0kn"), Format(whole, "0"),
            Format(speed, "0")};
}

} // namespace korvel
