// SPDX-License-Identifier: MIT
#include "app/records/AsideName.h"

#include "app/reading/Format.h"

#include <algorithm>

namespace korvel
{

std::string asideName(FileStore& files, const std::string& name, NavFunc113::DateTime now)
{
    const std::size_t ending = std::min(name.rfind('.'), name.size());
    const std::string stem = name.substr(0, ending) + " damaged " + Format(now, "yyyy-mm-dd hhmm");
    std::string aside = stem + name.substr(ending);
    for (int n = 2; files.look(aside).status != FileStore::Content::Status::Missing; ++n)
        aside = stem + " " + std::to_string(n) + name.substr(ending);
    return aside;
}

} // namespace korvel
