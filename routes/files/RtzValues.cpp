// SPDX-License-Identifier: MIT
#include "routes/files/RtzValues.h"

#include "app/reading/Ascii.h"
#include "app/reading/Format.h"
#include "app/records/DelimitedText.h"

#include <array>
#include <charconv>

namespace korvel
{
namespace
{

using namespace std::chrono;

struct VersionName {
    RtzVersion version;
    const char* number;
    const char* uri;
};

constexpr std::array versionNames{
    VersionName{RtzVersion::V1_0, "1.0", "http://www.cirm.org/RTZ/1/0"},
    VersionName{RtzVersion::V1_1, "1.1", "http://www.cirm.org/RTZ/1/1"},
    VersionName{RtzVersion::V1_2, "1.2", "http://www.cirm.org/RTZ/1/2"},
};

const VersionName& namesOf(RtzVersion version)
{
    return versionNames[static_cast<std::size_t>(version)];
}

std::string_view trimmed(std::string_view text)
{
    constexpr std::string_view blanks = " \t\r\n";
    const std::size_t first = text.find_first_not_of(blanks);
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(blanks) + 1 - first);
}

/// Takes a number and the letter behind it. @return false when another letter, or none, is there
bool takePart(std::string_view& text, char& letter, double& value)
{
    const std::size_t end = text.find_first_not_of("0123456789.");
    if (end == std::string_view::npos || end == 0) return false;
    const auto number = wholeNumber(text.substr(0, end));
    if (!number) return false;
    letter = text[end];
    value = *number;
    text.remove_prefix(end + 1);
    return true;
}

std::optional<Span> readDuration(std::string_view text)
{
    // Each letter once and in this order; days before the T, the rest behind it.
    constexpr std::string_view order = "DHMS";
    constexpr std::array<double, 4> secondsOf{86400, 3600, 60, 1};
    double total = 0;
    std::size_t due = 0;
    bool isBehindT = false;
    bool hasPart = false;
    while (!text.empty()) {
        if (text.front() == 'T' && !isBehindT) {
            isBehindT = true;
            hasPart = false;
            text.remove_prefix(1);
            due = std::max<std::size_t>(due, 1);
            continue;
        }
        char letter{};
        double value{};
        const std::size_t place =
            takePart(text, letter, value) ? order.find(letter, due) : std::string_view::npos;
        if (place == std::string_view::npos || (place > 0) != isBehindT) return std::nullopt;
        total += value * secondsOf[place];
        due = place + 1;
        hasPart = true;
    }
    if (!hasPart) return std::nullopt;
    return spanOf(NavFunc113::Hours(total / 3600));
}

} // namespace

std::string namespaceOf(RtzVersion version)
{
    return namesOf(version).uri;
}

std::string numberOf(RtzVersion version)
{
    return namesOf(version).number;
}

std::optional<RtzVersion> versionOfNamespace(std::string_view uri)
{
    for (const VersionName& names : versionNames)
        if (names.uri == uri) return names.version;
    return std::nullopt;
}

std::optional<RtzVersion> versionOfNumber(std::string_view number)
{
    for (const VersionName& names : versionNames)
        if (names.number == number) return names.version;
    return std::nullopt;
}

std::optional<double> readDecimal(std::string_view text)
{
    text = trimmed(text);
    if (text.find_first_not_of("+-.0123456789") != std::string_view::npos) return std::nullopt;
    return wholeNumber(text);
}

std::optional<std::int64_t> readIdentifier(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('+')) text.remove_prefix(1);
    std::int64_t value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || end != text.data() + text.size() || value < 0) return std::nullopt;
    return value;
}

std::optional<Span> readStay(std::string_view text)
{
    text = trimmed(text);
    if (text.starts_with('P')) return readDuration(text.substr(1));
    // A time of day: that of any day will do.
    const auto time = readIso("2000-01-01T" + std::string(text));
    const auto midnight = readIso("2000-01-01T00:00:00");
    return time ? std::optional(*time - *midnight) : std::nullopt;
}

std::string stayText(Span stay, RtzVersion version)
{
    const auto all = floor<seconds>(stay + milliseconds(500)).count();
    const auto twoDigits = [](auto number) {
        return (number < 10 ? "0" : "") + std::to_string(number);
    };
    if (version == RtzVersion::V1_0) {
        if (all >= 86400) return {};
        return twoDigits(all / 3600) + ":" + twoDigits(all / 60 % 60) + ":" + twoDigits(all % 60);
    }
    std::string text = "PT";
    if (all >= 3600) text += std::to_string(all / 3600) + "H";
    if (all / 60 % 60 > 0) text += std::to_string(all / 60 % 60) + "M";
    if (all % 60 > 0 || all == 0) text += std::to_string(all % 60) + "S";
    return text;
}

} // namespace korvel
