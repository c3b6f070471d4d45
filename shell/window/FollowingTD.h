// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/Boxes.h"

namespace korvel
{

class Program;

/// A box for a time difference that shows the ship's until the officer types another one. Emptied,
/// it follows the ship's again as soon as it is left. In the record an empty text stands for the
/// ship's, so that a window opened again takes the one of that day.
class FollowingTD : public QObject
{
public:
    /// @param box lives as long as this object; shows the ship's TD from now on
    FollowingTD(EntryBox* box, Program& program);

    bool follows() const { return m_follows; }
    /// What the record keeps of the box.
    std::string recorded() const { return m_follows ? std::string() : m_box->value(); }
    /// To be called before the record fills the box: what it fills in counts as typed, also where
    /// it is the ship's TD of today.
    void awaitRecord();
    /// To be called when the record has filled the box.
    void settle();

private:
    void follow();

    EntryBox* m_box;
    Program& m_program;
    bool m_follows = false;
    bool m_filling = false;
};

} // namespace korvel
