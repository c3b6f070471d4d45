// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"

#include <QString>

#include <map>

namespace korvel
{

/// What the manual says about this very program: version, build, libraries, where its records lie.
/// By the names that stand in braces in its pages. To gather them takes a moment.
std::map<QString, QString> programFacts(FileStore& files);

} // namespace korvel
