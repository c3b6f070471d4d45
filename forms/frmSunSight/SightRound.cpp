// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "forms/frmSunSight/frmSunSight.h"
#include "forms/frmSunSight/panels/EntryPanel.h"
#include "forms/frmSunSight/panels/SightListPanel.h"
#include "forms/frmSunSight/sight/SightBody.h"
#include "shell/machine/AsQString.h"

#include <algorithm>

/// What the window of the sights shares with others: the sights that are to be taken, below the
/// recorded ones, and the fix for the position record.
namespace korvel
{

void frmSunSight::showPlanned()
{
    std::vector<std::string> lines;
    for (const PlannedSight& planned : program().plannedSights())
        lines.push_back(plannedLine(planned));
    m_sights->showPlanned(lines);
    if (!lines.empty()) m_sights->choose(m_list.list().sights().size()); // Edit takes the first
}

std::optional<std::size_t> frmSunSight::chosenPlanned()
{
    const auto chosen = m_sights->chosen();
    const std::size_t recorded = m_list.list().sights().size();
    if (!chosen || *chosen < recorded) return std::nullopt;
    return *chosen - recorded;
}

/// The next sight is the chosen one of the plan: its body stands in its box, what the last sight
/// left of time and altitude is gone.
void frmSunSight::takePlanned(std::size_t index)
{
    const PlannedSight planned = program().plannedSights().at(index);
    m_list.edit({});
    showEditing();
    SightTexts sight = m_entry->sight();
    sight.body = bodyForRecord(planned.body);
    sight.time.clear();
    sight.Hs.clear();
    m_entry->fill(sight);
    offerDate();
    setNotice("planned~", asQString(plannedLine(planned)));
    m_entry->turnTo(SightField::time);
}

void frmSunSight::deletePlanned(std::size_t index)
{
    PlannedSights planned = program().plannedSights();
    const Message question{"Take this sight out of the plan?\r\r" + plannedLine(planned.at(index)),
                           confirmationTitle, Buttons::YesNo};
    if (program().questions().ask(question) != Answer::Yes) return;
    planned.erase(planned.begin() + std::ptrdiff_t(index));
    plan(planned);
}

/// A sight that was recorded is not to be taken any more.
void frmSunSight::strikeOffPlan(const std::string& body)
{
    setNotice("planned~", {});
    PlannedSights planned = program().plannedSights();
    const auto taken = std::ranges::find(planned, body, &PlannedSight::body);
    if (taken == planned.end()) return;
    planned.erase(taken);
    plan(planned);
}

void frmSunSight::fixIntoRecord()
{
    if (const auto fix = fixForRecord(m_fix))
        program().sendToRecord(*fix);
    else
        sayForAWhileAs(NoticeLevel::Remark, "There is no fix yet.");
}

void frmSunSight::plan(const PlannedSights& sights)
{
    setNotice("plan~", asQString(program().planSights(sights)), NoticeLevel::Fault);
}

} // namespace korvel
