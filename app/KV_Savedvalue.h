// SPDX-License-Identifier: MIT
#pragma once

#include "app/Value.h"
#include "navlib/sailing.h"

#include <array>

namespace korvel
{

/// Which time the computer's own clock keeps.
enum class ClockZone { JST = 0, SMT = 1, UTC = 2 };

/// The program's saved values: time difference, memories, alarms, time signal, display choices.
/// One object, owned by the program and handed to whoever needs it.
class KV_Savedvalue
{
public:
    static constexpr int count = 27;
    static constexpr int alarms = 5;

    /// The values of a new installation: JST, no alarm, TD +9, unit of latitude.
    KV_Savedvalue();

    Value& operator()(int index) { return m_values.at(static_cast<std::size_t>(index)); }
    const Value& operator()(int index) const
    {
        return m_values.at(static_cast<std::size_t>(index));
    }

    ClockZone clockZone() const; ///< the first tick that is set, JST when none is
    void setClockZone(ClockZone zone);

    /// Alarm n = 1 .. 5: enabled, its time "hh:mm", its comment.
    bool alarmEnabled(int n) const { return tickOf((*this)(3 * n)); }
    std::string alarmTime(int n) const { return textOf((*this)(3 * n + 1)); }
    std::string alarmComment(int n) const { return textOf((*this)(3 * n + 2)); }
    void setAlarmEnabled(int n, bool enabled) { (*this)(3 * n) = enabled; }
    void setAlarmTime(int n, std::string time) { (*this)(3 * n + 1) = std::move(time); }
    void setAlarmComment(int n, std::string comment) { (*this)(3 * n + 2) = std::move(comment); }

    /// Hourly time signal, and how many minutes before the full hour it sounds (0 to 59).
    bool timeSignal() const { return tickOf((*this)(18)); }
    int timeSignalMinutes() const;
    void setTimeSignal(bool on) { (*this)(18) = on; }
    void setTimeSignalMinutes(int minutes) { (*this)(19) = double(minutes); }

    /// True for the night scheme.
    bool nightColours() const { return numberOf((*this)(21)) != 0; }
    void setNightColours(bool night) { (*this)(21) = night ? 1.0 : 0.0; }

    /// True: "1nm=1' (of LATITUDE)", false: "1nm=1852m".
    bool unitOfLatitude() const { return numberOf((*this)(22)) != 0; }
    void setUnitOfLatitude(bool latitude) { (*this)(22) = latitude ? 1.0 : 0.0; }
    /// The earth of the sailing routines: lengths in miles of 1852 m need the spheroid.
    NavFunc113::Earth earth() const
    {
        return unitOfLatitude() ? NavFunc113::Earth::Sphere : NavFunc113::Earth::Spheroid;
    }

    NavFunc113::DegMin memoLatitude() const { return NavFunc113::DegMin(numberOf((*this)(23))); }
    NavFunc113::DegMin memoLongitude() const { return NavFunc113::DegMin(numberOf((*this)(24))); }
    double singleMemo() const { return numberOf((*this)(25)); }

    /// Time difference of ship's mean time from UTC in hours, east positive, -12 .. 12.
    float TD() const;
    void setTD(float hours) { (*this)(26) = hours; }

    Record record() const { return {m_values.begin(), m_values.end()}; }

    /// Takes over what a settings file holds. Ticks of the clock zone are brought into order and
    /// a time difference beyond 12 hours gives way to the default.
    /// @param record at least 27 values
    void take(const Record& record);

private:
    std::array<Value, count> m_values;
};

} // namespace korvel
