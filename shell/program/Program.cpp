// SPDX-License-Identifier: MIT
#include "shell/program/Program.h"

#include "app/working/ProgramVersion.h"

namespace korvel
{

Program::Program(const Machine& machine, KV_Savedvalue& saved, Screen& screen,
                 KORVEL2000Actions& actions, ShipsTime& shipsTime)
    : m_machine(machine), m_saved(saved), m_screen(screen), m_actions(actions),
      m_shipsTime(shipsTime)
{
    connect(&screen, &Screen::coloursChanged, this, &Program::coloursChanged);
}

const ColourScheme& Program::colours() const
{
    static const ColourScheme ofPaper = ColourScheme::day();
    return m_onPaper ? ofPaper : m_screen.colours();
}

PaperHeading Program::paperHeading() const
{
    std::string program = programTitle;
    program.append(" ").append(programVersion);
    return {ship.name, ship.voyage, m_shipsTime.SMT(), m_shipsTime.UTC(), m_saved.TD(), program};
}

} // namespace korvel
