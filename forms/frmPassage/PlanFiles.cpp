// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanFiles.h"

#include "app/working/ProgramVersion.h"
#include "forms/frmPassage/PlanTexts.h"
#include "routes/files/Gpx.h"
#include "routes/files/RouteFiles.h"
#include "routes/files/RtzWriter.h"
#include "routes/route/RouteCsv.h"

namespace korvel
{
namespace
{

OpenedPlan planOf(ReadRoute read, const PlanConditions& conditions)
{
    OpenedPlan opened{{}, std::move(read.fault), std::move(read.remarks)};
    PlanOfRoute plan = planOfRoute(read.route, conditions);
    opened.plan = std::move(plan.plan);
    opened.remarks.insert(opened.remarks.end(), plan.remarks.begin(), plan.remarks.end());
    return opened;
}

/// The system's own way of writing a path: UTF-8 is none of it everywhere.
std::filesystem::path pathOf(const std::string& utf8)
{
    return std::filesystem::path(std::u8string(utf8.begin(), utf8.end()));
}

} // namespace

OpenedPlan openPlan(const std::string& path, const PlanConditions& conditions)
{
    return planOf(readRouteFile(pathOf(path)), conditions);
}

OpenedPlan rowsOfText(const std::string& text, const PlanConditions& conditions)
{
    return planOf(readRouteCsv(text), conditions);
}

const char* endingOf(PlanFormat format)
{
    return format == PlanFormat::GPX ? "gpx" : format == PlanFormat::CSV ? "csv" : "rtz";
}

WrittenRoute writtenPlan(const PassagePlan& plan, const PlanReckoning& reckoning, PlanFormat format)
{
    if (format == PlanFormat::CSV)
        return {spreadsheetMark + csvText(planList(plan, reckoning)), {}, {}};
    const RouteOfPlan route = routeOfPlan(plan, reckoning);
    if (!route.fault.empty()) return {{}, {}, route.fault};
    switch (format) {
    case PlanFormat::GPX:
        return writeGpx(route.route, std::string("KORVEL2000 ") + programVersion);
    case PlanFormat::RTZ1_0:
        return writeRtz(route.route, RtzVersion::V1_0);
    case PlanFormat::RTZ1_2:
        return writeRtz(route.route, RtzVersion::V1_2);
    default:
        return writeRtz(route.route);
    }
}

} // namespace korvel
