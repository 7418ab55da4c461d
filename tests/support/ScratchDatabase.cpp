#include "support/ScratchDatabase.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <string_view>

namespace Korvane::Testing {

namespace {

// Skips everything when the server that the tests shall run on is not there.
class NeedsServer : public testing::Environment {
    void SetUp() override {
        if (ScratchDatabase::onServer() && !ScratchSchema::hasServer())
            GTEST_SKIP() << "[  SKIPPED ] " << ScratchSchema::noServer;
    }
};

[[maybe_unused]] const auto* const needsServer = testing::AddGlobalTestEnvironment(new NeedsServer);

} // namespace

bool ScratchDatabase::onServer() {
    const char* engine = std::getenv("KORVANE_TEST_ENGINE");
    return engine && std::string_view(engine) == "postgresql";
}

ScratchDatabase::ScratchDatabase(const std::string& file) : mFile(file) {
    if (onServer()) mSchema.emplace();
}

std::string ScratchDatabase::address() const {
    return mSchema ? mSchema->address() : "sqlite:" + mFile;
}

} // namespace Korvane::Testing
