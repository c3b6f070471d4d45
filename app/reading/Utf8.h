// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace korvel
{

/// Whether bytes are a text in UTF-8, without the sign 0.
bool isUtf8(std::string_view text);

/// A text of Western European letters, a byte each, in UTF-8.
std::string utf8OfLatin1(std::string_view text);

} // namespace korvel
