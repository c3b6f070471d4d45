// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/PositionText.h"
#include "app/reading/PositionTokens.h"

#include <optional>
#include <string_view>
#include <vector>

namespace korvel
{

/// A latitude or longitude as it was written, its numbers not judged yet.
struct Coordinate {
    std::vector<PositionToken> numbers; ///< degrees, minutes, seconds, as far as they are there
    char letter{};                      ///< N, S, E, W; 0 when none is there
    char word{};                        ///< N for a latitude word, E for a longitude word
    bool suffix = false;                ///< the letter stands behind
    bool sign = false;
    bool negative = false;
    bool degreeSign = false;
    bool onlyBlanks = false; ///< nothing but blanks between degrees and minutes
    bool colon = false;

    char axisLetter() const { return letter ? letter : word; }
    bool knowsAxis() const { return axisLetter() != 0; }
    bool south() const { return negative || letter == 'S' || letter == 'W'; }
    /// A decimal number without any sign: packed or decimal degrees, nobody can tell.
    bool plain() const
    {
        return numbers.size() == 1 && !degreeSign && !numbers[0].decimals.empty() && !compact();
    }
    /// 3530.5 or 353030: degrees and minutes run together.
    bool compact() const { return numbers.size() == 1 && numbers[0].digits.size() > 3; }
};

/// Latitude for N and S, longitude for E and W.
Axis axisOfLetter(char letter);

/// The one or two coordinates that a text consists of; nothing when it is anything else.
std::optional<std::vector<Coordinate>> readCoordinates(std::string_view text);

} // namespace korvel
