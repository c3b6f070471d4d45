// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/paper/SightWorking.h"

#include "app/reading/PositionText.h"
#include "app/reading/Reading.h"
#include "forms/frmSunSight/paper/SightTerms.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

using namespace NavFunc113;

constexpr int minuteDecimals = 4; // of a minute of arc

std::string minuteFigure(double minutes)
{
    return figure(minutes, minuteDecimals);
}

Working timeWorking(const SightTexts& texts, const LOPResult& line)
{
    Working working{"Time of the sight",
                    {"UTC = time by the watch - watch error, and - TD when the watch keeps SMT"},
                    {}};
    const std::string error = Format(readNumber(texts.watchError), "0.#");
    const std::string typed = texts.date + " " + texts.time + " - " + error + " s";
    const double TD = texts.SMT ? readNumber(texts.TD) : 0;
    working.resultStep("Watch error", "fast positive", line.watchError);
    working.step("UTC",
                 texts.SMT ? "date and time - watch error - TD" : "date and time - watch error",
                 texts.SMT ? typed + " - " + term(TD, 2) + " h" : typed, line.UTC);
    if (!line.SMT.empty()) working.step("SMT", "UTC + TD", "", line.SMT);
    return working;
}

void addApparentLongitude(Working& working, const SunFigures& sun)
{
    working.step("Julian day", "JD of the UTC", "", figure(sun.julianDay, 6));
    working.step("Julian centuries", "T = (JD + 60 s - 2451545) / 36525, dynamical time",
                 "(" + figure(sun.julianDay, 6) + " + 60 / 86400 - 2451545) / 36525",
                 figure(sun.centuries, 10));
    working.step("Ecliptic longitude, mean equinox",
                 "Λ = 280.4659 + 36000.7695 T + 16 cosines of the series", "",
                 sightFigure(sun.longitude), "°");
    working.step("Aberration", "a = -0.005693 / R, R by a series of 8 cosines", "",
                 sightFigure(sun.aberration), "°");
    working.step("Nutation in longitude",
                 "Δψ = -0.00487 sin(125.04 - 1934.136 T) + 0.00037 sin(200.93 + 72001.539 T)", "",
                 sightFigure(sun.nutation), "°");
    working.step("Apparent longitude", "Λa = Λ + a + Δψ",
                 sightTerm(sun.longitude) + " + " + sightTerm(sun.aberration) + " + " +
                     sightTerm(sun.nutation),
                 sightFigure(sun.apparentLongitude), "°");
    working.step("Obliquity of the ecliptic",
                 "ε = 23.43929 - 0.013004 T + 0.00256 cos(125.04 - 1934.136 T) + 0.00016 "
                 "cos(200.93 + 72001.539 T)",
                 "", sightFigure(sun.obliquity), "°");
}

Working sunWorking(const LOPResult& line)
{
    const SunFigures& sun = *line.figures.observation.sun;
    Working working{"Place of the Sun", {"Short series of cosines; no almanac is needed"}, {}};
    addApparentLongitude(working, sun);
    const std::string longitude = sightTerm(sun.apparentLongitude);
    const std::string obliquity = sightTerm(sun.obliquity);
    working.step("Declination", "sin δ = sin ε sin Λa",
                 "arcsin(sin " + obliquity + " × sin " + longitude + ")",
                 sightFigure(DegMinToDeg(sun.declination)), "°");
    working.resultStep("Declination", "degrees and minutes of δ, south negative", line.declination);
    working.step("Right ascension", "tan α = cos ε sin Λa / cos Λa, in the quadrant of Λa",
                 "arctan(cos " + obliquity + " × sin " + longitude + " / cos " + longitude + ")",
                 sightFigure(DegMinToDeg(sun.rightAscension)), "°");
    working.step("Sidereal time at Greenwich",
                 "θ = 6.697375 + 2400.0513369 T, less whole days, + hours of UTC + Δψ cos ε / 15",
                 "", figure(sun.siderealTime, 8), "h");
    working.step("Greenwich hour angle", "GHA = 15 θ - α, less whole turns",
                 "15 × " + figure(sun.siderealTime, 8) + " - " +
                     sightTerm(DegMinToDeg(sun.rightAscension)),
                 sightFigure(DegMinToDeg(sun.GHA)), "°");
    working.resultStep("Greenwich hour angle", "degrees and minutes of GHA, 0 to 360", line.GHA);
    return working;
}

