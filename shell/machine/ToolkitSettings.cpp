// SPDX-License-Identifier: MIT
#include "shell/machine/ToolkitSettings.h"

#include <QSettings>

namespace korvel
{

ToolkitSettings::ToolkitSettings()
{
    if (m_folder.isValid())
        QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, m_folder.path());
}

} // namespace korvel
