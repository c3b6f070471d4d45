// SPDX-License-Identifier: MIT
#pragma once

/// Signs of the ASCII set, whatever the machine's locale says.
namespace korvel
{

/// True for 0 to 9.
constexpr bool isDigit(char c)
{
    return c >= '0' && c <= '9';
}

/// The small letter of A to Z, every other sign as it is.
constexpr char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

} // namespace korvel
