// SPDX-License-Identifier: MIT
#include "shell/program/Program.h"

#include "app/working/ProgramVersion.h"

namespace korvel
{

Program::Program(const Machine& machine, KV_Savedvalue& saved, Screen& screen,
                 KORVEL2000Actions& actions, ShipsTime& shipsTime, HelpDesk& help)
    : m_machine(machine),
      m_plannedFile(machine.files, machine.questions, machine.clock, plannedSightsFile),
      m_saved(saved), m_screen(screen), m_actions(actions), m_shipsTime(shipsTime), m_help(help)
{
    connect(&screen, &Screen::coloursChanged, this, &Program::coloursChanged);
}

void Program::setUnitOfLatitude(bool latitude)
{
    m_saved.setUnitOfLatitude(latitude);
    emit distanceUnitChanged();
}

void Program::sendToPlan(const PlanExchange::Circle& circle)
{
    plan.circleForPlan = circle;
    openWindow("frmPassage");
    emit circleOffered();
}

void Program::sendToRecord(const ObservedFix& fix)
{
    fixForRecord = fix;
    openWindow("frmPositionRecord");
    emit fixOffered();
}

const PlannedSights& Program::plannedSights()
{
    if (m_plannedSights) return *m_plannedSights;
    m_plannedSights.emplace();
    const FileStore::Content file = m_plannedFile.read();
    if (file.status != FileStore::Content::Status::Read) return *m_plannedSights;
    const ReadPlannedSights read = readPlannedSights(file.bytes);
    m_plannedSights = read.sights;
    if (!read.damage.empty())
        m_plannedFile.report("is damaged: " + read.damage, !read.sights.empty());
    return *m_plannedSights;
}

std::string Program::planSights(const PlannedSights& sights)
{
    plannedSights(); // a damaged file is told of before it is written over
    m_plannedSights = sights;
    std::string fault = m_plannedFile.saveQuietly(plannedSightsText(sights));
    emit sightsPlanned();
    return fault;
}

std::string Program::sendToSights(const PlannedSights& sights)
{
    std::string fault = planSights(sights);
    openWindow("frmSunSight");
    return fault;
}

std::optional<ShipNow::Position> Program::shipsPosition() const
{
    const auto zone = spanOf(NavFunc113::Hours(double(m_saved.TD())));
    return shipNow.at(instantOf(m_shipsTime.UTC()), zone.value_or(Span(0)), earth());
}

PaperHeading Program::paperHeading() const
{
    std::string program = programTitle;
    program.append(" ").append(programVersion);
    return {ship.name, ship.voyage, m_shipsTime.SMT(), m_shipsTime.UTC(), m_saved.TD(), program};
}

} // namespace korvel
