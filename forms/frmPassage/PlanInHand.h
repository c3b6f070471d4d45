// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PlanEdit.h"
#include "forms/frmPassage/PlanReckoning.h"

namespace korvel
{

/// The plan on the officer's table: its rows, what was worked out of them, what can be taken back,
/// and the row in hand.
class PlanInHand
{
public:
    explicit PlanInHand(const PlanConditions& conditions);

    const PassagePlan& plan() const { return m_plan; }
    const PlanReckoning& reckoning() const { return m_reckoning; }

    /// Rows to be shown: those of the plan, and behind a last one that holds something an empty one
    /// to type into, as long as a plan may have that many.
    std::size_t shownRows() const;
    std::size_t row() const { return m_row; }
    /// @param row the last one at most is gone to
    void goToRow(std::size_t row);
    /// What the row in hand holds; nothing in the one behind the last.
    PlanRow rowInHand() const;

    /// A key in a box of the row in hand, or of what is above the rows. @param box its name
    void typeRow(PlanRow row, const std::string& box);
    void typeHead(PlanHead head, const std::string& box);
    /// The box is left: the next key begins a step of its own.
    void endTyping() { m_history.endTyping(); }

    /// Opens rows before the row in hand, which the first of them is then; they take the place of
    /// an empty one. @return false when the plan would have too many, and nothing is changed
    bool insertRows(const PlanRows& rows);
    void deleteRow();
    /// Moves the row in hand. @param by -1 up, 1 down; beyond the ends nothing happens
    void moveRow(int by);
    void reverse();
    void replace(const PassagePlan& by, const std::string& name);
    /// Takes a plan over as it was kept, before anything is done with one: that is nothing to be
    /// taken back.
    void take(PassagePlan plan);

    /// @return false when there is no step
    bool undo();
    bool redo();
    std::string undoName() const { return m_history.undoName(); }
    std::string redoName() const { return m_history.redoName(); }

    void setConditions(const PlanConditions& conditions);

private:
    void perform(PlanEdit edit, std::size_t row);
    void goToEdit(const PlanEdit& edit);

    PassagePlan m_plan;
    PlanConditions m_conditions;
    PlanReckoning m_reckoning;
    PlanHistory m_history;
    std::size_t m_row{};
};

} // namespace korvel
