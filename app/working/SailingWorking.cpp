// SPDX-License-Identifier: MIT
#include "app/working/SailingWorking.h"

#include "app/reading/Format.h"
#include "app/records/KORVEL2000Actions.h"
#include "app/working/Interpolation.h"
#include "navlib/angles.h"

#include <cmath>

namespace korvel
{
namespace
{

using NavFunc113::Degrees;
using NavFunc113::Earth;

constexpr int angleDecimals = 6; // of a degree
constexpr int partsDecimals = 5;
constexpr int factorDecimals = 7;

std::string degreesTerm(Degrees angle)
{
    return angleTerm(angle, angleDecimals);
}

/// The whole turns between an angle as it was added up and as it is given, " - 360°".
std::string wholeTurns(Degrees sum, Degrees given)
{
    const double turns = std::round((given - sum).value() / 360);
    return turns == 0 ? "" : (turns > 0 ? " + " : " - ") + figure(360 * std::fabs(turns), 0) + "°";
}

/// λ2 - λ1 with what makes it the shorter way.
std::string shorterWay(const std::array<NavFunc113::DegMin, 4>& ends, Degrees change)
{
    const Degrees from = DegMinToDeg(ends[1]);
    const Degrees to = DegMinToDeg(ends[3]);
    return degreesTerm(to) + " - " + degreesTerm(from) + wholeTurns(to - from, change);
}

/// A packed latitude taken for decimal degrees, as the tables of factors take it.
Degrees asItIsWritten(NavFunc113::DegMin lat)
{
    return Degrees(std::fabs(lat.packed()));
}

void addCourse(Working& working, const std::array<NavFunc113::DegMin, 4>& ends,
               const NavFunc113::RhumbLeg& leg)
{
    const NavFunc113::RhumbSteps& steps = leg.steps;
    const double parts = steps.parts2 - steps.parts1;
    working.step("Change of longitude", "Δλ = λ2 - λ1, by the shorter way",
                 shorterWay(ends, steps.changeOfLongitude),
                 figure(steps.changeOfLongitude, angleDecimals), "°");
    working.step("Difference of meridional parts", "ΔM = M2 - M1",
                 term(steps.parts2, partsDecimals) + " - " + term(steps.parts1, partsDecimals),
                 figure(parts, partsDecimals), "'");
    const std::string value = figure(leg.course, angleDecimals);
    if (parts == 0)
        working.step("Course", "ΔM = 0: 090° to the east, 270° to the west, 000° without Δλ",
                     "Δλ = " + degreesTerm(steps.changeOfLongitude), value, "°");
    else
        working.step("Course", "tan C = 60 Δλ / ΔM, C in the quadrant of Δλ and ΔM",
                     "arctan(60 × " + degreesTerm(steps.changeOfLongitude) + " / " +
                         term(parts, partsDecimals) + ")",
                     value, "°");
}

void addLatitudeFactor(Working& working, const std::array<NavFunc113::DegMin, 4>& ends,
                       const NavFunc113::RhumbSteps& steps)
{
    working.step("Latitude for the length of the minute of latitude", "φm = |φ1 + φ2| / 2.05",
                 "|" + degreesTerm(DegMinToDeg(ends[0])) + " + " +
                     degreesTerm(DegMinToDeg(ends[2])) + "| / 2.05",
                 figure(steps.lookup, angleDecimals), "°");
    addFactor(working, "Length of the minute of latitude", "m(φm)",
              {NavFunc113::LatitudeFactorTable(), steps.lookup, steps.latitudeFactor});
}

void addDistance(Working& working, const std::array<NavFunc113::DegMin, 4>& ends,
                 const NavFunc113::RhumbLeg& leg, Earth earth)
{
    const NavFunc113::RhumbSteps& steps = leg.steps;
    const bool isSpheroid = earth == Earth::Spheroid;
    if (isSpheroid) addLatitudeFactor(working, ends, steps);
    if (steps.alongParallel) {
        const std::string figures = "60 × |" + figure(steps.changeOfLongitude, angleDecimals) +
                                    "°| × cos " + degreesTerm(DegMinToDeg(ends[0]));
        if (isSpheroid)
            addFactor(
                working, "Length of the minute of longitude divided by cos φ",
                "p(φ1), φ1 as it is written",
                {NavFunc113::ParallelFactorTable(), asItIsWritten(ends[0]), steps.parallelFactor});
        working.step("Distance along the parallel",
                     isSpheroid ? "D = 60 |Δλ| cos φ1 p" : "D = 60 |Δλ| cos φ1",
                     isSpheroid ? figures + " × " + figure(steps.parallelFactor, factorDecimals)
                                : figures,
                     figure(leg.distance, 5), "miles");
        return;
    }
    const Degrees change = DegMinToDeg(ends[2]) - DegMinToDeg(ends[0]);
    working.step(
        "Change of latitude", isSpheroid ? "Δφ = (φ2 - φ1) m" : "Δφ = φ2 - φ1",
        isSpheroid ? degreesTerm(change) + " × " + figure(steps.latitudeFactor, factorDecimals)
                   : degreesTerm(DegMinToDeg(ends[2])) + " - " + degreesTerm(DegMinToDeg(ends[0])),
        figure(steps.changeOfLatitude, angleDecimals), "°");
    working.step("Distance", "D = |60 Δφ / cos C|",
                 "|60 × " + degreesTerm(steps.changeOfLatitude) + " / cos " +
                     degreesTerm(leg.course) + "|",
                 figure(leg.distance, 5), "miles");
}

} // namespace

std::vector<std::string> sailingMethod(Earth earth)
{
    return {"Mercator sailing by meridional parts M = 7915.7 log tan(45° + φ/2) - 23.1 sin φ, in "
            "minutes of longitude; north and east positive",
            earth == Earth::Sphere
                ? "Sphere, distance unit 1nm = 1' of latitude: a mile is a minute of arc"
                : "Spheroid, distance unit 1nm = 1852 m: lengths of the minutes of latitude and "
                  "longitude in miles of 1852 m"};
}

std::vector<std::string> sailingLimits(Earth earth)
{
    if (earth == Earth::Sphere)
        return {"A minute of latitude is 0.9951 miles of 1852 m long at the equator and 1.0052 at "
                "the poles: against the rhumb line of the spheroid of 1984 distances are up to "
                "0.50 % out (100 000 legs to latitude 75), courses 0.001°"};
    return {
        "The lengths of the minutes are interpolated between five and four latitudes and taken "
        "in the middle of a leg: against the rhumb line of the spheroid of 1984 distances are "
        "up to 0.30 % out to latitude 60 and 0.41 % to latitude 75 (100 000 legs each), the "
        "most on long legs across the equator; legs of some hundred miles 0.03 %, courses 0.001°"};
}

std::string factorNodes(std::span<const NavFunc113::FactorNode> table)
{
    std::string nodes;
    for (const NavFunc113::FactorNode& node : table)
        nodes += (nodes.empty() ? "" : ", ") + figure(node.factor, 5) + " at " +
                 figure(node.lat, 0) + "°";
    return nodes;
}

void addFactor(Working& working, const std::string& name, const std::string& formula,
               const LookedUpFactor& found)
{
    std::vector<TableNode> nodes;
    for (const NavFunc113::FactorNode& node : found.table)
        nodes.push_back({node.lat, node.factor});
    working.step(name, formula + " by Lagrange's formula from " + factorNodes(found.table),
                 lagrangeFigures(nodes, found.at.value()), figure(found.factor, factorDecimals),
                 "miles");
}

void addParts(Working& working, const std::string& number, Degrees lat, double parts)
{
    const std::string phi = "φ" + number;
    working.step("Meridional parts of " + phi,
                 "M" + number + " = 7915.7 log tan(45° + " + phi + "/2) - 23.1 sin " + phi,
                 "7915.7 × log tan(45° + " + degreesTerm(lat) + " / 2) - 23.1 × sin " +
                     degreesTerm(lat),
                 figure(parts, partsDecimals), "'");
}

void addRhumbLeg(Working& working, const std::array<NavFunc113::DegMin, 4>& ends,
                 const NavFunc113::RhumbLeg& leg, Earth earth)
{
    working.angleStep("Latitude of departure", "φ1", ends[0]);
    working.angleStep("Longitude of departure", "λ1", ends[1]);
    working.angleStep("Latitude of arrival", "φ2", ends[2]);
    working.angleStep("Longitude of arrival", "λ2", ends[3]);
    addParts(working, "1", DegMinToDeg(ends[0]), leg.steps.parts1);
    addParts(working, "2", DegMinToDeg(ends[2]), leg.steps.parts2);
    addCourse(working, ends, leg);
    addDistance(working, ends, leg, earth);
}

void addRunInLatitude(Working& working, const ReckonedRun& from, const NavFunc113::LatitudeRun& run,
                      Earth earth)
{
    working.step("Run to the north", "r = D cos C / 60",
                 Format(from.distance.value(), "0.#####") + " × cos " + memoText(from.course) +
                     "° / 60",
                 figure(run.run, angleDecimals), "°");
    if (earth == Earth::Spheroid) {
        working.step("Latitude for the length of the minute of latitude",
                     "φm = |2 φ1 + r| / 2.05, φ1 as it is written",
                     "|2 × " + term(from.start[0].packed(), angleDecimals) + " + " +
                         degreesTerm(run.run) + "| / 2.05",
                     figure(run.lookup, angleDecimals), "°");
        addFactor(working, "Length of the minute of latitude", "m(φm)",
                  {NavFunc113::LatitudeFactorTable(), run.lookup, run.factor});
    }
    working.step("Change of latitude", earth == Earth::Spheroid ? "Δφ = r / m" : "Δφ = r",
                 earth == Earth::Spheroid
                     ? degreesTerm(run.run) + " / " + figure(run.factor, factorDecimals)
                     : degreesTerm(run.run),
                 figure(run.change, angleDecimals), "°");
    working.step("Latitude reached", "φ2 = φ1 + Δφ",
                 degreesTerm(DegMinToDeg(from.start[0])) + " + " + degreesTerm(run.change),
                 figure(DegMinToDeg(run.reached), angleDecimals), "°");
}

void addRunInLongitude(Working& working, const ReckonedRun& from,
                       const NavFunc113::LatitudeRun& latitude, const NavFunc113::LongitudeRun& run,
                       Earth earth)
{
    if (run.alongParallel) {
        const bool isSpheroid = earth == Earth::Spheroid;
        if (isSpheroid)
            addFactor(working, "Length of the minute of longitude divided by cos φ",
                      "p(φ1), φ1 as it is written",
                      {NavFunc113::RunFactorTable(), asItIsWritten(from.start[0]), run.factor});
        const std::string direction = run.change < Degrees(0) ? "-" : "";
        working.step("Change of longitude along the parallel, west negative",
                     isSpheroid ? "Δλ = D / (60 cos φ1 p)" : "Δλ = D / (60 cos φ1)",
                     direction + Format(from.distance.value(), "0.#####") + " / (60 × cos " +
                         degreesTerm(DegMinToDeg(from.start[0])) +
                         (isSpheroid ? " × " + figure(run.factor, factorDecimals) : "") + ")",
                     figure(run.change, angleDecimals), "°");
    } else if (from.distance > NavFunc113::Miles(0)) {
        addParts(working, "1", DegMinToDeg(from.start[0]), run.parts1);
        addParts(working, "2", DegMinToDeg(latitude.reached), run.parts2);
        working.step("Change of longitude", "Δλ = tan C (M2 - M1) / 60",
                     "tan " + memoText(from.course) + "° × (" + term(run.parts2, partsDecimals) +
                         " - " + term(run.parts1, partsDecimals) + ") / 60",
                     figure(run.change, angleDecimals), "°");
    }
    working.step("Longitude reached", "λ2 = λ1 + Δλ, less whole turns",
                 degreesTerm(DegMinToDeg(from.start[1])) + " + " + degreesTerm(run.change) +
                     wholeTurns(DegMinToDeg(from.start[1]) + run.change, DegMinToDeg(run.reached)),
                 figure(DegMinToDeg(run.reached), angleDecimals), "°");
}

} // namespace korvel
