// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/Questions.h"
#include "app/records/KV_Savedvalue.h"
#include "navlib/units.h"

#include <array>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace korvel
{

/// Caption of an alarm's menu entry: "Alarm&1: 06:30".
std::string alarmCaption(int n, const KV_Savedvalue& saved);

/// The enabled alarm that comes next, in words: "Next alarm 06:30 call the master"; "No alarm" when
/// none is enabled.
/// @param smt ship's mean time; an alarm of this very minute has rung and is a day away
std::string nextAlarmText(const KV_Savedvalue& saved, NavFunc113::DateTime smt);

/// Asks for time, comment and use of alarm n. An answer that is no time brings a message and the
/// question again with the old time. Cancel in any question leaves the alarm as it was, and so does
/// an empty time. Times are stored as hh:mm whatever was typed; "+5" is the minute that begins
/// at least five whole minutes from now, up to "+1439".
/// @param n           1 .. 5
/// @param smt         ship's mean time at the moment of the answer
/// @param menuChanged called whenever caption or tick of the entry are to be shown anew
void setUpAlarm(int n, KV_Savedvalue& saved, Questions& questions,
                const std::function<NavFunc113::DateTime()>& smt,
                const std::function<void()>& menuChanged);

/// Asks whether the hourly time signal is used, then how many minutes before the hour. Cancelling
/// either leaves both as they were.
void setUpTimeSignal(KV_Savedvalue& saved, Questions& questions);

/// What has fallen due.
struct DueAlarm {
    std::string text; ///< to be shown
    bool alarm;       ///< to be repeated until it is acknowledged; false: a time signal, once

    bool operator==(const DueAlarm&) const = default;
};

/// Minutes that have been rung.
class RungMinutes
{
public:
    /// @return false when the minute was there already
    bool add(std::int64_t minute);

private:
    /// Ascending; one a day or an hour, for as long as the program runs.
    std::vector<std::int64_t> m_minutes;
};

/// The watch over the five alarms and the time signal. It is told the time and knows no clock.
///
/// Alarms. One whose minute has come is rung. One whose minute the clock has passed over (the
/// machine slept, the program was busy, the clock or TD was put forward) by less than an hour is
/// rung late, with its own time in the text. The same minute of the same day is never rung twice,
/// however the clock is set. An alarm that was set or enabled is watched from the minute after, so
/// that setting one for a time just gone rings tomorrow.
///
/// Time signal. It is never late: "O'clock" at three minutes past would mislead. It does not sound
/// twice for the same minute of the same day either.
class Alarms
{
public:
    explicit Alarms(const KV_Savedvalue& saved) : m_saved(saved) {}

    /// To be called once per new minute; calling more often does no harm.
    /// @param smt ship's mean time; any second of the minute
    /// @return what is to be shown, in the order of its own times, alarms before the time signal
    std::vector<DueAlarm> check(NavFunc113::DateTime smt);

    /// To be called when the officer has changed TD or set the clock. Shows nothing: what the
    /// change passed over by less than an hour comes with the next check, by when a whole hour
    /// may have gone.
    /// @param smt ship's mean time after the change
    void clockChanged(NavFunc113::DateTime smt);

private:
    struct Watch {
        bool enabled = false;
        std::string time;
        std::optional<int> minuteOfDay; ///< nothing when the text is no time
        std::int64_t from{};            ///< first minute that counts
        RungMinutes rung;
    };
    struct Rung {
        std::int64_t minute;
        DueAlarm due;
    };

    void watch(std::int64_t minute);
    void honourSettings(int n, Watch& alarm, std::int64_t minute) const;

    const KV_Savedvalue& m_saved;
    std::array<Watch, KV_Savedvalue::alarms> m_watches;
    RungMinutes m_signals;
    std::optional<std::int64_t> m_last; ///< minute of the last reading
    std::vector<Rung> m_due;            ///< not handed out yet
};

} // namespace korvel
