// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/ComputerClock.h"
#include "app/machine/Questions.h"
#include "app/records/FileStore.h"

#include <string>

namespace korvel
{

/// A file that a window keeps beside the program, whatever its form: replaced whole or not at all,
/// and when it was damaged kept aside under a dated name before anything is written over it.
class RecordFile
{
public:
    /// How the officer is told of it.
    struct Words {
        std::string what = "settings file";
        std::string nothingRead = "The window opens with its defaults.";
    };

    /// @param files, questions, clock must outlive this object
    RecordFile(FileStore& files, Questions& questions, const ComputerClock& clock,
               std::string name);
    RecordFile(FileStore& files, Questions& questions, const ComputerClock& clock, std::string name,
               Words words);

    /// Its bytes. That a file cannot be read is reported here.
    FileStore::Content read();

    /// Tells the officer that the file is not what it should be, and keeps it aside from then on.
    /// @param trouble       "is damaged: line 3: no number"
    /// @param somethingRead whether what could be read was taken over
    void report(const std::string& trouble, bool somethingRead);
    /// @param taken what was taken over, in a sentence
    void report(const std::string& trouble, const std::string& taken);

    /// Saves while the window goes on, without any box.
    /// @return the fault in words, empty when all is well
    std::string saveQuietly(const std::string& bytes);

    /// Saves for the last time: when that fails, offers to try again or to leave without saving.
    /// @return true when the file holds the bytes
    bool saveAtClose(const std::string& bytes);

    /// True while a damaged file still lies under its own name.
    bool isProtected() const { return !m_asideName.empty(); }

    const std::string& name() const { return m_name; }

private:
    std::string keepAside();

    FileStore& m_files;
    Questions& m_questions;
    const ComputerClock& m_clock;
    std::string m_name;
    Words m_words;
    std::string m_asideName; ///< where the damaged file goes; empty when there is none
};

} // namespace korvel
