// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanReckoning.h"

#include "app/reading/Format.h"

#include <algorithm>

namespace korvel
{
namespace
{

using NavFunc113::Hours;
using NavFunc113::Knots;
using NavFunc113::Miles;

constexpr int mostRemarks = 3; // the notice line has room for a few rows
constexpr Knots fastest(100);

std::string rowName(std::size_t row)
{
    return "Row " + std::to_string(row + 1);
}

} // namespace

PlanReckoning::PlanReckoning(const PassagePlan& plan, const PlanConditions& conditions)
{
    takeAll(plan, conditions);
}

void PlanReckoning::takeAll(const PassagePlan& plan, const PlanConditions& conditions)
{
    m_conditions = conditions;
    m_rows.assign(plan.rows.size(), {});
    for (std::size_t row = 0; row < m_rows.size(); ++row) {
        readRow(plan, row);
        reckonLegTo(row); // from one that was read before
    }
    takeTimes(plan);
}

void PlanReckoning::takeRow(const PassagePlan& plan, std::size_t index)
{
    readRow(plan, index);
    reckonLegTo(index);
    std::size_t next = index + 1;
    while (next < m_rows.size() && m_rows[next].read.isEmpty)
        ++next;
    if (next < m_rows.size()) reckonLegTo(next);
    addUp();
}

void PlanReckoning::takeTimes(const PassagePlan& plan)
{
    m_times = plan.times;
    m_timeRemarks = {};
    m_typedTime = readPlanTime(m_times, m_timeRemarks);
    addUp();
}

void PlanReckoning::readRow(const PassagePlan& plan, std::size_t index)
{
    m_rows[index].read = readPlanRow(plan.rows[index]);
    m_rows[index].kind = plan.rows[index].leg;
}

std::optional<std::size_t> PlanReckoning::rowBefore(std::size_t row) const
{
    while (row > 0)
        if (!m_rows[--row].read.isEmpty) return row;
    return std::nullopt;
}

std::optional<std::size_t> PlanReckoning::firstRow() const
{
    for (std::size_t row = 0; row < m_rows.size(); ++row)
        if (!m_rows[row].read.isEmpty) return row;
    return std::nullopt;
}

std::optional<std::size_t> PlanReckoning::lastRow() const
{
    return rowBefore(m_rows.size());
}

const PlanLeg* PlanReckoning::leg(std::size_t row) const
{
    const auto& leg = m_rows[row].planned.leg;
    return leg ? &*leg : nullptr;
}

void PlanReckoning::reckonLegTo(std::size_t row)
{
    m_rows[row].planned = {};
    const auto before = rowBefore(row);
    if (!before || m_rows[row].read.isEmpty) return;
    m_rows[row].planned =
        legBetween(m_rows[*before].read, m_rows[row].read, m_rows[row].kind, m_conditions.earth);
}

void PlanReckoning::addUp()
{
    m_totals = {};
    for (Row& row : m_rows)
        row.figures = {};
    addDistances();
    addToGo();
    addTimes();
    setZones();
    setInstants();
}

void PlanReckoning::addDistances()
{
    std::optional<Miles> run;
    Miles saving;
    bool isFirst = true;
    for (Row& row : m_rows) {
        if (row.read.isEmpty) continue;
        if (isFirst && row.read.position)
            run = Miles(0);
        else if (run && row.planned.leg)
            *run += row.planned.leg->distance;
        else
            run.reset();
        if (row.planned.leg) saving += row.planned.leg->saving();
        isFirst = false;
        row.figures.run = run;
    }
    m_totals.distance = run;
    if (run) m_totals.saving = saving;
}

void PlanReckoning::addToGo()
{
    std::optional<Miles> toGo;
    bool isLast = true;
    for (auto row = m_rows.rbegin(); row != m_rows.rend(); ++row) {
        if (row->read.isEmpty) continue;
        if (isLast && row->read.position) toGo = Miles(0);
        isLast = false;
        row->figures.toGo = toGo;
        if (toGo && row->planned.leg)
            *toGo += row->planned.leg->distance;
        else
            toGo.reset();
    }
}

void PlanReckoning::addTimes()
{
    std::optional<Knots> speed;
    std::optional<Span> passed, underWay;
    Span stopped{}, lastStop{};
    bool isFirst = true;
    for (Row& row : m_rows) {
        PlanFigures& figures = row.figures;
        if (row.read.isEmpty) continue;
        if (row.read.speed || !row.read.hasUsableSpeed) speed = row.read.speed;
        if (isFirst) {
            if (row.read.position) passed = underWay = Span(0);
        } else {
            figures.speed = speed;
            if (row.planned.leg && row.planned.leg->distance == Miles(0))
                figures.underWay = Span(0);
            else if (row.planned.leg && speed)
                figures.underWay = spanOf(row.planned.leg->distance / *speed);
            if (passed && figures.underWay) {
                *passed += lastStop + *figures.underWay;
                *underWay += *figures.underWay;
                stopped += lastStop;
            } else {
                passed.reset();
            }
            lastStop = row.read.stop;
        }
        isFirst = false;
        figures.sinceDeparture = passed;
    }
    m_totals.elapsed = passed;
    if (!passed) return;
    m_totals.underWay = underWay;
    m_totals.stopped = stopped;
}

void PlanReckoning::setZones()
{
    Span zone = spanOf(m_conditions.shipsTD).value_or(Span(0));
    bool isFirst = true;
    for (Row& row : m_rows) {
        if (!row.read.isEmpty && row.read.zone) {
            if (!isFirst) row.figures.clockChange = *row.read.zone - zone;
            zone = *row.read.zone;
        }
        row.figures.zone = zone;
        m_totals.clockChange += row.figures.clockChange;
        isFirst = isFirst && row.read.isEmpty;
    }
}

std::optional<Instant> PlanReckoning::departureOfTimes() const
{
    const auto first = firstRow();
    if (!m_typedTime || !first) return std::nullopt;
    const bool isArrival = m_times.given == PlanTimes::Given::WantedArrival;
    const bool isUTC = m_times.clock == PlanTimes::Clock::UTC;
    const std::size_t at = isArrival ? *lastRow() : *first;
    const Instant utc = isUTC ? *m_typedTime : *m_typedTime - m_rows[at].figures.zone;
    if (!isArrival) return utc;
    if (!m_totals.elapsed) return std::nullopt;
    return utc - *m_totals.elapsed;
}

void PlanReckoning::setInstants()
{
    m_departure = departureOfTimes();
    const auto first = firstRow();
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        PlanFigures& figures = m_rows[i].figures;
        if (!m_departure || !figures.sinceDeparture) continue;
        figures.eta = *m_departure + *figures.sinceDeparture;
        figures.etd = i == first ? *figures.eta : *figures.eta + m_rows[i].read.stop;
    }
}

