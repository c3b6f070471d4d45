// SPDX-License-Identifier: MIT
#include "forms/frmTanks/SheetInHand.h"

#include <algorithm>
#include <utility>

namespace korvel
{
namespace
{

// A sheet of 200 tanks is some hundred kilobytes.
constexpr std::size_t mostSteps = 50;

} // namespace

SheetInHand::SheetInHand()
    : m_reckonings{TankReckoning(ListKind::Cargo), TankReckoning(ListKind::Bunkers)}
{
    reckonAll();
}

void SheetInHand::reckonAll()
{
    for (const ListKind kind : {ListKind::Cargo, ListKind::Bunkers}) {
        TankChoices choices = m_sheet.choices;
        // Fuel goes: the movement of the cargo is none of the bunkers'.
        if (kind == ListKind::Bunkers) choices.movement = Movement::Discharge;
        m_reckonings[static_cast<std::size_t>(kind)].takeAll(list(kind), choices);
    }
}

std::size_t SheetInHand::shownRows(ListKind kind) const
{
    const auto& rows = list(kind).rows;
    const bool endsInEmpty = !rows.empty() && rows.back().isEmpty();
    return endsInEmpty || rows.size() == mostTanks ? rows.size() : rows.size() + 1;
}

void SheetInHand::goToRow(ListKind kind, std::size_t row)
{
    at(kind).row = std::min(row, shownRows(kind) - 1);
    endTyping();
}

void SheetInHand::goToSurvey(ListKind kind, TankSurvey survey)
{
    // Behind the last tank the next one was wanted; of another survey the first is.
    if (survey != at(kind).survey && row(kind) >= list(kind).rows.size()) at(kind).row = 0;
    at(kind).survey = survey;
    endTyping();
}

TankRow SheetInHand::rowInHand(ListKind kind) const
{
    const auto& rows = list(kind).rows;
    return row(kind) < rows.size() ? rows[row(kind)] : TankRow{};
}

void SheetInHand::remember(const std::string& name)
{
    m_done.push_back({name, m_sheet});
    if (m_done.size() > mostSteps) m_done.erase(m_done.begin());
    m_undone.clear();
}

void SheetInHand::typeRow(ListKind kind, TankRow row, const std::string& box)
{
    auto& rows = m_sheet.list(kind).rows;
    if (row == rowInHand(kind)) return;
    if (m_typedBox != box) remember("Typing");
    m_typedBox = box;
    const std::size_t place = at(kind).row;
    if (place >= rows.size()) rows.resize(place + 1);
    const bool isNew = m_reckonings[static_cast<std::size_t>(kind)].rows() != rows.size();
    rows[place] = std::move(row);
    if (isNew) return reckonAll();
    m_reckonings[static_cast<std::size_t>(kind)].takeRow(list(kind), place);
}

void SheetInHand::type(const std::function<void(TankSheet&)>& change, const std::string& box)
{
    TankSheet changed = m_sheet;
    change(changed);
    if (changed == m_sheet) return;
    if (m_typedBox != box) remember("Typing");
    m_typedBox = box;
    m_sheet = std::move(changed);
    reckonAll();
}

bool SheetInHand::insertRow(ListKind kind)
{
    auto& rows = m_sheet.list(kind).rows;
    if (rows.size() == mostTanks) return false;
    if (row(kind) >= rows.size()) return true; // the empty one behind the last is there already
    endTyping();
    remember("Insert a row");
    rows.insert(rows.begin() + static_cast<std::ptrdiff_t>(row(kind)), TankRow());
    reckonAll();
    return true;
}

void SheetInHand::deleteRow(ListKind kind)
{
    auto& rows = m_sheet.list(kind).rows;
    if (row(kind) >= rows.size()) return;
    endTyping();
    remember("Delete the row");
    rows.erase(rows.begin() + static_cast<std::ptrdiff_t>(row(kind)));
    at(kind).row = std::min(row(kind), shownRows(kind) - 1);
    reckonAll();
}

void SheetInHand::beginNextSurvey(ListKind kind)
{
    endTyping();
    remember("Begin the next survey");
    TankList& list = m_sheet.list(kind);
    for (TankRow& row : list.rows)
        row.surveys = {std::move(row.surveys[1]), TankReading()};
    list.times = {std::move(list.times[1]), std::string()};
    for (GradeBoxes& grade : list.grades)
        grade.received.clear();
    at(kind).survey = TankSurvey::Last;
    reckonAll();
}

void SheetInHand::replace(TankSheet by, const std::string& name)
{
    endTyping();
    remember(name);
    m_sheet = std::move(by);
    for (const ListKind kind : {ListKind::Cargo, ListKind::Bunkers})
        at(kind).row = std::min(row(kind), shownRows(kind) - 1);
    reckonAll();
}

void SheetInHand::take(TankSheet sheet)
{
    m_sheet = std::move(sheet);
    m_done.clear();
    m_undone.clear();
    m_places = {};
    endTyping();
    reckonAll();
}

std::string SheetInHand::restore(std::vector<Step>& from, std::vector<Step>& to)
{
    if (from.empty()) return {};
    endTyping();
    Step step = std::move(from.back());
    from.pop_back();
    to.push_back({step.name, std::exchange(m_sheet, std::move(step.sheet))});
    for (const ListKind kind : {ListKind::Cargo, ListKind::Bunkers})
        at(kind).row = std::min(row(kind), shownRows(kind) - 1);
    reckonAll();
    return step.name;
}

std::string SheetInHand::undo()
{
    return restore(m_done, m_undone);
}

std::string SheetInHand::redo()
{
    return restore(m_undone, m_done);
}

} // namespace korvel
