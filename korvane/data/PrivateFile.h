#pragma once

#include <string>
#include <string_view>
#include <system_error>

namespace Korvane {

/// A text file that is only appended to, created readable for its owner alone (mode 0600; the mode of a file
/// that is there already is left as it is). Nothing is kept back in memory: what `append` accepted has been
/// handed to the system.
///
///     PrivateFile log;
///     if (!log.open(path)) log.append("started\n");
///
/// Nothing is raised; every member that can fail tells why, and a false error code is success.
class PrivateFile {
  public:
    PrivateFile() = default;
    ~PrivateFile() { close(); }
    PrivateFile(const PrivateFile&) = delete;
    PrivateFile& operator=(const PrivateFile&) = delete;

    /// Opens or creates the file; one that was open before is closed first.
    std::error_code open(const std::string& path);
    /// bad_file_descriptor while no file is open.
    std::error_code append(std::string_view text);
    void close();

  private:
    int mDescriptor = -1;
};

/// Appends to the file `name` in `App::Path()`. Any failure is swallowed: it is used to tell of failures.
void appendToAppFile(std::string_view name, std::string_view text) noexcept;

} // namespace Korvane
