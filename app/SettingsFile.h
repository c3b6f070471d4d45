// SPDX-License-Identifier: MIT
#pragma once

#include "app/FileStore.h"
#include "app/Questions.h"
#include "app/settings_record.h"

#include <optional>
#include <string>
#include <vector>

namespace korvel
{

/// One window's settings file: what is read when the window loads and replaced when it closes.
///
/// A file that is not the window's record is reported once and left as it is; before it is
/// overwritten the officer is asked.
class SettingsFile
{
public:
    /// @param files, questions must outlive this object
    SettingsFile(FileStore& files, Questions& questions, std::string name, std::vector<Kind> kinds);

    /// The record of the file; nothing when there is none or it cannot be read (then reported).
    std::optional<Record> load();

    /// Saves while the window goes on, without any box: a file waiting for the officer's consent is
    /// left alone. @return the fault in words, empty when all is well
    std::string saveQuietly(const Record& record);

    /// Saves for the last time: asks before it overwrites a file that could not be read, and when
    /// the save fails offers to try again or to leave without saving.
    /// @return true when the file holds the record
    bool saveAtClose(const Record& record);

    /// The bytes of a file that load() could read but that are not the window's record: for windows
    /// that can still find something in them. Nothing when the record was read, there was no file,
    /// or not even its bytes came.
    const std::optional<std::string>& damagedText() const { return m_damagedText; }

    /// True while the file on disk waits for the officer's consent to be overwritten.
    bool isProtected() const { return m_protected; }

    const std::string& name() const { return m_name; }

private:
    FileStore& m_files;
    Questions& m_questions;
    std::string m_name;
    std::vector<Kind> m_kinds;
    std::optional<std::string> m_damagedText;
    bool m_protected = false; ///< the file on disk is not ours to overwrite unasked
};

} // namespace korvel
