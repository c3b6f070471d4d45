// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassBookFile.h"

#include "app/records/AsideName.h"
#include "forms/frmCompass/CompassRecord.h"

#include <utility>

namespace korvel
{
namespace
{

using Status = FileStore::Content::Status;

std::string inQuotes(const std::string& name)
{
    return '"' + name + '"';
}

} // namespace

CompassBookFile::CompassBookFile(FileStore& files, Questions& questions, const ComputerClock& clock)
    : m_files(files), m_questions(questions), m_clock(clock)
{
}

void CompassBookFile::load()
{
    const FileStore::Content file = m_files.read(compassBookFile);
    if (file.status == Status::Missing) return;
    if (file.status == Status::Unreadable) return report("cannot be read: " + file.reason);
    ReadCompassBook read = readCompassBook(file.bytes);
    m_book = std::move(read.book);
    if (!read.damage.empty()) report("is damaged: " + read.damage);
}

void CompassBookFile::report(const std::string& trouble)
{
    m_asideName = asideName(m_files, compassBookFile, m_clock.now());
    const std::string taken =
        m_book.empty() ? "The book is empty."
                       : "Taken over: " + std::to_string(m_book.size()) + " lines. Check them.";
    m_questions.ask({"The compass book " + inQuotes(compassBookFile) + " " + trouble + ".\r" +
                         taken + "\rBefore anything is written over the file, it is kept as " +
                         inQuotes(m_asideName) + ".",
                     programTitle, Buttons::Ok});
}

std::string CompassBookFile::change(const std::function<void(CompassBook&)>& change)
{
    m_before = m_book;
    change(m_book);
    m_isSaved = false;
    return save();
}

std::string CompassBookFile::undo()
{
    if (!m_before) return {};
    m_book = *std::exchange(m_before, std::nullopt);
    m_isSaved = false;
    return save();
}

std::string CompassBookFile::save()
{
    if (m_isSaved) return {};
    if (std::string fault = keepAside(); !fault.empty()) return fault;
    const auto reason = m_files.save(compassBookFile, compassBookText(m_book));
    m_isSaved = !reason;
    return reason ? inQuotes(compassBookFile) + " could not be saved: " + *reason : std::string();
}

/// @return the fault in words, empty when nothing is in the way any more
std::string CompassBookFile::keepAside()
{
    if (m_asideName.empty() || m_files.look(compassBookFile).status == Status::Missing) {
        m_asideName.clear();
        return {};
    }
    if (m_files.look(m_asideName).status != Status::Missing)
        m_asideName = asideName(m_files, compassBookFile, m_clock.now());
    if (const auto reason = m_files.rename(compassBookFile, m_asideName))
        return inQuotes(compassBookFile) + " could not be kept as " + inQuotes(m_asideName) + ": " +
               *reason;
    m_asideName.clear();
    return {};
}

void CompassBookFile::saveAtClose()
{
    for (;;) {
        const std::string fault = save();
        if (fault.empty()) return;
        const Answer answer = m_questions.ask(
            {"The compass book " + fault + ".\r\rTry again?\rNo leaves without saving it.",
             confirmationTitle, Buttons::YesNo});
        if (answer != Answer::Yes) return;
    }
}

} // namespace korvel