std::string tableText(CorrectionTable table)
{
    std::string text;
    for (const TablePair& pair : table)
        text += (text.empty() ? "from " : ", ") + Format(*pair.y, "0.0##") + "' at " +
                Format(*pair.x, "0") + "°";
    return text;
}

void addTerms(Working& working, const SightCorrections& sight)
{
    const AltitudeCorrectionTerms& terms = sight.terms;
    const std::string altitude = Format(sight.observed, "0.0####");
    const auto add = [&](const char* name, const char* formula, const std::string& figures,
                         double value) {
        working.step(name, formula, figures, minuteFigure(value), "'");
    };
    add("Dip", "-1.776 √h, h height of eye in metres", "-1.776 × √" + figure(sight.heightOfEye, 2),
        terms.dip);
    add("Refraction", "-R(hs) by Lagrange's formula, hs as it is written",
        altitude + " " + tableText(RefractionTable()), -terms.refraction);
    add("Semi-diameter", "that of July", "", terms.semiDiameter);
    add("Semi-diameter of the month", "by the month", "month " + std::to_string(sight.month),
        terms.semiDiameterOfMonth);
    add("Parallax", "0.15 cos hs", "0.15 × cos " + sightTerm(DegMinToDeg(sight.observed)),
        terms.parallax);
    add("Air temperature", "by Lagrange's formula, up to 30°; 0 from -5 to 17 °C",
        tableText(TemperatureTable(sight.observed, sight.air)), terms.temperature);
    add("Pressure", "by Lagrange's formula, up to 30°; 0.1 from 975, 0 from 985 to 1025 hPa",
        tableText(PressureTable(sight.observed, sight.pressure)), terms.pressure);
    add("Air - sea", "0.2 (air - sea)",
        "0.2 × (" + term(sight.air, 1) + " - " + term(sight.sea, 1) + ")", terms.airSea);
    if (sight.upperLimb != 0)
        add("Upper limb", "-2 × (semi-diameter + that of the month)",
            "-2 × (" + figure(terms.semiDiameter, 2) + " + " +
                figure(terms.semiDiameterOfMonth, 1) + ")",
            sight.upperLimb);
}

Working altitudeWorking(const LOPResult& line)
{
    const SightCorrections& sight = *line.figures.observation.corrections;
    Working working{"Corrected altitude",
                    {"Lower limb of the Sun; tables of refraction and of its departures with "
                     "temperature and pressure; the semi-diameter is 15.75' and what the month "
                     "adds"},
                    {}};
    working.angleStep("Sextant altitude", "Hs", sight.Hs);
    working.step("Altitude above the sea horizon", "hs = Hs - index error, on the arc positive",
                 sightTerm(DegMinToDeg(sight.Hs)) + " - " + term(sight.indexError, 2) + "' / 60",
                 sightFigure(DegMinToDeg(sight.observed)), "°");
    addTerms(working, sight);
    const Degrees sum = DegMinToDeg(sight.Ho) - DegMinToDeg(sight.observed);
    working.step("Corrected altitude", "Ho = hs + the sum of all corrections / 60",
                 sightTerm(DegMinToDeg(sight.observed)) + " + " +
                     term(sum.value() * 60, minuteDecimals) + "' / 60",
                 sightFigure(DegMinToDeg(sight.Ho)), "°");
    working.resultStep("Corrected altitude", "degrees and minutes of Ho", line.Ho);
    working.tables = {worksheetTable(line)};
    return working;
}

