// SPDX-License-Identifier: MIT
#include "app/records/SettingsRecord.h"

#include "app/reading/Remarks.h"
#include "app/reading/Utf8.h"
#include "app/records/DelimitedText.h"
#include "app/records/ShiftedRecord.h"

#include <algorithm>
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
    std::string result = withoutControls(text);
    std::ranges::replace(result, '"', '\'');
    return '"' + result + '"';
}

struct ItemWriter {
    std::string operator()(std::monostate) const { return {}; }
    std::string operator()(bool tick) const { return tick ? "#TRUE#" : "#FALSE#"; }
    std::string operator()(double number) const { return numberText(number); }
    std::string operator()(float number) const { return numberText(number); }
    std::string operator()(const std::string& text) const { return quoted(text); }
};

/// The item as the value that it looks like.
std::optional<Value> valueOfItem(const DelimitedText::Item& item)
{
    if (item.quoted) return std::string(item.text);
    if (item.text.empty()) return Value();
    if (item.text == "#TRUE#") return true;
    if (item.text == "#FALSE#") return false;
    const auto number = wholeNumber(item.text);
    return number ? std::optional<Value>(*number) : std::nullopt;
}

bool fits(const Value& value, FieldKind kind)
{
    if (kind == FieldKind::Any) return true;
    if (kind == FieldKind::Number) return std::holds_alternative<double>(value);
    if (kind == FieldKind::Tick) return std::holds_alternative<bool>(value);
    return std::holds_alternative<std::string>(value);
}

const char* inWords(FieldKind kind)
{
    if (kind == FieldKind::Number) return "a number";
    if (kind == FieldKind::Tick) return "#TRUE# or #FALSE#";
    return kind == FieldKind::Any ? "a value" : "a text in quotes";
}

/// Why an item cannot be read at all; empty when it can.
std::string flawOf(const DelimitedText::Item& item)
{
    using Flaw = DelimitedText::Item::Flaw;
    if (item.flaw == Flaw::NotClosed) return "has no closing quote";
    if (item.flaw == Flaw::GoesOn) return "goes on behind its closing quote";
    return isUtf8(item.text) ? "" : "is not a text in UTF-8";
}

/// @return nothing when the item is no value of the kind
std::optional<Value> valueOfKind(const DelimitedText::Item& item, FieldKind kind)
{
    auto value = valueOfItem(item);
    if (!value) return std::nullopt;
    if (fits(*value, kind) || std::holds_alternative<std::monostate>(*value)) return value;
    // A number that stands where a text is due is what somebody typed without quotes.
    if (kind != FieldKind::Tick && std::holds_alternative<double>(*value))
        return std::string(item.text);
    return std::nullopt;
}

/// All values of a text as they come.
std::vector<PerhapsValue> valuesAsTheyCome(std::string_view text)
{
    std::vector<PerhapsValue> values;
    for (DelimitedText items(text); !items.atEnd();) {
        const DelimitedText::Item item = items.next();
        values.push_back(flawOf(item).empty() ? valueOfItem(item) : std::nullopt);
        if (!values.back()) items.skipLine();
    }
    return values;
}

/// A record that has lost lines, or got some, within it.
void settle(ReadRecord& record, std::string_view text, std::span<const FieldKind> kinds)
{
    std::vector<PerhapsValue> values = valuesAsTheyCome(text);
    while (values.size() > kinds.size() && values.back() == Value())
        values.pop_back();
    if (values.size() == kinds.size()) return;
    const auto placed = putIntoPlaces(values, kinds);
    if (!placed) return;
    record.damage.push_back(values.size() < kinds.size()
                                ? "lines are missing within it, not at its end"
                                : "lines within it are none of its own");
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const PerhapsValue& value = (*placed)[i];
        record.wasRead[i] = value && fits(*value, kinds[i]);
        record.record[i] = record.wasRead[i] ? *value : Value();
    }
}

} // namespace

std::string writeRecord(std::span<const Value> record)
{
    std::string text;
    for (const Value& value : record)
        text += std::visit(ItemWriter(), value) + "\r\n";
    return text;
}

bool ReadRecord::anythingRead() const
{
    return std::ranges::find(wasRead, true) != wasRead.end();
}

std::string ReadRecord::damageText() const
{
    constexpr std::size_t inWords = 3;
    const auto shown = static_cast<std::ptrdiff_t>(std::min(damage.size(), inWords));
    std::string text = joined({damage.begin(), damage.begin() + shown});
    if (damage.size() > inWords)
        text += "; and " + std::to_string(damage.size() - inWords) + " more";
    return text;
}

ReadRecord readRecord(std::string_view text, std::span<const FieldKind> kinds)
{
    ReadRecord result;
    // A number may lack its last digits when the line end behind it is missing.
    const bool cutOff = !text.ends_with('\n') && !text.ends_with('\r');
    DelimitedText items(text);
    for (const FieldKind kind : kinds) {
        const std::string number = "value " + std::to_string(result.record.size() + 1);
        if (items.atEnd()) {
            result.damage.push_back("it ends after " + std::to_string(result.record.size()) +
                                    " of " + std::to_string(kinds.size()) + " values");
            break;
        }
        const DelimitedText::Item item = items.next();
        const bool lastOfShort =
            items.atEnd() && cutOff && !item.quoted && result.record.size() + 1 < kinds.size();
        std::string flaw = lastOfShort ? "may be cut off" : flawOf(item);
        const auto value = flaw.empty() ? valueOfKind(item, kind) : std::nullopt;
        if (!value && flaw.empty()) flaw = std::string("is not ") + inWords(kind);
        if (!value) {
            result.damage.push_back(std::string(number).append(" ").append(flaw));
            items.skipLine();
        }
        result.record.push_back(value.value_or(Value()));
        result.wasRead.push_back(value.has_value());
    }
    result.record.resize(kinds.size());
    result.wasRead.resize(kinds.size(), false);
    // Whatever goes on behind the last value is none of the record's.
    if (!cutOff) settle(result, text, kinds);
    return result;
}

std::string withoutControls(std::string_view text)
{
    std::string result;
    for (std::size_t i = 0; i < text.size(); ++i) {
        const auto byte = static_cast<unsigned char>(text[i]);
        if (byte == '\t' || byte == '\r' || byte == '\n')
            result += ' ';
        else if (byte == 0xC2 && i + 1 < text.size() && (text[i + 1] & 0xE0) == 0x80)
            ++i; // U+0080 to U+009F
        else if (byte >= 0x20 && byte != 0x7F)
            result += text[i];
    }
    return result;
}

} // namespace korvel
