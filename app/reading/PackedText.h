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

/// A result as another program reads it: <104.4> becomes 104.4, 3409'.7 becomes 3409.7, a packed
/// position its full form; blanks around it are left out.
std::string plainForm(std::string_view text);

} // namespace korvel
