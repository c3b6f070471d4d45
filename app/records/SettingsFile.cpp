// SPDX-License-Identifier: MIT
#include "app/records/SettingsFile.h"

#include <algorithm>

namespace korvel
{

SettingsFile::SettingsFile(FileStore& files, Questions& questions, const ComputerClock& clock,
                           std::string name, std::vector<FieldKind> kinds)
    : m_file(files, questions, clock, std::move(name)), m_kinds(std::move(kinds))
{
}

std::optional<Record> SettingsFile::load(const Record& defaults)
{
    const FileStore::Content content = m_file.read();
    if (content.status != FileStore::Content::Status::Read) return std::nullopt;
    ReadRecord read = readRecord(content.bytes, m_kinds);
    if (read.damage.empty()) return read.record;
    m_damagedText = content.bytes;
    m_file.report("is damaged: " + read.damageText(), read.anythingRead());
    if (!read.anythingRead()) return std::nullopt;
    for (std::size_t i = 0; i < std::min(defaults.size(), read.record.size()); ++i)
        if (!read.wasRead[i]) read.record[i] = defaults[i];
    return read.record;
}

void SettingsFile::protect(const std::string& trouble)
{
    if (!isProtected()) m_file.report(trouble, true);
}

} // namespace korvel
