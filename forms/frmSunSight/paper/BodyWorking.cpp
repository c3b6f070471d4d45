// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "forms/frmSunSight/paper/SightTerms.h"
#include "forms/frmSunSight/paper/SightWorking.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

#include <cmath>
#include <utility>

namespace korvel
{
namespace
{

using namespace NavFunc113;

std::string inMinutes(double minutes)
{
    return figure(minutes, 4);
}

std::string nameOf(const Observation& seen)
{
    return std::string(almanac::entryOf(seen.body).name);
}

void addTerm(Working& working, const char* name, const char* formula, const std::string& figures,
             double value)
{
    working.step(name, formula, figures, inMinutes(value), "'");
}

void addDipAndRefraction(Working& working, const SightCorrections& sight)
{
    const almanac::SextantTerms& terms = *sight.ofBody;
    const std::string air = term(sight.air, 1);
    const double pressure = static_cast<double>(sight.pressure);
    addTerm(working, "Dip", "-1.76 √h, h height of eye in metres",
            "-1.76 × √" + Format(sight.heightOfEye, "0.00####"), terms.dip);
    addTerm(working, "Air - sea", "0.2 (air - sea)",
            "0.2 × (" + air + " - " + term(sight.sea, 1) + ")", terms.airSea);
    const std::string h = sightTerm(terms.apparent);
    addTerm(working, "Refraction in mean air", "-cot(ha + 7.31 / (ha + 4.4)), ha = hs + dip",
            "-cot(" + h + " + 7.31 / (" + h + " + 4.4))", terms.refraction);
    addTerm(working, "Air temperature", "R (1 - 283.15 / (273.15 + air)), R the refraction",
            inMinutes(-terms.refraction) + " × (1 - 283.15 / (273.15 + " + air + "))",
            terms.temperature);
    addTerm(working, "Pressure", "R 283.15 / (273.15 + air) (1 - pressure / 1010)",
            inMinutes(-terms.refraction) + " × 283.15 / (273.15 + " + air + ") × (1 - " +
                figure(pressure, 1) + " / 1010)",
            terms.pressure);
}

void addSizeAndParallax(Working& working, const Observation& seen)
{
    const almanac::SextantTerms& terms = *seen.corrections->ofBody;
    const almanac::Place& place = *seen.place;
    if (terms.semiDiameter != 0) {
        const std::string side = terms.semiDiameter < 0 ? "-" : "";
        addTerm(working, "Semi-diameter", "+ of the lower, - of the upper limb",
                side + inMinutes(place.semiDiameter.value() * 60), terms.semiDiameter);
        const Degrees grown((std::fabs(terms.semiDiameter) + std::fabs(terms.augmentation)) / 60);
        const std::string SD = angleTerm(place.semiDiameter, 7);
        addTerm(working, "Augmentation",
                "± (arcsin(sin SD / n) - SD), n the distance from the eye by that from the "
                "earth's centre",
                side + "60 × (arcsin(sin " + SD + " / " +
                    figure(sin(place.semiDiameter) / sin(grown), 7) + ") - " + SD + ")",
                terms.augmentation);
    }
    if (terms.parallax == 0) return;
    const std::string HP = sightTerm(place.horizontalParallax), h = sightTerm(terms.seen);
    addTerm(working, "Parallax in altitude",
            "sin p = sin HP cos h', h' of the middle as it is seen",
            "60 × arcsin(sin " + HP + " × cos " + h + ")", terms.parallax);
    addTerm(working, "Shape of the earth",
            "what the ellipsoid of WGS 84 adds, from the DR position; about HP / 298.3 "
            "(sin 2φ cos Zn sin h' - sin² φ cos h')",
            "at the DR position, h' " + h, terms.oblateness);
}

} // namespace

Working bodyPlaceWorking(const LOPResult& line)
{
    const Observation& seen = line.figures.observation;
    const almanac::Sky sky(*seen.UTC);
    const almanac::Place& place = *seen.place;
    const bool isStar = almanac::entryOf(seen.body).kind == almanac::BodyKind::Star;
    Working working{
        "Place of " + nameOf(seen),
        {"Apparent place, referred to the equator and equinox of date, UTC taken as UT1; "
         "the sources of the figures are in the manual"},
        {}};
    working.step("Terrestrial less universal time", "ΔT", sightInstant(*seen.UTC),
                 figure(sky.deltaT().seconds, 1), "s");
    const std::string here = "by the almanac, " + sightInstant(*seen.UTC);
    working.step("Greenwich hour angle of Aries", "GHA Aries", here, sightFigure(sky.ghaAries()),
                 "°");
    if (isStar) working.step("Sidereal hour angle", "SHA", here, sightFigure(place.sha), "°");
    const bool isBeyond = sky.ghaAries() + place.sha >= fullTurn;
    const std::string sum = sightTerm(sky.ghaAries()) + " + " + sightTerm(place.sha);
    working.step("Greenwich hour angle", isStar ? "GHA = GHA Aries + SHA" : "GHA",
                 isStar ? sum + (isBeyond ? " - 360°" : "") : here, sightFigure(place.gha), "°");
    working.resultStep("Greenwich hour angle", "degrees and minutes of GHA, 0 to 360", line.GHA);
    working.step("Declination",
                 seen.body == almanac::Body::Venus ? "δ, of her centre of light" : "δ", here,
                 sightFigure(place.declination), "°");
    working.resultStep("Declination", "degrees and minutes of δ, south negative", line.declination);
    if (!isStar)
        working.step("Horizontal parallax", "HP, of the equator", here,
                     inMinutes(place.horizontalParallax.value() * 60), "'");
    return working;
}

Working bodyAltitudeWorking(const LOPResult& line)
{
    const Observation& seen = line.figures.observation;
    const SightCorrections& sight = *seen.corrections;
    Working working{
        "Corrected altitude",
        {"Dip, refraction of what was observed, then of the Moon the semi-diameter, then "
         "parallax of the middle; of planets and stars the middle is observed"},
        {}};
    working.angleStep("Sextant altitude", "Hs", sight.Hs);
    working.step("Altitude above the sea horizon", "hs = Hs - index error, on the arc positive",
                 sightTerm(DegMinToDeg(sight.Hs)) + " - " + term(sight.indexError, 2) + "' / 60",
                 sightFigure(DegMinToDeg(sight.observed)), "°");
    addDipAndRefraction(working, sight);
    addSizeAndParallax(working, seen);
    const Degrees sum = DegMinToDeg(sight.Ho) - DegMinToDeg(sight.observed);
    working.step("Corrected altitude", "Ho = hs + the sum of all corrections / 60",
                 sightTerm(DegMinToDeg(sight.observed)) + " + " + term(sum.value() * 60, 4) +
                     "' / 60",
                 sightFigure(DegMinToDeg(sight.Ho)), "°");
    working.resultStep("Corrected altitude", "degrees and minutes of Ho", line.Ho);
    working.tables.push_back(worksheetTable(line));
    return working;
}

Working bodyMeridianWorking(const MeridianResult& noon)
{
    Working working{
        "Meridian passage",
        {"Passage over the meridian of the moving ship; a sight near it is reduced by sin "
         "Ho = sin φ sin δ + cos φ cos δ cos t, up to as many minutes of time from the "
         "meridian as the zenith distance has degrees, and no more than 30; of Polaris "
         "at every hour angle"},
        {}};
    if (!noon.noon.empty())
        working.resultStep(noon.caption, "the UTC at which t = GHA + λ of the ship is 0° or 180°",
                           noon.noon);
    if (!noon.greatest.empty())
        working.resultStep("Greatest altitude",
                           "15.28 s (15° / turning)² (tan φ ∓ tan δ) (body's ∓ ship's northing), "
                           "the lower signs and a minus for the lower passage",
                           noon.greatest);
    if (!noon.latitude.empty())
        working.resultStep("Latitude by the sight",
                           "φ = χ ± ζ, tan χ = tan δ / cos t, cos ζ = sin Ho sin χ / sin δ: the "
                           "nearer to the DR position",
                           noon.latitude);
    if (!noon.exMeridian.empty())
        working.resultStep("Reduction to the meridian", "φ less that of Ho on the meridian",
                           noon.exMeridian);
    if (!noon.note.empty())
        working.resultStep("The sight and the meridian", "t / 15° an hour", noon.note);
    return working;
}

} // namespace korvel
