// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/SettingsRecord.h"
#include "app/records/Value.h"
#include "navlib/sailing/sailing.h"

#include <array>
#include <string>
#include <vector>

namespace korvel
{

/// Which time the computer's own clock keeps.
enum class ClockZone { JST = 0, SMT = 1, UTC = 2 };

/// Where each of the saved values stands. Alarm n has the three from 3n on.
enum class SavedValue {
    ClockJST = 0,
    ClockSMT = 1,
    ClockUTC = 2,
    AlarmEnabled = 3, ///< of alarm 1
    AlarmTime = 4,    ///< of alarm 1
    AlarmComment = 5, ///< of alarm 1
    TimeSignal = 18,
    TimeSignalMinutes = 19,
    WatchSettings = 20,
    BackColor = 21,
    DistanceUnit = 22,
    MemoLatitude = 23,
    MemoLongitude = 24,
    SingleMemo = 25,
    TimeDifference = 26
};

/// What is known about a saved value.
struct SavedValueRow {
    std::string name; ///< in words: "time of alarm 2"
    FieldKind kind;   ///< in the settings file
    Value initial;    ///< of a new installation
    /// Whether a value that was read can be used; one that was never set always can.
    bool (*isSound)(const Value& value);
};

/// The program's saved values: time difference, memories, alarms, time signal, display choices.
/// One object, owned by the program and handed to whoever needs it.
class KV_Savedvalue
{
public:
    static constexpr const char* file = "KV_KORVEL.ini";
    static constexpr int count = 27;
    static constexpr int alarms = 5;

    /// The table of the values, in the order of their indices.
    static const std::array<SavedValueRow, count>& table();
    /// Their kinds, as the settings file is read.
    static std::vector<FieldKind> kinds();

    /// The values of a new installation: JST, no alarm, TD +9, unit of latitude.
    KV_Savedvalue();

    const Value& operator()(int index) const
    {
        return m_values.at(static_cast<std::size_t>(index));
    }
    const Value& operator()(SavedValue which) const { return (*this)(static_cast<int>(which)); }

    /// Every change goes this way.
    void set(int index, Value value);
    void set(SavedValue which, Value value) { set(static_cast<int>(which), std::move(value)); }
    /// Another number after every change: whoever keeps the values need not look at them to know.
    unsigned revision() const { return m_revision; }

    ClockZone clockZone() const; ///< the first tick that is set, JST when none is
    void setClockZone(ClockZone zone);

    /// Alarm n = 1 .. 5: enabled, its time "hh:mm", its comment.
    bool alarmEnabled(int n) const { return tickOf(ofAlarm(n, SavedValue::AlarmEnabled)); }
    std::string alarmTime(int n) const { return textOf(ofAlarm(n, SavedValue::AlarmTime)); }
    std::string alarmComment(int n) const { return textOf(ofAlarm(n, SavedValue::AlarmComment)); }
    void setAlarmEnabled(int n, bool enabled)
    {
        set(placeOf(n, SavedValue::AlarmEnabled), enabled);
    }
    void setAlarmTime(int n, std::string time)
    {
        set(placeOf(n, SavedValue::AlarmTime), std::move(time));
    }
    void setAlarmComment(int n, std::string comment)
    {
        set(placeOf(n, SavedValue::AlarmComment), std::move(comment));
    }

    /// Hourly time signal, and how many minutes before the full hour it sounds (0 to 59).
    bool timeSignal() const { return tickOf((*this)(SavedValue::TimeSignal)); }
    int timeSignalMinutes() const;
    void setTimeSignal(bool on) { set(SavedValue::TimeSignal, on); }
    void setTimeSignalMinutes(int minutes) { set(SavedValue::TimeSignalMinutes, double(minutes)); }

    /// True for the night scheme.
    bool nightColours() const { return numberOf((*this)(SavedValue::BackColor)) != 0; }
    /// Day leaves the value as a new installation has it, so that there and back is no change.
    void setNightColours(bool night) { set(SavedValue::BackColor, night ? Value(1.0) : Value()); }

    /// True: "1nm=1' (of LATITUDE)", false: "1nm=1852m".
    bool unitOfLatitude() const { return numberOf((*this)(SavedValue::DistanceUnit)) != 0; }
    void setUnitOfLatitude(bool latitude) { set(SavedValue::DistanceUnit, latitude ? 1.0 : 0.0); }
    /// The earth of the sailing routines: lengths in miles of 1852 m need the spheroid.
    NavFunc113::Earth earth() const
    {
        return unitOfLatitude() ? NavFunc113::Earth::Sphere : NavFunc113::Earth::Spheroid;
    }

    NavFunc113::DegMin memoLatitude() const
    {
        return NavFunc113::DegMin(numberOf((*this)(SavedValue::MemoLatitude)));
    }
    NavFunc113::DegMin memoLongitude() const
    {
        return NavFunc113::DegMin(numberOf((*this)(SavedValue::MemoLongitude)));
    }
    void setPositionMemo(NavFunc113::DegMin latitude, NavFunc113::DegMin longitude);
    double singleMemo() const { return numberOf((*this)(SavedValue::SingleMemo)); }
    void setSingleMemo(double value) { set(SavedValue::SingleMemo, value); }

    /// Time difference of ship's mean time from UTC in hours, east positive, -12 .. 12.
    float TD() const;
    void setTD(float hours) { set(SavedValue::TimeDifference, hours); }

    Record record() const { return {m_values.begin(), m_values.end()}; }

    /// Takes over what a settings file holds. Ticks of the clock zone are brought into order; a
    /// value that is out of range keeps its default, and a memory's position both of its halves; an
    /// alarm whose time cannot be read is off.
    /// @param record at least 27 values
    /// @return what was not taken over, in words: "time difference 99"
    std::vector<std::string> take(const Record& record);

private:
    const Value& ofAlarm(int n, SavedValue which) const { return (*this)(placeOf(n, which)); }
    static int placeOf(int n, SavedValue which) { return static_cast<int>(which) + 3 * (n - 1); }

    std::array<Value, count> m_values;
    unsigned m_revision{};
};

} // namespace korvel
