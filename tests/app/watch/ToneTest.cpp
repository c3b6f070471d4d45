// SPDX-License-Identifier: MIT
#include "app/watch/Tone.h"

#include <gtest/gtest.h>

#include <cmath>
#include <cstdint>

namespace korvel
{
namespace
{

class Wav
{
public:
    explicit Wav(std::string bytes) : m_bytes(std::move(bytes)) {}

    std::string text(std::size_t at) const { return m_bytes.substr(at, 4); }
    std::uint32_t number(std::size_t at, int size) const
    {
        std::uint32_t value = 0;
        for (int i = size; i-- > 0;)
            value = value << 8 | static_cast<unsigned char>(m_bytes[at + std::size_t(i)]);
        return value;
    }
    std::size_t size() const { return m_bytes.size(); }
    std::size_t samples() const { return (m_bytes.size() - 44) / 2; }
    int sample(std::size_t i) const { return static_cast<std::int16_t>(number(44 + 2 * i, 2)); }

private:
    std::string m_bytes;
};

TEST(Tone, isAWavFileThatPlayersTake)
{
    const Wav wav(alarmTone());
    EXPECT_EQ(wav.text(0) + wav.text(8) + wav.text(12) + wav.text(36), "RIFFWAVEfmt data");
    EXPECT_EQ(wav.number(4, 4), wav.size() - 8);
    EXPECT_EQ(wav.number(40, 4), wav.size() - 44);
    EXPECT_EQ(wav.number(20, 2), 1u) << "PCM";
    EXPECT_EQ(wav.number(28, 4), wav.number(24, 4) * wav.number(32, 2)) << "bytes a second";
    EXPECT_EQ(wav.number(32, 2) * 8, wav.number(34, 2) * wav.number(22, 2)) << "bits a sample";
}

// Six notes of a quarter of a second, 1319 and 988 Hz in turn. A note's greatest level is 0.8 of
// full scale times 0.707 of the wave; it falls to half of that to its end, fading in and out in
// 12 ms.
TEST(Tone, hasItsNotesAndTheirShape)
{
    const Wav wav(alarmTone());
    EXPECT_EQ(wav.number(16, 4), 16u);
    EXPECT_EQ(wav.number(22, 2), 1u) << "channels";
    EXPECT_EQ(wav.number(24, 4), 22050u);
    EXPECT_EQ(wav.number(34, 2), 16u);
    const std::size_t length = wav.samples() / 6;
    const auto loudest = [&](std::size_t note, double from, double to) {
        int most = 0;
        for (auto i = static_cast<std::size_t>(from * 22050); i < std::size_t(to * 22050); ++i)
            most = std::max(most, std::abs(wav.sample(note * length + i)));
        return most;
    };
    const auto power = [&](std::size_t note, double from, double to) {
        double sum = 0;
        for (auto i = static_cast<std::size_t>(from * 22050); i < std::size_t(to * 22050); ++i)
            sum += std::pow(wav.sample(note * length + i), 2);
        return sum;
    };
    for (std::size_t note = 0; note < 6; ++note) {
        int crossings = 0;
        for (std::size_t i = 1; i < length; ++i)
            crossings +=
                (wav.sample(note * length + i) < 0) != (wav.sample(note * length + i - 1) < 0);
        EXPECT_NEAR(crossings, note % 2 == 0 ? 659 : 494, 3) << note;
        EXPECT_NEAR(loudest(note, 0, 0.25), 18100, 300);
        EXPECT_NEAR(loudest(note, 0.2, 0.21), 11100, 200);
        // The power of a level that grows evenly is a third of that of the full one; the note's
        // own fading makes a little of that.
        EXPECT_NEAR(power(note, 0, 0.012) / power(note, 0.012, 0.024), 0.346, 0.025);
        EXPECT_NEAR(power(note, 0.238, 0.25) / power(note, 0.226, 0.238), 0.311, 0.025);
    }
}

TEST(Tone, isLoudWithoutClippingAndDoesNotCrack)
{
    const Wav wav(alarmTone());
    int loudest = 0;
    int steepest = 0;
    double energy = 0;
    for (std::size_t i = 1; i < wav.samples(); ++i) {
        loudest = std::max(loudest, std::abs(wav.sample(i)));
        steepest = std::max(steepest, std::abs(wav.sample(i) - wav.sample(i - 1)));
        energy += std::pow(wav.sample(i) / 32768.0, 2);
    }
    EXPECT_GT(loudest, 16000);
    EXPECT_LT(loudest, 32000);
    EXPECT_GT(std::sqrt(energy / double(wav.samples())), 0.2) << "must be heard";
    EXPECT_LT(steepest, 20000) << "a jump is heard as a crack";
    EXPECT_LT(std::abs(wav.sample(0)) + std::abs(wav.sample(wav.samples() - 1)), 500);
    EXPECT_NEAR(double(wav.samples()) / wav.number(24, 4), 1.5, 0.01);
}

} // namespace
} // namespace korvel
