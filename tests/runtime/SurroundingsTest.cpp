#include <korvane/runtime/App.h>
#include <korvane/runtime/Interaction.h>
#include <korvane/runtime/RuntimeError.h>

#include "support/Environment.h"
#include "support/ScratchDir.h"

#include <gtest/gtest.h>

#include <functional>
#include <new>

using namespace Korvane;
using namespace Korvane::Testing;

namespace fs = std::filesystem;

namespace {

RuntimeError caught(const std::function<void()>& action) {
    try {
        action();
    } catch (...) {
        return currentError();
    }
    return RuntimeError(0);
}

} // namespace

TEST(App, MakesItsDefaultDirectoryForItsOwnerAlone) {
    ScratchDir scratch;
    const Environment state("XDG_STATE_HOME", scratch.file("state"));
    App::Path("");
    EXPECT_EQ(App::Path(), scratch.file("state/korvane"));
    EXPECT_EQ(fs::status(App::Path()).permissions(), fs::perms::owner_all);
    App::Path("");
}

TEST(App, FallsBackWhereTheDirectoryCannotBeMade) {
    ScratchDir scratch;
    std::ofstream(scratch.file("file")) << "in the way";
    const Environment state("XDG_STATE_HOME", "relative");
    const Environment home("HOME", scratch.file("file"));
    const Environment temporary("TMPDIR", scratch.path().string());
    App::Path("");
    EXPECT_EQ(fs::path(App::Path()).parent_path(), scratch.path());
    App::Path("");
}

TEST(App, TakesTheDirectoryOfTheHost) {
    ScratchDir scratch(ScratchDir::AsAppPath);
    EXPECT_EQ(App::Path(), scratch.path().string());
    EXPECT_EQ(App::FileDescription(), "Korvane data-entry library");
}

TEST(Interaction, TheDefaultWritesToStandardErrorAndAnswersForNobody) {
    const auto before = Interaction::install(nullptr);
    Interaction& standard = Interaction::current();
    testing::internal::CaptureStderr();
    EXPECT_EQ(standard.MsgBox("Saved", MsgBoxStyle::OkOnly | MsgBoxStyle::Information, ""), Answer::Ok);
    EXPECT_EQ(standard.MsgBox("Go?", MsgBoxStyle::OkCancel | MsgBoxStyle::Exclamation, ""), Answer::Cancel);
    EXPECT_EQ(standard.MsgBox("Delete?", MsgBoxStyle::YesNo | MsgBoxStyle::Question, "Nip"), Answer::No);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "Saved\nGo?\nNip: Delete?\n");
    EXPECT_EQ(standard.InputBox("Name?", "Nip"), std::nullopt);
    Interaction::install(before);
}

TEST(RuntimeError, TellsWhatAnyExceptionSays) {
    const auto own = caught([] { throw RuntimeError(RuntimeError::DatabaseFailure, "disk I/O error", 10); });
    EXPECT_EQ(own.Number(), RuntimeError::DatabaseFailure);
    EXPECT_EQ(own.Description(), "disk I/O error");
    EXPECT_EQ(own.NativeCode(), 10);
    EXPECT_EQ(caught([] { throw std::bad_alloc(); }).Number(), RuntimeError::OutOfMemory);
    EXPECT_EQ(caught([] { throw std::logic_error("odd"); }).Description(), "odd");
    EXPECT_EQ(caught([] { throw 42; }).Number(), RuntimeError::InvalidProcedureCall);
    EXPECT_EQ(RuntimeError(RuntimeError::TypeMismatch).Description(), "Type mismatch");
}
