// SPDX-License-Identifier: MIT
#include "shell/window/FollowingTD.h"

#include "app/reading/Format.h"
#include "shell/machine/AsQString.h"
#include "shell/program/Program.h"

namespace korvel
{

FollowingTD::FollowingTD(EntryBox* box, Program& program)
    : QObject(box), m_box(box), m_program(program)
{
    connect(m_box, &QLineEdit::textChanged, this, [this] {
        if (!m_filling) m_follows = false;
    });
    connect(&m_program, &Program::TDChanged, this, [this] {
        if (m_follows) follow();
    });
    m_box->onLeave = [this] { settle(); };
    follow();
}

void FollowingTD::awaitRecord()
{
    m_filling = true;
    m_box->clear();
    m_filling = false;
}

void FollowingTD::settle()
{
    if (m_box->text().trimmed().isEmpty()) follow();
}

void FollowingTD::follow()
{
    m_filling = true;
    m_box->setText(asQString(Format(double(m_program.saved().TD()), "0.0")));
    m_filling = false;
    m_follows = true;
}

} // namespace korvel
