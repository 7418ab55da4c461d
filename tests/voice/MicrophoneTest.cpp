#include <korvane/runtime/RuntimeError.h>
#include <korvane/voice/microphone/Microphone.h>

#ifdef KORVANE_HAS_MICROPHONE
#include <QCoreApplication>
#endif

#include <gtest/gtest.h>

namespace Korvane::voice {
namespace {

TEST(Microphone, SaysThatItIsMissing) {
#ifdef KORVANE_HAS_MICROPHONE
    int argc = 0;
    const QCoreApplication app(argc, nullptr);
#endif
    Microphone microphone("a device that nobody has");
    try {
        microphone.Start();
        FAIL() << "sound out of nothing";
    } catch (const RuntimeError& e) {
        EXPECT_EQ(e.Number(), RuntimeError::DeviceIo);
        EXPECT_NE(e.Description().find("found"), std::string::npos) << e.Description();
    }
    microphone.Stop();
}

} // namespace
} // namespace Korvane::voice
