// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <optional>
#include <string>
#include <string_view>

/// Positions as people and other instruments write them. Packed and decimal degrees are confused
/// at sea: beside every box stands what was understood, and what is pasted is turned into the
/// packed form.
namespace korvel
{

enum class Axis { Latitude, Longitude };

/// What stands beside a position box.
struct Echo {
    std::string text; ///< the value in full, "35°30.5' N"; empty when the box holds no number
    std::string hint; ///< a quiet remark ("minutes 75"); empty when there is none
};

/// Echo of a box: the packed value read as the calculations read it, minutes carried at 60 and
/// shown with at least one decimal, all that were typed up to four. The hint says when the typed
/// minutes are 60 or more, when the value lies beyond 90 (latitude) or 180 (longitude), and when
/// only the beginning of the text was read ("only 35 was read, write 35.305"). An empty box,
/// half-typed sign or letters give an empty echo.
Echo positionEcho(std::string_view boxText, Axis axis);

/// A packed value as the echo writes it: "35°30.5' N", minutes with one decimal carried at 60.
std::string positionInFull(NavFunc113::DegMin value, Axis axis);

/// A packed value to be copied or printed: "35°30.5'N", minutes with one decimal carried at 60.
std::string positionForCopy(NavFunc113::DegMin value, Axis axis);

/// Latitude and longitude to be copied: "35°30.5'N 139°45.2'E".
std::string positionForCopy(NavFunc113::DegMin latitude, NavFunc113::DegMin longitude);

/// An altitude or another angle of no hemisphere, "-12°34.5'", minutes carried at 60.
std::string altitudeText(NavFunc113::Degrees altitude);

/// Decimal degrees in the packed form of the boxes, "35.305", to 0.00001 of a minute (2 cm); at
/// least the minutes' two digits.
std::string packedText(NavFunc113::Degrees angle);

/// What was found in a pasted text, in the packed form ready for a box ("35.305", "-139.4523").
struct PastedPosition {
    std::optional<std::string> latitude;
    std::optional<std::string> longitude;
    std::string remark; ///< how an ambiguous text was taken; empty when there was no doubt
};

/// Understands what other instruments give: 35-30.5N, 35°30.5'N, N35 30.5, 35 30 30 N, S 35.305°
/// and the like, alone or as a pair in either order, with degree, minute and second signs of any
/// make, full-width characters, commas or blanks between the two.
///
/// A decimal number with a degree sign and no minutes (35.5083°N) is decimal degrees and converted.
/// With a hemisphere letter only (S 35.305) it is taken as the packed form, as everything in this
/// program is, and the remark says so and what decimal degrees would have been.
/// A plain number ("35.305", "-139.4523") is nothing to convert: nullopt, and the box takes the
/// text as it is typed. One with five decimals or more, or with 60 minutes or more, is probably
/// decimal degrees: it stays as it is, and the remark names both readings.
/// @param text whatever the clipboard holds
/// @param box  what the box that is pasted into takes, for a value without a hemisphere letter
/// @return what was understood; nullopt when the text is no position in any of these forms, or out
///         of range (minutes or seconds of 60 and more, latitude beyond 90, longitude beyond 180)
std::optional<PastedPosition> parsePosition(std::string_view text, Axis box);

} // namespace korvel
