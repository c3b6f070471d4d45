// SPDX-License-Identifier: MIT
#include "tidedata/text.h"

#include <array>
#include <charconv>
#include <cmath>

namespace tidedata
{

std::string fixed(double value, int decimals)
{
    std::array<char, 64> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                   std::chars_format::fixed, decimals)
                         .ptr;
    return {buffer.data(), end};
}

std::string shortest(double value)
{
    std::array<char, 64> buffer;
    const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
    return {buffer.data(), end};
}

std::string wholeDegrees(Degrees angle, int digits)
{
    std::string text = fixed(reduced(Degrees(std::nearbyint(angle.value()))).value(), 0);
    const auto width = static_cast<std::size_t>(digits);
    if (text.size() < width) text.insert(0, width - text.size(), '0');
    return text;
}

} // namespace tidedata
