// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanInHand.h"

#include <algorithm>

namespace korvel
{

PlanInHand::PlanInHand(const PlanConditions& conditions)
    : m_conditions(conditions), m_reckoning(m_plan, conditions)
{
}

std::size_t PlanInHand::shownRows() const
{
    const PlanRows& rows = m_plan.rows;
    const bool endsInEmpty = !rows.empty() && rows.back().isEmpty();
    return endsInEmpty || rows.size() == mostPlanRows ? rows.size() : rows.size() + 1;
}

void PlanInHand::goToRow(std::size_t row)
{
    m_row = std::min(row, shownRows() - 1);
    m_history.endTyping();
}

PlanRow PlanInHand::rowInHand() const
{
    return m_row < m_plan.rows.size() ? m_plan.rows[m_row] : PlanRow{};
}

void PlanInHand::perform(PlanEdit edit, std::size_t row)
{
    m_history.perform(m_plan, std::move(edit));
    m_reckoning.takeAll(m_plan, m_conditions);
    m_row = std::min(row, shownRows() - 1);
}

void PlanInHand::typeRow(PlanRow row, const std::string& box)
{
    const bool isNew = m_row >= m_plan.rows.size();
    m_history.perform(m_plan, typedRow(m_plan.rows, m_row, std::move(row), box));
    if (isNew)
        m_reckoning.takeAll(m_plan, m_conditions);
    else
        m_reckoning.takeRow(m_plan, m_row);
}

void PlanInHand::typeHead(PlanHead head, const std::string& box)
{
    m_history.perform(m_plan, changedHead(m_plan, std::move(head), "Typing", box));
    m_reckoning.takeTimes(m_plan);
}

bool PlanInHand::insertRows(const PlanRows& rows)
{
    const bool takesPlace =
        m_row < m_plan.rows.size() && m_plan.rows[m_row].isEmpty() && !rows.front().isEmpty();
    auto edit = insertedRows(m_plan.rows, m_row, rows);
    if (!edit) return false;
    if (takesPlace) edit->before = {m_plan.rows[m_row]};
    perform(std::move(*edit), m_row);
    return true;
}

void PlanInHand::deleteRow()
{
    perform(deletedRows(m_plan.rows, m_row, 1), m_row);
}

void PlanInHand::moveRow(int by)
{
    const std::size_t to = m_row + static_cast<std::size_t>(by); // -1 wraps round: beyond the rows
    if (m_row >= m_plan.rows.size() || to >= m_plan.rows.size()) return;
    perform(movedRow(m_plan.rows, m_row, to), to);
}

void PlanInHand::reverse()
{
    perform(reversedRows(m_plan.rows), 0);
}

void PlanInHand::replace(const PassagePlan& by, const std::string& name)
{
    perform(replacedPlan(m_plan, by, name), 0);
}

void PlanInHand::take(PassagePlan plan)
{
    m_plan = std::move(plan);
    m_reckoning.takeAll(m_plan, m_conditions);
}

/// The row in hand is the one that an undo or redo changed.
void PlanInHand::goToEdit(const PlanEdit& edit)
{
    m_reckoning.takeAll(m_plan, m_conditions);
    const bool isOfHead = edit.before.empty() && edit.after.empty();
    m_row = std::min(isOfHead ? m_row : edit.at, shownRows() - 1);
}

bool PlanInHand::undo()
{
    const PlanEdit* edit = m_history.undo(m_plan);
    if (edit) goToEdit(*edit);
    return edit;
}

bool PlanInHand::redo()
{
    const PlanEdit* edit = m_history.redo(m_plan);
    if (edit) goToEdit(*edit);
    return edit;
}

void PlanInHand::setConditions(const PlanConditions& conditions)
{
    if (conditions.earth == m_conditions.earth && conditions.shipsTD == m_conditions.shipsTD)
        return;
    m_conditions = conditions;
    m_reckoning.takeAll(m_plan, m_conditions);
}

} // namespace korvel
