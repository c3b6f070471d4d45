// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/sight/SightList.h"

namespace korvel
{

/// The recorded sights as the officer works on them: which of them stands in the boxes, and what
/// stood there when all was cleared.
class SightEditing
{
public:
    const SightList& list() const { return m_list; }
    /// Takes a list over that was read from a file.
    void take(SightList list) { m_list = std::move(list); }

    /// The recorded sight that stands in the boxes.
    std::optional<std::size_t> edited() const { return m_edited; }
    void edit(std::optional<std::size_t> index) { m_edited = index; }

    /// Records a sight, or puts the edited one back; then none is edited any more.
    SightList::Outcome put(const SightTexts& texts);
    void setOn(std::size_t index, bool on) { m_list.setOn(index, on); }
    void remove(std::size_t index);
    /// @param inBoxes the sight that is cleared with the list
    void clear(const SightTexts& inBoxes);

    bool canUndo() const { return m_list.canTakeBack() || m_cleared.has_value(); }
    /// Brings back what went last. @return the sight that belongs into the boxes, when it does
    /// @param boxesAreFree nothing was typed since: that is not written over
    std::optional<SightTexts> undo(bool boxesAreFree);

private:
    void follow(const std::optional<SightTexts>& edited);
    std::optional<SightTexts> editedTexts() const;

    SightList m_list;
    std::optional<std::size_t> m_edited;
    std::optional<SightTexts> m_cleared;
};

} // namespace korvel
