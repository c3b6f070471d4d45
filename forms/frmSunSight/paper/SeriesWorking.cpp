// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/paper/SightTerms.h"
#include "forms/frmSunSight/paper/SightWorking.h"

namespace korvel
{

std::optional<Working> seriesWorking(const SightFixResult& fix)
{
    if (fix.series.empty()) return std::nullopt;
    Working working{
        "Series of shots",
        {"Shots of one body within a quarter of an hour are one line: the mean of their "
         "intercepts, each from the DR position of its own time, at the mean of the "
         "times; sigma of the line is the assumed one, or the scatter where it is "
         "larger, / √n; a shot is wild more than three deviations off the others"},
        {}};
    PaperTable table{"Shots", {"UTC", "body", "residual '", ""}, {}};
    for (const SightSeries& series : fix.series)
        for (const SeriesShot& shot : series.shots)
            table.rows.push_back({sightInstant(shot.UTC), series.body.empty() ? "Sun" : series.body,
                                  figure(shot.residual, 2), shot.isWild ? "wild" : ""});
    working.tables.push_back(table);
    working.resultStep("Series of shots", "mean time, mean intercept, √(Σ residual² / (n - 1))",
                       fix.seriesText);
    return working;
}

std::optional<Working> equalAltitudeWorking(const SightFixResult& fix)
{
    if (fix.equalText.empty()) return std::nullopt;
    Working working{
        "Longitude by equal altitudes",
        {"Two sights of one body to the east and to the west of the meridian, a degree "
         "apart in altitude at most; the latitude by dead reckoning. The longitude at "
         "which the altitudes differ as they were observed to, the ship on her track; "
         "near noon the passage is the mean and 15.28 s (tan φ - tan δ) (ship's - body's "
         "northing in ' an hour)",
         "Several pairs, each sight in one: the mean by their sigmas of the altitudes, or by their "
         "scatter where this is larger; the sigma of the run is common to them"},
        {}};
    working.resultStep(
        "Longitude by equal altitudes",
        "λ moved by the difference of the intercepts / (cos φ (sin Z1 - sin Z2)) "
        "until there is none; its sigma by sigma of a line and the errors of the run",
        fix.equalText);
    PaperTable table{
        "Pairs", {"UTC", "UTC", "Passage, UTC", "λ °", "σ of altitudes ′", "σ of the run ′"}, {}};
    for (const EqualAltitudePair& pair : fix.equalPairs)
        table.rows.push_back({sightInstant(pair.first), sightInstant(pair.second),
                              sightInstant(pair.passage), sightFigure(pair.longitude),
                              figure(pair.byAltitudes * 60, 2), figure(pair.byRun * 60, 2)});
    working.tables = {std::move(table)};
    return working;
}

} // namespace korvel
