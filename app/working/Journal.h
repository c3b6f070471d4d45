// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"
#include "navlib/units.h"

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
    /// What was kept on a day; for a file that cannot be read the reason.
    std::string text(const std::string& day) const;
    /// The days whose text has these words, without regard to small and capital Latin letters.
    std::vector<std::string> daysWith(const std::string& words) const;

    static std::string fileName(const std::string& day);

private:
    FileStore& m_files;
};

} // namespace korvel
