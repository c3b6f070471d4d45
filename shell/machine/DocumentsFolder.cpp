// SPDX-License-Identifier: MIT
#include "shell/machine/DocumentsFolder.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace korvel
{

QString documentsFolder()
{
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo::exists(documents) ? documents : QDir::homePath();
}

} // namespace korvel
