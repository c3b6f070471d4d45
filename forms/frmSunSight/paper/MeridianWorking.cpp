// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/paper/SightTerms.h"
#include "forms/frmSunSight/paper/SightWorking.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

using namespace NavFunc113;

PaperTable noonTable(const MeridianFigures& figures)
{
    PaperTable table{
        "Steps to the passage: to go = -λ - GHA within half a turn; the next UTC is to go / 360° "
        "days later",
        {"UTC", "λ of the ship °", "GHA °", "to go °"},
        {}};
    for (const NoonStep& step : figures.steps)
        table.rows.push_back({sightInstant(step.instant), sightFigure(step.longitude),
                              sightFigure(step.GHA), sightFigure(step.toGo)});
    return table;
}

void addNoon(Working& working, const MeridianResult& noon)
{
    const MeridianFigures& figures = noon.figures;
    working.resultStep("Local apparent noon", "the UTC that the steps below end at", noon.noon);
    const std::string at = "at " + sightInstant(*figures.noon) + " UTC";
    working.step("Latitude of the ship at noon", "φ of the DR position run to noon", at,
                 sightFigure(figures.atNoon.latitude), "°");
    working.step("Declination at noon", "δ by the series of the Sun", at,
                 sightFigure(figures.declinationAtNoon), "°");
    working.step("Change of declination", "60 (δ half an hour later - δ half an hour earlier)",
                 "60 × (" + sightTerm(figures.declinationLater) + " - " +
                     sightTerm(figures.declinationEarlier) + ")",
                 figure(figures.sunNorthward, 4), "' an hour, to the north");
    working.step("Ship's northing", "v cos C, none without a course and speed",
                 figures.motion ? Format(figures.motion->speed, "0.0#####") + " × cos " +
                                      sightTerm(figures.motion->course)
                                : "0",
                 figure(figures.shipNorthward, 4), "' an hour, to the north");
    working.step("Greatest altitude after the passage", "15.28 (tan φ - tan δ) (Sun's - ship's)",
                 "15.28 × (tan " + sightTerm(figures.atNoon.latitude) + " - tan " +
                     sightTerm(figures.declinationAtNoon) + ") × (" +
                     term(figures.sunNorthward, 4) + " - " + term(figures.shipNorthward, 4) + ")",
                 figure(figures.delay, 2), "s");
    working.resultStep("Greatest altitude", "rounded to a second", noon.greatest);
    working.tables = {noonTable(figures)};
}

void addLatitude(Working& working, const MeridianResult& noon)
{
    const MeridianFigures& figures = noon.figures;
    const MeridianLatitudes& found = *figures.latitudes;
    const std::string delta = sightTerm(figures.declination);
    const std::string t = sightTerm(figures.hourAngle);
    const std::string Ho = sightTerm(figures.Ho);
    working.step("Hour angle at the sight", "t = GHA + λ, within half a turn",
                 sightTerm(figures.GHA) + " + " + sightTerm(figures.longitude) +
                     sightTurns(figures.GHA + figures.longitude, figures.hourAngle),
                 sightFigure(figures.hourAngle), "°");
    working.step("Latitude where the Sun would stand highest", "tan χ = tan δ / cos t",
                 "arctan(tan " + delta + " / cos " + t + ")", sightFigure(found.between), "°");
    working.step("Distance from there",
                 "cos ζ = sin Ho sin χ / sin δ, the same as sin Ho / √(sin² "
                 "δ + cos² δ cos² t)",
                 "arccos(sin " + Ho + " / √(sin² " + delta + " + cos² " + delta + " × cos² " + t +
                     "))",
                 sightFigure(found.bodyToTheSouth - found.between), "°");
    working.step("Latitude with the Sun to the south", "φ = χ + ζ",
                 sightTerm(found.between) + " + " + sightTerm(found.bodyToTheSouth - found.between),
                 sightFigure(found.bodyToTheSouth), "°");
    working.step("Latitude with the Sun to the north", "φ = χ - ζ",
                 sightTerm(found.between) + " - " + sightTerm(found.bodyToTheSouth - found.between),
                 sightFigure(found.bodyToTheNorth), "°");
    working.resultStep("Latitude by the sight",
                       std::string("by the DR latitude the Sun stands to the ") +
                           (figures.isSouth ? "south" : "north") + "; both where that is in doubt",
                       noon.latitude);
    working.step("Reduction to the meridian",
                 figures.isSouth ? "60 (φ - (δ + 90° - Ho))" : "60 (φ - (δ - 90° + Ho))",
                 "60 × (" +
                     sightTerm(figures.isSouth ? found.bodyToTheSouth : found.bodyToTheNorth) +
                     " - (" + delta + (figures.isSouth ? " + 90° - " : " - 90° + ") + Ho + "))",
                 figure(figures.reduction, 4), "'");
}

} // namespace

std::optional<Working> meridianWorking(const MeridianResult& noon)
{
    if (!noon.caption.empty()) return bodyMeridianWorking(noon);
    Working working{
        "Meridian passage",
        {"Passage of the Sun over the meridian of the moving ship; a sight near it is reduced by "
         "sin Ho = sin φ sin δ + cos φ cos δ cos t, up to as many minutes of time from the "
         "meridian as the zenith distance has degrees, and no more than 20"},
        {}};
    if (noon.figures.noon) addNoon(working, noon);
    if (noon.figures.latitudes) addLatitude(working, noon);
    if (!noon.exMeridian.empty())
        working.resultStep(
            "Reduction to the meridian",
            "φ = χ ± ζ, tan χ = tan δ / cos t, less δ ± (90° - Ho); up to 30 minutes",
            noon.exMeridian);
    if (!noon.note.empty())
        working.resultStep("The sight and the meridian", "t / 15° an hour", noon.note);
    if (working.steps.empty()) return std::nullopt;
    return working;
}

} // namespace korvel
