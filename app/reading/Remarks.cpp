// SPDX-License-Identifier: MIT
#include "app/reading/Remarks.h"

#include <algorithm>

namespace korvel
{
namespace
{

void addOnce(std::vector<std::string>& sentences, const std::string& sentence)
{
    if (!sentence.empty() && std::ranges::find(sentences, sentence) == sentences.end())
        sentences.push_back(sentence);
}

bool continuesCharacter(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

} // namespace

void Remarks::fault(const std::string& sentence)
{
    addOnce(faults, sentence);
}

void Remarks::warn(const std::string& sentence)
{
    addOnce(warnings, sentence);
}

std::string Remarks::text() const
{
    return joined({joined(faults), joined(warnings)});
}

std::string joined(const std::vector<std::string>& sentences)
{
    std::string line;
    for (const std::string& sentence : sentences) {
        if (!line.empty() && !sentence.empty()) line += line.back() == '?' ? " " : "; ";
        line += sentence;
    }
    return line;
}

std::string quotation(std::string_view typed)
{
    constexpr std::size_t longest = 24; // bytes; the notice line has room for more than one box
    std::size_t length = std::min(typed.size(), longest);
    while (length < typed.size() && length > 0 && continuesCharacter(typed[length]))
        --length;
    return '"' + std::string(typed.substr(0, length)) + (length < typed.size() ? "…\"" : "\"");
}

} // namespace korvel
