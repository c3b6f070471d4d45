// SPDX-License-Identifier: MIT
#include "forms/frmCompass/CompassBookFile.h"

#include "forms/frmCompass/CompassRecord.h"

#include <utility>

namespace korvel
{
namespace
{

constexpr const char* emptyBook = "The book is empty.";

} // namespace

CompassBookFile::CompassBookFile(FileStore& files, Questions& questions, const ComputerClock& clock)
    : m_file(files, questions, clock, compassBookFile, {"compass book", emptyBook})
{
}

void CompassBookFile::load()
{
    const FileStore::Content file = m_file.read();
    if (file.status != FileStore::Content::Status::Read) return;
    ReadCompassBook read = readCompassBook(file.bytes);
    m_book = std::move(read.book);
    if (read.damage.empty()) return;
    m_file.report("is damaged: " + read.damage,
                  m_book.empty()
                      ? emptyBook
                      : "Taken over: " + std::to_string(m_book.size()) +
                            (m_book.size() == 1 ? " line. Check it." : " lines. Check them."));
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
    std::string fault = m_file.saveQuietly(compassBookText(m_book));
    m_isSaved = fault.empty();
    return fault;
}

void CompassBookFile::saveAtClose()
{
    if (!m_isSaved) m_isSaved = m_file.saveAtClose(compassBookText(m_book));
}

} // namespace korvel
