// SPDX-License-Identifier: MIT
#include "shell/program/Program.h"

#include "app/working/ProgramVersion.h"

namespace korvel
{

Program::Program(const Machine& machine, KV_Savedvalue& saved, Screen& screen,
                 KORVEL2000Actions& actions, ShipsTime& shipsTime, HelpDesk& help)
    : m_machine(machine), m_saved(saved), m_screen(screen), m_actions(actions),
      m_shipsTime(shipsTime), m_help(help)
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
