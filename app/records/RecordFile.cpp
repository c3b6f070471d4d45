// SPDX-License-Identifier: MIT
#include "app/records/RecordFile.h"

#include "app/records/AsideName.h"

namespace korvel
{
namespace
{

using Status = FileStore::Content::Status;

} // namespace

RecordFile::RecordFile(FileStore& files, Questions& questions, const ComputerClock& clock,
                       std::string name)
    : RecordFile(files, questions, clock, std::move(name), Words())
{
}

RecordFile::RecordFile(FileStore& files, Questions& questions, const ComputerClock& clock,
                       std::string name, Words words)
    : m_files(files), m_questions(questions), m_clock(clock), m_name(std::move(name)),
      m_words(std::move(words))
{
}

FileStore::Content RecordFile::read()
{
    FileStore::Content content = m_files.read(m_name);
    if (content.status == Status::Unreadable) report("cannot be read: " + content.reason, false);
    return content;
}

void RecordFile::report(const std::string& trouble, bool somethingRead)
{
    report(trouble, somethingRead
                        ? std::string("What could be read is taken over: check every value.")
                        : m_words.nothingRead);
}

void RecordFile::report(const std::string& trouble, const std::string& taken)
{
    m_asideName = asideName(m_files, m_name, m_clock.now());
    m_questions.ask({"The " + m_words.what + " \"" + m_name + "\" " + trouble + ".\r" + taken +
                         "\rBefore anything is written over the file, it is kept as \"" +
                         m_asideName + "\".",
                     programTitle, Buttons::Ok});
}

/// @return the fault in words, empty when nothing is in the way any more
std::string RecordFile::keepAside()
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

std::string RecordFile::saveQuietly(const std::string& bytes)
{
    if (std::string fault = keepAside(); !fault.empty()) return fault;
    const auto reason = m_files.save(m_name, bytes);
    return reason ? "\"" + m_name + "\" could not be saved: " + *reason : std::string();
}

bool RecordFile::saveAtClose(const std::string& bytes)
{
    for (;;) {
        const std::string fault = saveQuietly(bytes);
        if (fault.empty()) return true;
        const Answer answer = m_questions.ask(
            {"The " + m_words.what + " " + fault + ".\r\rTry again?\rNo leaves without saving it.",
             confirmationTitle, Buttons::YesNo});
        if (answer != Answer::Yes) return false;
    }
}

} // namespace korvel
