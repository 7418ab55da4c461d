#include "support/ScratchDatabase.h"

#ifdef KORVANE_HAS_POSTGRES
#include <korvane/ado/postgres/PostgresConnection.h>
#endif
#include <korvane/ado/sqlite/SqliteConnection.h>

#include <gtest/gtest.h>

#include <chrono>
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

void ScratchDatabase::waitBriefly(ado::Connection& connection) {
#ifdef KORVANE_HAS_POSTGRES
    if (onServer()) return ado::postgres::setLimits(connection, {.statement = std::chrono::milliseconds(50)});
#endif
    ado::sqlite::setBusyTimeout(connection, std::chrono::milliseconds(20));
}

} // namespace Korvane::Testing
