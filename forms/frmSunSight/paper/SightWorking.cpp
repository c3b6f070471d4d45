// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/paper/SightWorking.h"

#include "app/reading/PositionText.h"
#include "app/reading/Reading.h"
#include "app/working/Interpolation.h"
#include "forms/frmSunSight/paper/SightTerms.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

#include <cmath>

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

std::string dateInFigures(const std::string& typed)
{
    const auto date = readDateTime(typed);
    return date ? Format(*date, "yyyy-mm-dd") : typed;
}

Working timeWorking(const SightTexts& texts, const LOPResult& line)
{
    Working working{"Time of the sight",
                    {"UTC = time by the watch - watch error, and - TD when the watch keeps SMT"},
                    {}};
    const std::string error = Format(readNumber(texts.watchError), "0.#");
    const std::string typed = dateInFigures(texts.date) + " " + texts.time + " - " + error + " s";
    const double TD = texts.SMT ? readNumber(texts.TD) : 0;
    if (!line.body.empty())
        working.resultStep("Body of the sight",
                           "by name or number; with a question mark: by the "
                           "altitude it may have been this one",
                           line.body);
    working.resultStep("Watch error", "fast positive", line.watchError);
    working.step("UTC",
                 texts.SMT ? "date and time - watch error - TD" : "date and time - watch error",
                 texts.SMT ? typed + " - " + term(TD, 2) + " h" : typed,
                 sightInstant(*line.figures.observation.UTC));
    working.resultStep("Time of the sight", "UTC", line.UTC);
    if (!line.SMT.empty())
        working.step("SMT", "UTC + TD",
                     sightInstant(*line.figures.observation.UTC) + " + " + term(TD, 2) + " h",
                     line.SMT);
    return working;
}

void addApparentLongitude(Working& working, const SunFigures& sun, DateTime UTC)
{
    const double T = sun.centuries;
    const std::string t = term(T, 10);
    const Degrees mean(280.4659 + 36000.7695 * T);
    const Degrees cosines = WithinHalfTurn(sun.longitude - mean);
    working.step("Julian day", "JD of the UTC", sightInstant(UTC), figure(sun.julianDay, 6));
    working.step("Julian centuries", "T = (JD + 60 s - 2451545) / 36525, dynamical time",
                 "(" + figure(sun.julianDay, 6) + " + 60 / 86400 - 2451545) / 36525",
                 figure(sun.centuries, 10));
    working.step("Ecliptic longitude, mean equinox",
                 "Λ = 280.4659 + 36000.7695 T + 16 cosines, less whole turns",
                 "280.4659 + 36000.7695 × " + t + " + " + sightTerm(cosines) +
                     sightTurns(mean, sun.longitude),
                 sightFigure(sun.longitude), "°");
    working.step("Aberration", "a = -0.005693 / R, R the distance of the Sun by 8 cosines",
                 "-0.005693 / " + figure(-0.005693 / sun.aberration.value(), 6),
                 sightFigure(sun.aberration), "°");
    working.step("Nutation in longitude",
                 "Δψ = -0.00487 sin(125.04 - 1934.136 T) + 0.00037 sin(200.93 + 72001.539 T)",
                 "-0.00487 × sin(125.04 - 1934.136 × " + t +
                     ") + 0.00037 × sin(200.93 + 72001.539 × " + t + ")",
                 sightFigure(sun.nutation), "°");
    working.step("Apparent longitude", "Λa = Λ + a + Δψ",
                 sightTerm(sun.longitude) + " + " + sightTerm(sun.aberration) + " + " +
                     sightTerm(sun.nutation),
                 sightFigure(sun.apparentLongitude), "°");
    working.step("Obliquity of the ecliptic",
                 "ε = 23.43929 - 0.013004 T + 0.00256 cos(125.04 - 1934.136 T) + 0.00016 "
                 "cos(200.93 + 72001.539 T)",
                 "23.43929 - 0.013004 × " + t + " + 0.00256 × cos(125.04 - 1934.136 × " + t +
                     ") + 0.00016 × cos(200.93 + 72001.539 × " + t + ")",
                 sightFigure(sun.obliquity), "°");
}

