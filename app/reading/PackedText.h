// SPDX-License-Identifier: MIT
#pragma once

#include <string>
#include <string_view>

namespace korvel
{

/// The figures of a result in the form that every navigator writes, for the tip of a label that
/// keeps the program's packed writing: 35-.30'5N and 35.-30'5N become 35°30.5' N, 139.-45'2 becomes
/// 139°45.2', 4730'.0 and 318.'6 become 4730.0 and 318.6. Minutes that show 60 are carried. All
/// else stays as it is.
std::string inFullForm(std::string_view text);

} // namespace korvel
