// SPDX-License-Identifier: MIT
#include "app/working/Journal.h"

#include "app/reading/Ascii.h"
#include "app/reading/Format.h"

#include <algorithm>

namespace korvel
{
namespace
{

constexpr const char* journalBeginning = "Journal ";
constexpr const char* journalEnding = ".txt";
constexpr std::size_t largestDay = 1 << 26; // bytes; some ten thousand papers

std::string smallLetters(std::string text)
{
    std::ranges::transform(text, text.begin(), lower);
    return text;
}

} // namespace

std::string Journal::fileName(const std::string& day)
{
    return journalBeginning + day + journalEnding;
}

std::string Journal::keep(NavFunc113::DateTime SMT, const std::string& paper)
{
    const std::string name = fileName(Format(SMT, "yyyy-mm-dd"));
    const std::string line = "======== kept at " + Format(SMT, "hh:mm") + " SMT ========\n";
    const auto reason = m_files.append(name, line + paper + '\n');
    return reason ? '"' + m_files.path(name) + "\" could not be written: " + *reason : "";
}

std::vector<std::string> Journal::days() const
{
    std::vector<std::string> all = m_files.names(journalBeginning, journalEnding);
    for (std::string& name : all)
        name = name.substr(std::string(journalBeginning).size(),
                           name.size() - std::string(journalBeginning).size() -
                               std::string(journalEnding).size());
    std::ranges::sort(all, std::greater<>());
    return all;
}

std::string Journal::text(const std::string& day) const
{
    const std::string name = fileName(day);
    const FileStore::Content content = m_files.readAt(name, 0, largestDay);
    if (content.status == FileStore::Content::Status::Read) return content.bytes;
    return '"' + m_files.path(name) +
           "\" could not be read: " + (content.reason.empty() ? "it is not there" : content.reason);
}

std::vector<std::string> Journal::daysWith(const std::string& words) const
{
    const std::string wanted = smallLetters(words);
    std::vector<std::string> found = days();
    std::erase_if(found, [&](const std::string& day) {
        return smallLetters(text(day)).find(wanted) == std::string::npos;
    });
    return found;
}

} // namespace korvel
