// SPDX-License-Identifier: MIT
#pragma once

#include "app/FileStore.h"

#include <QString>

#include <map>

namespace korvel
{

/// What the manual says about this very program: version, build, libraries, where its records lie.
/// By the names that stand in braces in its pages.
std::map<QString, QString> programFacts(const FileStore& files);

} // namespace korvel
