#pragma once

#include <string>

namespace Korvane::Testing {

/// An empty schema of its own on the throw-away server that `./test` starts, dropped at the end.
/// KORVANE_TEST_POSTGRES holds that server's address.
///
///     if (!ScratchSchema::hasServer()) GTEST_SKIP() << ScratchSchema::noServer;
///     ScratchSchema schema;
///     auto db = ado::open(schema.address());
class ScratchSchema {
  public:
    static constexpr const char* noServer =
        "there is no PostgreSQL server (KORVANE_TEST_POSTGRES is not set)";
    static bool hasServer();

    ScratchSchema();
    ~ScratchSchema();
    ScratchSchema(const ScratchSchema&) = delete;
    ScratchSchema& operator=(const ScratchSchema&) = delete;

    /// Of the schema; with more options behind it ("statement_timeout=100") where they are given.
    std::string address(const std::string& options = {}) const;
    const std::string& name() const { return mName; }

  private:
    std::string mName;
};

} // namespace Korvane::Testing
