// SPDX-License-Identifier: MIT
#include "forms/frmSunMoon/CalculateRiseSet.h"

#include "app/Format.h"
#include "app/reading.h"
#include "navlib/arithmetic_error.h"
#include "navlib/ephemeris.h"
#include "navlib/rise_set.h"

#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

/// One of the four events of a row.
struct EventRoutines {
    const char* name;
    DateTime (*search)(DateTime date, Hours TD, DegMin& latitude, DegMin longitude);
    std::optional<DateTime> (*refined)(DateTime date, Hours TD, DegMin latitude, DegMin longitude,
                                       DateTime found);
    double worthTelling; ///< minutes
};

// The Sun's search is good to a second except at southern latitudes of whole degrees; the Moon's
// two steps leave a few minutes that are nothing to report.
constexpr EventRoutines sunrise{"sunrise", SunRiseSearch, RefinedSunRise, 1};
constexpr EventRoutines sunset{"sunset", SunSetSearch, RefinedSunSet, 1};
constexpr EventRoutines moonrise{"moonrise", MoonRiseSearch, RefinedMoonRise, 5};
constexpr EventRoutines moonset{"moonset", MoonSetSearch, RefinedMoonSet, 5};

std::string localTime(DateTime time)
{
    return Format(time, "hhmm") + "LT";
}

/// A refined time: an event at midnight must not look like the mark of a missing one.
std::string refinedText(DateTime time)
{
    const std::string text = localTime(time);
    return text == "0000LT" ? text + " (at midnight)" : text;
}

/// What is said of a row, its place in front.
class Notice
{
public:
    explicit Notice(std::string place) : m_place(std::move(place)) {}
    void add(const std::string& sentence) { m_text += (m_text.empty() ? "" : "; ") + sentence; }
    std::string text() const
    {
        if (m_text.empty() || m_place.empty()) return m_text;
        return m_place + ": " + m_text;
    }

private:
    std::string m_place;
    std::string m_text;
};

/// Reads a row's number; stores it when it lies within its limits.
template <typename Unit>
bool accept(const std::string& box, const char* low, const char* high, Unit& number)
{
    const auto value = readLeadingNumber(box);
    if (!value || !IsInRange(box, low, high)) return false;
    number = Unit(*value);
    return true;
}

class Row
{
public:
    Row(DateTime date, RiseSetRow& row, Notice& notice)
        : m_date(date), m_row(row), m_typedLatitude(row.latitude), m_notice(notice)
    {
    }

    RiseSetLabel time(const EventRoutines& event)
    {
        std::optional<DateTime> found;
        std::string fault;
        try {
            found = event.search(m_date, m_row.TD, m_row.latitude, m_row.longitude);
        } catch (const ArithmeticError& error) {
            fault = error.what();
        }
        const auto refined = refinedTime(event, found.value_or(0));
        if (!found) return faulty(event, fault, refined);
        return shown(event, *found, refined);
    }

    RiseSetLabel azimuth(const char* name, Degrees (*routine)(DegMin, DegMin), double ofDay)
    {
        try {
            const DegMin declination = SunDeclination(m_date + ofDay);
            const Degrees azimuth = routine(m_row.latitude, declination);
            RiseSetLabel label{courseText(azimuth), "True azimuth, degrees", false, azimuth};
            const Degrees asTyped = routine(m_typedLatitude, declination);
            if (fabs(azimuth - asTyped) >= Degrees(0.1)) {
                label.tip = "At the latitude as typed " + courseText(asTyped);
                label.doubtful = true;
                m_notice.add(std::string(name) + " azimuth at the latitude as typed " +
                             courseText(asTyped));
            }
            return label;
        } catch (const ArithmeticError& error) {
            m_notice.add(std::string(name) + " azimuth: " + error.what());
            return {};
        }
    }

private:
    std::optional<DateTime> refinedTime(const EventRoutines& event, DateTime found) const
    {
        try {
            return event.refined(m_date, m_row.TD, m_typedLatitude, m_row.longitude, found);
        } catch (const ArithmeticError&) {
            return std::nullopt; // beyond the calendar: the search has said so already
        }
    }

