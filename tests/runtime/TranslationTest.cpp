#include <korvane/runtime/Translation.h>

#include <korvane/runtime/RuntimeError.h>

#include <gtest/gtest.h>

#include <stdexcept>

namespace Korvane {
namespace {

TEST(Translation, LeavesATextAsItIsUntilATranslatorIsInstalledAndAfterOneThatFails) {
    EXPECT_EQ(translate("Korvane::RuntimeError", "Overflow"), "Overflow");

    EXPECT_FALSE(installTranslator([](const char* context, const char* text) -> std::string {
        if (std::string_view(text) != "Overflow") throw std::runtime_error("not known");
        return std::string(context) + "/Überlauf";
    }));
    EXPECT_EQ(RuntimeError(RuntimeError::Overflow).Description(), "Korvane::RuntimeError/Überlauf");
    EXPECT_EQ(RuntimeError(RuntimeError::DiskFull).Description(), "Disk full");

    EXPECT_TRUE(installTranslator({}));
    EXPECT_EQ(RuntimeError(RuntimeError::Overflow).Description(), "Overflow");
}

TEST(Translation, FillsThePlacesOfATextInTheOrderThatItNamesThem) {
    EXPECT_EQ(filled("%1 of %2", {"3", "7"}), "3 of 7");
    EXPECT_EQ(filled("von %2: %1, %1", {"3", "7"}), "von 7: 3, 3");
    EXPECT_EQ(filled("\"%1\" and %2", {"100 %2", "%1"}), "\"100 %2\" and %1");
    EXPECT_EQ(filled("%3, 5 % of %1%", {"all"}), "%3, 5 % of all%");
}

} // namespace
} // namespace Korvane
