// SPDX-License-Identifier: MIT
#include "forms/frmSunMoon/CalculateRiseSet.h"

#include "app/reading/Format.h"
#include "app/reading/NumberField.h"
#include "app/reading/Reading.h"
#include "app/reading/TypedTime.h"
#include "navlib/arithmetic_error.h"
#include "navlib/sky/ephemeris.h"
#include "navlib/sky/rise_set.h"

#include <cmath>

namespace korvel
{
namespace
{

using namespace NavFunc113;

/// One of the four events of a row.
struct RowEvent {
    const char* name;
    RiseSet event;
    double worthTelling; ///< minutes
};

// The Sun's search is good to a second except at southern latitudes of whole degrees; the Moon's
// two steps leave a few minutes that are nothing to report.
constexpr RowEvent sunrise{"sunrise", RiseSet::SunRise, 1};
constexpr RowEvent sunset{"sunset", RiseSet::SunSet, 1};
constexpr RowEvent moonrise{"moonrise", RiseSet::MoonRise, 5};
constexpr RowEvent moonset{"moonset", RiseSet::MoonSet, 5};

std::string localTime(DateTime time)
{
    return Format(time, "hhmm") + "LT";
}

/// A refined time: an event at midnight must not look like the mark of a missing one.
std::string refinedInWords(DateTime time)
{
    const std::string text = localTime(time);
    return text == "0000LT" ? text + " (at midnight)" : text;
}

/// Reads a row's number; stores it when it can be used.
template <typename Unit>
bool accept(const std::string& box, const NumberField& field, Unit& number, Remarks& remarks)
{
    const auto value = readField(box, field, remarks);
    if (value) number = Unit(*value);
    return value.has_value();
}

/// What is said of a row, its place in front.
std::string withPlace(const std::string& place, const Remarks& remarks)
{
    const std::string text = remarks.text();
    return text.empty() || place.empty() ? text : place + ": " + text;
}

class Row
{
public:
    Row(DateTime date, RiseSetRow& row, Remarks& remarks)
        : m_date(date), m_row(row), m_typedLatitude(row.latitude), m_remarks(remarks)
    {
    }

    RiseSetLabel time(const RowEvent& event, RiseSetFigures& figures)
    {
        figures.event = event.event;
        const bool searched = withinCalendar([&] {
            figures.found = SearchRiseSet(event.event, m_date, m_row.TD, m_row.latitude,
                                          m_row.longitude, figures.search);
        });
        figures.latitude = m_row.latitude;
        const bool checked = withinCalendar([&] {
            figures.refined =
                RefineRiseSet(figures.event, m_date, m_row.TD, m_typedLatitude, m_row.longitude,
                              figures.found.value_or(0), figures.refinement);
        });
        figures.calendarEnds = !searched || !checked;
        if (!searched) return beyondCalendar(event);
        if (!figures.found) return faulty(event, figures.refined);
        if (!checked) return {localTime(*figures.found), "Not checked: the calendar ends", "", {}};
        return shown(event, *figures.found, figures.refined);
    }

    RiseSetLabel azimuth(const char* name, Degrees (*routine)(DegMin, DegMin), double ofDay,
                         AzimuthFigures& figures)
    {
        try {
            const DegMin declination = SunDeclination(m_date + ofDay);
            figures = {m_row.latitude, m_date + ofDay, declination, {}};
            const Degrees azimuth = routine(m_row.latitude, declination);
            figures.azimuth = azimuth;
            RiseSetLabel label{courseText(azimuth), "True azimuth, degrees", "", azimuth};
            const Degrees asTyped = routine(m_typedLatitude, declination);
            if (fabs(azimuth - asTyped) >= Degrees(0.1)) {
                label.refined = Format(asTyped.value(), "000.0");
                label.tip = "At the latitude as typed " + courseText(asTyped);
            }
            return label;
        } catch (const ArithmeticError&) {
            m_remarks.warn(std::string("no ") + name + " azimuth at this latitude");
            return {};
        }
    }

private:
    /// @return whether the calendar reached far enough for a search
    template <typename Search>
    static bool withinCalendar(Search search)
    {
        try {
            search();
        } catch (const ArithmeticError& fault) {
            // Any other: the body stays above or below the horizon, which is said with the label.
            return fault.condition() != ArithmeticError::Condition::Overflow;
        }
        return true;
    }