std::string siderealFigures(const SunFigures& sun, DateTime UTC)
{
    const double hours = (UTC - std::floor(UTC)) * 24;
    const double mean = 6.697375 + 2400.0513369 * sun.centuries;
    const double nutation = sun.nutation.value() * cos(sun.obliquity) / 15;
    const double turns = std::round((sun.siderealTime.value() - mean - hours - nutation) / 24);
    return "6.697375 + 2400.0513369 × " + term(sun.centuries, 12) +
           (turns == 0 ? "" : Format(24 * turns, " + 0; - 0")) + " + " + figure(hours, 8) + " + " +
           sightTerm(sun.nutation) + " × cos " + sightTerm(sun.obliquity) + " / 15";
}

Working sunWorking(const LOPResult& line)
{
    const SunFigures& sun = *line.figures.observation.sun;
    Working working{
        "Place of the Sun",
        {"Short series of cosines, listed in the manual (Sun and Moon, rise and "
         "set, \"Series of Sun and Moon\"); no almanac is needed. T in Julian centuries"},
        {}};
    addApparentLongitude(working, sun, *line.figures.observation.UTC);
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
                 siderealFigures(sun, *line.figures.observation.UTC), figure(sun.siderealTime, 8),
                 "h");
    working.step(
        "Greenwich hour angle", "GHA = 15 θ - α, less whole turns",
        "15 × " + figure(sun.siderealTime, 8) + " - " + sightTerm(DegMinToDeg(sun.rightAscension)) +
            sightTurns(Degrees(15 * sun.siderealTime.value()) - DegMinToDeg(sun.rightAscension),
                       DegMinToDeg(sun.GHA)),
        sightFigure(DegMinToDeg(sun.GHA)), "°");
    working.resultStep("Greenwich hour angle", "degrees and minutes of GHA, 0 to 360", line.GHA);
    return working;
}

std::vector<TableNode> nodesOf(CorrectionTable table)
{
    std::vector<TableNode> nodes;
    for (const TablePair& pair : table)
        nodes.push_back({*pair.x, *pair.y});
    return nodes;
}

/// A correction that is looked up in a table, with the table below the steps.
/// @param without what holds where there is nothing to look up
void addLookedUp(Working& working, const std::string& name, const std::string& formula,
                 const std::vector<TableNode>& table, DegMin altitude, double value,
                 const std::string& without = {})
{
    const std::string sign = formula.starts_with('-') ? "-" : "";
    working.step(name, formula,
                 table.empty() ? without : sign + lagrangeFigures(table, altitude.packed()),
                 minuteFigure(value), "'");
    if (!table.empty())
        working.tables.push_back(lagrangeTable(
            name + " at x = " + Format(altitude, "0.0####") + "°", "'", table, altitude.packed()));
}

void addTerms(Working& working, const SightCorrections& sight)
{
    const AltitudeCorrectionTerms& terms = sight.terms;
    const auto add = [&](const char* name, const char* formula, const std::string& figures,
                         double value) {
        working.step(name, formula, figures, minuteFigure(value), "'");
    };
    add("Dip", "-1.776 √h, h height of eye in metres",
        "-1.776 × √" + Format(sight.heightOfEye, "0.00####"), terms.dip);
    addLookedUp(working, "Refraction",
                "-R(hs) by Lagrange's formula from the table below; degrees and minutes of hs are "
                "read as one decimal",
                nodesOf(RefractionTable()), sight.observed, -terms.refraction);
    add("Semi-diameter", "that of July", "15.75", terms.semiDiameter);
    add("Semi-diameter of the month", "by the month", "month " + std::to_string(sight.month),
        terms.semiDiameterOfMonth);
    add("Parallax", "0.15 cos hs", "0.15 × cos " + sightTerm(DegMinToDeg(sight.observed)),
        terms.parallax);
    addLookedUp(working, "Air temperature",
                "by Lagrange's formula from the table for the temperature, up to 30°; 0 from -5 "
                "to 17 °C",
                nodesOf(TemperatureTable(sight.observed, sight.air)), sight.observed,
                terms.temperature, figure(sight.air, 1) + " °C: no table");
    addLookedUp(working, "Pressure",
                "by Lagrange's formula from the table for the pressure, up to 30°; 0.1' from 975, "
                "0 from 985 to 1025 and above 1045 hPa",
                nodesOf(PressureTable(sight.observed, sight.pressure)), sight.observed,
                terms.pressure, figure(static_cast<double>(sight.pressure), 1) + " hPa: no table");
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
    working.tables.push_back(worksheetTable(line));
    return working;
}

