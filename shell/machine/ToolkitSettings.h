// SPDX-License-Identifier: MIT
#pragma once

#include <QTemporaryDir>

namespace korvel
{

/// The toolkit's file dialogs keep the folders they were in, in a file of their own in the
/// officer's home. While this lives that file lies in a temporary folder, and goes with it. Where
/// the toolkit keeps such things in the system's registry, nothing changes.
class ToolkitSettings
{
public:
    ToolkitSettings();

private:
    QTemporaryDir m_folder;
};

} // namespace korvel
