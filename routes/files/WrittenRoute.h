// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <vector>

namespace korvel
{

/// A route as the bytes of a file.
struct WrittenRoute {
    std::string bytes;
    std::vector<std::string>
        remarks;       ///< what the format has no place for, and what was put instead
    std::string fault; ///< why there is no file; empty when there is one
};

} // namespace korvel
