// SPDX-License-Identifier: MIT
#pragma once

#include "tests/SourceFolder.h"

#include <stdexcept>
#include <string>

namespace korvel::testing
{

/// A file of another maker's with everything that the format knows.
inline const std::string wholeFile = contentOf(sourceFile("tests/routes/whole.rtz"));
inline const std::string wholeGpx = contentOf(sourceFile("tests/routes/whole.gpx"));

/// A text with its first occurrence of another replaced. @throws std::runtime_error without any
inline std::string replaced(std::string text, const std::string& from, const std::string& by)
{
    const std::size_t at = text.find(from);
    if (at == std::string::npos) throw std::runtime_error("not there: " + from);
    return text.replace(at, from.size(), by);
}

} // namespace korvel::testing
