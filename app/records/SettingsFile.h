// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/RecordFile.h"
#include "app/records/SettingsRecord.h"

#include <optional>
#include <string>
#include <vector>

namespace korvel
{

/// One window's settings file: what is read when the window loads and replaced when it is saved.
///
/// Of a file that is not the window's record, what can be read is taken over and the damage named.
/// Before anything is written over it, the file is kept aside under a dated name.
class SettingsFile
{
public:
    /// @param files, questions, clock must outlive this object
    SettingsFile(FileStore& files, Questions& questions, const ComputerClock& clock,
                 std::string name, std::vector<FieldKind> kinds);

    /// The record of the file; nothing when there is none or nothing of it can be read.
    /// @param defaults what stands in the place of values that could not be read; empty: they are
    ///                 never set
    std::optional<Record> load(const Record& defaults = {});

    /// Saves while the window goes on, without any box.
    /// @return the fault in words, empty when all is well
    std::string saveQuietly(const Record& record)
    {
        return m_file.saveQuietly(writeRecord(record));
    }

    /// Saves for the last time: when that fails, offers to try again or to leave without saving.
    /// @return true when the file holds the record
    bool saveAtClose(const Record& record) { return m_file.saveAtClose(writeRecord(record)); }

    /// The bytes of a file that load() could read but that are not the window's record: for windows
    /// that can still find something in them. Nothing when the record was read, there was no file,
    /// or not even its bytes came.
    const std::optional<std::string>& damagedText() const { return m_damagedText; }

    /// Says that what was loaded is not all of the file, which is kept aside like a damaged one.
    /// @param trouble "holds texts that are too long for their boxes: value 3"
    void protect(const std::string& trouble);

    /// True while a damaged file still lies under its own name.
    bool isProtected() const { return m_file.isProtected(); }

    const std::string& name() const { return m_file.name(); }

private:
    RecordFile m_file;
    std::vector<FieldKind> m_kinds;
    std::optional<std::string> m_damagedText;
};

} // namespace korvel
