// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmSunSight/sight/SightTexts.h"
#include "navlib/units.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace korvel
{

struct RecordedSight {
    SightTexts texts;
    bool on = true; ///< takes part in plot and fix

    bool operator==(const RecordedSight&) const = default;
};

/// The recorded sights, in the order of their times.
class SightList
{
public:
    static constexpr std::size_t most = 40;

    enum class Outcome {
        Recorded,
        Already, ///< a sight of the same instant, altitude and limb is there: "Recorded already!"
        Full,
        Unusable ///< time or altitude cannot be used
    };

    Outcome record(const SightTexts& texts);
    /// Puts an edited sight in the place of another; nothing changes unless Recorded.
    Outcome replace(std::size_t index, const SightTexts& texts);
    void setOn(std::size_t index, bool on);
    /// Of which body a sight is, kept in a file of its own.
    void setBody(std::size_t index, const std::string& body);
    void remove(std::size_t index);
    void clear();

    /// Brings back what the last remove() or clear() took out, beside what was recorded since; a
    /// sight that is there again stays once. What has no room stays to be taken back.
    /// @return how many came back
    std::size_t takeBack();
    bool canTakeBack() const { return !m_removed.empty() || !m_removedUnreadable.empty(); }

    /// UTC of the last sight that is on.
    /// @param except  of the list, not to be looked at
    std::optional<NavFunc113::DateTime> lastOn(std::optional<std::size_t> except = {}) const;

    const std::vector<RecordedSight>& sights() const { return m_sights; }

    /// Texts for the settings record, always `most` of them: the sights, then what could not be
    /// read, then empty ones.
    std::vector<std::string> texts() const;
    /// A sight as its record has it, but for whether it is on: what its body is kept by.
    static std::string textWithoutBody(const SightTexts& sight);
    /// Takes the texts over. What cannot be read as a sight is kept as it stands and written back.
    static SightList fromTexts(const std::vector<std::string>& texts);
    /// True for a text of texts() that is a sight.
    static bool isText(std::string_view text);
    /// Finds the sights in a settings file whose record is damaged.
    static SightList salvaged(std::string_view file);
    /// Texts that are no sight, for the officer to see.
    const std::vector<std::string>& unreadable() const { return m_unreadable; }

private:
    Outcome check(const SightTexts& texts, std::size_t except) const;
    void sort();
    bool isFull() const { return m_sights.size() + m_unreadable.size() >= most; }

    std::vector<RecordedSight> m_sights;
    std::vector<std::string> m_unreadable;
    std::vector<RecordedSight> m_removed; ///< last
    std::vector<std::string> m_removedUnreadable;
};

/// What the window says of an outcome; empty for Recorded.
std::string outcomeText(SightList::Outcome outcome);

/// One line of the list: resolved UTC with its date, altitude, limb.
std::string listLine(const RecordedSight& sight);

} // namespace korvel
