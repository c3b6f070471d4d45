// SPDX-License-Identifier: MIT
#include "app/shell/ProgramFolder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>

namespace korvel
{
namespace
{

constexpr qint64 largestSettingsFile = 1 << 20;

} // namespace

ProgramFolder::ProgramFolder(QString folder) : m_folder(std::move(folder))
{
    // A save writes "KV_GC.ini.AbCdEf" beside the file and renames it; one that was killed leaves
    // it.
    const QDir directory(m_folder);
    for (const QString& remnant : directory.entryList({"KV_*.ini.??????"}, QDir::Files))
        QFile::remove(directory.filePath(remnant));
}

QString ProgramFolder::pathOf(const std::string& name) const
{
    return m_folder + '/' + QString::fromStdString(name);
}

std::string ProgramFolder::path(const std::string& name) const
{
    return QDir::toNativeSeparators(pathOf(name)).toStdString();
}

FileStore::Content ProgramFolder::read(const std::string& name)
{
    using Status = Content::Status;
    const QFileInfo info(pathOf(name));
    if (!info.exists() && !info.isSymLink()) return {Status::Missing, {}, {}};
    if (!info.isFile()) return {Status::Unreadable, {}, "it is not a file"};
    if (info.size() > largestSettingsFile) return {Status::Unreadable, {}, "it is far too large"};
    QFile file(info.filePath());
    if (!file.open(QIODevice::ReadOnly))
        return {Status::Unreadable, {}, file.errorString().toStdString()};
    const QByteArray bytes = file.read(largestSettingsFile);
    if (file.error() != QFileDevice::NoError)
        return {Status::Unreadable, {}, file.errorString().toStdString()};
    return {Status::Read, bytes.toStdString(), {}};
}

std::optional<std::string> ProgramFolder::save(const std::string& name, const std::string& bytes)
{
    QSaveFile file(pathOf(name));
    file.setDirectWriteFallback(false);
    if (!file.open(QIODevice::WriteOnly)) return file.errorString().toStdString();
    // commit() alone answers true on a full disk and leaves an empty file: flush first and look.
    const bool written = file.write(bytes.data(), static_cast<qint64>(bytes.size())) ==
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

} // namespace korvel
