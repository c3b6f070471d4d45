// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Instant.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// The values of a route file and how they are written.
namespace korvel
{

/// The versions of the format, which differ in their namespace, in how long stays are written and
/// in what is required.
enum class RtzVersion { V1_0, V1_1, V1_2 };

/// "http://www.cirm.org/RTZ/1/0"
std::string namespaceOf(RtzVersion version);
/// @return nothing for any other namespace
std::optional<RtzVersion> versionOfNamespace(std::string_view uri);
/// "1.0"
std::string numberOf(RtzVersion version);
std::optional<RtzVersion> versionOfNumber(std::string_view number);

/// A decimal number that takes up the whole text, blanks around it aside: no exponents.
std::optional<double> readDecimal(std::string_view text);
/// A whole number of 0 or more.
std::optional<std::int64_t> readIdentifier(std::string_view text);

/// How long a ship stays: a time of day in 1.0 ("06:00:00"), a duration from 1.1 on ("PT6H",
/// "P1DT30M"). Both are read whatever the version. Years and months are of no certain length and
/// refused.
std::optional<Span> readStay(std::string_view text);
/// @return empty when the version has no way of saying it: 24 hours and more in 1.0
std::string stayText(Span stay, RtzVersion version);

} // namespace korvel