    RiseSetLabel faulty(const EventRoutines& event, const std::string& fault,
                        std::optional<DateTime> refined)
    {
        std::string sentence = std::string(event.name) + " cannot be computed (" + fault + ")";
        if (refined) sentence += ", refined search " + refinedText(*refined);
        m_notice.add(sentence);
        return {"", sentence, false, {}};
    }

    RiseSetLabel shown(const EventRoutines& event, DateTime found, std::optional<DateTime> refined)
    {
        RiseSetLabel label{localTime(found), "", false, {}};
        const std::string name = event.name;
        if (found == 0 && !refined) {
            label.tip = "0000LT here means: no " + name + " on this date";
        } else if (!refined) {
            label.tip = "Refined search: no " + name + " on this date";
            label.doubtful = true;
            m_notice.add(name + " refined: none on this date");
        } else if (found == 0 || std::fabs(found - *refined) * 1440 > event.worthTelling) {
            label.tip = "Refined time of " + name + ": " + refinedText(*refined);
            label.doubtful = true;
            m_notice.add(name + " refined " + refinedText(*refined));
        } else if (label.text == "0000LT") {
            label.tip = "At midnight";
        }
        return label;
    }

    DateTime m_date;
    RiseSetRow& m_row;
    DegMin m_typedLatitude;
    Notice& m_notice;
};

} // namespace

std::optional<DateTime> riseSetDate(const std::string& txtSunMoon)
{
    if (asciiForms(txtSunMoon).find('/') == std::string::npos) return std::nullopt;
    const auto read = readDateTime(txtSunMoon);
    if (!read) return std::nullopt;
    return std::floor(*read);
}

RiseSetResult CalculateRiseSet(const RiseSetInput& input, RiseSetRow& row)
{
    RiseSetResult result;
    const auto date = riseSetDate(input.txtSunMoon);
    if (!date) {
        result.notice = "The date cannot be read: yyyy/m/d is needed";
        return result;
    }
    Notice notice(input.txtLocation);
    // The searches look a day and a half back, and there is no Julian day before day 0.
    if (*date < 3) {
        result.notice = "Dates before 1900 cannot be computed";
        return result;
    }
    result.moonAge = Format(MoonAge(*date + 0.5), "0.0");
    // One after the other: a number that was accepted before the first refusal is kept.
    if (!accept(input.txtTD, "-12", "12", row.TD) ||
        !accept(input.txtLatitude, "-63", "63", row.latitude) ||
        !accept(input.txtLongitude, "-180", "180", row.longitude))
        return result;

    Row events(*date, row, notice);
    result.sunRiseTime = events.time(sunrise);
    result.sunSetTime = events.time(sunset);
    // At 06:00 and 18:00 of the date as UTC, wherever the place is.
    result.sunRiseAz = events.azimuth("sunrise", SunRiseAzimuth, 0.25);
    result.sunSetAz = events.azimuth("sunset", SunSetAzimuth, 0.75);
    result.moonRiseTime = events.time(moonrise);
    result.moonSetTime = events.time(moonset);
    result.notice = notice.text();
    result.successful = true;
    return result;
}

std::optional<int> scrollOffset(const std::string& txtSunMoon, DateTime today, int minimum,
                                int maximum)
{
    const auto date = riseSetDate(txtSunMoon);
    if (!date) return std::nullopt;
    const double offset = *date - std::floor(today);
    if (offset < minimum || offset > maximum) return std::nullopt;
    return static_cast<int>(offset);
}

std::string scrolledDate(DateTime today, int offset)
{
    return Format(std::floor(today) + offset, "YYYY/m/d");
}

} // namespace korvel
