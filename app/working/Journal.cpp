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
// A day of some hundred papers. Larger files are none of a day's work, and a screen that lays out
// all of one stands still.
constexpr std::int64_t shownBytes = 1 << 19;
constexpr std::size_t longestLine = 2000; // of a text without line ends
constexpr std::size_t searchedAtOnce = 1 << 18;

/// The end of a text from its first whole line on.
std::string wholeLines(const std::string& text)
{
    const std::size_t lineEnd = text.find('\n');
    return lineEnd == std::string::npos ? text : text.substr(lineEnd + 1);
}

/// Cuts lines that never end, between the signs of UTF-8.
std::string withLineEnds(const std::string& text)
{
    std::string lines;
    std::size_t length = 0;
    for (const char each : text) {
        const bool beginsSign = (static_cast<unsigned char>(each) & 0xC0) != 0x80;
        if (each == '\n') length = 0;
        if (++length > longestLine && beginsSign) {
            lines += '\n';
            length = 0;
        }
        lines += each;
    }
    return lines;
}

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
    const std::int64_t size = m_files.look(name).size;
    const std::int64_t from = std::max<std::int64_t>(size - shownBytes, 0);
    const FileStore::Content content =
        m_files.readAt(name, from, static_cast<std::size_t>(shownBytes));
    if (content.status != FileStore::Content::Status::Read)
        return '"' + m_files.path(name) + "\" could not be read: " +
               (content.reason.empty() ? "it is not there" : content.reason);
    if (from == 0) return withLineEnds(content.bytes);
    const auto kilobytes = [](std::int64_t bytes) {
        return Format(static_cast<double>(bytes) / 1024, "#,##0") + " kB";
    };
    return "======== the last " + kilobytes(shownBytes) + " of " + kilobytes(size) + " in " +
           m_files.path(name) + " ========\n" + withLineEnds(wholeLines(content.bytes));
}

JournalSearch::JournalSearch(FileStore& files, const std::string& words)
    : m_files(files), m_words(smallLetters(words)), m_days(Journal(files).days())
{
}

bool JournalSearch::goOn()
{
    if (m_day >= m_days.size()) return false;
    const FileStore::Content piece =
        m_files.readAt(Journal::fileName(m_days[m_day]), m_at, searchedAtOnce);
    const bool isFound = smallLetters(piece.bytes).find(m_words) != std::string::npos;
    if (isFound) m_found.push_back(m_days[m_day]);
    // Words may lie across the end of a piece.
    m_at +=
        static_cast<std::int64_t>(searchedAtOnce - std::min(m_words.size(), searchedAtOnce / 2));
    if (isFound || piece.bytes.size() < searchedAtOnce) {
        ++m_day;
        m_at = 0;
    }
    return m_day < m_days.size();
}

} // namespace korvel
