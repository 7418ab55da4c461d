#pragma once

#include <cstdlib>
#include <optional>
#include <string>

namespace Korvane::Testing {

/// Sets an environment variable for as long as it lives.
class Environment {
  public:
    Environment(const char* name, const std::string& value) : mName(name) {
        if (const char* before = std::getenv(name)) mBefore = before;
        ::setenv(name, value.c_str(), 1);
    }
    ~Environment() { mBefore ? ::setenv(mName, mBefore->c_str(), 1) : ::unsetenv(mName); }
    Environment(const Environment&) = delete;
    Environment& operator=(const Environment&) = delete;

  private:
    const char* mName;
    std::optional<std::string> mBefore;
};

} // namespace Korvane::Testing
