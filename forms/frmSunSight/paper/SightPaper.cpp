// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/paper/SightPaper.h"

#include "app/reading/Ascii.h"
#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/reading/Remarks.h"
#include "forms/frmSunSight/paper/SightWorking.h"
#include "forms/frmSunSight/sight/SightFields.h"
#include "forms/frmSunSight/sight/SightLine.h"
#include "navlib/angles.h"

#include <algorithm>
#include <array>

namespace korvel
{
namespace
{

using namespace NavFunc113;

/// A text of the window with its dates, "1990/12/16", as papers have them.
std::string datesInFull(std::string text)
{
    constexpr std::string_view shape = "0000/00/00";
    for (std::size_t at = 0; at + shape.size() <= text.size(); ++at) {
        const bool isDate = std::equal(
            shape.begin(), shape.end(), text.begin() + std::ptrdiff_t(at),
            [](char wanted, char each) { return wanted == '0' ? isDigit(each) : each == wanted; });
        if (isDate) text[at + 4] = text[at + 7] = '-';
    }
    return text;
}

constexpr std::array limitsOfSun = {
    "Place of the Sun, 2000 to 2050, against an independent ephemeris: GHA 0.11' (95 %), 0.16' "
    "at the worst; declination 0.03', 0.07'",
    "The refraction is tabulated from 10 to 85 degrees and extrapolated beyond: 1.9' out at 5 "
    "degrees"};
constexpr const char* limitOfFix =
    "The fix refers to the sphere, 1' of arc = 1 mile; its ellipse holds as far as sigma and "
    "run do";

constexpr const char* limitsOfBodies =
    "Places of the Moon, planets and stars, 1960 to 2060, against full series: 0.03' at the worst "
    "of "
    "108; UTC for UT1 is worth up to 0.23' of hour angle; parallax 0.025' at the worst of 40; "
    "refraction from the horizon up 0.1' in mean air, below 10 degrees minutes in unusual air";

/// Adds a result that is there, written out where the window writes it otherwise.
void addResult(WorkingPaper& paper, const std::string& name, const std::string& shown,
               const std::string& inFull = {}, const std::string& unit = {})
{
    if (shown.empty()) return;
    const std::string whole = inFull.empty() ? datesInFull(shown) : inFull;
    paper.results.push_back({name, whole, unit, whole == shown ? "" : shown});
}

std::string inFull(const std::optional<DegMin>& angle)
{
    return angle ? angleInFull(*angle) : std::string();
}

/// The latitude by the sight; nothing where the side of the Sun is in doubt and two are shown.
std::string latitudeInFull(const MeridianResult& noon)
{
    const auto& latitudes = noon.figures.latitudes;
    if (!latitudes || noon.latitude.empty() || noon.latitude.find(' ') != std::string::npos)
        return {};
    return positionForCopy(
        DegToDegMin(noon.figures.isSouth ? latitudes->bodyToTheSouth : latitudes->bodyToTheNorth),
        Axis::Latitude);
}

void addLineResults(const SightPaperParts& parts, WorkingPaper& paper)
{
    const LOPResult& line = parts.line;
    const Observation& seen = line.figures.observation;
    addResult(paper, "Time of the sight", line.UTC);
    addResult(paper, "Time of the sight by ship's mean time", line.SMT);
    addResult(paper, "Watch error", line.watchError);
    addResult(paper, "Corrected altitude Ho", line.Ho,
              seen.corrections ? angleInFull(seen.corrections->Ho) : "");
    addResult(paper, "Declination", line.declination,
              seen.declination ? positionForCopy(*seen.declination, Axis::Latitude) : "");
    addResult(paper, "Greenwich hour angle", line.GHA, seen.GHA ? angleInFull(*seen.GHA) : "");
    if (const auto& DR = line.figures.DR)
        addResult(paper, "DR at the sight", line.DR,
                  positionForCopy(DegToDegMin(DR->latitude), DegToDegMin(DR->longitude)));
    if (line.figures.sun)
        addResult(paper, "Computed altitude Hc", line.Hc,
                  inFull(DegToDegMin(line.figures.sun->altitude)));
    addResult(paper, "Intercept, T towards, A away", line.intercept, "", "nautical miles");
    addResult(paper, "Azimuth Zn", line.Zn, "", "degrees true");
    const std::string& passage = parts.noon.caption;
    addResult(paper, passage.empty() ? "Local apparent noon" : passage, parts.noon.noon);
    addResult(paper, "Greatest altitude", parts.noon.greatest);
    addResult(paper, "Latitude by the sight", parts.noon.latitude, latitudeInFull(parts.noon));
    addResult(paper, "The sight and the meridian", parts.noon.note);
    addResult(paper, "Reduction to the meridian", parts.noon.exMeridian);
}

void addFixResults(const SightFixResult& fix, WorkingPaper& paper)
{
    if (fix.solution) {
        const Position& at = fix.solution->position;
        addResult(paper, "Latitude of the fix", fix.latitude,
                  positionForCopy(DegToDegMin(at.latitude), Axis::Latitude));
        addResult(paper, "Longitude of the fix", fix.longitude,
                  positionForCopy(DegToDegMin(at.longitude), Axis::Longitude));
    }
    addResult(paper, "Time of the fix", fix.time);
    addResult(paper, "Error ellipse", fix.ellipseText);
    addResult(paper, "Sigma", fix.sigmaText);
    addResult(paper, "Fix without what does not fit", fix.withoutText);
    addResult(paper, "Longitude by equal altitudes", fix.equalText);
    addResult(paper, "Series of shots", fix.seriesText);
}

/// A recorded sight with its line, when it is on; of a series the first one has it.
struct ListedSight {
    const RecordedSight& recorded;
    Observation seen;
    const FixLine* line = nullptr;
    const SeriesShot* shot = nullptr; ///< of a series that it belongs to
    std::optional<Miles> residual;
};

std::vector<ListedSight> listed(const SightList& list, const SightFixResult& fix)
{
    std::vector<ListedSight> sights;
    Remarks unheard; // the window names them
    for (const RecordedSight& each : list.sights())
        sights.push_back({each, readObservation(each.texts, unheard), nullptr, nullptr, {}});
    for (std::size_t i = 0; i < fix.lines.size(); ++i) {
        ListedSight& sight = sights.at(fix.lines[i].index);
        sight.line = &fix.lines[i];
        if (fix.solution) sight.residual = fix.solution->residuals.at(i);
    }
    for (const SightSeries& series : fix.series)
        for (const SeriesShot& shot : series.shots)
            sights.at(shot.index).shot = &shot;
    return sights;
}

/// Of which body a sight is, and which limb of the Sun and the Moon.
std::string limbOf(const ListedSight& sight)
{
    std::string limb = sight.recorded.texts.upperLimb ? "upper" : "lower";
    if (sight.seen.isSun()) return limb;
    const std::string& body = sight.recorded.texts.body;
    return almanac::hasLimbs(sight.seen.body) ? body + ", " + limb : body;
}

/// Of a shot its own altitude: the line of a series has that of the mean.
DegMin observedOf(const ListedSight& sight)
{
    return sight.line && !sight.shot ? sight.line->Ho : sight.seen.corrections->Ho;
}

/// As the window's list has it.
std::string lineOf(const ListedSight& sight)
{
    if (!sight.shot) return sight.line ? sight.line->text : "not used";
    std::string text = "shot " + Format(sight.shot->residual, "+0.0';-0.0'");
    if (sight.shot->isWild) text += " wild";
    if (sight.line) text += "; series " + sight.line->text;
    return text;
}

PaperTable sightTable(const std::vector<ListedSight>& sights)
{
    const bool isSunAlone =
        std::ranges::all_of(sights, [](const ListedSight& sight) { return sight.seen.isSun(); });
    PaperTable table{
        "Recorded sights",
        {"", "UTC", isSunAlone ? "Limb" : "Body, limb", "Hs", "Ho", "Line, as in the window"},
        {}};
    for (const ListedSight& sight : sights) {
        if (!sight.seen.complete()) continue;
        const SightCorrections& corrections = *sight.seen.corrections;
        table.rows.push_back({std::to_string(table.rows.size() + 1),
                              Format(*sight.seen.UTC, "yyyy-mm-dd hh:mm:ss"), limbOf(sight),
                              angleInFull(corrections.Hs), angleInFull(observedOf(sight)),
                              lineOf(sight)});
    }
    return table;
}

std::vector<std::string> exportedRow(const ListedSight& sight)
{
    const SightCorrections& corrections = *sight.seen.corrections;
    std::vector<std::string> cells = {Format(*sight.seen.UTC, "yyyy-mm-ddThh:mm:ss") + "Z",
                                      sight.recorded.on ? "yes" : "no",
                                      limbOf(sight),
                                      figure(DegMinToDeg(corrections.Hs), 5),
                                      figure(corrections.indexError, 2),
                                      figure(corrections.heightOfEye, 2),
                                      figure(corrections.air, 1),
                                      figure(corrections.sea, 1),
                                      figure(corrections.pressure, 1),
                                      figure(DegMinToDeg(observedOf(sight)), 5),
                                      figure(DegMinToDeg(*sight.seen.GHA), 5),
                                      figure(DegMinToDeg(*sight.seen.declination), 5)};
    cells.push_back(sight.line ? figure(sight.line->line.intercept, 3) : "");
    cells.push_back(sight.line ? figure(sight.line->line.azimuth, 3) : "");
    cells.push_back(sight.residual ? figure(*sight.residual, 3) : "");
    return cells;
}

ExportTable exported(const std::vector<ListedSight>& sights)
{
    ExportTable list{{"time (UTC)", "in the fix", "limb", "sextant altitude (degrees)",
                      "index error (minutes of arc)", "height of eye (metres)",
                      "air temperature (degrees Celsius)", "sea temperature (degrees Celsius)",
                      "pressure (hectopascals)", "corrected altitude (degrees)",
                      "Greenwich hour angle (degrees)", "declination (degrees)",
                      "intercept (nautical miles)", "azimuth (degrees true)",
                      "residual (nautical miles)"},
                     {}};
    for (const ListedSight& sight : sights)
        if (sight.seen.complete()) list.rows.push_back(exportedRow(sight));
    return list;
}

/// What holds for the bodies that were observed.
void addLimits(const LOPResult& line, const std::vector<ListedSight>& sights, WorkingPaper& paper)
{
    const auto isSun = [](const ListedSight& each) { return each.seen.isSun(); };
    const bool isSunEntered = line.figures.observation.isSun();
    if (!isSunEntered || !std::ranges::all_of(sights, isSun))
        paper.limits.emplace_back(limitsOfBodies);
    if (isSunEntered || std::ranges::any_of(sights, isSun))
        for (const char* each : limitsOfSun)
            paper.limits.emplace_back(each);
    paper.limits.emplace_back(limitOfFix);
}

/// The sentences that joined() put into one line.
std::vector<std::string> sentencesOf(const std::string& remark)
{
    constexpr std::string_view between = "; ";
    std::vector<std::string> sentences;
    std::string rest = remark;
    for (std::size_t end; (end = rest.find(between)) != rest.npos;
         rest.erase(0, end + between.size()))
        sentences.push_back(rest.substr(0, end));
    sentences.push_back(rest);
    return sentences;
}

} // namespace

void leaveOutTwice(std::vector<std::string>& remarks)
{
    for (std::string& remark : remarks) {
        std::vector<std::string> kept;
        for (const std::string& sentence : sentencesOf(remark))
            if (std::ranges::none_of(remarks, [&](const std::string& other) {
                    return other.find(" UTC: " + sentence) != std::string::npos;
                }))
                kept.push_back(sentence);
        remark = joined(kept);
    }
    std::erase(remarks, std::string());
}

void addSights(const SightPaperParts& parts, WorkingPaper& paper)
{
    addLineResults(parts, paper);
    addFixResults(parts.fix, paper);
    const std::vector<ListedSight> sights = listed(parts.list, parts.fix);
    if (!sights.empty()) {
        paper.tables.push_back(sightTable(sights));
        paper.list = exported(sights);
    }
    paper.workings = sightWorkings(parts.sight, parts.line);
    if (const auto noon = meridianWorking(parts.noon)) paper.workings.push_back(*noon);
    if (const auto equal = equalAltitudeWorking(parts.fix)) paper.workings.push_back(*equal);
    if (const auto series = seriesWorking(parts.fix)) paper.workings.push_back(*series);
    paper.workings.push_back(fixWorking(parts.fix));
    if (parts.fix.solution) {
        const Position& at = parts.fix.solution->position;
        paper.place = positionForCopy(DegToDegMin(at.latitude), DegToDegMin(at.longitude));
    }
    addLimits(parts.line, sights, paper);
}

} // namespace korvel
