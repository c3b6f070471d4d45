// SPDX-License-Identifier: MIT
#include "shell/machine/ProgramFolder.h"

#include "shell/machine/AsQString.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr qint64 largestFile = 1 << 24; // a compass book of five years stays below half of it

bool isMissing(const QFileInfo& info)
{
    return !info.exists() && !info.isSymLink();
}

/// What stands in the place of a file, in words.
std::string whatItIs(const QFileInfo& info)
{
    if (info.isDir()) return "it is a folder";
    return info.exists() ? "it is no plain file" : "it is a link that leads nowhere";
}

FileStore::Content readPiece(const QString& path, std::int64_t offset, std::size_t length)
{
    using Status = FileStore::Content::Status;
    const QFileInfo info(path);
    // Looked at before it is opened: opening a pipe waits for somebody who writes into it.
    if (!info.isFile())
        return isMissing(info) ? FileStore::Content{Status::Missing, {}, {}}
                               : FileStore::Content{Status::Unreadable, {}, whatItIs(info)};
    QFile file(info.filePath());
    FileStore::Content content{Status::Read, {}, {}, info.size()};
    const bool opened = file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
    const std::int64_t there = std::max<std::int64_t>(content.size - offset, 0);
    const auto wanted = static_cast<qint64>(std::min<std::uint64_t>(length, std::uint64_t(there)));
    if (opened && wanted > 0 && (offset == 0 || file.seek(offset)))
        content.bytes = file.read(wanted).toStdString();
    if (file.error() != QFileDevice::NoError)
        return {Status::Unreadable, {}, file.errorString().toStdString()};
    return content;
}

FileStore::Content readWhole(const QString& path)
{
    FileStore::Content content = readPiece(path, 0, largestFile);
    if (content.size > largestFile)
        return {FileStore::Content::Status::Unreadable, {}, "it is far too large"};
    return content;
}

/// Replaces a file whole or not at all.
std::optional<std::string> replace(const QString& path, const std::string& bytes)
{
    const QFileInfo info(path);
    if (info.exists() && !info.isFile()) return whatItIs(info);
    QSaveFile file(info.filePath());
    file.setDirectWriteFallback(false);
    // commit() alone answers true on a full disk and leaves an empty file: flush first and look.
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.write(bytes.data(), static_cast<qint64>(bytes.size())) ==
                             static_cast<qint64>(bytes.size()) &&
                         file.flush();
    if (!written) {
        const std::string reason = file.errorString().toStdString();
        file.cancelWriting();
        file.commit();
        return reason;
    }
    if (!file.commit()) return file.errorString().toStdString();
    return std::nullopt;
}

} // namespace

ProgramFolder::ProgramFolder(QString folder, Remnants remnants) : m_folder(std::move(folder))
{
    if (remnants == Remnants::Left) return;
    // A save writes "KV_GC.ini.AbCdEf" beside the file and renames it; one that was killed leaves
    // it.
    const QDir directory(m_folder);
    const QStringList names = {"KV_*.ini.??????", "AF2005.txt.??????", "Tide *.csv.??????"};
    for (const QString& remnant : directory.entryList(names, QDir::Files))
        if (!remnant.endsWith(".before")) // the factors file before an extension
            QFile::remove(directory.filePath(remnant));
}

QString ProgramFolder::pathOf(const std::string& name) const
{
    return m_folder + '/' + asQString(name);
}

std::string ProgramFolder::path(const std::string& name) const
{
    return QDir::toNativeSeparators(pathOf(name)).toStdString();
}

FileStore::Content ProgramFolder::read(const std::string& name)
{
    return readWhole(pathOf(name));
}

FileStore::Content ProgramFolder::readAnywhere(const std::string& path)
{
    return readWhole(asQString(path));
}

FileStore::Content ProgramFolder::readAt(const std::string& name, std::int64_t offset,
                                         std::size_t length)
{
    return readPiece(pathOf(name), offset, length);
}

std::optional<std::string> ProgramFolder::save(const std::string& name, const std::string& bytes)
{
    return replace(pathOf(name), bytes);
}

std::optional<std::string> ProgramFolder::saveAnywhere(const std::string& path,
                                                       const std::string& bytes)
{
    return replace(asQString(path), bytes);
}

std::optional<std::string> ProgramFolder::append(const std::string& name, const std::string& bytes)
{
    const QFileInfo info(pathOf(name));
    if (info.exists() && !info.isFile()) return whatItIs(info);
    const qint64 before = info.exists() ? info.size() : 0;
    QFile file(info.filePath());
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::Unbuffered))
        return file.errorString().toStdString();
    const auto length = static_cast<qint64>(bytes.size());
    const qint64 written = file.write(bytes.data(), length);
    if (written == length) return std::nullopt;
    // A disk that took a part has no error to tell yet: the next byte has.
    if (written >= 0 && file.error() == QFileDevice::NoError)
        file.write(bytes.data() + written, length - written);
    const std::string reason = file.error() == QFileDevice::NoError
                                   ? "there is no room left on the disk"
                                   : file.errorString().toStdString();
    file.resize(before);
    return reason;
}

std::vector<std::string> ProgramFolder::names(const std::string& beginning,
                                              const std::string& ending) const
{
    const QString pattern = asQString(beginning + '*' + ending);
    std::vector<std::string> found;
    for (const QString& name : QDir(m_folder).entryList({pattern}, QDir::Files, QDir::Name))
        found.push_back(name.toStdString());
    return found;
}

std::optional<std::string> ProgramFolder::rename(const std::string& name,
                                                 const std::string& newName)
{
    const QFileInfo info(pathOf(name));
    if (info.exists() && !info.isFile()) return whatItIs(info);
    QFile file(info.filePath());
    if (file.rename(pathOf(newName))) return std::nullopt;
    return file.errorString().toStdString();
}

std::optional<std::string> ProgramFolder::remove(const std::string& name)
{
    const QFileInfo info(pathOf(name));
    if (isMissing(info)) return std::nullopt;
    if (info.exists() && !info.isFile()) return whatItIs(info);
    QFile file(info.filePath());
    if (file.remove()) return std::nullopt;
    return file.errorString().toStdString();
}

} // namespace korvel
