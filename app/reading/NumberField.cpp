// SPDX-License-Identifier: MIT
#include "app/reading/NumberField.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/reading/Reading.h"

#include <algorithm>
#include <charconv>

namespace korvel
{
namespace
{

using ReadingKind = NumberReading::Kind;

constexpr std::string_view whiteSpace = " \t\r\n";

std::string withUnit(const NumberField& field)
{
    return field.unit.empty() ? std::string() : " " + std::string(field.unit);
}

std::string limitText(double limit)
{
    return Format(limit, "0.######");
}

/// Why a number is not taken; empty when it lies in the range.
std::string rangeRemark(double value, const NumberField& field)
{
    if (!std::isfinite(value)) return "too large a number";
    if (value >= field.low && value <= field.high) return {};
    if (!std::isfinite(field.high)) return "below " + limitText(field.low) + withUnit(field);
    if (!std::isfinite(field.low)) return "above " + limitText(field.high) + withUnit(field);
    return "not within " + limitText(field.low) + " to " + limitText(field.high) + withUnit(field);
}

/// 1,234,567 or 1 234 567: one to three digits, then threes.
bool isGrouped(std::string_view whole, char mark)
{
    const std::size_t first = whole.find(mark);
    if (first == 0 || first == std::string_view::npos || first > 3) return false;
    for (std::size_t i = first; i < whole.size(); ++i)
        if (((i - first) % 4 == 0) != (whole[i] == mark)) return false;
    return (whole.size() - first) % 4 == 0;
}

std::string without(std::string_view text, char mark)
{
    std::string rest(text);
    std::erase(rest, mark);
    return rest;
}

/// What the whole text may have been meant as, in digits that are read whole.
std::vector<std::string> meantNumbers(std::string_view text)
{
    std::vector<std::string> meant;
    const std::string_view sign = text.substr(0, text.starts_with('-') ? 1 : 0);
    const std::string_view bare = text.substr(sign.size());
    const std::string_view whole = bare.substr(0, bare.find('.'));
    for (const char mark : {',', ' '})
        if (isGrouped(whole, mark)) meant.push_back(without(text, mark));
    if (text.find(',') != std::string_view::npos && whole.size() == bare.size()) {
        std::string decimal(text);
        decimal[decimal.find(',')] = '.';
        meant.push_back(decimal);
    }
    if (text.ends_with('.')) meant.emplace_back(text.substr(0, text.size() - 1));
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error == std::errc() && end == text.data() + text.size() && !isNumeric(text))
        meant.push_back(Format(value, "0.###############"));
    return meant;
}

/// The packed text of degrees and minutes that were typed apart, as a paste would make it.
std::optional<std::string> meantAngle(std::string_view text, const NumberField& field)
{
    if (field.kind == FieldKind::Figure) return std::nullopt;
    const bool latitude = field.kind == FieldKind::Latitude;
    const auto position = parsePosition(text, latitude ? Axis::Latitude : Axis::Longitude);
    if (!position || (position->latitude && position->longitude)) return std::nullopt;
    return latitude ? position->latitude : position->longitude;
}

/// How the text can be written so that all of it is read; empty when nothing sensible comes out.
std::vector<std::string> meantWithin(std::string_view text, const NumberField& field)
{
    std::vector<std::string> meant = meantNumbers(text);
    if (const auto angle = meantAngle(text, field)) meant = {*angle};
    std::erase_if(meant, [&](const std::string& number) {
        return !isNumeric(number) || !rangeRemark(readNumber(number), field).empty();
    });
    return meant;
}

std::string advice(const std::vector<std::string>& meant)
{
    std::string choices;
    for (const std::string& number : meant)
        choices += (choices.empty() ? ", write " : " or ") + number;
    return choices;
}

} // namespace

NumberReading readField(std::string_view text, const NumberField& field)
{
    const std::string ascii = asciiForms(text);
    const std::size_t first = ascii.find_first_not_of(whiteSpace);
    if (first == std::string::npos) {
        if (!field.ifEmpty) return {ReadingKind::Empty, std::nullopt, "empty"};
        const std::string fault = rangeRemark(*field.ifEmpty, field);
        return {ReadingKind::Empty, fault.empty() ? field.ifEmpty : std::nullopt, fault};
    }
    const std::size_t last = ascii.find_last_not_of(whiteSpace);
    const std::string typed = ascii.substr(first, last + 1 - first);
    const auto value = readLeadingNumber(typed);
    if (!value && typed.find_first_not_of("+-.") == std::string::npos)
        return {ReadingKind::HalfTyped, std::nullopt, "no number yet"};
    if (!value) return {ReadingKind::NoNumber, std::nullopt, quotation(text) + " is no number"};
    if (std::string fault = rangeRemark(*value, field); !fault.empty())
        return {ReadingKind::OutOfRange, std::nullopt, fault};
    if (isNumeric(typed)) return {ReadingKind::Whole, value, {}};
    if (const auto angle = meantAngle(typed, field); angle && readNumber(*angle) == *value)
        return {ReadingKind::Beginning, value, {}}; // 35.305N: the letter says what the number says
    std::vector<std::string> meant = meantWithin(typed, field);
    return {ReadingKind::Beginning, value,
            "only " + Format(*value, "0.########") + " was read" + advice(meant), meant};
}

std::optional<double> readField(std::string_view text, const NumberField& field, Remarks& remarks)
{
    const NumberReading reading = readField(text, field);
    if (reading.remark.empty()) return reading.value;
    const std::string colon = field.name.empty() ? "" : ": ";
    const std::string sentence = std::string(field.name) + colon + reading.remark;
    reading.value ? remarks.warn(sentence) : remarks.fault(sentence);
    return reading.value;
}

std::optional<double> readIfTyped(std::string_view text, const NumberField& field, Remarks& remarks)
{
    const ReadingKind kind = readField(text, field).kind;
    if (kind == ReadingKind::Empty || kind == ReadingKind::HalfTyped) return std::nullopt;
    return readField(text, field, remarks);
}

std::optional<NavFunc113::DegMin> readAngleIfTyped(std::string_view text, const NumberField& field,
                                                   Remarks& remarks)
{
    const auto value = readIfTyped(text, field, remarks);
    if (!value) return std::nullopt;
    const double minutes = (std::fabs(*value) - std::trunc(std::fabs(*value))) * 100;
    if (minutes > 60 - 1e-7) { // the last bits of 35.6 may fall short of 60 minutes
        remarks.fault(std::string(field.name) + ": minutes of " + Format(minutes, "0.####"));
        return std::nullopt;
    }
    return NavFunc113::DegMin(*value);
}

} // namespace korvel
