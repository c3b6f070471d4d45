// SPDX-License-Identifier: MIT
#include "app/records/QuoteSigns.h"

namespace korvel
{
namespace
{

constexpr const char* quoteSign = "%22";
constexpr const char* percentSign = "%25";
constexpr std::size_t signLength = 3; // of either

bool isAt(const std::string& text, std::size_t at, const char* sign)
{
    return text.compare(at, signLength, sign) == 0;
}

} // namespace

std::string withoutQuoteSigns(const std::string& text)
{
    std::string written;
    for (std::size_t i = 0; i < text.size(); ++i)
        if (text[i] == '"')
            written += quoteSign;
        else if (isAt(text, i, quoteSign) || isAt(text, i, percentSign))
            written += percentSign;
        else
            written += text[i];
    return written;
}

std::string withQuoteSigns(const std::string& written)
{
    std::string text;
    for (std::size_t i = 0; i < written.size(); ++i) {
        const bool isQuote = isAt(written, i, quoteSign);
        if (!isQuote && !isAt(written, i, percentSign)) {
            text += written[i];
            continue;
        }
        text += isQuote ? '"' : '%';
        i += signLength - 1;
    }
    return text;
}

} // namespace korvel