    RiseSetLabel beyondCalendar(const RowEvent& event)
    {
        const std::string sentence =
            std::string(event.name) +
            " not found: the search looks beyond the calendar, which ends with 9999/12/31";
        m_remarks.warn(sentence);
        return {"", sentence, "", {}};
    }

    RiseSetLabel faulty(const RowEvent& event, std::optional<DateTime> refined)
    {
        const std::string sentence = std::string("no ") + event.name + " that day at this latitude";
        m_remarks.warn(sentence);
        if (!refined) return {"", sentence, "", {}};
        return {"",
                sentence + ", refined search " + refinedInWords(*refined),
                Format(*refined, "hhmm"),
                {}};
    }

    static RiseSetLabel shown(const RowEvent& event, DateTime found,
                              std::optional<DateTime> refined)
    {
        RiseSetLabel label{localTime(found), "", "", {}};
        const std::string name = event.name;
        if (found == 0 && !refined) {
            label.tip = "0000LT here means: no " + name + " on this date";
        } else if (!refined) {
            label.tip = "Refined search: no " + name + " on this date";
            label.refined = "none";
        } else if (found == 0 || std::fabs(found - *refined) * 1440 > event.worthTelling) {
            label.refined = Format(*refined, "hhmm");
            label.tip = "Refined time of " + name + ": " + refinedInWords(*refined);
        } else if (label.text == "0000LT") {
            label.tip = "At midnight";
        }
        return label;
    }

    DateTime m_date;
    RiseSetRow& m_row;
    DegMin m_typedLatitude;
    Remarks& m_remarks;
};

} // namespace

std::optional<DateTime> riseSetDate(const std::string& txtSunMoon)
{
    return readTypedTime(txtSunMoon, Due::Date).value;
}

RiseSetResult CalculateRiseSet(const RiseSetInput& input, RiseSetRow& row)
{
    RiseSetResult result;
    const auto [date, fault] = readTypedTime(input.txtSunMoon, Due::Date);
    if (!date) {
        result.notice = "The date cannot be read: " + fault;
        return result;
    }
    // The searches look a day and a half back, and there is no Julian day before day 0.
    if (*date < 3) {
        result.notice = "Dates before 1900/1/2 cannot be computed";
        return result;
    }
    result.date = *date;
    result.phase = PhaseOfMoon(*date + 0.5);
    result.moonAge = Format(result.phase->age, "0.0");
    if (isBlank(input.txtTD) && isBlank(input.txtLatitude) && isBlank(input.txtLongitude))
        return result;
    Remarks remarks;
    // One after the other: a number that was accepted before the first refusal is kept.
    if (!accept(input.txtTD, RiseSetField::timeDifference, row.TD, remarks) ||
        !accept(input.txtLatitude, RiseSetField::latitude, row.latitude, remarks) ||
        !accept(input.txtLongitude, RiseSetField::longitude, row.longitude, remarks)) {
        result.notice = withPlace(input.txtLocation, remarks);
        return result;
    }

    RowFigures& figures = result.figures.emplace();
    figures.typed = row;
    Row events(*date, row, remarks);
    result.sunRiseTime = events.time(sunrise, figures.events[0]);
    result.sunSetTime = events.time(sunset, figures.events[1]);
    // At 06:00 and 18:00 of the date as UTC, wherever the place is.
    result.sunRiseAz = events.azimuth("sunrise", SunRiseAzimuth, 0.25, figures.azimuths[0]);
    result.sunSetAz = events.azimuth("sunset", SunSetAzimuth, 0.75, figures.azimuths[1]);
    result.moonRiseTime = events.time(moonrise, figures.events[2]);
    result.moonSetTime = events.time(moonset, figures.events[3]);
    result.notice = withPlace(input.txtLocation, remarks);
    result.successful = true;
    return result;
}

std::string moonAgeTip(DateTime date)
{
    const DateTime noon = date + 0.5;
    return "In a month of 30 days: 7.5 first quarter, 15 full Moon, 22.5 last quarter. " +
           Format(noon - NavFunc113::LastNewMoon(noon), "0.0") + " days since new Moon";
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
