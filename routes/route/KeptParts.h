// SPDX-License-Identifier: MIT
#pragma once

#include "routes/route/Route.h"

#include <functional>
#include <string_view>

namespace korvel
{

/// The text kept of a place. @return nullptr when there is none
const std::string* keptText(const std::vector<KeptPart>& kept, std::string_view place);

/// Calls for every kept attribute of an element, "rtz leg" for "rtz leg@portsideXTD", with its
/// name.
void forKeptAttributes(
    const std::vector<KeptPart>& kept, std::string_view element,
    const std::function<void(const std::string& name, const std::string& value)>& take);

/// Whether anything was kept of another format than the one whose places begin so.
bool hasOtherParts(const std::vector<KeptPart>& kept, std::string_view format);

} // namespace korvel
