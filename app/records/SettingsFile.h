// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/ComputerClock.h"
#include "app/machine/Questions.h"
#include "app/records/FileStore.h"
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
    std::string saveQuietly(const Record& record);

    /// Saves for the last time: when that fails, offers to try again or to leave without saving.
    /// @return true when the file holds the record
    bool saveAtClose(const Record& record);

    /// The bytes of a file that load() could read but that are not the window's record: for windows
    /// that can still find something in them. Nothing when the record was read, there was no file,
    /// or not even its bytes came.
    const std::optional<std::string>& damagedText() const { return m_damagedText; }

    /// Says that what was loaded is not all of the file, which is kept aside like a damaged one.
    /// @param trouble "holds texts that are too long for their boxes: value 3"
    void protect(const std::string& trouble);

    /// True while a damaged file still lies under its own name.
    bool isProtected() const { return !m_asideName.empty(); }

    const std::string& name() const { return m_name; }

private:
    void report(const std::string& trouble, bool somethingRead);
    std::string keepAside();

    FileStore& m_files;
    Questions& m_questions;
    const ComputerClock& m_clock;
    std::string m_name;
    std::vector<FieldKind> m_kinds;
    std::optional<std::string> m_damagedText;
    std::string m_asideName; ///< where the damaged file goes; empty when there is none
};

} // namespace korvel
