// SPDX-License-Identifier: MIT
#include "shell/manual/ProgramFacts.h"

#include "app/working/ProgramVersion.h"
#include "shell/machine/AsQString.h"
#include "shell/manual/LibrariesInUse.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QSysInfo>

// The build gives it to this file alone: another day of release compiles nothing else again.
#ifndef KORVEL_BUILD
#define KORVEL_BUILD "?"
#endif

namespace korvel
{
namespace
{

QString listOfLibraries()
{
    const QStringList loaded = librariesInUse();
    if (!loaded.isEmpty()) return loaded.join(", ");
    return QString("in the program itself: Qt %1 with the zlib, libpng, FreeType, HarfBuzz, PCRE2 "
                   "and double-conversion that it brings")
        .arg(qVersion());
}

/// What the folder of the program brings along, from the list that lies with its terms.
QString listOfPackages(FileStore& files)
{
    const FileStore::Content content = files.read("licences/packages");
    if (content.status != FileStore::Content::Status::Read) return "none: it uses the system's own";
    QStringList packages;
    for (const QString& line : asQString(content.bytes).split('\n', Qt::SkipEmptyParts))
        packages << line.section(" (", 0, 0);
    return packages.join(", ") + "; their terms lie in the folder `licences`";
}

/// Where an installation for everybody has it, there is no file of that name in the folder.
QString licenceFile(FileStore& files)
{
    const bool isBeside = files.look("LICENSE").status != FileStore::Content::Status::Missing;
    return isBeside ? "LICENSE" : "/usr/share/doc/korvel2000/copyright";
}

QString fontsInUse()
{
    const auto family = [](QFontDatabase::SystemFont which) {
        return QFontInfo(QFontDatabase::systemFont(which)).family();
    };
    return family(QFontDatabase::GeneralFont) + ", " + family(QFontDatabase::FixedFont);
}

} // namespace

std::map<QString, QString> programFacts(FileStore& files)
{
    QString folder = asQString(files.path(""));
    while (folder.size() > 1 && (folder.endsWith('/') || folder.endsWith('\\')))
        folder.chop(1);
    return {{"version", programVersion},
            {"build", QString(KORVEL_BUILD).trimmed() + ", " + QSysInfo::buildAbi()},
            {"toolkit", QString("Qt %1 (built with %2)").arg(qVersion(), QT_VERSION_STR)},
            {"compiler", compilerInUse()},
            {"libraries", listOfLibraries()},
            {"packages", listOfPackages(files)},
            {"licence", licenceFile(files)},
            {"fonts", fontsInUse()},
            {"records", folder}};
}

} // namespace korvel
