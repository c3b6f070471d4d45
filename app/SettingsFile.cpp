// SPDX-License-Identifier: MIT
#include "app/SettingsFile.h"

namespace korvel
{

SettingsFile::SettingsFile(FileStore& files, Questions& questions, std::string name,
                           std::vector<Kind> kinds)
    : m_files(files), m_questions(questions), m_name(std::move(name)), m_kinds(std::move(kinds))
{
}

std::optional<Record> SettingsFile::load()
{
    const FileStore::Content content = m_files.read(m_name);
    if (content.status == FileStore::Content::Status::Missing) return std::nullopt;
    std::string reason = content.reason;
    if (content.status == FileStore::Content::Status::Read) {
        try {
            return readRecord(content.bytes, m_kinds);
        } catch (const RecordError& error) {
            reason = error.what();
            m_damagedText = content.bytes;
        }
    }
    m_protected = true;
    m_questions.ask({"The settings file \"" + m_name + "\" cannot be read: " + reason +
                         ".\rThe window opens with its defaults and the file stays as it is.",
                     programTitle, Buttons::Ok});
    return std::nullopt;
}

std::string SettingsFile::saveQuietly(const Record& record)
{
    if (m_protected) return {};
    const auto reason = m_files.save(m_name, writeRecord(record));
    return reason ? "\"" + m_name + "\" could not be saved: " + *reason : std::string();
}

bool SettingsFile::saveAtClose(const Record& record)
{
    if (m_protected) {
        const Answer answer = m_questions.ask(
            {"The settings file \"" + m_name +
                 "\" could not be read when the window opened.\rOverwrite it with what the "
                 "window holds now?",
             programTitle, Buttons::YesNo});
        if (answer != Answer::Yes) return false;
        m_protected = false;
    }
    for (;;) {
        const std::string fault = saveQuietly(record);
        if (fault.empty()) return true;
        const Answer answer = m_questions.ask(
            {"The settings file " + fault + ".\r\rTry again?\rNo leaves without saving it.",
             programTitle, Buttons::YesNo});
        if (answer != Answer::Yes) return false;
    }
}

} // namespace korvel
