// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/TankReckoning.h"

#include <functional>

namespace korvel
{

/// The sheet on the officer's table: what was typed, what was worked out of it, what can be taken
/// back, and of each list the row and the survey in hand.
class SheetInHand
{
public:
    SheetInHand();

    const TankSheet& sheet() const { return m_sheet; }
    const TankList& list(ListKind kind) const { return m_sheet.list(kind); }
    const TankReckoning& reckoning(ListKind kind) const
    {
        return m_reckonings[static_cast<std::size_t>(kind)];
    }

    /// Rows to be shown: those of the list, and behind a last one that holds something an empty one
    /// to type into, as long as a list may have that many.
    std::size_t shownRows(ListKind kind) const;
    std::size_t row(ListKind kind) const { return at(kind).row; }
    TankSurvey survey(ListKind kind) const { return at(kind).survey; }
    /// @param row the last one at most is gone to
    void goToRow(ListKind kind, std::size_t row);
    void goToSurvey(ListKind kind, TankSurvey survey);
    /// What the row in hand holds; nothing in the one behind the last.
    TankRow rowInHand(ListKind kind) const;

    /// A key in a box of the row in hand. @param box its name
    void typeRow(ListKind kind, TankRow row, const std::string& box);
    /// A key in any other box, or a choice. Keys in a box one after the other are one step.
    void type(const std::function<void(TankSheet&)>& change, const std::string& box);
    /// The box is left: the next key begins a step of its own.
    void endTyping() { m_typedBox.clear(); }

    /// Opens a row before the row in hand. @return false when the list has as many as it may
    bool insertRow(ListKind kind);
    void deleteRow(ListKind kind);
    /// The last survey becomes the first one, and the last one is empty: the next day's bunkers, or
    /// the next port.
    void beginNextSurvey(ListKind kind);
    void replace(TankSheet by, const std::string& name);
    /// Takes a sheet over as it was kept: that is nothing to be taken back.
    void take(TankSheet sheet);

    /// @return what was taken back or done again; empty when there is nothing
    std::string undo();
    std::string redo();

private:
    struct Place {
        std::size_t row{};
        TankSurvey survey = TankSurvey::First;
    };
    struct Step {
        std::string name;
        TankSheet sheet; ///< before it, or of one undone: after it
    };
    Place& at(ListKind kind) { return m_places[static_cast<std::size_t>(kind)]; }
    const Place& at(ListKind kind) const { return m_places[static_cast<std::size_t>(kind)]; }
    void remember(const std::string& name);
    std::string restore(std::vector<Step>& from, std::vector<Step>& to);
    void reckonAll();

    TankSheet m_sheet;
    std::array<TankReckoning, 2> m_reckonings;
    std::array<Place, 2> m_places;
    std::vector<Step> m_done;
    std::vector<Step> m_undone;
    std::string m_typedBox; ///< of the last step, while it goes on
};

} // namespace korvel
