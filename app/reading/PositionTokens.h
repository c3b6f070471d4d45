// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The pieces that a written position is made of.
namespace korvel
{

struct PositionToken {
    enum class Kind {
        Number,
        Degree,
        OwnDegree, ///< ".-" or "-.", which this program's labels show between degrees and minutes
        Minute,
        Second,
        Dash, ///< separates, or is a minus sign: its place decides
        Plus,
        Colon,      ///< also "=" after a word
        Hemisphere, ///< letter holds N, S, E or W
        AxisWord,   ///< letter holds N for a latitude word, E for a longitude word
        Separator   ///< comma, semicolon, slash, line end, tab
    };
    Kind kind;
    std::string digits;   ///< of a number, before the point
    std::string decimals; ///< of a number, after the point
    char letter{};
    bool attached = false; ///< no blank before it
    bool spelled = false;  ///< a unit written as a word or letter
};

/// The pieces of a text; nothing when it holds anything that has no place in a position, or is
/// longer than any position is.
std::optional<std::vector<PositionToken>> positionTokens(std::string_view text);

} // namespace korvel
