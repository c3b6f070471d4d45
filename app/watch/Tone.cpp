// SPDX-License-Identifier: MIT
#include "app/watch/Tone.h"

#include "navlib/angles.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace korvel
{
namespace
{

constexpr int sampleRate = 22050; // Hz
constexpr int notes = 6;
constexpr int samplesPerNote = sampleRate / 4;
// A fourth apart, where the ear is keen and small loudspeakers still sound.
constexpr double lowNote = 988;   // Hz
constexpr double highNote = 1319; // Hz
constexpr double peak = 0.8;      // of full scale
constexpr double edge = 0.012;    // seconds of fading at both ends: a sudden edge cracks

void append(std::string& bytes, std::uint32_t value, int size)
{
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>((value >> (8 * i)) & 0xFF);
}

/// One sample of a note, -1 .. 1.
double sample(double frequency, double time, double length)
{
    // The third harmonic carries through engine noise, the fundamental keeps it pleasant.
    const double phase = 2 * NavFunc113::Pi() * frequency * time;
    const double wave = (std::sin(phase) + 0.35 * std::sin(3 * phase)) / 1.35;
    const double toEdge = std::min(time, length - time);
    const double fade = std::min(1.0, toEdge / edge);
    return wave * fade * (1 - 0.5 * time / length);
}

} // namespace

std::string alarmTone()
{
    constexpr std::uint32_t dataSize = 2 * notes * samplesPerNote;
    std::string wav = "RIFF";
    append(wav, 36 + dataSize, 4);
    wav += "WAVEfmt ";
    append(wav, 16, 4); // size of what follows about the format
    append(wav, 1, 2);  // PCM
    append(wav, 1, 2);  // channels
    append(wav, sampleRate, 4);
    append(wav, sampleRate * 2, 4); // bytes a second
    append(wav, 2, 2);              // bytes a sample
    append(wav, 16, 2);             // bits a sample
    wav += "data";
    append(wav, dataSize, 4);
    const double length = static_cast<double>(samplesPerNote) / sampleRate;
    for (int note = 0; note < notes; ++note) {
        for (int i = 0; i < samplesPerNote; ++i) {
            const double time = static_cast<double>(i) / sampleRate;
            const double level = peak * sample(note % 2 ? lowNote : highNote, time, length);
            append(wav, static_cast<std::uint32_t>(std::lround(level * 32767)), 2);
        }
    }
    return wav;
}

} // namespace korvel
