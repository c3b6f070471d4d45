// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/NumberField.h"
#include "navlib/sky/rise_set.h"

#include <array>
#include <optional>
#include <string>
#include <vector>

namespace korvel
{

/// What the boxes of a row take. An empty one makes no row.
namespace RiseSetField
{
inline constexpr NumberField timeDifference{"TD", -12, 12, "hours", FieldKind::Figure, {}};
inline constexpr NumberField latitude{"latitude", -63, 63, "degrees", FieldKind::Latitude, {}};
inline constexpr NumberField longitude{"longitude", -180, 180, "degrees", FieldKind::Longitude, {}};
} // namespace RiseSetField

struct RiseSetInput {       ///< boxes as typed
    std::string txtSunMoon; ///< date
    std::string txtLocation;
    std::string txtTD;        ///< hours, -12 to 12
    std::string txtLatitude;  ///< DegMin, -63 to 63
    std::string txtLongitude; ///< DegMin, -180 to 180
};

/// The last accepted numbers of a row. Each search moves the latitude by 1e-10.
struct RiseSetRow {
    NavFunc113::Hours TD;
    NavFunc113::DegMin latitude;
    NavFunc113::DegMin longitude;
};

/// A label with its tool tip; an empty text blanks the label.
struct RiseSetLabel {
    std::string text;
    std::string tip;
    std::string refined; ///< the better figure for beside the label; empty: the label's own is good
    std::optional<NavFunc113::Degrees> figure; ///< an azimuth in full
};

/// What one event of a row was calculated from.
struct RiseSetFigures {
    NavFunc113::RiseSet event = NavFunc113::RiseSet::SunRise;
    NavFunc113::DegMin latitude;               ///< as the search moved it
    std::optional<NavFunc113::DateTime> found; ///< by the search; 0: not on this date; nothing: it
                                               ///< faulted at its last step
    std::vector<NavFunc113::EventStep> search;
    std::optional<NavFunc113::DateTime> refined;
    std::vector<NavFunc113::EventStep> refinement;
    bool calendarEnds = false; ///< before one of the two had looked through all that it looks at
};

/// What an azimuth was calculated from.
struct AzimuthFigures {
    NavFunc113::DegMin latitude; ///< as the searches before it moved it
    NavFunc113::DateTime instant{};
    NavFunc113::DegMin declination;
    std::optional<NavFunc113::Degrees> azimuth;
};

/// What a row was calculated from.
struct RowFigures {
    RiseSetRow typed;
    std::array<RiseSetFigures, 4> events; ///< sunrise, sunset, moonrise, moonset
    std::array<AzimuthFigures, 2> azimuths;
};

struct RiseSetResult {
    bool successful = false;            ///< the row was computed: its settings are to be written
    std::optional<std::string> moonAge; ///< lblMoonAge; no value leaves it as it was
    RiseSetLabel sunRiseTime;
    RiseSetLabel sunSetTime;
    RiseSetLabel sunRiseAz;
    RiseSetLabel sunSetAz;
    RiseSetLabel moonRiseTime;
    RiseSetLabel moonSetTime;
    std::string notice; ///< for the notice line, the row's place in front; empty: nothing to say
    NavFunc113::DateTime date{};                ///< valid when there is an age of the Moon
    std::optional<NavFunc113::MoonPhase> phase; ///< at 12:00 UTC of the date
    std::optional<RowFigures> figures;          ///< when successful
};

/// One row of the sun and moon window.
///
/// A date that is none, or a time difference, latitude or longitude that is no number or out of
/// range, blanks the six labels. An event that ends in an arithmetic error is blank and named in
/// the notice; the others are shown. Where the refined time differs from the one shown by more than
/// 5 minutes (Moon) or 1 minute (Sun), it stands beside the label and in its tip.
/// @param row  numbers of the row; each is replaced as it is accepted
RiseSetResult CalculateRiseSet(const RiseSetInput& input, RiseSetRow& row);

/// The day number of the date box; nothing when it holds no date. A time of day alone is none.
std::optional<NavFunc113::DateTime> riseSetDate(const std::string& txtSunMoon);

/// What the Moon's age of a date counts, and the days since new Moon at 12:00 UTC.
std::string moonAgeTip(NavFunc113::DateTime date);

/// Where the scroll bar belongs for a date: its distance from today in days, when it lies on the
/// bar.
std::optional<int> scrollOffset(const std::string& txtSunMoon, NavFunc113::DateTime today,
                                int minimum, int maximum);

/// Text of the date box for a scroll bar that stands so many days from today.
std::string scrolledDate(NavFunc113::DateTime today, int offset);

} // namespace korvel
