// SPDX-License-Identifier: MIT
#include "forms/frmPassage/PlanEdit.h"

#include <algorithm>
#include <iterator>

namespace korvel
{
namespace
{

PlanRows partOf(const PlanRows& rows, std::size_t at, std::size_t count)
{
    const auto from = rows.begin() + static_cast<std::ptrdiff_t>(std::min(at, rows.size()));
    const auto left = static_cast<std::size_t>(rows.end() - from);
    return {from, from + static_cast<std::ptrdiff_t>(std::min(count, left))};
}

void replace(PlanRows& rows, std::size_t at, std::size_t count, const PlanRows& by)
{
    const auto from = rows.begin() + static_cast<std::ptrdiff_t>(at);
    if (count == by.size()) { // a key in a box moves no other row
        std::ranges::copy(by, from);
        return;
    }
    rows.insert(rows.erase(from, from + static_cast<std::ptrdiff_t>(count)), by.begin(), by.end());
}

void setHead(PassagePlan& plan, const std::optional<PlanHead>& head)
{
    if (!head) return;
    plan.name = head->name;
    plan.times = head->times;
    plan.wish = head->wish;
    plan.kept = head->kept;
}

bool belongsToLeg(const KeptPart& part)
{
    return part.place.starts_with("leg");
}

/// Takes over what belongs to the leg that leads to a row.
void takeLeg(PlanRow& row, const PlanRow& leg)
{
    row.leg = leg.leg;
    row.step = leg.step;
    row.stepUnit = leg.stepUnit;
    row.limit = leg.limit;
    std::erase_if(row.kept, belongsToLeg);
    std::ranges::copy_if(leg.kept, std::back_inserter(row.kept), belongsToLeg);
}

/// The text in force in a row: its own, or that of the nearest row above that has one.
std::vector<std::string> inForce(const PlanRows& rows, std::string PlanRow::*box)
{
    std::vector<std::string> texts;
    std::string text;
    for (const PlanRow& row : rows) {
        if (!row.isEmpty() && (row.*box).find_first_not_of(" \t") != std::string::npos)
            text = row.*box;
        texts.push_back(text);
    }
    return texts;
}

/// Writes texts into their rows, only where they change.
void writeChanges(PlanRows& rows, std::string PlanRow::*box, const std::vector<std::string>& texts,
                  std::size_t from)
{
    std::string above;
    for (std::size_t i = 0; i < rows.size(); ++i) {
        (rows[i].*box).clear();
        if (i < from || rows[i].isEmpty() || texts[i] == above) continue;
        rows[i].*box = texts[i];
        above = texts[i];
    }
}

} // namespace

PlanHead headOf(const PassagePlan& plan)
{
    return {plan.name, plan.times, plan.wish, plan.kept};
}

void apply(PassagePlan& plan, const PlanEdit& edit)
{
    replace(plan.rows, edit.at, edit.before.size(), edit.after);
    setHead(plan, edit.headAfter);
}

void takeBack(PassagePlan& plan, const PlanEdit& edit)
{
    replace(plan.rows, edit.at, edit.after.size(), edit.before);
    setHead(plan, edit.headBefore);
}

std::optional<PlanEdit> insertedRows(const PlanRows& rows, std::size_t at, const PlanRows& inserted)
{
    if (rows.size() + inserted.size() > mostPlanRows) return std::nullopt;
    return PlanEdit{"Insert rows", std::min(at, rows.size()), {}, inserted};
}

PlanEdit deletedRows(const PlanRows& rows, std::size_t at, std::size_t count)
{
    return {"Delete rows", std::min(at, rows.size()), partOf(rows, at, count), {}};
}

PlanEdit movedRow(const PlanRows& rows, std::size_t from, std::size_t to)
{
    PlanEdit edit{"Move row", std::min(from, to), {}, {}};
    if (from >= rows.size() || to >= rows.size()) return edit;
    edit.before = partOf(rows, edit.at, std::max(from, to) - edit.at + 1);
    edit.after = edit.before;
    if (from < to)
        std::rotate(edit.after.begin(), edit.after.begin() + 1, edit.after.end());
    else
        std::rotate(edit.after.begin(), edit.after.end() - 1, edit.after.end());
    return edit;
}

PlanEdit reversedRows(const PlanRows& rows)
{
    // Empty rows are passed over by legs, so they are left out: each leg finds its new end.
    PlanRows used;
    std::ranges::copy_if(rows, std::back_inserter(used),
                         [](const PlanRow& row) { return !row.isEmpty(); });
    const auto speeds = inForce(used, &PlanRow::speed);
    auto zones = inForce(used, &PlanRow::zone);
    PlanRows after(used.rbegin(), used.rend());
    std::vector<std::string> newSpeeds(after.size());
    for (std::size_t i = 0; i < after.size(); ++i) {
        takeLeg(after[i], i == 0 ? PlanRow{} : used[used.size() - i]);
        if (i > 0) newSpeeds[i] = speeds[used.size() - i];
    }
    std::ranges::reverse(zones);
    writeChanges(after, &PlanRow::speed, newSpeeds, 1);
    writeChanges(after, &PlanRow::zone, zones, 0);
    return {"Reverse", 0, rows, after};
}

PlanEdit typedRow(const PlanRows& rows, std::size_t at, PlanRow row, std::string box)
{
    PlanEdit edit{"Typing", at, partOf(rows, at, 1), {std::move(row)}};
    edit.typedBox = std::move(box);
    return edit;
}

PlanEdit replacedPlan(const PassagePlan& plan, const PassagePlan& by, std::string name)
{
    return {std::move(name), 0, plan.rows, by.rows, headOf(plan), headOf(by)};
}

PlanEdit changedHead(const PassagePlan& plan, PlanHead head, std::string name, std::string box)
{
    return {std::move(name), 0, {}, {}, headOf(plan), std::move(head), std::move(box)};
}

void PlanHistory::perform(PassagePlan& plan, PlanEdit edit)
{
    if (edit.isIdle()) return;
    apply(plan, edit);
    m_undone.clear();
    const bool goesOn = m_isTyping && !edit.typedBox.empty() && !m_done.empty() &&
                        m_done.back().typedBox == edit.typedBox && m_done.back().at == edit.at;
    m_isTyping = !edit.typedBox.empty();
    if (!goesOn) {
        m_done.push_back(std::move(edit));
        return;
    }
    m_done.back().after = std::move(edit.after);
    m_done.back().headAfter = std::move(edit.headAfter);
}

const PlanEdit* PlanHistory::undo(PassagePlan& plan)
{
    if (m_done.empty()) return nullptr;
    takeBack(plan, m_done.back());
    m_undone.push_back(std::move(m_done.back()));
    m_done.pop_back();
    m_isTyping = false;
    return &m_undone.back();
}

const PlanEdit* PlanHistory::redo(PassagePlan& plan)
{
    if (m_undone.empty()) return nullptr;
    apply(plan, m_undone.back());
    m_done.push_back(std::move(m_undone.back()));
    m_undone.pop_back();
    m_isTyping = false;
    return &m_done.back();
}

} // namespace korvel
