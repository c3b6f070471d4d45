// SPDX-License-Identifier: MIT
#include "routes/route/KeptParts.h"

#include <algorithm>

namespace korvel
{

const std::string* keptText(const std::vector<KeptPart>& kept, std::string_view place)
{
    const auto found = std::ranges::find(kept, place, &KeptPart::place);
    return found == kept.end() ? nullptr : &found->text;
}

void forKeptAttributes(
    const std::vector<KeptPart>& kept, std::string_view element,
    const std::function<void(const std::string& name, const std::string& value)>& take)
{
    for (const KeptPart& part : kept)
        if (part.place.size() > element.size() && part.place[element.size()] == '@' &&
            part.place.starts_with(element))
            take(part.place.substr(element.size() + 1), part.text);
}

bool hasOtherParts(const std::vector<KeptPart>& kept, std::string_view format)
{
    return std::ranges::any_of(
        kept, [&](const KeptPart& part) { return !part.place.starts_with(format); });
}

} // namespace korvel
