// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/SightEditing.h"

#include <algorithm>
#include <utility>

namespace korvel
{

SightList::Outcome SightEditing::put(const SightTexts& texts)
{
    const auto outcome = m_edited ? m_list.replace(*m_edited, texts) : m_list.record(texts);
    if (outcome == SightList::Outcome::Recorded) m_edited.reset();
    return outcome;
}

void SightEditing::remove(std::size_t index)
{
    const auto before = editedTexts();
    m_list.remove(index);
    m_cleared.reset();
    follow(before);
}

void SightEditing::clear(const SightTexts& inBoxes)
{
    m_list.clear();
    m_cleared = inBoxes;
    m_edited.reset();
}

std::optional<SightTexts> SightEditing::undo(bool boxesAreFree)
{
    const auto before = editedTexts();
    m_list.takeBack();
    follow(before);
    const auto cleared = std::exchange(m_cleared, std::nullopt);
    return boxesAreFree ? cleared : std::nullopt;
}

std::optional<SightTexts> SightEditing::editedTexts() const
{
    if (!m_edited) return std::nullopt;
    return m_list.sights()[*m_edited].texts;
}

/// After sights came or went: the one being edited may stand elsewhere, or be gone.
void SightEditing::follow(const std::optional<SightTexts>& edited)
{
    const auto& sights = m_list.sights();
    const auto at = std::ranges::find_if(
        sights, [&](const RecordedSight& sight) { return edited && sight.texts == *edited; });
    m_edited = at == sights.end()
                   ? std::nullopt
                   : std::optional(static_cast<std::size_t>(std::distance(sights.begin(), at)));
}

} // namespace korvel
