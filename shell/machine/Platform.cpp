// SPDX-License-Identifier: MIT
#include "shell/machine/Platform.h"

#include <QFileInfo>
#include <QString>
#include <QtGlobal>

namespace korvel
{

void choosePlatform()
{
    if (qEnvironmentVariableIsSet("QT_QPA_PLATFORM") || !qEnvironmentVariableIsSet("DISPLAY") ||
        !qEnvironmentVariableIsSet("WAYLAND_DISPLAY"))
        return;
    const QString tables = qEnvironmentVariable("XKB_CONFIG_ROOT", "/usr/share/X11/xkb");
    if (!QFileInfo::exists(tables + "/rules")) qputenv("QT_QPA_PLATFORM", "xcb");
}

} // namespace korvel
