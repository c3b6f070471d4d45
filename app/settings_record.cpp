// SPDX-License-Identifier: MIT
#include "app/settings_record.h"

#include <array>
#include <charconv>
#include <cmath>
#include <optional>

namespace korvel
{
namespace
{

template <typename Number>
std::string numberText(Number number)
{
    if (!std::isfinite(number)) return "0";
    std::array<char, 400> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number == 0 ? 0 : number,
                                   std::chars_format::fixed);
    return {text.data(), end.ptr};
}

std::string quoted(const std::string& text)
{
    std::string result = "\"";
    for (char c : text)
        result += c == '"' ? '\'' : c == '\r' || c == '\n' ? ' ' : c;
    return result + '"';
}

struct ItemWriter {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(bool tick) const { return tick ? "#TRUE#" : "#FALSE#"; }
    std::string operator()(double number) const { return numberText(number); }
    std::string operator()(float number) const { return numberText(number); }
    std::string operator()(const std::string& text) const { return quoted(text); }
};

/// An item of the file before it is known what it should be.
struct Item {
    std::string_view text;
    bool quoted = false;
};

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

/// Splits off the next item together with the comma or line end behind it.
Item nextItem(std::string_view& rest, std::size_t number)
{
    while (!rest.empty() && isBlank(rest.front()))
        rest.remove_prefix(1);
    Item item;
    if (!rest.empty() && rest.front() == '"') {
        const std::size_t close = rest.find('"', 1);
        if (close == std::string_view::npos)
            throw RecordError("value " + std::to_string(number) + " has no closing quote");
        item = {rest.substr(1, close - 1), true};
        rest.remove_prefix(close + 1);
    }
    const std::size_t end = std::min(rest.find_first_of(",\r\n"), rest.size());
    std::string_view bare = rest.substr(0, end);
    while (!bare.empty() && isBlank(bare.back()))
        bare.remove_suffix(1);
    if (item.quoted && !bare.empty())
        throw RecordError("value " + std::to_string(number) + " goes on behind its closing quote");
    if (!item.quoted) item.text = bare;
    rest.remove_prefix(end);
    if (rest.starts_with("\r\n"))
        rest.remove_prefix(2);
    else if (!rest.empty())
        rest.remove_prefix(1);
    return item;
}

std::optional<double> wholeNumber(std::string_view text)
{
    if (text.starts_with('+')) text.remove_prefix(1);
    double number = 0;
    const auto read = std::from_chars(text.data(), text.data() + text.size(), number);
    if (read.ec != std::errc() || read.ptr != text.data() + text.size() || !std::isfinite(number))
        return std::nullopt;
    return number;
}

/// The item as the value that it looks like.
std::optional<Value> valueOf(const Item& item)
{
    if (item.quoted) return std::string(item.text);
    if (item.text.empty()) return Value();
    if (item.text == "#TRUE#") return true;
    if (item.text == "#FALSE#") return false;
    const auto number = wholeNumber(item.text);
    return number ? std::optional<Value>(*number) : std::nullopt;
}

bool fits(const Value& value, Kind kind)
{
    switch (kind) {
    case Kind::Any:
        return true;
    case Kind::Text:
        return std::holds_alternative<std::string>(value);
    case Kind::Number:
        return std::holds_alternative<double>(value);
    case Kind::Tick:
        return std::holds_alternative<bool>(value);
    }
    return false;
}

const char* inWords(Kind kind)
{
    switch (kind) {
    case Kind::Text:
        return "a text in quotes";
    case Kind::Number:
        return "a number";
    case Kind::Tick:
        return "#TRUE# or #FALSE#";
    case Kind::Any:
        break;
    }
    return "a value";
}

Value valueOfKind(const Item& item, Kind kind, std::size_t number)
{
    const auto value = valueOf(item);
    if (value) {
        if (fits(*value, kind) || std::holds_alternative<std::monostate>(*value)) return *value;
        // A number that stands where a text is due is what somebody typed without quotes.
        if (kind == Kind::Text && std::holds_alternative<double>(*value))
            return std::string(item.text);
    }
    throw RecordError("value " + std::to_string(number) + " is not " + inWords(kind));
}

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

} // namespace

std::string writeRecord(std::span<const Value> record)
{
    std::string text;
    for (const Value& value : record)
        text += std::visit(ItemWriter(), value) + "\r\n";
    return text;
}

Record readRecord(std::string_view text, std::span<const Kind> kinds)
{
    if (text.starts_with("\xEF\xBB\xBF")) text.remove_prefix(3);
    if (!isUtf8(text)) throw RecordError("it is not a text in UTF-8");
    Record record;
    record.reserve(kinds.size());
    for (Kind kind : kinds) {
        const std::size_t number = record.size() + 1;
        if (text.empty())
            throw RecordError("it ends after " + std::to_string(record.size()) + " of " +
                              std::to_string(kinds.size()) + " values");
        record.push_back(valueOfKind(nextItem(text, number), kind, number));
    }
    return record;
}

} // namespace korvel
