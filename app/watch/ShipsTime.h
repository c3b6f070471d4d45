// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/ComputerClock.h"
#include "app/machine/Questions.h"
#include "app/records/KV_Savedvalue.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace korvel
{

/// The three clocks: ship's mean time, UTC and JST, tied by TD (SMT = UTC + TD).
class ShipsTime
{
public:
    using DateTime = NavFunc113::DateTime;

    struct Hooks {
        std::function<void(const std::string&)> showClock;   ///< text for lblTime
        std::function<void(const std::string&)> showCaption; ///< caption of the main window
        std::function<void(DateTime)> newMinute;             ///< SMT of a new minute
    };

    /// All references must outlive this object.
    ShipsTime(KV_Savedvalue& saved, Questions& questions, ComputerClock& clock, Hooks hooks);

    /// The dialog that sets SMT, TD and through them the computer's clock. Where the clock cannot
    /// be set, SMT is kept as an offset from it and the officer is told once. A time so near to the
    /// ends of the calendar that some TD would leave it is refused with the reason.
    void setUp();

    /// Asks for TD until it is a number within 12 hours, stores it rounded to one decimal.
    void inputTD();

    /// Recomputes and redraws the clocks when the minute has changed, and then passes SMT on to
    /// whoever waits for a new minute.
    void JikokuHyouji();

    /// Redraws the clocks at once after TD, the zone or the clock was changed, without an alarm
    /// check of its own.
    void refresh();

    DateTime JST() const { return zones()[0]; }
    DateTime SMT() const { return zones()[1]; }
    DateTime UTC() const { return zones()[2]; }

    /// Seconds by which the program's time is ahead of the computer's clock; 0 unless the clock
    /// could not be set.
    double offsetSeconds() const { return m_offset; }
    /// The same in words, "0 h 15 min 00 s ahead"; empty when there is none.
    std::string offsetText() const;
    /// Takes an offset over. @return false, and nothing is taken over, when it is no number or
    /// would put ship's time beyond the calendar
    bool takeOffset(double seconds);

    /// One line for the officer when the computer's own zone makes UTC another time than the one
    /// shown, by more than two minutes: both times and the entry of the clock menu that agrees.
    /// Otherwise empty.
    std::string zoneNotice() const;

    /// The caption of the main window: "KORVEL (9.0 hE)".
    static std::string caption(float TD);

private:
    std::array<DateTime, 3> zones() const; ///< JST, SMT, UTC, by ClockZone
    double hoursOf(ClockZone zone) const;
    DateTime now() const;
    DateTime askSMT();
    void show();
    void setComputerClock(DateTime typedSMT);
    void refuse(DateTime typedSMT, float TDBefore);

    KV_Savedvalue& m_saved;
    Questions& m_questions;
    ComputerClock& m_clock;
    Hooks m_hooks;
    double m_offset{};
    bool m_toldAboutOffset = false;
    std::optional<std::int64_t> m_minuteShown;
};

} // namespace korvel
