// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/units.h"

#include <optional>
#include <string>
#include <string_view>

/// Reading what an officer typed. Never depends on the machine's locale.
namespace korvel
{

/// The leading number of a text, 0 when there is none.
///
/// Leading blanks are skipped, then come sign, digits and one point; whatever follows is ignored
/// ("1,234" is 1, "1e3" is 1, "35N" is 35). Full-width digits, point and signs are read like their
/// ASCII forms.
double readNumber(std::string_view text);

/// The same, nothing when the text does not begin with a number.
std::optional<double> readLeadingNumber(std::string_view text);

/// True when the whole text, blanks around it aside, is one number.
bool isNumeric(std::string_view text);

/// True when nothing but blanks was typed.
bool isBlank(std::string_view text);

/// True when low <= value <= high, all three given as text and read as their leading numbers. An
/// empty text counts as 0; one that holds no number (letters, a lone minus) is never in range.
bool IsInRange(std::string_view value, std::string_view low, std::string_view high);

/// Date, time of day, or both, as typed.
///
/// Dates: yyyy/m/d from 1900 on, or yy/m/d meaning 2000 to 2099. Times: h:mm or h:mm:ss, 0:00 to
/// 23:59:59. A date and a time are separated by blanks. A time alone belongs to day 0. Full-width
/// characters are read like their ASCII forms.
/// @return the date-time, nothing when the text is neither
std::optional<NavFunc113::DateTime> readDateTime(std::string_view text);

/// The text with its full-width digits, letters and signs replaced by their ASCII forms.
std::string asciiForms(std::string_view text);

} // namespace korvel
