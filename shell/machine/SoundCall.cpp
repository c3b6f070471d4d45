// SPDX-License-Identifier: MIT
#include "shell/machine/SoundCall.h"

#ifdef _WIN32
#include "app/watch/Tone.h"

#include <windows.h>

#include <mmsystem.h>

#include <string>
#endif

namespace korvel
{

#ifdef _WIN32
bool startSoundCall()
{
    // The system reads it while it plays, so it stays. The call itself answers true without a
    // device too, and nobody would hear the alarm.
    static const std::string tone = alarmTone();
    return waveOutGetNumDevs() > 0 &&
           PlaySoundA(tone.data(), nullptr, SND_MEMORY | SND_ASYNC | SND_NODEFAULT);
}

void stopSoundCall()
{
    PlaySoundA(nullptr, nullptr, 0);
}
#else
bool startSoundCall()
{
    return false;
}

void stopSoundCall() {}
#endif

} // namespace korvel
