// SPDX-License-Identifier: MIT
#include "app/records/RecoveryFile.h"

#include "app/reading/Format.h"
#include "app/reading/Remarks.h"

namespace korvel
{
namespace
{

/// When the values were kept, then the values.
std::vector<FieldKind> kindsOfFile()
{
    std::vector<FieldKind> kinds = KV_Savedvalue::kinds();
    kinds.insert(kinds.begin(), FieldKind::Text);
    return kinds;
}

std::string bytesOf(const KV_Savedvalue& saved)
{
    return writeRecord(saved.record());
}

/// The same values have the same bytes once they were taken over: ticks that were never set are no.
std::string bytesAsTaken(const Record& record)
{
    KV_Savedvalue saved;
    saved.take(record);
    saved.setClockZone(saved.clockZone());
    saved.setNightColours(saved.nightColours());
    return bytesOf(saved);
}

} // namespace

RecoveryFile::RecoveryFile(FileStore& files, Questions& questions, const ComputerClock& clock)
    : m_files(files), m_questions(questions), m_clock(clock),
      m_file(files, questions, clock, name, kindsOfFile())
{
}

void RecoveryFile::offer(KV_Savedvalue& saved)
{
    knowsOf(saved);
    auto record = m_file.load();
    if (!record) return;
    const std::string when = textOf(record->front());
    record->erase(record->begin());
    const bool isNews = bytesAsTaken(*record) != bytesAsTaken(saved.record());
    if (isNews && m_questions.ask({"The program did not end by its own exit. The alarms, memories "
                                   "and choices as they were at " +
                                       when + " (the computer's clock) are kept in \"" + name +
                                       "\".\r\rTake them over?",
                                   confirmationTitle, Buttons::YesNo}) == Answer::Yes) {
        takeAndTell(saved, *record, name, m_questions);
        knowsOf(saved);
    } else if (!m_file.isProtected()) {
        remove();
    }
}

std::string RecoveryFile::keep(const KV_Savedvalue& saved)
{
    if (saved.revision() == m_keptRevision) return {};
    if (bytesOf(saved) == m_kept) { // there and back
        m_keptRevision = saved.revision();
        return {};
    }
    Record record{Format(m_clock.now(), "yyyy/mm/dd hh:mm")};
    const Record savedValues = saved.record();
    record.insert(record.end(), savedValues.begin(), savedValues.end());
    std::string fault = m_file.saveQuietly(record);
    if (fault.empty()) knowsOf(saved);
    return fault;
}

void RecoveryFile::knowsOf(const KV_Savedvalue& saved)
{
    m_kept = bytesOf(saved);
    m_keptRevision = saved.revision();
}

std::string RecoveryFile::remove()
{
    const auto reason = m_files.remove(name);
    return reason ? '"' + std::string(name) + "\" could not be removed: " + *reason : std::string();
}

Record recoveredValues(const std::string& bytes)
{
    Record record = readRecord(bytes, kindsOfFile()).record;
    record.erase(record.begin()); // when it was kept
    return record;
}

void takeAndTell(KV_Savedvalue& saved, const Record& record, const std::string& file,
                 Questions& questions)
{
    const std::vector<std::string> refused = saved.take(record);
    if (refused.empty()) return;
    questions.ask({"\"" + file +
                       "\" holds values that are out of range and were not taken over:\r" +
                       joined(refused),
                   programTitle, Buttons::Ok});
}

} // namespace korvel
