// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/data/TideExtension.h"
#include "shell/program/Program.h"

#include <functional>

class QProgressBar;

namespace korvel
{

/// The extension of the predictions as the officer meets it: the offer, the progress, the undo.
class TideExtender
{
public:
    /// @param bar shown while the file is made
    /// @param onChanged called when the factors file is another one
    TideExtender(Program& program, QProgressBar& bar, std::function<void()> onChanged);

    /// Offers to extend the predictions to a date, and does so on Yes.
    /// @return whether they reach further
    bool offer(std::int64_t date);
    bool extend(int year);
    void takeBack();
    bool canTakeBack() const { return canUndoExtension(m_program.files()); }

private:
    bool tell(const ExtensionResult& result);

    Program& m_program;
    QProgressBar& m_bar;
    std::function<void()> m_onChanged;
};

} // namespace korvel
