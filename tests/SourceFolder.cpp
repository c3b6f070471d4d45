// SPDX-License-Identifier: MIT
#include "tests/SourceFolder.h"

#include <fstream>
#include <iterator>

namespace korvel
{

std::string sourceFile(const std::string& name)
{
    return KORVEL_SOURCE_DIR "/" + name;
}

std::string contentOf(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

} // namespace korvel
