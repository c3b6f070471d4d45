// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace korvel
{

// A record cannot hold a double quote within a text. Records of our own that need one write it as
// "%22", and a "%22" or "%25" that was typed as "%2522" or "%2525".

/// @param text as it is shown
std::string withoutQuoteSigns(const std::string& text);
/// The way back. A text of an earlier version comes back as it stands.
std::string withQuoteSigns(const std::string& written);

} // namespace korvel
