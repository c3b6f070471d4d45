// SPDX-License-Identifier: MIT
#include "app/watch/ShipsTime.h"

#include "app/reading/Format.h"
#include "app/records/KORVEL2000Actions.h"
#include "navlib/datetime.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace korvel
{
namespace
{

constexpr double JSTHours = 9;
constexpr double secondsPerDay = 86400;

// UTC from the noon of the first day to the noon of the last: every TD stays within the calendar.
constexpr NavFunc113::DateTime firstUTC = 2.5;      // 1900-01-01 12:00
constexpr NavFunc113::DateTime lastUTC = 2958465.5; // 9999-12-31 12:00

bool isOnCalendar(NavFunc113::DateTime utc)
{
    return utc >= firstUTC && utc <= lastUTC;
}

constexpr const char* zoneNames[] = {"JST", "SMT", "UTC"};
constexpr double zoneTolerance = 2.0 / 60; // hours

std::int64_t wholeMinute(NavFunc113::DateTime value)
{
    return std::llround(std::floor(NavFunc113::NearestSecond(value) * 1440 + 1e-6));
}

} // namespace

ShipsTime::ShipsTime(KV_Savedvalue& saved, Questions& questions, ComputerClock& clock, Hooks hooks)
    : m_saved(saved), m_questions(questions), m_clock(clock), m_hooks(std::move(hooks))
{
}

ShipsTime::DateTime ShipsTime::now() const
{
    return m_clock.now() + m_offset / secondsPerDay;
}

/// Hours by which a computer that keeps a zone is ahead of UTC.
double ShipsTime::hoursOf(ClockZone zone) const
{
    switch (zone) {
    case ClockZone::JST:
        return JSTHours;
    case ClockZone::SMT:
        return m_saved.TD();
    case ClockZone::UTC:
        break;
    }
    return 0;
}

std::array<ShipsTime::DateTime, 3> ShipsTime::zones() const
{
    // A program that is left running may walk off the calendar: it stays at its end.
    const DateTime utc = std::clamp(now() - hoursOf(m_saved.clockZone()) / 24, firstUTC, lastUTC);
    return {utc + JSTHours / 24, utc + hoursOf(ClockZone::SMT) / 24, utc};
}

void ShipsTime::setUp()
{
    const Answer change =
        m_questions.ask({"Start setting of SMT and TD.\rPresent setting as follows;\r\r" +
                             Format(SMT(), "yyyy/mm/dd hh:mm") + "SMT\rＵＴＣ＋" +
                             Format(static_cast<double>(m_saved.TD()), "0.0 hrs") +
                             "\r\rDo you change the setting?",
                         confirmationTitle, Buttons::YesNo});
    if (change != Answer::Yes) return;

    const DateTime typed = askSMT();
    const Answer set = m_questions.ask({"SMT was changed as  " + Format(typed, "yy/mm/dd hh:mm"),
                                        confirmationTitle, Buttons::OkCancel});
    if (set != Answer::Ok) return;
    const float TDBefore = m_saved.TD();
    inputTD();
    if (isOnCalendar(typed - hoursOf(ClockZone::SMT) / 24))
        setComputerClock(typed);
    else
        refuse(typed, TDBefore);
    refresh();
}

/// Time and TD belong together: where one is refused the other stays as it was.
void ShipsTime::refuse(DateTime typedSMT, float TDBefore)
{
    const std::string refused = "SMT " + Format(typedSMT, "yyyy/mm/dd hh:mm") + " with TD " +
                                Format(static_cast<double>(m_saved.TD()), "0.0");
    m_saved.setTD(TDBefore);
    m_hooks.showCaption(caption(TDBefore));
    m_questions.ask({refused +
                         " is refused: it is too near to the end of the calendar, which reaches "
                         "from 1900 to 9999.\rNothing was changed, TD is " +
                         Format(static_cast<double>(TDBefore), "0.0") + " as before.",
                     programTitle, Buttons::Ok});
}

ShipsTime::DateTime ShipsTime::askSMT()
{
    for (;;) {
        const std::string answer =
            m_questions
                .input("Input present time in SMT.", programTitle, Format(SMT(), "yy/mm/dd hh:mm"))
                .value_or("");
        if (m_questions.haveEnded()) return SMT();
        if (const auto typed = readDateTime(answer))
            // A time of day alone would set the computer back to the first day of the count.
            return *typed >= 0 && *typed < 1 ? std::floor(SMT()) + *typed : *typed;
        m_questions.ask({"Incorrect value.", programTitle, Buttons::Ok});
    }
}

void ShipsTime::setComputerClock(DateTime typedSMT)
{
    const double ahead = hoursOf(m_saved.clockZone()) - hoursOf(ClockZone::SMT);
    const DateTime wanted = typedSMT + ahead / 24;
    const auto fault = m_clock.set(wanted);
    if (!fault) {
        m_offset = 0;
        return;
    }
    m_offset = std::round((wanted - m_clock.now()) * secondsPerDay);
    if (m_toldAboutOffset) return;
    m_toldAboutOffset = true;
    m_questions.ask({"The computer's clock could not be set: " + *fault +
                         ".\rThe program keeps the ship's time itself, as an offset from the "
                         "computer's clock.",
                     programTitle, Buttons::Ok});
}

bool ShipsTime::takeOffset(double seconds)
{
    const DateTime utc =
        m_clock.now() + seconds / secondsPerDay - hoursOf(m_saved.clockZone()) / 24;
    if (!isOnCalendar(utc)) return false;
    m_offset = seconds;
    return true;
}

std::string ShipsTime::offsetText() const
{
    if (m_offset == 0) return {};
    const auto seconds = static_cast<std::int64_t>(std::llround(std::fabs(m_offset)));
    const auto part = [](std::int64_t value, const char* format) {
        return Format(static_cast<double>(value), format);
    };
    return part(seconds / 3600, "#,##0 h ") + part(seconds / 60 % 60, "00 min ") +
           part(seconds % 60, "00 s ") + (m_offset > 0 ? "ahead" : "behind");
}

std::string ShipsTime::zoneNotice() const
{
    const double ahead = m_clock.hoursAheadOfUTC();
    const auto agrees = [](double shown, double own) {
        return std::fabs(shown - own) <= zoneTolerance;
    };
    // An offset is the officer's word against the clock's, so either may agree.
    const double corrected = ahead + m_offset / 3600;
    const double shown = hoursOf(m_saved.clockZone());
    if (agrees(shown, ahead) || agrees(shown, corrected)) return {};

    const DateTime byZone = m_clock.now() - ahead / 24;
    std::string both = "UTC is " + Format(byZone, "dd-hhmm") + " by the computer's own zone, " +
                       Format(UTC(), "dd-hhmm") + " here.";
    const std::string choose = both + " Property, The computer's clock keeps: choose ";
    for (const ClockZone zone : {ClockZone::UTC, ClockZone::JST, ClockZone::SMT})
        if (agrees(hoursOf(zone), corrected)) return choose + zoneNames[static_cast<int>(zone)];
    // A TD has one decimal and no more than 12 hours: it cannot hold every zone.
    const double TD = readNumber(Format(corrected, "0.0"));
    if (!agrees(TD, corrected) || std::fabs(TD) > 12) return both;
    return choose + "SMT with TD " + Format(TD, "0.0");
}

void ShipsTime::inputTD()
{
    const std::string answer =
        askNumberInRange(m_questions, "Input time difference of SMT in hours(#.#) from UTC？",
                         Format(static_cast<double>(m_saved.TD()), "0.0"), -12, 12);
    m_saved.setTD(static_cast<float>(readNumber(Format(readNumber(answer), "0.0"))));
    m_hooks.showCaption(caption(m_saved.TD()));
}

std::string ShipsTime::caption(float TD)
{
    return "KORVEL (" + Format(static_cast<double>(TD), "0.0 hE);0.0 hW)");
}

void ShipsTime::show()
{
    const auto [jst, smt, utc] = zones();
    m_hooks.showClock("SMT " + Format(smt, "dd-hhmm") + "   UTC " + Format(utc, "dd-hhmm") +
                      "   ( JST " + Format(jst, "dd-hhmm") + " )");
    m_hooks.showCaption(caption(m_saved.TD()));
}

void ShipsTime::JikokuHyouji()
{
    const std::int64_t minute = wholeMinute(std::clamp(now(), firstUTC, lastUTC));
    if (m_minuteShown == minute) return;
    m_minuteShown = minute;
    show();
    m_hooks.newMinute(SMT());
}

void ShipsTime::refresh()
{
    show();
}

} // namespace korvel
