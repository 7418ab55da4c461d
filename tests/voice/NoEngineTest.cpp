#include <korvane/voice/SpeechEngine.h>

#include <gtest/gtest.h>

namespace Korvane::voice {
namespace {

/// In place of everything that is spoken to an engine.
TEST(SpeechHeard, NeedsAnEngine) {
    EXPECT_EQ(current(), nullptr);
    EXPECT_EQ(whyAbsent(), "Voice is not there: this build has no speech engine.");
    GTEST_SKIP() << whyAbsent();
}

} // namespace
} // namespace Korvane::voice
