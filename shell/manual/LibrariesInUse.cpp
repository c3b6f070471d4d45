// SPDX-License-Identifier: MIT
#include "shell/manual/LibrariesInUse.h"

#include <QFileInfo>
#include <QRegularExpression>

#ifdef Q_OS_LINUX
#include <link.h>
#endif

namespace korvel
{

QString nameAndVersion(const QString& file)
{
    static const QRegularExpression pattern("^lib(.+?)(?:-([\\d.]+))?\\.so(?:\\.([\\d.]+))?$");
    const auto match = pattern.match(file);
    const QString version = match.captured(3).isEmpty() ? match.captured(2) : match.captured(3);
    return version.isEmpty() ? QString() : match.captured(1) + ' ' + version;
}

QStringList librariesInUse()
{
    QStringList libraries;
#ifdef Q_OS_LINUX
    const auto note = [](dl_phdr_info* loaded, std::size_t, void* list) {
        // The name that is loaded is a link to the file that has the whole version.
        const QFileInfo file(
            QFileInfo(QString::fromLocal8Bit(loaded->dlpi_name)).canonicalFilePath());
        if (const QString name = nameAndVersion(file.fileName()); !name.isEmpty())
            *static_cast<QStringList*>(list) << name;
        return 0;
    };
    dl_iterate_phdr(note, &libraries);
    libraries.sort(Qt::CaseInsensitive);
#endif
    return libraries;
}

QString compilerInUse()
{
#ifdef __clang__
    QString compiler = "Clang " __clang_version__;
#else
    QString compiler = "GCC " __VERSION__;
#endif
#ifdef _GLIBCXX_RELEASE
    compiler += QString(", libstdc++ %1 (%2)").arg(_GLIBCXX_RELEASE).arg(__GLIBCXX__);
#endif
    return compiler;
}

} // namespace korvel
