// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/SightBody.h"

#include "almanac/horizon.h"
#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

#include <algorithm>
#include <cmath>

namespace korvel
{
namespace
{

using almanac::Body;
using NavFunc113::Degrees;

constexpr std::size_t mostNamed = 4;

std::string trimmed(std::string_view box)
{
    std::string name = asciiForms(box);
    name.erase(name.find_last_not_of(" \t") + 1);
    name.erase(0, name.find_first_not_of(" \t"));
    return name;
}

std::string nameOf(Body body)
{
    return std::string(almanac::entryOf(body).name);
}

std::string namesOf(const std::vector<Body>& bodies)
{
    std::string names;
    for (std::size_t i = 0; i < std::min(bodies.size(), mostNamed); ++i)
        names += (i ? ", " : "") + nameOf(bodies[i]);
    return names + (bodies.size() > mostNamed ? " .." : "");
}

/// Visual magnitude as far as it says how likely a body is observed: of the planets a usual one.
double magnitudeOf(Body body)
{
    switch (body) {
    case Body::Sun:
    case Body::Moon:
    case Body::Venus:
        return -4;
    case Body::Jupiter:
        return -2;
    case Body::Mars:
    case Body::Saturn:
        return 0.6;
    default:
        return almanac::entryOf(body).magnitude.value_or(3);
    }
}

almanac::Observer observerAt(const NavFunc113::Position& place)
{
    return {place.latitude, place.longitude, {}};
}

/// A quarter of a degree weighs as much as a magnitude.
double unlikeliness(const LikelyBody& each)
{
    const double quarters = each.off.value() / 0.25;
    return quarters * quarters + magnitudeOf(each.body);
}

} // namespace

std::optional<Body> readBody(std::string_view box, Remarks& remarks)
{
    const std::string name = trimmed(box);
    if (name.empty()) return Body::Sun;
    const std::vector<Body> found = almanac::bodiesBeginning(name);
    if (found.size() == 1) return found.front();
    if (found.empty())
        remarks.fault("Body of the sight: " + quotation(name) + " is not in the almanac");
    else
        remarks.fault("Body of the sight: " + quotation(name) + " may be " + namesOf(found));
    return std::nullopt;
}

std::string bodyForRecord(const std::string& box)
{
    Remarks unheard;
    const auto body = readBody(box, unheard);
    if (!body) return box;
    return *body == Body::Sun ? std::string() : nameOf(*body);
}

std::string bodyFacts(Body body)
{
    const almanac::BodyEntry& entry = almanac::entryOf(body);
    if (entry.kind != almanac::BodyKind::Star) return {};
    if (entry.number) return "star " + std::to_string(entry.number);
    return "mag. " + Format(entry.magnitude.value_or(0), "0.0");
}

std::string plannedLine(const PlannedSight& planned)
{
    return planned.body + "  preset " +
           angleText(NavFunc113::DegToDegMin(planned.sextantAltitude)) + "  bearing " +
           courseText(planned.azimuth, "000") + "  at " + minuteText(planned.utc) + " UTC";
}

std::string sentenceOf(std::string name)
{
    if (name.starts_with("the ")) name[0] = 'T';
    return name;
}

bool isByDay(const almanac::Sky& sky, const NavFunc113::Position& place)
{
    constexpr double limbOnHorizon = -50.0 / 60;
    return almanac::seenFrom(sky.place(Body::Sun), observerAt(place)).direction.altitude >
           Degrees(limbOnHorizon);
}

std::vector<LikelyBody> likelyBodies(const almanac::Sky& sky, Degrees seen,
                                     const NavFunc113::Position& place, Body except)
{
    constexpr Degrees farthest(1);
    constexpr std::size_t most = 3;
    const bool byDay = isByDay(sky, place);
    std::vector<LikelyBody> likely;
    for (const almanac::BodyEntry& entry : almanac::bodies()) {
        const Body body = entry.body;
        const bool seenByDay = almanac::hasLimbs(body) || body == Body::Venus;
        if (body == except || (byDay ? !seenByDay : body == Body::Sun)) continue;
        const auto stands = almanac::seenFrom(sky.place(body), observerAt(place));
        Degrees off = seen - stands.direction.altitude;
        if (almanac::hasLimbs(body)) // whichever limb was taken
            off = std::min(off + stands.semiDiameter, off - stands.semiDiameter,
                           [](Degrees a, Degrees b) { return fabs(a) < fabs(b); });
        if (fabs(off) > farthest || stands.direction.altitude < Degrees(0)) continue;
        likely.push_back({body, off, stands.direction.azimuth});
    }
    std::ranges::stable_sort(likely, {}, unlikeliness);
    if (likely.size() > most) likely.resize(most);
    return likely;
}

std::string likelyText(const std::vector<LikelyBody>& likely)
{
    std::string text;
    for (const LikelyBody& each : likely) {
        text += text.empty() ? "" : ", ";
        text += nameOf(each.body) + " (" + Format(fabs(each.off), "0.0") + "° off, bearing " +
                courseText(each.azimuth, "000") + ")";
    }
    return text;
}

} // namespace korvel
