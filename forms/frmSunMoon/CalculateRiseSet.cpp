// SPDX-License-Identifier: MIT
#include "forms/frmSunMoon/CalculateRiseSet.h"

#include "app/Format.h"
#include "app/NumberField.h"
#include "app/typed_time.h"
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
std::string refinedInWords(DateTime time)
{
    const std::string text = localTime(time);
    return text == "0000LT" ? text + " (at midnight)" : text;
}

/// The boxes of a row's numbers. An empty one makes no row.
constexpr NumberField timeDifference{"TD", -12, 12, "hours", NumberField::Form::Plain, {}};
constexpr NumberField latitude{"latitude", -63, 63, "degrees", NumberField::Form::Latitude, {}};
constexpr NumberField longitude{"longitude", -180, 180, "degrees", NumberField::Form::Longitude,
                                {}};

/// Reads a row's number; stores it when it can be used.
template <typename Unit>
bool accept(const std::string& box, const NumberField& field, Unit& number, Remarks& remarks)
{
    const auto value = readField(box, field, remarks);
    if (value) number = Unit(*value);
    return value.has_value();
}

bool isBlank(const std::string& text)
{
    return text.find_first_not_of(" \t") == std::string::npos;
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

    RiseSetLabel time(const EventRoutines& event)
    {
        std::optional<DateTime> found;
        try {
            found = event.search(m_date, m_row.TD, m_row.latitude, m_row.longitude);
        } catch (const ArithmeticError&) {
            // The body stays above or below the horizon: said below, with the refined search.
        }
        const auto refined = refinedTime(event, found.value_or(0));
        if (!found) return faulty(event, refined);
        return shown(event, *found, refined);
    }

    RiseSetLabel azimuth(const char* name, Degrees (*routine)(DegMin, DegMin), double ofDay)
    {
        try {
            const DegMin declination = SunDeclination(m_date + ofDay);
            const Degrees azimuth = routine(m_row.latitude, declination);
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
    std::optional<DateTime> refinedTime(const EventRoutines& event, DateTime found) const
    {
        try {
            return event.refined(m_date, m_row.TD, m_typedLatitude, m_row.longitude, found);
        } catch (const ArithmeticError&) {
            return std::nullopt; // beyond the calendar: the search has said so already
        }
    }

    RiseSetLabel faulty(const EventRoutines& event, std::optional<DateTime> refined)
    {
        const std::string sentence = std::string("no ") + event.name + " that day at this latitude";
        m_remarks.warn(sentence);
        if (!refined) return {"", sentence, "", {}};
        return {"",
                sentence + ", refined search " + refinedInWords(*refined),
                Format(*refined, "hhmm"),
                {}};
    }

    static RiseSetLabel shown(const EventRoutines& event, DateTime found,
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
    result.moonAge = Format(MoonAge(*date + 0.5), "0.0");
    if (isBlank(input.txtTD) && isBlank(input.txtLatitude) && isBlank(input.txtLongitude))
        return result;
    Remarks remarks;
    // One after the other: a number that was accepted before the first refusal is kept.
    if (!accept(input.txtTD, timeDifference, row.TD, remarks) ||
        !accept(input.txtLatitude, latitude, row.latitude, remarks) ||
        !accept(input.txtLongitude, longitude, row.longitude, remarks)) {
        result.notice = withPlace(input.txtLocation, remarks);
        return result;
    }

    Row events(*date, row, remarks);
    result.sunRiseTime = events.time(sunrise);
    result.sunSetTime = events.time(sunset);
    // At 06:00 and 18:00 of the date as UTC, wherever the place is.
    result.sunRiseAz = events.azimuth("sunrise", SunRiseAzimuth, 0.25);
    result.sunSetAz = events.azimuth("sunset", SunSetAzimuth, 0.75);
    result.moonRiseTime = events.time(moonrise);
    result.moonSetTime = events.time(moonset);
    result.notice = withPlace(input.txtLocation, remarks);
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
