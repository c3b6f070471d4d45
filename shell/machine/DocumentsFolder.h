// SPDX-License-Identifier: MIT
#pragma once

#include <QString>

namespace korvel
{

/// Where files of the officer's own are looked for and go first. The folder for documents need not
/// be there, and the toolkit would offer the one that the program was started in, which may be
/// anybody's.
QString documentsFolder();

} // namespace korvel
