#include "voice/Ear.h"

#include <korvane/runtime/RuntimeError.h>

#include <gtest/gtest.h>

namespace Korvane::voice {
namespace {

using Testing::Ear;
using Heard = std::vector<std::string>;

class SpeechHeard : public ::testing::Test {
  protected:
    void SetUp() override {
        if (!Testing::canSpeak()) GTEST_SKIP() << "espeak-ng or sox is missing";
        try {
            ear = std::make_unique<Ear>();
        } catch (const RuntimeError& e) {
            GTEST_SKIP() << e.Description();
        }
    }

    Testing::Sound said(const std::string& words) {
        return Testing::amid(Testing::speak({"en-us", 150, 50}, words), "", 0, chance);
    }

    std::mt19937 chance{1};
    std::unique_ptr<Ear> ear;
};

TEST_F(SpeechHeard, IsGivenToTheMenuWhileItsWindowHasTheFocus) {
    EXPECT_EQ(ear->hear(said("next field")), Heard{"1"});
    EXPECT_EQ(ear->hear(said("previous field")), Heard{"2"});
    ear->engine->WindowFocus(Ear::window, false);
    EXPECT_EQ(ear->hear(said("next field")), Heard{});
    ear->engine->WindowFocus(Ear::window, true);
    ear->menu->Activate(false);
    EXPECT_EQ(ear->hear(said("next field")), Heard{});
}

} // namespace
} // namespace Korvane::voice
