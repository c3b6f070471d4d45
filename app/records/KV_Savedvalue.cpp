// SPDX-License-Identifier: MIT
#include "app/records/KV_Savedvalue.h"

#include "app/reading/Reading.h"

#include <cmath>

namespace korvel
{
namespace
{

constexpr float defaultTD = 9;

bool isAnything(const Value&)
{
    return true;
}

template <int Low, int High>
bool isWithin(const Value& value)
{
    return numberOf(value) >= Low && numberOf(value) <= High;
}

/// What was stored from a box of forty digits; beyond it nothing is a figure of a ship.
bool isMemory(const Value& value)
{
    return numberOf(value) >= 0 && numberOf(value) < 1e40;
}

bool isTimeOfDay(const Value& value)
{
    const auto time = readDateTime(textOf(value));
    return std::holds_alternative<std::monostate>(value) || (time && *time < 1);
}

std::array<SavedValueRow, KV_Savedvalue::count> makeTable()
{
    std::array<SavedValueRow, KV_Savedvalue::count> table;
    const auto set = [&](SavedValue which, int alarm, SavedValueRow row) {
        table[static_cast<std::size_t>(which) + 3 * static_cast<std::size_t>(alarm - 1)] =
            std::move(row);
    };
    set(SavedValue::ClockJST, 1, {"clock keeps JST", FieldKind::Tick, true, isAnything});
    set(SavedValue::ClockSMT, 1, {"clock keeps SMT", FieldKind::Tick, {}, isAnything});
    set(SavedValue::ClockUTC, 1, {"clock keeps UTC", FieldKind::Tick, {}, isAnything});
    for (int n = 1; n <= KV_Savedvalue::alarms; ++n) {
        const std::string alarm = "alarm " + std::to_string(n);
        set(SavedValue::AlarmEnabled, n, {alarm + " enabled", FieldKind::Tick, {}, isAnything});
        set(SavedValue::AlarmTime, n, {"time of " + alarm, FieldKind::Text, "00:00", isTimeOfDay});
        set(SavedValue::AlarmComment, n, {"comment of " + alarm, FieldKind::Text, {}, isAnything});
    }
    set(SavedValue::TimeSignal, 1, {"time signal", FieldKind::Tick, {}, isAnything});
    set(SavedValue::TimeSignalMinutes, 1,
        {"minutes of the time signal", FieldKind::Number, {}, isWithin<0, 59>});
    set(SavedValue::WatchSettings, 1, {"watch settings", FieldKind::Any, {}, isAnything});
    set(SavedValue::BackColor, 1, {"colours", FieldKind::Any, {}, isAnything});
    set(SavedValue::DistanceUnit, 1, {"distance unit", FieldKind::Number, 1.0, isAnything});
    set(SavedValue::MemoLatitude, 1,
        {"latitude of the Position Memo", FieldKind::Number, 0.0, isWithin<-90, 90>});
    set(SavedValue::MemoLongitude, 1,
        {"longitude of the Position Memo", FieldKind::Number, 0.0, isWithin<-180, 180>});
    set(SavedValue::SingleMemo, 1, {"Single Memo", FieldKind::Number, 0.0, isMemory});
    set(SavedValue::TimeDifference, 1,
        {"time difference", FieldKind::Number, defaultTD, isWithin<-12, 12>});
    return table;
}

std::string valueInWords(const Value& value)
{
    const std::string line = writeRecord(std::span(&value, 1));
    constexpr std::size_t longest = 20;
    const std::string text = line.substr(0, line.find('\r'));
    return text.size() > longest ? text.substr(0, longest) + ".." : text;
}

} // namespace

const std::array<SavedValueRow, KV_Savedvalue::count>& KV_Savedvalue::table()
{
    static const auto table = makeTable();
    return table;
}

std::vector<FieldKind> KV_Savedvalue::kinds()
{
    std::vector<FieldKind> kinds;
    for (const SavedValueRow& row : table())
        kinds.push_back(row.kind);
    return kinds;
}

KV_Savedvalue::KV_Savedvalue()
{
    for (std::size_t i = 0; i < m_values.size(); ++i)
        m_values[i] = table()[i].initial;
}

void KV_Savedvalue::set(int index, Value value)
{
    Value& kept = m_values.at(static_cast<std::size_t>(index));
    if (kept == value) return;
    kept = std::move(value);
    ++m_revision;
}

ClockZone KV_Savedvalue::clockZone() const
{
    for (int zone = 0; zone < 3; ++zone)
        if (tickOf((*this)(zone))) return static_cast<ClockZone>(zone);
    return ClockZone::JST;
}

void KV_Savedvalue::setClockZone(ClockZone zone)
{
    for (int i = 0; i < 3; ++i)
        set(i, i == static_cast<int>(zone));
}

int KV_Savedvalue::timeSignalMinutes() const
{
    return static_cast<int>(numberOf((*this)(SavedValue::TimeSignalMinutes)));
}

void KV_Savedvalue::setPositionMemo(NavFunc113::DegMin latitude, NavFunc113::DegMin longitude)
{
    set(SavedValue::MemoLatitude, latitude.packed());
    set(SavedValue::MemoLongitude, longitude.packed());
}

float KV_Savedvalue::TD() const
{
    return static_cast<float>(numberOf((*this)(SavedValue::TimeDifference)));
}

std::vector<std::string> KV_Savedvalue::take(const Record& record)
{
    std::vector<std::string> refused;
    for (std::size_t i = 0; i < m_values.size(); ++i) {
        const SavedValueRow& row = table()[i];
        const bool sound = row.isSound(record[i]);
        set(static_cast<int>(i), sound ? record[i] : row.initial);
        if (!sound) refused.push_back(row.name + " " + valueInWords(record[i]));
    }
    for (int n = 1; n <= alarms; ++n) {
        const auto i = static_cast<std::size_t>(placeOf(n, SavedValue::AlarmTime));
        if (table()[i].isSound(record[i]) || !alarmEnabled(n)) continue;
        // It would ring at midnight, the time of a new installation.
        setAlarmEnabled(n, false);
        refused.push_back("alarm " + std::to_string(n) + " is now off");
    }
    // Half of a position is none.
    const auto soundAt = [&](SavedValue which) {
        const auto i = static_cast<std::size_t>(which);
        return table()[i].isSound(record[i]);
    };
    if (!soundAt(SavedValue::MemoLatitude) || !soundAt(SavedValue::MemoLongitude))
        setPositionMemo({}, {});
    int ticks = 0;
    for (int zone = 0; zone < 3; ++zone)
        ticks += tickOf((*this)(zone)) ? 1 : 0;
    if (ticks != 1) setClockZone(clockZone()); // what was never set stays so
    // Kept in single precision, as it is set.
    setTD(TD());
    return refused;
}

} // namespace korvel
