// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"
#include "navlib/datetime.h"

#include <string>

namespace korvel
{

/// Name under which a damaged file is kept before it is written over: "KV_ETA.ini" becomes "KV_ETA
/// damaged 2026-11-21 1312.ini", numbered when that is taken.
std::string asideName(FileStore& files, const std::string& name, NavFunc113::DateTime now);

} // namespace korvel
