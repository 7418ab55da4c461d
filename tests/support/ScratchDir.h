#pragma once

#include <korvane/runtime/App.h>

#include <stdlib.h>

#include <cerrno>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <string_view>
#include <system_error>

namespace Korvane::Testing {

/// A directory of its own, removed with everything in it at the end.
///
///     ScratchDir dir;                          // or: ScratchDir dir(ScratchDir::AsAppPath);
///     auto database = dir.file("clinic.db");
///     EXPECT_THAT(dir.read("ERR.txt"), HasSubstr("overflow"));
class ScratchDir {
  public:
    enum Use { Plain, AsAppPath };

    /// With AsAppPath, App::Path() is this directory for as long as it lives, and the default again
    /// afterwards.
    explicit ScratchDir(Use use = Plain) : mUse(use) {
        std::string pattern = (std::filesystem::temp_directory_path() / "korvane-XXXXXX").string();
        if (!mkdtemp(pattern.data())) throw std::system_error(errno, std::generic_category(), pattern);
        mPath = pattern;
        if (mUse == AsAppPath) App::Path(mPath.string());
    }

    ~ScratchDir() {
        if (mUse == AsAppPath) App::Path("");
        std::error_code ignored;
        std::filesystem::remove_all(mPath, ignored);
    }

    ScratchDir(const ScratchDir&) = delete;
    ScratchDir& operator=(const ScratchDir&) = delete;

    const std::filesystem::path& path() const { return mPath; }
    std::string file(std::string_view name) const { return (mPath / name).string(); }
    bool has(std::string_view name) const { return std::filesystem::exists(mPath / name); }

    /// The whole content of a file in it; empty when there is no such file.
    std::string read(std::string_view name) const {
        std::ifstream in(mPath / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(in), {}};
    }

  private:
    Use mUse;
    std::filesystem::path mPath;
};

} // namespace Korvane::Testing
