#pragma once

#include "support/ScratchSchema.h"

#include <optional>
#include <string>

namespace Korvane::Testing {

/// An empty database of its own, which goes away with the test: a file, or, when KORVANE_TEST_ENGINE is
/// "postgresql", a schema on the server that the tests are given. Without that server all tests are skipped.
class ScratchDatabase {
  public:
    /// Whether the tests run on a server now.
    static bool onServer();

    explicit ScratchDatabase(const std::string& file);
    std::string address() const;

  private:
    std::string mFile;
    std::optional<ScratchSchema> mSchema;
};

} // namespace Korvane::Testing
