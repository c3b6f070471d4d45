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
