// SPDX-License-Identifier: MIT
#pragma once

#include <string>

namespace korvel
{

/// The tone of alarms and time signals: two notes in turn, three times, 1.5 seconds in all.
/// @return a WAV file: PCM, 16 bit, one channel, 22050 Hz
std::string alarmTone();

} // namespace korvel