std::string PlanReckoning::remark(std::size_t row) const
{
    const Row& each = m_rows[row];
    std::string stop;
    if (each.read.stop > Span(0) && row == firstRow())
        stop = "Stop: the departure is when the first row is left, its stop does not count";
    const std::string ofLeg = each.planned.leg ? each.planned.leg->remark : each.planned.fault;
    return joined({each.read.remarks.text(), stop, ofLeg});
}

bool PlanReckoning::isDoubtful(std::size_t row) const
{
    const Row& each = m_rows[row];
    return !each.read.remarks.text().empty() || !each.planned.fault.empty() ||
           (!each.read.isEmpty && !each.read.position);
}

/// The first thing that is missing, for the distances before the times.
std::string PlanReckoning::whyBlank() const
{
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const Row& row = m_rows[i];
        if (row.read.isEmpty || row.figures.run) continue;
        if (!row.read.position) return rowName(i) + ": no position; what follows is blank";
        return rowName(i) + ": " + row.planned.fault;
    }
    for (std::size_t i = 0; i < m_rows.size(); ++i) {
        const Row& row = m_rows[i];
        if (row.read.isEmpty || row.figures.sinceDeparture) continue;
        if (!row.figures.speed) return rowName(i) + ": no speed; the times that follow are blank";
        return rowName(i) + ": the leg takes more than 200 years";
    }
    return {};
}

std::string PlanReckoning::notice() const
{
    std::vector<std::string> sentences{m_timeRemarks.text(), whyBlank()};
    int named = 0;
    for (std::size_t i = 0; i < m_rows.size() && named < mostRemarks; ++i) {
        const Remarks& remarks = m_rows[i].read.remarks;
        if (remarks.faults.empty() && remarks.warnings.empty()) continue;
        sentences.push_back(rowName(i) + ": " + remarks.text());
        ++named;
    }
    return joined(sentences);
}

SpeedNeeded PlanReckoning::speedNeeded(std::size_t from, std::size_t to, Instant arrival) const
{
    if (from >= m_rows.size() || to >= m_rows.size() || to <= from)
        return {{}, "The row to be reached must stand below the one that is left"};
    const PlanFigures& start = m_rows[from].figures;
    const PlanFigures& end = m_rows[to].figures;
    if (!start.run || !end.run) return {{}, "A leg on the way cannot be calculated"};
    if (!start.etd) return {{}, "It is not known when the first row is left"};
    Span left = arrival - *start.etd;
    for (std::size_t i = from + 1; i < to; ++i)
        left -= m_rows[i].read.stop;
    const Miles distance = *end.run - *start.run;
    if (distance <= Miles(0)) return {{}, "There is no way to go"};
    if (left <= Span(0)) return {{}, "The wanted time lies before the departure and the stops"};
    const Knots speed = distance / hoursOf(left);
    if (speed > fastest) return {{}, "More than 100 knots would be needed"};
    return {speed, {}};
}

} // namespace korvel
