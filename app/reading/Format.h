// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <string>
#include <string_view>

namespace korvel
{

/// Text of a number or of a date-time by a format string; the program's one way to show a value.
///
/// A format whose first placeholder is 0 or # is numeric:
/// - one or two sections separated by ";", the second for negative values, which are then shown
///   without a minus; with one section a minus stands before the text;
/// - "0" always shows a digit, "#" only a significant one, "." marks the decimal point and appears
///   only when a decimal follows, "," between digit placeholders groups thousands;
/// - every other character is copied as it stands, also between placeholders;
/// - the value is rounded to 15 significant digits, then half away from zero to as many decimals as
///   there are placeholders after the point. Digits beyond the placeholders are shown in full.
///
/// A format whose first placeholder is one of y, m, d, h (either case) shows a date-time, rounded
/// to the nearest second and then cut: yyyy, yy; m, mm month, but minutes directly after an hour
/// field; d, dd; h, hh; ss; everything else is copied. In a format that begins with a single "d"
/// followed by "-hh" the days are whole days elapsed.
///
/// @return the text; empty when the value is not a finite number or no date-time of years 100-9999
std::string Format(double value, std::string_view format);

/// The packed value as it stands: what a label of degrees and minutes shows.
inline std::string Format(NavFunc113::DegMin value, std::string_view format)
{
    return Format(value.packed(), format);
}

template <typename Unit>
std::string Format(NavFunc113::Measure<Unit> value, std::string_view format)
{
    return Format(value.value(), format);
}

/// Text of a course or bearing in degrees true, 0 to 360: what would round to 360 is shown as 000,
/// for there is no course 360.
std::string courseText(NavFunc113::Degrees course, std::string_view format = "<000.0>");

} // namespace korvel
