// SPDX-License-Identifier: MIT
#include "app/reading/PackedText.h"

#include "app/reading/Ascii.h"

#include <optional>

namespace korvel
{
namespace
{

std::string_view digitsAt(std::string_view text, std::size_t at)
{
    std::size_t end = at;
    while (end < text.size() && isDigit(text[end]))
        ++end;
    return text.substr(at, end - at);
}

bool isAt(std::string_view text, std::size_t at, std::string_view signs)
{
    return at < text.size() && signs.find(text[at]) != std::string_view::npos;
}

struct FullForm {
    std::string text;
    std::size_t length; ///< of the packed form that it stands for
};

/// degrees, "." and "-" in any order, two digits of minutes, "'", tenths, perhaps a hemisphere
std::optional<FullForm> angleAt(std::string_view text)
{
    std::string degrees(digitsAt(text, 0));
    std::size_t at = degrees.size();
    while (isAt(text, at, ".-"))
        ++at;
    const std::string_view minutes = digitsAt(text, at);
    if (at == degrees.size() || degrees.size() > 3 || minutes.size() != 2) return std::nullopt;
    at += minutes.size();
    if (!isAt(text, at, "'")) return std::nullopt;
    const std::string_view tenths = digitsAt(text, ++at);
    if (tenths.size() != 1) return std::nullopt;
    ++at;
    std::string whole(minutes);
    if (whole == "60") {
        whole = "00";
        degrees = std::to_string(std::stoi(degrees) + 1);
    }
    const bool hasHemisphere = isAt(text, at, "NSEW");
    const std::size_t width = !hasHemisphere ? 0 : isAt(text, at, "NS") ? 2 : 3;
    while (degrees.size() < width)
        degrees.insert(0, "0");
    std::string full = degrees + "°" + whole + "." + std::string(tenths) + "'";
    if (hasHemisphere) full += std::string(" ") + text[at++];
    return FullForm{full, at};
}

/// miles with an apostrophe on one side of the point
std::optional<FullForm> milesAt(std::string_view text)
{
    const std::string_view whole = digitsAt(text, 0);
    const std::string_view mark = text.substr(std::min(whole.size(), text.size()), 2);
    const std::string_view decimals = digitsAt(text, whole.size() + mark.size());
    if ((mark != "'." && mark != ".'") || decimals.empty()) return std::nullopt;
    return FullForm{std::string(whole) + "." + std::string(decimals),
                    whole.size() + mark.size() + decimals.size()};
}

} // namespace

std::string inFullForm(std::string_view text)
{
    std::string full;
    while (!text.empty()) {
        if (!isDigit(text.front())) {
            full += text.front();
            text.remove_prefix(1);
            continue;
        }
        auto form = angleAt(text);
        if (!form) form = milesAt(text);
        const std::size_t length = form ? form->length : digitsAt(text, 0).size();
        full += form ? form->text : std::string(text.substr(0, length));
        text.remove_prefix(length);
    }
    return full;
}

std::string plainForm(std::string_view text)
{
    while (text.starts_with(' '))
        text.remove_prefix(1);
    while (text.ends_with(' '))
        text.remove_suffix(1);
    if (text.size() > 2 && text.starts_with('<') && text.find('>') == text.size() - 1)
        text = text.substr(1, text.size() - 2);
    return inFullForm(text);
}

} // namespace korvel
