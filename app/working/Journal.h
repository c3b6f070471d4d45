// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"
#include "navlib/units.h"

#include <cstdint>
#include <string>
#include <vector>

namespace korvel
{

/// The papers that were kept: a text file a day beside the records, to which papers are added and
/// from which nothing is taken.
class Journal
{
public:
    /// @param files must outlive this object
    explicit Journal(FileStore& files) : m_files(files) {}

    /// Adds a paper to the file of ship's day.
    /// @return why it could not be, file name included; empty when all is well
    std::string keep(NavFunc113::DateTime SMT, const std::string& paper);

    /// The days that have a file, "2026-11-21", the latest first.
    std::vector<std::string> days() const;
    /// What was kept on a day, of a file beyond all days its end; for one that cannot be read the
    /// reason.
    std::string text(const std::string& day) const;

    static std::string fileName(const std::string& day);

private:
    FileStore& m_files;
};

/// Looks for the days whose text has some words, without regard to small and capital Latin letters;
/// a piece of a file at a time, so that whoever types the words is never kept waiting.
class JournalSearch
{
public:
    /// @param files must outlive this object
    /// @param words not empty
    JournalSearch(FileStore& files, const std::string& words);

    /// Reads the next piece. @return whether there is more to read
    bool goOn();
    /// The days found so far, the latest first.
    const std::vector<std::string>& found() const { return m_found; }

private:
    FileStore& m_files;
    std::string m_words; ///< in small letters
    std::vector<std::string> m_days;
    std::size_t m_day{}; ///< that is being read
    std::int64_t m_at{}; ///< where in its file
    std::vector<std::string> m_found;
};

} // namespace korvel
