// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/KV_Savedvalue.h"
#include "app/records/SettingsFile.h"

namespace korvel
{

/// The saved values as they were last, beside "KV_KORVEL.ini", which is written on a confirmed exit
/// alone: alarms, memories and choices survive a power cut, a logout and a killed program.
///
/// It lies there from the first change to the exit that saves; whoever finds one at the start
/// knows that the last run ended otherwise.
class RecoveryFile
{
public:
    static constexpr const char* name = "KV_KORVEL recovery.ini";

    /// @param files, questions, clock must outlive this object
    RecoveryFile(FileStore& files, Questions& questions, const ComputerClock& clock);

    /// At the start, when the settings file has been taken over: when a file is found that says
    /// something else, tells when it is from and asks whether to take its values over. What the
    /// officer declines, and what says the same, is removed.
    void offer(KV_Savedvalue& saved);

    /// Writes the values when they are not those of the last call any more. To be called after
    /// everything that may change one; costs nothing when nothing did.
    /// @return the fault in words, empty when all is well
    std::string keep(const KV_Savedvalue& saved);

    /// After the settings file itself was saved. @return as of keep()
    std::string remove();

private:
    /// The disk has these values.
    void knowsOf(const KV_Savedvalue& saved);

    FileStore& m_files;
    Questions& m_questions;
    const ComputerClock& m_clock;
    SettingsFile m_file;
    std::string m_kept;        ///< the values of which the disk knows
    unsigned m_keptRevision{}; ///< of the same
};

/// The values that the bytes of such a file hold, whatever is wrong with them.
Record recoveredValues(const std::string& bytes);

/// Takes a record over and names what could not be, in one box.
/// @param file whose record it is
void takeAndTell(KV_Savedvalue& saved, const Record& record, const std::string& file,
                 Questions& questions);

} // namespace korvel
