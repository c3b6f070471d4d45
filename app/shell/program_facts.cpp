// SPDX-License-Identifier: MIT
#include "app/shell/program_facts.h"

#include "app/ProgramVersion.h"
#include "app/shell/asQString.h"

#include <QSysInfo>

// The build gives it to this file alone: another day of release compiles nothing else again.
#ifndef KORVEL_BUILD
#define KORVEL_BUILD "?"
#endif

namespace korvel
{

std::map<QString, QString> programFacts(const FileStore& files)
{
    QString folder = asQString(files.path(""));
    while (folder.size() > 1 && (folder.endsWith('/') || folder.endsWith('\\')))
        folder.chop(1);
    return {{"version", programVersion},
            {"build", QString(KORVEL_BUILD) + ", " + QSysInfo::buildAbi()},
            {"toolkit", QString("Qt %1 (built with %2)").arg(qVersion(), QT_VERSION_STR)},
            {"records", folder}};
}

} // namespace korvel
