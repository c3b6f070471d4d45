// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmPassage/PassagePlan.h"

#include <optional>

/// Changes of a plan that can be taken back.
namespace korvel
{

using PlanRows = std::vector<PlanRow>;

/// What a plan has beside its rows.
struct PlanHead {
    std::string name;
    PlanTimes times;
    PlanWish wish;
    std::vector<KeptPart> kept;

    bool operator==(const PlanHead&) const = default;
};

PlanHead headOf(const PassagePlan& plan);

/// A change of a plan: from a place on some rows are replaced by others, and perhaps the head.
struct PlanEdit {
    std::string name; ///< "Insert rows": what an undo is called by
    std::size_t at{};
    PlanRows before;
    PlanRows after;
    std::optional<PlanHead> headBefore = {};
    std::optional<PlanHead> headAfter = {};
    std::string typedBox =
        {}; ///< of a key in a box: which box; keys in it one after the other are one step

    /// Nothing changes.
    bool isIdle() const { return before == after && headBefore == headAfter; }
};

void apply(PassagePlan& plan, const PlanEdit& edit);
void takeBack(PassagePlan& plan, const PlanEdit& edit);

/// Opens rows before a row, or behind the last one.
/// @return nothing when the plan would have too many
std::optional<PlanEdit> insertedRows(const PlanRows& rows, std::size_t at,
                                     const PlanRows& inserted);

/// @param count as many of them as there are
PlanEdit deletedRows(const PlanRows& rows, std::size_t at, std::size_t count);

/// Takes a row out and puts it in at another place, with its leg's kind, speed and stop.
/// @param to where it stands afterwards
PlanEdit movedRow(const PlanRows& rows, std::size_t from, std::size_t to);

/// The same way back. Kind, step, limit and speed belong to legs and go with them; names, stops and
/// remarks stay with their positions, which keep their zones. What was "as above" is written down
/// where it would be another's now.
PlanEdit reversedRows(const PlanRows& rows);

/// A key in a box. @param box its name
PlanEdit typedRow(const PlanRows& rows, std::size_t at, PlanRow row, std::string box);

/// Another plan instead of the one there is.
PlanEdit replacedPlan(const PassagePlan& plan, const PassagePlan& by, std::string name);

/// The head alone.
PlanEdit changedHead(const PassagePlan& plan, PlanHead head, std::string name,
                     std::string box = {});

/// What was done to a plan, to be undone and redone step by step.
class PlanHistory
{
public:
    /// Does an edit. One that changes nothing is no step; a key in the box of the last step is part
    /// of that step.
    void perform(PassagePlan& plan, PlanEdit edit);
    /// Ends a step of typing: the next key begins one, whatever box it is in.
    void endTyping() { m_isTyping = false; }

    /// @return the step; nullptr when there is none
    const PlanEdit* undo(PassagePlan& plan);
    const PlanEdit* redo(PassagePlan& plan);

    /// Names of the steps that undo and redo would do; empty when there is none.
    std::string undoName() const { return m_done.empty() ? std::string() : m_done.back().name; }
    std::string redoName() const { return m_undone.empty() ? std::string() : m_undone.back().name; }

private:
    std::vector<PlanEdit> m_done;
    std::vector<PlanEdit> m_undone;
    bool m_isTyping = false;
};

} // namespace korvel
