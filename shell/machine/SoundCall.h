// SPDX-License-Identifier: MIT
#pragma once

namespace korvel
{

/// Plays the alarm's tone by the system's own call for sounds, beside the program; a tone that
/// plays already is cut off.
/// @return false where there is no such call (the system has players instead) or no sound device
bool startSoundCall();

/// Silence at once; nothing when no tone plays.
void stopSoundCall();

} // namespace korvel
