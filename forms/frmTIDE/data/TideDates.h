// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace korvel
{

/// The dates that the tide window accepts. They follow the factors file beside the program: the
/// shipped file reaches to 2005-12-31, a longer one of the same layout to the day before its last
/// line, because a day's prediction needs the next day's line too.
class TideDates
{
public:
    /// The range of the shipped file.
    TideDates() = default;

    /// The range of the factors file there. A file that is missing, shorter than the shipped one
    /// or not in the layout gives the shipped range: reading a day then says what is wrong with it.
    static TideDates of(FileStore& files);

    std::int64_t firstSerial() const;
    std::int64_t lastSerial() const { return m_lastSerial; }

    /// Limits and value of scrDate: 1 is the first date.
    int scrollMinimum() const { return 1; }
    int scrollMaximum() const { return scrollValueOf(m_lastSerial); }
    int scrollValueOf(std::int64_t serial) const;
    std::int64_t serialOfScrollValue(int value) const;

    bool contains(std::int64_t serial) const;

    /// The date of a text, in range or not: a date as officers type it, without or with a time of
    /// day. Nothing when the text is no valid date.
    static std::optional<std::int64_t> dateIn(std::string_view text);

    /// The text of lblDate, "yyyy/mm/dd".
    static std::string label(std::int64_t serial);

    /// The default answer of the date dialog, today as "yyyy/m/d".
    static std::string defaultAnswer(std::int64_t serial);

    /// What is said of a date out of range.
    std::string refusal() const;

    /// The text of the About notice.
    std::string aboutNotice() const;

private:
    std::int64_t m_lastSerial = 38717; // 2005-12-31
};

/// The question of the date dialog.
inline constexpr std::string_view tideDatePrompt = "Input Date You want to get TIDE";

} // namespace korvel
