// SPDX-License-Identifier: MIT
#include "app/shell/Program.h"

#include "app/ProgramVersion.h"

namespace korvel
{

Program::Program(const Machine& machine, KV_Savedvalue& saved, KORVEL2000Actions& actions,
                 ShipsTime& shipsTime)
    : m_machine(machine), m_saved(saved), m_actions(actions), m_shipsTime(shipsTime)
{
}

const ColourScheme& Program::colours() const
{
    return m_saved.nightColours() && !m_onPaper ? m_night : m_day;
}

PaperHeading Program::paperHeading() const
{
    return {ship.name,         ship.voyage,  m_shipsTime.SMT(),
            m_shipsTime.UTC(), m_saved.TD(), std::string(programTitle) + ' ' + programVersion};
}

} // namespace korvel
