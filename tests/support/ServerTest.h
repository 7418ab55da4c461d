#pragma once

#include "support/NativeHandle.h"
#include "support/ScratchSchema.h"

#include <korvane/ado/Connection.h>

#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <string>

namespace Korvane::Testing {

/// A test that needs the throw-away server: it has a schema there, and is skipped without it.
class ServerTest : public testing::Test {
  protected:
    void SetUp() final {
        if (!ScratchSchema::hasServer()) GTEST_SKIP() << ScratchSchema::noServer;
        mSchema.emplace();
        prepare();
    }
    /// What the tests begin with.
    virtual void prepare() {}

    std::shared_ptr<ado::Connection> connect(const std::string& options = {}) const {
        return ado::open(mSchema->address(options));
    }

    std::optional<ScratchSchema> mSchema;
};

/// One with another program's handle beside the connection.
class SharedServerTest : public ServerTest {
  protected:
    void prepare() override {
        mOther.emplace(mSchema->address());
        mDb = connect();
    }

    std::optional<NativeHandle> mOther;
    std::shared_ptr<ado::Connection> mDb;
};

} // namespace Korvane::Testing
