// SPDX-License-Identifier: MIT
#include "shell/screen/OwnFonts.h"

#include <QFileInfo>
#include <QString>
#include <QtGlobal>

namespace korvel
{

void useOwnFonts()
{
#ifdef Q_OS_LINUX
    // The program's folder is asked of the system: the application object, which knows it too,
    // reads the fonts when it is made.
    const QString program = QFileInfo("/proc/self/exe").symLinkTarget();
    const QString fonts = QFileInfo(program).path() + "/fonts/fonts.conf";
    if (!qEnvironmentVariableIsSet("FONTCONFIG_FILE") && QFileInfo::exists(fonts))
        qputenv("FONTCONFIG_FILE", fonts.toUtf8());
#endif
}

} // namespace korvel
