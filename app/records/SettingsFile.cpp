// SPDX-License-Identifier: MIT
#include "app/records/SettingsFile.h"

#include "app/records/AsideName.h"

#include <algorithm>

namespace korvel
{
namespace
{

using Status = FileStore::Content::Status;

} // namespace

SettingsFile::SettingsFile(FileStore& files, Questions& questions, const ComputerClock& clock,
                           std::string name, std::vector<FieldKind> kinds)
    : m_files(files), m_questions(questions), m_clock(clock), m_name(std::move(name)),
      m_kinds(std::move(kinds))
{
}

std::optional<Record> SettingsFile::load(const Record& defaults)
{
    const FileStore::Content content = m_files.read(m_name);
    if (content.status == Status::Missing) return std::nullopt;
    if (content.status == Status::Unreadable) {
        report("cannot be read: " + content.reason, false);
        return std::nullopt;
    }
    ReadRecord read = readRecord(content.bytes, m_kinds);
    if (read.damage.empty()) return read.record;
    m_damagedText = content.bytes;
    report("is damaged: " + read.damageText(), read.anythingRead());
    if (!read.anythingRead()) return std::nullopt;
    for (std::size_t i = 0; i < std::min(defaults.size(), read.record.size()); ++i)
        if (!read.wasRead[i]) read.record[i] = defaults[i];
    return read.record;
}

void SettingsFile::report(const std::string& trouble, bool somethingRead)
{
    m_asideName = asideName(m_files, m_name, m_clock.now());
    m_questions.ask({"The settings file \"" + m_name + "\" " + trouble + ".\r" +
                         (somethingRead ? "What could be read is taken over: check every value."
                                        : "The window opens with its defaults.") +
                         "\rBefore anything is written over the file, it is kept as \"" +
                         m_asideName + "\".",
                     programTitle, Buttons::Ok});
}

void SettingsFile::protect(const std::string& trouble)
{
    if (!isProtected()) report(trouble, true);
}

/// @return the fault in words, empty when nothing is in the way any more
std::string SettingsFile::keepAside()
{
    if (m_asideName.empty() || m_files.look(m_name).status == Status::Missing) {
        m_asideName.clear();
        return {};
    }
    if (m_files.look(m_asideName).status != Status::Missing)
        m_asideName = asideName(m_files, m_name, m_clock.now());
    if (const auto reason = m_files.rename(m_name, m_asideName))
        return "\"" + m_name + "\" could not be kept as \"" + m_asideName + "\": " + *reason;
    m_asideName.clear();
    return {};
}

std::string SettingsFile::saveQuietly(const Record& record)
{
    if (std::string fault = keepAside(); !fault.empty()) return fault;
    const auto reason = m_files.save(m_name, writeRecord(record));
    return reason ? "\"" + m_name + "\" could not be saved: " + *reason : std::string();
}

bool SettingsFile::saveAtClose(const Record& record)
{
    for (;;) {
        const std::string fault = saveQuietly(record);
        if (fault.empty()) return true;
        const Answer answer = m_questions.ask(
            {"The settings file " + fault + ".\r\rTry again?\rNo leaves without saving it.",
             confirmationTitle, Buttons::YesNo});
        if (answer != Answer::Yes) return false;
    }
}

} // namespace korvel
