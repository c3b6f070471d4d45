// SPDX-License-Identifier: MIT
#include "app/ShipsTime.h"

#include "app/Format.h"
#include "app/KORVEL2000Actions.h"
#include "navlib/datetime.h"

#include <cmath>

namespace korvel
{
namespace
{

constexpr double JSTHours = 9;
constexpr double secondsPerDay = 86400;

long minuteOf(NavFunc113::DateTime value)
{
    return std::lround(std::floor(NavFunc113::NearestSecond(value) * 1440 + 1e-6));
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

std::array<ShipsTime::DateTime, 3> ShipsTime::zones() const
{
    const double TD = m_saved.TD();
    const DateTime shown = now();
    DateTime utc = shown;
    if (m_saved.clockZone() == ClockZone::JST) utc = shown - JSTHours / 24;
    if (m_saved.clockZone() == ClockZone::SMT) utc = shown - TD / 24;
    return {utc + JSTHours / 24, utc + TD / 24, utc};
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

    std::optional<DateTime> typed;
    while (!typed) {
        typed = readDateTime(m_questions.input("Input present time in SMT.", programTitle,
                                               Format(SMT(), "yy/mm/dd hh:mm")));
        // A time of day alone would set the computer back to the first day of the count.
        if (typed && *typed < 1) typed = std::floor(SMT()) + *typed;
        if (!typed) m_questions.ask({"Incorrect value.", programTitle, Buttons::Ok});
    }
    const Answer set = m_questions.ask({"SMT was changed as  " + Format(*typed, "yy/mm/dd hh:mm"),
                                        programTitle, Buttons::OkCancel});
    if (set != Answer::Ok) return;
    inputTD();
    setComputerClock(*typed);
    refresh();
}

void ShipsTime::setComputerClock(DateTime typedSMT)
{
    const double TD = m_saved.TD();
    DateTime wanted = typedSMT;
    if (m_saved.clockZone() == ClockZone::JST) wanted = typedSMT + (JSTHours - TD) / 24;
    if (m_saved.clockZone() == ClockZone::UTC) wanted = typedSMT - TD / 24;
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
    const long minute = minuteOf(now());
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
