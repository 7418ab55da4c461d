#include "support/ScratchDir.h"

#include <korvane/runtime/RuntimeError.h>
#include <korvane/voice/FileSource.h>
#include <korvane/voice/Resampler.h>

#include <gtest/gtest.h>

#include <cmath>
#include <fstream>
#include <numbers>

namespace Korvane::voice {
namespace {

using Sound = std::vector<std::int16_t>;

Sound tone(double frequency, int rate, int channels, double seconds) {
    Sound sound;
    for (int i = 0; i < static_cast<int>(seconds * rate); ++i)
        for (int c = 0; c < channels; ++c)
            sound.push_back(
                static_cast<std::int16_t>(10000 * std::sin(2 * std::numbers::pi * frequency * i / rate)));
    return sound;
}

/// How loud a tone of this frequency is in it.
double loudness(const Sound& sound, double frequency) {
    double s = 0, c = 0;
    for (std::size_t i = 0; i < sound.size(); ++i) {
        const double at = 2 * std::numbers::pi * frequency * static_cast<double>(i) / AudioSource::sampleRate;
        s += sound[i] * std::sin(at);
        c += sound[i] * std::cos(at);
    }
    return 2 * std::hypot(s, c) / static_cast<double>(sound.size());
}

void number(std::string& bytes, unsigned value, int size) {
    for (int i = 0; i < size; ++i)
        bytes += static_cast<char>(value >> (8 * i) & 255);
}

std::string wav(const Sound& sound, unsigned rate, unsigned channels, unsigned bits = 16) {
    std::string bytes = "RIFF....WAVEfmt ";
    number(bytes, 16, 4);
    number(bytes, 1, 2);
    number(bytes, channels, 2);
    number(bytes, rate, 4);
    number(bytes, rate * channels * 2, 4);
    number(bytes, channels * 2, 2);
    number(bytes, bits, 2);
    bytes += "LIST";
    number(bytes, 3, 4);
    bytes += "abc_data"; // a chunk of an odd size is padded
    number(bytes, static_cast<unsigned>(sound.size() * 2), 4);
    for (const auto sample : sound)
        number(bytes, static_cast<std::uint16_t>(sample), 2);
    return bytes;
}

struct SoundFiles : ::testing::Test {
    std::string write(const std::string& name, const std::string& bytes) {
        std::ofstream(dir.path() / name, std::ios::binary) << bytes;
        return dir.file(name);
    }
    Testing::ScratchDir dir;
};

TEST_F(SoundFiles, AreTurnedIntoWhatRecognitionTakes) {
    for (const auto& [rate, channels] :
         {std::pair(16000, 1), {44100, 2}, {48000, 1}, {22050, 1}, {8000, 2}}) {
        const auto sound = readSoundFile(
            write("tone.WAV", wav(tone(1000, rate, channels, 0.5), unsigned(rate), unsigned(channels))));
        EXPECT_NEAR(static_cast<double>(sound.size()), 8000, 60) << rate;
        EXPECT_NEAR(loudness(sound, 1000), 10000, 300) << rate;
    }
    const auto high = readSoundFile(write("high.wav", wav(tone(15000, 48000, 1, 0.5), 48000, 1)));
    EXPECT_LT(loudness(high, 1000), 100) << "a tone above half the rate comes back as a low one";
    const auto stereo = wav(tone(1000, 44100, 2, 0.5), 44100, 2);
    EXPECT_EQ(readSoundFile(write("by another name", stereo)), readSoundFile(write("said.wav", stereo)));
    EXPECT_EQ(readSoundFile(write("two.raw", std::string("\x01\x00\xff\xff", 4))), (Sound{1, -1}));
}

TEST_F(SoundFiles, AreRefusedWithASentence) {
    for (const auto& file : {dir.file("absent.wav"), dir.path().string(), std::string("/dev/zero")})
        EXPECT_THROW(FileSource(file).Start(), RuntimeError) << file;
    EXPECT_THROW(readSoundFile(write("music.ogg", "OggS and so on")), RuntimeError);
    for (const auto& bytes : {std::string(), std::string("RIFF1234WAVE"), std::string("no sound at all"),
                              wav({1, 2}, 16000, 1, 24), wav({1, 2}, 16000, 0), wav({1, 2}, 5, 1),
                              wav({1}, 16000, 1).substr(0, 40)})
        EXPECT_THROW(readSoundFile(write("bad.wav", bytes)), RuntimeError) << bytes.size();
}

TEST(Resampler, GivesTheSameInPiecesOfAnySize) {
    const auto sound = tone(700, 44100, 2, 0.3);
    Resampler whole(44100, 2), pieces(44100, 2);
    const auto expected = whole.convert(sound);
    Sound got;
    for (std::size_t at = 0, size = 1; at < sound.size(); at += size, size = size % 977 + 13) {
        const auto some = pieces.convert(std::span(sound).subspan(at, std::min(size, sound.size() - at)));
        got.insert(got.end(), some.begin(), some.end());
    }
    ASSERT_EQ(got.size(), expected.size());
    for (std::size_t i = 0; i < got.size(); ++i)
        ASSERT_NEAR(got[i], expected[i], 1) << i;
}

} // namespace
} // namespace Korvane::voice