void addRun(Working& working, const LOPResult& line)
{
    const Track& track = line.figures.track;
    const Position& DR = *line.figures.DR;
    const Position& start = *track.position;
    working.step("DR latitude", "φ0", "as understood", sightFigure(start.latitude), "°");
    working.step("DR longitude", "λ0", "as understood", sightFigure(start.longitude), "°");
    if (track.UTC && track.motion) {
        const Hours hours((*line.figures.observation.UTC - *track.UTC) * 24);
        const Miles run = track.motion->speed * hours;
        const std::string course = sightTerm(track.motion->course);
        working.step("Run to the sight", "D = speed × hours from " + sightInstant(*track.UTC),
                     Format(track.motion->speed, "0.0#####") + " × " + term(hours, 6),
                     figure(run, 4), "miles");
        working.step("Latitude at the sight", "φ = φ0 + D cos C / 60",
                     sightTerm(start.latitude) + " + " + term(run, 4) + " × cos " + course +
                         " / 60",
                     sightFigure(DR.latitude), "°");
        working.step("Longitude at the sight", "λ = λ0 + D sin C / (60 cos φm), φm = (φ0 + φ) / 2",
                     sightTerm(start.longitude) + " + " + term(run, 4) + " × sin " + course +
                         " / (60 × cos " + sightTerm((start.latitude + DR.latitude) / 2) + ")",
                     sightFigure(DR.longitude), "°");
    }
    working.resultStep("DR at the sight", "degrees and minutes of φ and λ", line.DR);
}

void addAzimuth(Working& working, const LOPResult& line, const std::string& phi,
                const std::string& delta, const std::string& t)
{
    if (line.figures.isByQuotient)
        working.step("Azimuth",
                     "cos Z = (cos φ sin δ - sin φ cos δ cos t) / cos Hc; Zn = 360° - Z with the "
                     "Sun to the west (sin t > 0)",
                     "(cos " + phi + " × sin " + delta + " - sin " + phi + " × cos " + delta +
                         " × cos " + t + ") / cos " + sightTerm(line.figures.sun->altitude),
                     sightFigure(*line.azimuth), "°");
    else
        working.step("Azimuth, on the meridian or the prime vertical",
                     "tan Zn = -cos δ sin t / (cos φ sin δ - sin φ cos δ cos t), by quadrants", "",
                     sightFigure(*line.azimuth), "°");
    working.resultStep("Azimuth Zn", "rounded to 0.1°", line.Zn, "degrees true");
}

Working lineWorking(const LOPResult& line)
{
    const LOPFigures& figures = line.figures;
    Working working{"Line of position",
                    {"Intercept method from the DR position run to the time of the sight; 1' of "
                     "arc = 1 mile, the run by middle latitude"},
                    {}};
    addRun(working, line);
    const Degrees GHA = DegMinToDeg(*figures.observation.GHA);
    const Degrees t = GHA + figures.DR->longitude;
    const std::string phi = sightTerm(figures.DR->latitude);
    const std::string delta = sightTerm(DegMinToDeg(*figures.observation.declination));
    working.step("Local hour angle", "t = GHA + λ",
                 sightTerm(GHA) + " + " + sightTerm(figures.DR->longitude), sightFigure(t), "°");
    working.step("Computed altitude", "sin Hc = sin φ sin δ + cos φ cos δ cos t",
                 "arcsin(sin " + phi + " × sin " + delta + " + cos " + phi + " × cos " + delta +
                     " × cos " + sightTerm(t) + ")",
                 sightFigure(figures.sun->altitude), "°");
    working.resultStep("Computed altitude", "degrees and minutes of Hc", line.Hc);
    addAzimuth(working, line, phi, delta, sightTerm(t));
    if (!line.intercept.empty())
        working.step("Intercept, T towards the Sun, A away", "p = Ho - Hc, both as they are shown",
                     line.Ho + " - " + line.Hc, line.intercept, "miles");
    return working;
}

} // namespace

std::vector<Working> sightWorkings(const SightTexts& texts, const LOPResult& line)
{
    const LOPFigures& figures = line.figures;
    if (!figures.observation.UTC)
        return {{"Sight", {}, {}, {}, "No sight is being entered, or the remarks say why not."}};
    std::vector<Working> workings = {timeWorking(texts, line)};
    if (figures.observation.sun) workings.push_back(sunWorking(line));
    if (figures.observation.corrections) workings.push_back(altitudeWorking(line));
    if (figures.DR && figures.sun) workings.push_back(lineWorking(line));
    return workings;
}

PaperTable worksheetTable(const LOPResult& line)
{
    PaperTable table{"Worksheet, every term rounded by itself", {"", "as shown"}, {}};
    for (const WorksheetLine& each : line.worksheet)
        table.rows.push_back({each.caption, each.text});
    return table;
}

} // namespace korvel
