#include <korvane/data/ErrLog.h>

#include "support/ScratchDir.h"
#include "support/StoppedClock.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace fs = std::filesystem;
using namespace Korvane;
using Korvane::Testing::ScratchDir;
using Korvane::Testing::StoppedClock;

TEST(ErrLog, AppendsStampedLinesToAFileOfItsOwner) {
    StoppedClock clock;
    ScratchDir dir(ScratchDir::AsAppPath);
    ErrLog("first");
    ErrLog("");
    EXPECT_EQ(dir.read("ERR.txt"), "11/15/2026 5:21:51 PM first\n11/15/2026 5:21:51 PM \n");
    EXPECT_EQ(fs::status(dir.file("ERR.txt")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST(ErrLog, IsSilentWhenItCannotWrite) {
    ScratchDir dir(ScratchDir::AsAppPath);
    fs::create_directory(dir.file("ERR.txt"));
    EXPECT_NO_THROW(ErrLog("lost"));
    App::Path(dir.file("nowhere"));
    EXPECT_NO_THROW(ErrLog("lost"));
    EXPECT_FALSE(dir.has("nowhere"));
}

TEST(ErrLog, GuardsARoutineAgainstEveryKindOfException) {
    StoppedClock clock(Date::of(2026, 1, 2));
    ScratchDir dir(ScratchDir::AsAppPath);
    EXPECT_EQ(guarded("Error in A: ", 0, [] { return 7; }), 7);
    EXPECT_EQ(guarded("Error in B: ", -1, []() -> int { throw RuntimeError(5, "no such place"); }), -1);
    EXPECT_EQ(guarded("Error in C: ", -2, []() -> int { throw std::logic_error("odd"); }), -2);
    EXPECT_EQ(dir.read("ERR.txt"), "1/2/2026 Error in B: no such place\n1/2/2026 Error in C: odd\n");
}
