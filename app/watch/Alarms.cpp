// SPDX-License-Identifier: MIT
#include "app/watch/Alarms.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace korvel
{
namespace
{

constexpr std::int64_t minutesOfDay = 1440;
// Minutes; an alarm that is later than this is of no use any more.
constexpr std::int64_t lateLimit = 60;

/// Time of day in days; nothing when the text is no time alone.
std::optional<double> timeOfDay(const std::string& text)
{
    const auto time = readDateTime(text);
    const bool dated = asciiForms(text).find('/') != std::string::npos;
    return time && !dated ? time : std::nullopt;
}

/// Minutes since day 0, from the nearest second as all times are shown.
std::optional<std::int64_t> minuteOf(NavFunc113::DateTime time)
{
    const double seconds = std::round(time * 86400);
    if (!(std::fabs(seconds) < 1e12)) return std::nullopt;
    return static_cast<std::int64_t>(std::floor(seconds / 60));
}

std::int64_t dayMinute(std::int64_t minute)
{
    return (minute % minutesOfDay + minutesOfDay) % minutesOfDay;
}

Answer askYesNo(Questions& questions, const std::string& text)
{
    return questions.ask({text, programTitle, Buttons::YesNo});
}

/// The time of day some minutes from now, "+5"; nothing when the text is nothing of the kind. The
/// minute that runs does not count: five minutes are not to be four and a half.
std::optional<double> timeAhead(const std::string& text, NavFunc113::DateTime smt)
{
    const std::string ascii = asciiForms(text);
    const double minutes = readNumber(ascii);
    const bool isAhead = ascii.starts_with('+') && isNumeric(ascii) && minutes >= 1 &&
                         minutes < static_cast<double>(minutesOfDay) &&
                         minutes == std::floor(minutes);
    const auto present = minuteOf(smt);
    if (!isAhead || !present) return std::nullopt;
    const bool isBegun = smt * 1440 - static_cast<double>(*present) > 1.0 / 120; // half a second
    const std::int64_t due = *present + static_cast<std::int64_t>(minutes) + (isBegun ? 1 : 0);
    return static_cast<double>(dayMinute(due)) / static_cast<double>(minutesOfDay);
}

/// Asks until the answer is a time of day. @return it as hh:mm; nothing when cancelled, which an
/// empty answer counts as
std::optional<std::string> askAlarmTime(Questions& questions, const std::string& stored,
                                        const std::function<NavFunc113::DateTime()>& smt)
{
    for (;;) {
        const auto answer = questions.input("Input ALARM Time( hh:mm )", programTitle, stored);
        if (!answer || answer->empty()) return std::nullopt;
        if (const auto time = timeOfDay(*answer)) return Format(*time, "hh:mm");
        if (const auto time = timeAhead(*answer, smt())) return Format(*time, "hh:mm");
        questions.ask({"Incorrect value.", programTitle, Buttons::Ok});
    }
}

/// Time, comment and use of alarm n, stored as they are answered. @return false when cancelled
bool askAlarm(int n, KV_Savedvalue& saved, Questions& questions,
              const std::function<NavFunc113::DateTime()>& smt,
              const std::function<void()>& menuChanged)
{
    const auto time = askAlarmTime(questions, saved.alarmTime(n), smt);
    if (!time) return false;
    saved.setAlarmTime(n, *time);
    menuChanged();
    const auto comment = questions.input("Input the comments appear when alarming.", programTitle,
                                         saved.alarmComment(n));
    if (!comment) return false;
    saved.setAlarmComment(n, *comment);
    const Answer use = askYesNo(questions, "Do you set this alarm enabled？");
    if (use == Answer::Cancel) return false;
    saved.setAlarmEnabled(n, use == Answer::Yes);
    menuChanged();
    return true;
}

std::string timeSignalText(int minutesBefore)
{
    if (minutesBefore == 0) return "Time Signal O'clock";
    return "Time Signal before " + std::to_string(minutesBefore) + "minutes";
}

} // namespace

std::string alarmCaption(int n, const KV_Savedvalue& saved)
{
    return "Alarm&" + std::to_string(n) + ": " + saved.alarmTime(n);
}

std::string nextAlarmText(const KV_Savedvalue& saved, NavFunc113::DateTime smt)
{
    const auto present = minuteOf(smt);
    std::int64_t nearest = minutesOfDay;
    int next = 0;
    for (int n = 1; present && n <= KV_Savedvalue::alarms; ++n) {
        const auto time = timeOfDay(saved.alarmTime(n));
        const auto minute = time ? minuteOf(*time) : std::nullopt;
        if (!saved.alarmEnabled(n) || !minute) continue;
        const std::int64_t away = dayMinute(*minute - *present - 1); // from the next minute on
        if (away >= nearest) continue;
        nearest = away;
        next = n;
    }
    if (next == 0) return "No alarm";
    const std::string comment = saved.alarmComment(next);
    return "Next alarm " + saved.alarmTime(next) + (comment.empty() ? "" : " " + comment);
}

void setUpAlarm(int n, KV_Savedvalue& saved, Questions& questions,
                const std::function<NavFunc113::DateTime()>& smt,
                const std::function<void()>& menuChanged)
{
    const std::string number = std::to_string(n);
    if (askYesNo(questions, "Do you want to set ALARM-" + number + "?") != Answer::Yes) return;

    const std::string time = saved.alarmTime(n);
    const std::string comment = saved.alarmComment(n);
    if (!askAlarm(n, saved, questions, smt, menuChanged)) {
        saved.setAlarmTime(n, time);
        saved.setAlarmComment(n, comment);
        menuChanged();
        return;
    }
    // Everything is stored by now: the answer only ends the sequence.
    askYesNo(questions, "Completed the setting of ALARM-" + number + "\rTime：" +
                            saved.alarmTime(n) + "\rComment：" + saved.alarmComment(n) +
                            (saved.alarmEnabled(n) ? "\rUse：Enabled" : "\rUse：Unable") +
                            "\rAre you sure to use alarm in above settings？");
}

void setUpTimeSignal(KV_Savedvalue& saved, Questions& questions)
{
    const Answer use = askYesNo(questions, "Do you use the time signal?");
    if (use == Answer::No) saved.setTimeSignal(false);
    if (use != Answer::Yes) return;
    for (;;) {
        const auto answer =
            questions.input("Input how many minutes before the hour (0 to 59) it sounds.",
                            programTitle, Format(saved.timeSignalMinutes(), "0"));
        if (!answer || answer->empty()) return;
        const double minutes = readNumber(*answer);
        if (isNumeric(*answer) && minutes >= 0 && minutes <= 59 && minutes == std::floor(minutes)) {
            saved.setTimeSignalMinutes(static_cast<int>(minutes));
            saved.setTimeSignal(true);
            return;
        }
        questions.ask({*answer + " is incorrect value.", programTitle, Buttons::Ok});
    }
}

bool RungMinutes::add(std::int64_t minute)
{
    const auto place = std::lower_bound(m_minutes.begin(), m_minutes.end(), minute);
    if (place != m_minutes.end() && *place == minute) return false;
    m_minutes.insert(place, minute);
    return true;
}

/// Takes over what was set up since the last reading.
void Alarms::honourSettings(int n, Watch& alarm, std::int64_t minute) const
{
    const bool enabled = m_saved.alarmEnabled(n);
    const std::string time = m_saved.alarmTime(n);
    if (enabled == alarm.enabled && time == alarm.time) return;
    alarm.enabled = enabled;
    alarm.time = time;
    const auto days = timeOfDay(time);
    alarm.minuteOfDay =
        days ? std::optional(static_cast<int>(*minuteOf(*days))) : std::optional<int>();
    // The minute of the last reading was over for this alarm before it was set.
    alarm.from = m_last && minute >= *m_last ? *m_last + 1 : minute;
}

/// The clock stood at or before `from` once and stands at `minute` now: whatever lies between has
/// been reached or passed over, by however many steps forth and back.
void Alarms::watch(std::int64_t minute)
{
    for (int n = 1; n <= KV_Savedvalue::alarms; ++n) {
        Watch& alarm = m_watches[static_cast<std::size_t>(n - 1)];
        honourSettings(n, alarm, minute);
        if (m_last && minute < *m_last) alarm.from = std::min(alarm.from, minute);
        if (!alarm.enabled || !alarm.minuteOfDay) continue;
        const std::int64_t late = dayMinute(minute - *alarm.minuteOfDay);
        const std::int64_t own = minute - late;
        if (late < lateLimit && own >= alarm.from && alarm.rung.add(own)) {
            const double ownTime = static_cast<double>(own) / minutesOfDay;
            m_due.push_back({own, {Format(ownTime, "hh:mm ") + m_saved.alarmComment(n), true}});
        }
    }
    m_last = minute;
}

std::vector<DueAlarm> Alarms::check(NavFunc113::DateTime smt)
{
    const auto minute = minuteOf(smt);
    if (!minute) return {};
    watch(*minute);
    const int before = m_saved.timeSignalMinutes();
    if (m_saved.timeSignal() && dayMinute(*minute + before) % 60 == 0 && m_signals.add(*minute))
        m_due.push_back({*minute, {timeSignalText(before), false}});

    std::stable_sort(m_due.begin(), m_due.end(),
                     [](const Rung& a, const Rung& b) { return a.minute < b.minute; });
    std::vector<DueAlarm> result;
    for (Rung& rung : m_due)
        result.push_back(std::move(rung.due));
    m_due.clear();
    return result;
}

void Alarms::clockChanged(NavFunc113::DateTime smt)
{
    if (const auto minute = minuteOf(smt)) watch(*minute);
}

} // namespace korvel
