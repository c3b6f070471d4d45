// SPDX-License-Identifier: MIT
#include "app/records/KeyedLines.h"

#include <algorithm>

namespace korvel
{

std::string escapedLine(std::string_view text)
{
    std::string line;
    for (const char c : text) {
        constexpr std::string_view signs = "\\\n\r\t";
        constexpr std::string_view letters = "\\nrt";
        const std::size_t at = signs.find(c);
        if (at != std::string_view::npos) line += '\\';
        line += at != std::string_view::npos ? letters[at] : c;
    }
    return line;
}

std::string unescapedLine(std::string_view line)
{
    std::string text;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] != '\\' || i + 1 == line.size()) {
            text += line[i];
            continue;
        }
        const char letter = line[++i];
        text += letter == 'n' ? '\n' : letter == 'r' ? '\r' : letter == 't' ? '\t' : letter;
    }
    return text;
}

void addKeyedLine(std::string& file, std::string_view key, std::string_view value)
{
    if (value.empty()) return;
    file += std::string(key) + "=" + escapedLine(value) + "\n";
}

std::vector<std::string_view> recordLines(std::string_view file)
{
    std::vector<std::string_view> lines;
    while (!file.empty()) {
        const std::size_t end = std::min(file.find('\n'), file.size());
        std::string_view line = file.substr(0, end);
        if (line.ends_with('\r')) line.remove_suffix(1);
        lines.push_back(line);
        file.remove_prefix(std::min(end + 1, file.size()));
    }
    return lines;
}

std::string
readKeyedLines(std::string_view file, std::string_view kind, const std::string& what,
               const std::function<void(std::string_view key, const std::string& value)>& take)
{
    if (!file.starts_with(kind)) return "line 1: it is no " + what;
    std::string damage;
    int number = 0;
    for (const std::string_view line : recordLines(file)) {
        if (++number == 1 || line.empty()) continue;
        const std::size_t sign = line.find('=');
        if (sign != std::string_view::npos)
            take(line.substr(0, sign), unescapedLine(line.substr(sign + 1)));
        else if (damage.empty())
            damage = "line " + std::to_string(number) + ": it cannot be read";
    }
    return damage;
}

std::string readListedLines(std::string_view file, std::string_view kind, const std::string& what,
                            std::string_view key,
                            const std::function<bool(const std::string& value)>& take)
{
    if (!file.starts_with(kind)) return "line 1: these are no " + what;
    const std::string head = std::string(key) + "=";
    std::string damage;
    int number = 0;
    for (const std::string_view line : recordLines(file)) {
        ++number;
        if (!line.starts_with(head)) continue; // the first line, or of a later version
        if (!take(unescapedLine(line.substr(head.size()))) && damage.empty())
            damage = "line " + std::to_string(number);
    }
    return damage;
}

} // namespace korvel
