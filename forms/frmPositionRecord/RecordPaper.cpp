// SPDX-License-Identifier: MIT
#include "forms/frmPositionRecord/RecordPaper.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/working/SailingWorking.h"
#include "forms/frmPositionRecord/RecordList.h"
#include "forms/frmPositionRecord/RecordText.h"
#include "forms/frmPositionRecord/RecordWorking.h"
#include "navlib/datetime.h"

namespace korvel
{
namespace
{

std::string numberOfRow(std::size_t row)
{
    return std::to_string(row + 1);
}

/// An instant that was understood; what stands there when it was not.
std::string instantOr(const std::optional<NavFunc113::DateTime>& instant, const std::string& text)
{
    if (!instant) return text;
    const bool hasSeconds = NavFunc113::TimeOf(*instant).second != 0;
    return Format(*instant, hasSeconds ? "yyyy-mm-dd hh:mm:ss" : "yyyy-mm-dd hh:mm");
}

PaperTable rowsInUse(const PositionRecordInput& input, const PositionRecordResult& result)
{
    PaperTable table{"Rows", {"No.", "SMT", "TD h", "UTC", "Latitude", "Longitude", "Remark"}, {}};
    for (std::size_t i = 0; i < input.rows.size(); ++i) {
        const PositionRow& row = input.rows[i];
        const PositionRowResult& shown = result.rows[i];
        if (row.isEmpty()) continue;
        table.rows.push_back({numberOfRow(i), instantOr(shown.read.smt, row.satelliteSMT),
                              timeDifferenceOf(row, shown), instantOr(shown.read.utc, shown.utc),
                              positionOfBox(row.latitude, Axis::Latitude),
                              positionOfBox(row.longitude, Axis::Longitude), shown.remark});
    }
    return table;
}

/// What the window shows behind the fixes that a leg leaves or a day's run reaches.
PaperTable shownLegs(const PositionRecordResult& result)
{
    PaperTable table{"From fix to fix",
                     {"From row", "To row", "Course °", "Distance nm", "Hours", "Knots",
                      "Day's run to the row left"},
                     {}};
    for (std::size_t i = 0; i < result.fixes.size(); ++i) {
        const std::size_t row = result.fixes[i].row;
        const PositionRowResult& shown = result.rows[row];
        const bool isLast = i + 1 == result.fixes.size();
        if (isLast && shown.dayRun.empty()) continue;
        table.rows.push_back({numberOfRow(row), isLast ? "" : numberOfRow(result.fixes[i + 1].row),
                              shown.course, shown.distance, shown.hours, shown.speed,
                              shown.dayRun});
    }
    return table;
}

std::vector<PaperTable> tablesOf(const PositionRecordInput& input,
                                 const PositionRecordResult& result)
{
    std::vector<PaperTable> tables = {rowsInUse(input, result)};
    if (tables.front().rows.empty()) return {};
    if (result.fixes.size() > 1) tables.push_back(shownLegs(result));
    return tables;
}

} // namespace

void tellRecord(WorkingPaper& paper, const PositionRecordInput& input,
                const PositionRecordResult& result)
{
    paper.tables = tablesOf(input, result);
    paper.workings = {legsWorking(input, result), runsWorking(result)};
    for (Working& each : currentWorkings(input, result))
        paper.workings.push_back(std::move(each));
    paper.limits = {"Times are those of the record, to the minute or second typed: a minute is a "
                    "quarter of a mile at 15 knots"};
    for (const std::string& sentence : sailingLimits(input.earth))
        paper.limits.push_back(sentence);
    if (!paper.tables.empty()) paper.list = recordList(input, result);
    if (result.fixes.empty()) return;
    paper.line = trackOf(result);
    const RecordedFix& last = result.fixes.back();
    paper.place = positionForCopy(last.latitude, last.longitude);
}

} // namespace korvel
