// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanModel.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "forms/frmPassage/PlanTable.h"

namespace korvel
{
namespace
{

constexpr std::array headings{"No.",
                              "Waypoint\nremark",
                              "Position",
                              "Leg\nstep, limit",
                              "Course\nat its end",
                              "Miles\nto go",
                              "Knots\nunder way",
                              "Ship's time\nUTC",
                              "TD\nclocks"};
static_assert(headings.size() == PlanTable::Columns);

constexpr std::array legNames{"rhumb", "circle", "composite"}; // by LegKind

std::string courseInFigures(const std::optional<NavFunc113::Degrees>& course)
{
    return course ? courseText(*course, "000.0") : "";
}

/// "1 h 00 m fwd": the column is narrow.
std::string shortChange(const std::string& clockChange)
{
    std::string text = clockChange;
    for (const auto& [whole, brief] :
         {std::pair<std::string, std::string>{"clocks ", ""}, {" 00 m", ""}, {" forward", " fwd"}})
        if (const auto at = text.find(whole); at != std::string::npos)
            text.replace(at, whole.size(), brief);
    return text;
}

} // namespace

PlanModel::PlanModel(const PlanInHand& work, QObject* parent)
    : RowsModel(PlanTable::Columns, parent), m_work(work)
{
    follow();
}

void PlanModel::follow()
{
    m_texts.assign(m_work.plan().rows.size(), std::nullopt);
    followRows(m_work.shownRows());
}

bool PlanModel::isThere(std::size_t row) const
{
    return row < m_work.plan().rows.size() && row < m_texts.size();
}

const PlanRowTexts& PlanModel::textsOf(std::size_t row) const
{
    if (!m_texts[row]) m_texts[row] = planRowTexts(m_work.reckoning(), row);
    return *m_texts[row];
}

PlanModel::Lines PlanModel::legOf(std::size_t row) const
{
    const PlanRow& typed = m_work.plan().rows[row];
    if (!m_work.reckoning().rowBefore(row) || typed.isEmpty()) return {};
    Lines lines{legNames[static_cast<std::size_t>(typed.leg)], ""};
    if (typed.leg == LegKind::Composite) {
        const auto& limit = m_work.reckoning().read(row).limit;
        lines.second = limit ? positionForCopy(*limit, Axis::Latitude) : typed.limit;
    } else if (typed.leg == LegKind::GreatCircle && !typed.step.empty()) {
        lines.second = typed.step + (typed.stepUnit == StepUnit::Degrees ? "°" : " nm");
    }
    return lines;
}

PlanModel::Lines PlanModel::linesOf(std::size_t row, int column) const
{
    if (column == PlanTable::Number) return {std::to_string(row + 1), ""};
    if (!isThere(row)) return {};
    const PlanRow& typed = m_work.plan().rows[row];
    const PlanRowTexts& texts = textsOf(row);
    const auto& position = m_work.reckoning().read(row).position;
    const PlanLeg* leg = m_work.reckoning().leg(row);
    switch (column) {
    case PlanTable::Waypoint:
        return {typed.name, typed.remark};
    case PlanTable::Position:
        if (!position) return {typed.latitude, typed.longitude};
        return {positionForCopy(position->lat, Axis::Latitude),
                positionForCopy(position->longitude, Axis::Longitude)};
    case PlanTable::Leg:
        return legOf(row);
    case PlanTable::Course:
        if (!leg) return {};
        return {courseInFigures(leg->course), courseInFigures(leg->finalCourse)};
    case PlanTable::Distance:
        return {texts.distance, texts.toGo};
    case PlanTable::Speed:
        return {texts.speed, texts.underWay};
    case PlanTable::Arrival:
        return {texts.etaZone, texts.etaUTC};
    default: {
        const auto end = texts.zone.find(" (");
        if (texts.zone.empty()) return {};
        return {texts.zone.substr(3, end - 3), shortChange(texts.clockChange)};
    }
    }
}

std::string PlanModel::remarkOf(std::size_t row) const
{
    return isThere(row) ? textsOf(row).remark : "";
}

bool PlanModel::isMarked(std::size_t row) const
{
    return isThere(row) && m_work.reckoning().isDoubtful(row);
}

QString PlanModel::headOf(int column) const
{
    return headings[static_cast<std::size_t>(column)];
}

bool PlanModel::isOfWords(int column) const
{
    return column == PlanTable::Waypoint || column == PlanTable::Leg;
}

} // namespace korvel