void addRun(Working& working, const LOPResult& line)
{
    const Track& track = line.figures.track;
    const Position& DR = *line.figures.DR;
    const Position& start = *track.position;
    working.angleStep("DR latitude", "φ0", DegToDegMin(start.latitude));
    working.angleStep("DR longitude", "λ0", DegToDegMin(start.longitude));
    if (track.UTC) { // else she lies where she is typed
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

std::string nameOfBody(const LOPResult& line)
{
    return line.figures.observation.isSun() ? "Sun" : "body";
}

void addAzimuth(Working& working, const LOPResult& line, const std::string& phi,
                const std::string& delta, const std::string& t)
{
    if (line.figures.isByQuotient)
        working.step("Azimuth",
                     "cos Z = (cos φ sin δ - sin φ cos δ cos t) / cos Hc; Zn = 360° - Z with the " +
                         nameOfBody(line) + " to the west (sin t > 0)",
                     std::string(*line.azimuth > Degrees(180) ? "360° - " : "") + "arccos((cos " +
                         phi + " × sin " + delta + " - sin " + phi + " × cos " + delta + " × cos " +
                         t + ") / cos " + sightTerm(line.figures.sun->altitude) + ")",
                     sightFigure(*line.azimuth), "°");
    else
        working.step("Azimuth, on the meridian or the prime vertical",
                     "tan Zn = -cos δ sin t / (cos φ sin δ - sin φ cos δ cos t), by quadrants",
                     "arctan(-cos " + delta + " × sin " + t + " / (cos " + phi + " × sin " + delta +
                         " - sin " + phi + " × cos " + delta + " × cos " + t + "))",
                     sightFigure(*line.azimuth), "°");
    working.resultStep("Azimuth Zn", "rounded to 0.1°", line.Zn, "degrees true");
}

Working lineWorking(const LOPResult& line)
{
    const LOPFigures& figures = line.figures;
    const Observation& seen = figures.observation;
    Working working{"Line of position",
                    {"Intercept method from the DR position run to the time of the sight; 1' of "
                     "arc = 1 mile, the run by middle latitude"},
                    {}};
    addRun(working, line);
    const Degrees GHA = DegMinToDeg(*figures.observation.GHA);
    const Degrees sum = GHA + figures.DR->longitude;
    const Degrees t = sum - Degrees(360 * std::floor(sum.value() / 360));
    const std::string phi = sightTerm(figures.DR->latitude);
    const std::string delta = sightTerm(DegMinToDeg(*figures.observation.declination));
    working.step("Local hour angle", "t = GHA + λ, from 0° to below 360°",
                 sightTerm(GHA) + " + " + sightTerm(figures.DR->longitude) + sightTurns(sum, t),
                 sightFigure(t), "°");
    working.step("Computed altitude", "sin Hc = sin φ sin δ + cos φ cos δ cos t",
                 "arcsin(sin " + phi + " × sin " + delta + " + cos " + phi + " × cos " + delta +
                     " × cos " + sightTerm(t) + ")",
                 sightFigure(figures.sun->altitude), "°");
    working.resultStep("Computed altitude", "degrees and minutes of Hc", line.Hc);
    addAzimuth(working, line, phi, delta, sightTerm(t));
    if (!line.intercept.empty())
        working.step("Intercept, T towards the " + nameOfBody(line) + ", A away",
                     "p = Ho - Hc, both as they are shown",
                     angleInFull(seen.corrections->Ho) + " - " +
                         angleInFull(DegToDegMin(figures.sun->altitude)),
                     line.intercept, "miles");
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
    if (figures.observation.place) workings.push_back(bodyPlaceWorking(line));
    if (const auto& corrections = figures.observation.corrections)
        workings.push_back(corrections->ofBody ? bodyAltitudeWorking(line) : altitudeWorking(line));
    if (figures.sun) workings.push_back(lineWorking(line));
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
