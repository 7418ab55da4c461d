#include <korvane/data/MessageLog.h>

#include "support/RecordingInteraction.h"
#include "support/ScratchDir.h"
#include "support/StoppedClock.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace fs = std::filesystem;
using namespace Korvane;
using namespace Korvane::Testing;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class MessageLog : public ::testing::Test {
  protected:
    ~MessageLog() override { logClose(); }

    StoppedClock clock;
    ScratchDir dir;
    RecordedInteraction user;
    const std::string file = "20261115.LOG";
};

TEST_F(MessageLog, DoesNothingBeforeItIsReady) {
    vLogAdd("Here", "lost", 1);
    EXPECT_FALSE(logReady());
    EXPECT_THAT(user->boxes, IsEmpty());

    EXPECT_FALSE(bLogInit(dir.path(), 0));
    EXPECT_FALSE(bLogInit(dir.path(), 6));
    EXPECT_THAT(lastLogError(), HasSubstr("6"));
    EXPECT_FALSE(dir.has(file));
    EXPECT_FALSE(bLogInit(dir.path() / "nowhere", 3));
    EXPECT_THAT(lastLogError(), HasSubstr("nowhere"));
    EXPECT_FALSE(logReady());
}

TEST_F(MessageLog, WritesByLevelAndShowsTheSevereOnes) {
    ASSERT_TRUE(bLogInit(dir.path(), 4));
    for (const std::int32_t level : {1, 2, 3, 4, 5, 0, 6})
        vLogAdd("Src", "m" + std::to_string(level), level);
    vLogWrite("plain", false);
    const std::string stamp = "261115 17:21:51 Src: ";
    EXPECT_EQ(dir.read(file), stamp + "m1\n" + stamp + "m2\n" + stamp + "m3\n" + stamp + "m4\nplain\n");
    EXPECT_THAT(user->boxes, ElementsAre(ShownBox{"m1", 16, "Src"}, ShownBox{"m2", 0, "Src"},
                                         ShownBox{"Src: m0", 0, "Invalid Message Log Level!"},
                                         ShownBox{"Src: m6", 0, "Invalid Message Log Level!"}));
    EXPECT_EQ(fs::status(dir.file(file)).permissions(), fs::perms::owner_read | fs::perms::owner_write);

    const std::string before = dir.read(file);
    user->clear();
    ASSERT_TRUE(bLogInit(dir.path(), 1));
    vLogAdd("Src", "serious", 2);
    EXPECT_THAT(user->boxes, ElementsAre(ShownBox{"serious", 0, "Src"})) << "shown, and not written";
    EXPECT_EQ(dir.read(file), before);
}

TEST_F(MessageLog, FallsSilentAfterAFailedWriteUntilItIsStartedAgain) {
    fs::create_symlink("/dev/full", dir.file(file));
    ASSERT_TRUE(bLogInit(dir.path(), 5));
    vLogAdd("Src", "lost", 3);
    EXPECT_FALSE(logReady());
    EXPECT_THAT(lastLogError(), StartsWith("failure writing to log file: "));
    vLogAdd("Src", "lost too", 1);
    EXPECT_THAT(user->boxes, IsEmpty());

    fs::remove(dir.file(file));
    ASSERT_TRUE(bLogInit(dir.path(), 5));
    vLogAdd("Src", "kept", 5);
    EXPECT_THAT(dir.read(file), HasSubstr("kept"));
}
