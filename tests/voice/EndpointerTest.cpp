#include <korvane/voice/Endpointer.h>

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <string>

namespace Korvane::voice {
namespace {

/// Frames of noise: "." as quiet as the room, "#" as loud as speech, "+" between.
std::string tellAll(Endpointer& endpointer, const std::string& frames) {
    static std::mt19937 chance(1);
    std::string told;
    for (const char c : frames) {
        std::normal_distribution<double> noise(0, c == '#' ? 3000 : c == '+' ? 90 : 30);
        std::array<std::int16_t, Endpointer::frame> frame;
        for (auto& sample : frame)
            sample = static_cast<std::int16_t>(noise(chance));
        switch (endpointer.push(frame)) {
        case Endpointer::Pausing:
            told += endpointer.isClear() ? 'P' : 'p';
            break;
        case Endpointer::Over:
            told += 'O';
            break;
        case Endpointer::TooLong:
            told += 'L';
            break;
        case Endpointer::Nothing:
            break;
        }
    }
    return told;
}

std::string times(std::size_t count, char c) {
    return std::string(count, c);
}

TEST(Endpointer, FindsWhereSomethingWasSaid) {
    const auto room = times(50, '.');
    const struct {
        const char* what;
        std::string frames, told;
    } cases[] = {
        {"a word", room + times(40, '#') + room, "PO"},
        {"two words with a short rest", room + times(30, '#') + times(15, '.') + times(30, '#') + room,
         "PPO"},
        {"two sentences", room + times(30, '#') + times(40, '.') + times(30, '#') + room, "POPO"},
        {"a click", room + times(3, '#') + room, ""},
        {"a cough too short for a word", room + times(6, '#') + room, ""},
        {"nothing", room + room, ""},
        {"somebody who does not stop", room + times(600, '#') + room, "L"},
        {"a murmur", room + times(40, '+') + room, "pO"},
    };
    for (const auto& c : cases) {
        Endpointer endpointer;
        EXPECT_EQ(tellAll(endpointer, c.frames), c.told) << c.what;
    }
}

TEST(Endpointer, KeepsTheSoundBeforeAWordAndForgetsWhatIsDropped) {
    Endpointer endpointer;
    EXPECT_EQ(tellAll(endpointer, times(100, '.') + times(40, '#') + times(13, '.')), "P");
    EXPECT_EQ(endpointer.said().size(), (Endpointer::before - 3 + 40 + 13) * Endpointer::frame)
        << "a quarter of a second before the word up to now";
    endpointer.drop();
    EXPECT_EQ(tellAll(endpointer, times(20, '#') + times(30, '.')), "L")
        << "the rest of it is not a word of its own";
    EXPECT_EQ(tellAll(endpointer, times(40, '#') + times(30, '.')), "PO");
}

} // namespace
} // namespace Korvane::voice
