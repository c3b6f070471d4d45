// SPDX-License-Identifier: MIT
#include "routes/route/DelimitedLines.h"

#include <algorithm>

namespace korvel
{
namespace
{

std::string trimmed(std::string_view text)
{
    const std::size_t first = text.find_first_not_of(" \t\r");
    if (first == std::string_view::npos) return {};
    return std::string(text.substr(first, text.find_last_not_of(" \t\r") + 1 - first));
}

/// Takes a field behind its opening quote, and the closing one.
bool takeQuoted(std::string_view& text, std::string& field, int& lineEnds)
{
    for (std::size_t i = 0; i < text.size(); ++i) {
        if (text[i] == '"' && (i + 1 == text.size() || text[i + 1] != '"')) {
            text.remove_prefix(i + 1);
            return true;
        }
        if (text[i] == '"') ++i;
        if (text[i] == '\n') ++lineEnds;
        field += text[i];
    }
    text = {};
    return false;
}

/// Takes a field and the separator behind it.
/// @return false when it was the last one of its line
bool takeField(std::string_view& text, char separator, DelimitedLine& line, int& lineEnds)
{
    const std::size_t first = text.find_first_not_of(' ');
    std::string field;
    if (first != std::string_view::npos && text[first] == '"') {
        text.remove_prefix(first + 1);
        line.isClosed = takeQuoted(text, field, lineEnds) && line.isClosed;
        const std::size_t end =
            std::min(text.find_first_of(std::string{separator, '\n'}), text.size());
        line.isClosed = line.isClosed && trimmed(text.substr(0, end)).empty();
        text.remove_prefix(end);
    } else {
        const std::size_t end =
            std::min(text.find_first_of(std::string{separator, '\n'}), text.size());
        field = trimmed(text.substr(0, end));
        text.remove_prefix(end);
    }
    line.fields.push_back(std::move(field));
    const bool goesOn = text.starts_with(separator);
    if (!text.empty()) text.remove_prefix(1);
    return goesOn;
}

} // namespace

char separatorOf(std::string_view text)
{
    bool isQuoted = false;
    std::string_view line = text;
    std::string marks;
    for (const char c : line) {
        if (c == '"') isQuoted = !isQuoted;
        if (c == '\n' && !isQuoted && !marks.empty()) break;
        if (!isQuoted && (c == '\t' || c == ';' || c == ',')) marks += c;
    }
    for (const char mark : {'\t', ';'})
        if (marks.find(mark) != std::string::npos) return mark;
    return ',';
}

std::vector<DelimitedLine> delimitedLines(std::string_view text, char separator, std::size_t most)
{
    constexpr std::string_view byteOrderMark = "\xEF\xBB\xBF";
    if (text.starts_with(byteOrderMark)) text.remove_prefix(byteOrderMark.size());
    std::vector<DelimitedLine> lines;
    int number = 1;
    while (!text.empty() && lines.size() < most) {
        DelimitedLine line{number, {}};
        int lineEnds = 1;
        while (takeField(text, separator, line, lineEnds)) {
        }
        number += lineEnds;
        if (std::ranges::any_of(line.fields, [](const auto& field) { return !field.empty(); }))
            lines.push_back(std::move(line));
    }
    return lines;
}

} // namespace korvel
