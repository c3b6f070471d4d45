// SPDX-License-Identifier: MIT
#include "tests/SourceFolder.h"

namespace korvel
{

std::string sourceFile(const std::string& name)
{
    return KORVEL_SOURCE_DIR "/" + name;
}

} // namespace korvel
