// SPDX-License-Identifier: MIT
#include "app/reading/Utf8.h"

namespace korvel
{

bool isUtf8(std::string_view text)
{
    for (std::size_t i = 0; i < text.size();) {
        const auto lead = static_cast<unsigned char>(text[i]);
        const std::size_t length = lead < 0x80         ? 1
                                   : lead >> 5 == 0x06 ? 2
                                   : lead >> 4 == 0x0E ? 3
                                   : lead >> 3 == 0x1E ? 4
                                                       : 0;
        if (length == 0 || i + length > text.size() || lead == 0 || lead == 0xC0 || lead == 0xC1)
            return false;
        for (std::size_t k = 1; k < length; ++k)
            if ((static_cast<unsigned char>(text[i + k]) & 0xC0) != 0x80) return false;
        i += length;
    }
    return true;
}

std::string utf8OfLatin1(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        const auto code = static_cast<unsigned char>(c);
        if (code < 0x80) {
            result += c;
            continue;
        }
        result += static_cast<char>(0xC0 | code >> 6);
        result += static_cast<char>(0x80 | (code & 0x3F));
    }
    return result;
}

} // namespace korvel
