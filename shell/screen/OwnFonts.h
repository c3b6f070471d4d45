// SPDX-License-Identifier: MIT
#pragma once

namespace korvel
{

/// Points the font library to the fonts that a portable folder carries (fonts/fonts.conf beside the
/// program), for systems that have none with Japanese or none at all. To be called before the
/// application object is made; without such a folder it does nothing.
void useOwnFonts();

} // namespace korvel
