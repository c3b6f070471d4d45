// SPDX-License-Identifier: MIT
#include "app/records/ObservedFix.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "app/records/KeyedLines.h"

#include <array>
#include <optional>

namespace korvel
{
namespace
{

constexpr std::string_view fixesKind = "KORVEL2000 observed fixes ";
constexpr std::string_view fixKey = "fix";

/// "time;latitude;longitude;kind;ellipse", the words without semicolons.
std::string lineOfFix(const ObservedFix& fix)
{
    const auto words = [](std::string text) {
        for (char& each : text)
            if (each == ';') each = ',';
        return text;
    };
    std::string line = isoText(fix.utc);
    for (const NavFunc113::DegMin angle : {fix.latitude, fix.longitude}) {
        line += ';';
        line += Format(angle, "0.#####");
    }
    for (const std::string& text : {fix.kind, fix.ellipse}) {
        line += ';';
        line += words(text);
    }
    return line;
}

std::optional<NavFunc113::DegMin> packedIn(const std::string& text, double most)
{
    const auto value = readLeadingNumber(text);
    if (!value || *value < -most || *value > most) return std::nullopt;
    return NavFunc113::DegMin(*value);
}

std::optional<ObservedFix> fixOfLine(const std::string& line)
{
    std::array<std::string, 5> parts;
    std::size_t from = 0;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        const std::size_t to = i + 1 < parts.size() ? line.find(';', from) : line.size();
        if (to == std::string::npos) return std::nullopt;
        parts[i] = line.substr(from, to - from);
        from = to + 1;
    }
    const auto utc = readIso(parts[0]);
    const auto latitude = packedIn(parts[1], 90), longitude = packedIn(parts[2], 180);
    if (!utc || !latitude || !longitude) return std::nullopt;
    return ObservedFix{*latitude, *longitude, *utc, parts[3], parts[4]};
}

} // namespace

std::string observedFixesText(const ObservedFixes& fixes)
{
    std::string text = std::string(fixesKind) + "1\n";
    const std::size_t first =
        fixes.size() > mostObservedFixes ? fixes.size() - mostObservedFixes : 0;
    for (std::size_t i = first; i < fixes.size(); ++i)
        addKeyedLine(text, fixKey, lineOfFix(fixes[i]));
    return text;
}

ReadObservedFixes readObservedFixes(std::string_view bytes)
{
    ReadObservedFixes read;
    read.damage =
        readListedLines(bytes, fixesKind, "observed fixes", fixKey, [&](const std::string& line) {
            const auto fix = fixOfLine(line);
            if (fix) read.fixes.push_back(*fix);
            return fix.has_value();
        });
    return read;
}

std::string observedFixText(const ObservedFix& fix)
{
    return fix.kind + "; " + (fix.ellipse.empty() ? "no ellipse" : fix.ellipse);
}

} // namespace korvel
