// SPDX-License-Identifier: MIT
#include "shell/machine/RecordsFolder.h"

#include "shell/machine/AsQString.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace korvel
{
namespace
{

/// Tried, not asked: a folder's permissions tell little for root, on shares and under Windows.
bool canWrite(const QString& folder)
{
    QTemporaryFile probe(folder + "/KV_probe.ini.XXXXXX");
    return probe.open();
}

bool isThere(const QString& path)
{
    const QFileInfo info(path);
    return info.exists() || info.isSymLink();
}

} // namespace

Places choosePlaces(const QString& programFolder, const QString& officersFolder)
{
    const QString shared = QDir::cleanPath(programFolder + "/../share/korvel2000");
    const bool installed =
        !isThere(programFolder + "/AF2005.txt") && isThere(shared + "/AF2005.txt");
    const QString data = installed ? shared : programFolder;
    if (!installed && canWrite(programFolder)) return {data, programFolder};
    // Without any folder to write to, the program still calculates; saving says why it fails.
    if (!QDir().mkpath(officersFolder)) return {data, data};
    return {data, officersFolder};
}

QString officersFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + "/korvel2000";
}

RecordsFolder::RecordsFolder(const Places& places)
    : m_places(places), m_records(places.records), m_shipped(places.data)
{
}

bool RecordsFolder::isOnlyShipped(const std::string& name) const
{
    const QString file = '/' + asQString(name);
    return m_places.records != m_places.data && !isThere(m_places.records + file) &&
           isThere(m_places.data + file);
}

ProgramFolder& RecordsFolder::holderOf(const std::string& name)
{
    return isOnlyShipped(name) ? m_shipped : m_records;
}

FileStore::Content RecordsFolder::read(const std::string& name)
{
    return holderOf(name).read(name);
}

FileStore::Content RecordsFolder::readAt(const std::string& name, std::int64_t offset,
                                         std::size_t length)
{
    return holderOf(name).readAt(name, offset, length);
}

std::optional<std::string> RecordsFolder::save(const std::string& name, const std::string& bytes)
{
    return m_records.save(name, bytes);
}

std::optional<std::string> RecordsFolder::rename(const std::string& name,
                                                 const std::string& newName)
{
    if (!isOnlyShipped(name)) return m_records.rename(name, newName);
    // What is shipped cannot be moved: the officer's folder gets a copy under the new name.
    const Content content = m_shipped.read(name);
    if (content.status != Content::Status::Read) return content.reason;
    return m_records.save(newName, content.bytes);
}

std::optional<std::string> RecordsFolder::remove(const std::string& name)
{
    return m_records.remove(name);
}

std::optional<std::string> RecordsFolder::append(const std::string& name, const std::string& bytes)
{
    return m_records.append(name, bytes);
}

std::vector<std::string> RecordsFolder::names(const std::string& beginning,
                                              const std::string& ending) const
{
    return m_records.names(beginning, ending);
}

FileStore::Content RecordsFolder::readAnywhere(const std::string& path)
{
    return m_records.readAnywhere(path);
}

std::optional<std::string> RecordsFolder::saveAnywhere(const std::string& path,
                                                       const std::string& bytes)
{
    return m_records.saveAnywhere(path, bytes);
}

std::string RecordsFolder::path(const std::string& name) const
{
    return (isOnlyShipped(name) ? m_shipped : m_records).path(name);
}

} // namespace korvel
