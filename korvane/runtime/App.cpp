#include <korvane/runtime/App.h>

#include <korvane/runtime/Translation.h>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <optional>
#include <system_error>
#include <vector>

namespace Korvane {

namespace {

namespace fs = std::filesystem;

std::string& chosenPath() {
    static std::string path;
    return path;
}

/// An environment variable that holds an absolute path; a relative one would depend on where we were started.
std::optional<fs::path> directoryIn(const char* variable) {
    const char* value = std::getenv(variable);
    if (!value || !fs::path(value).is_absolute()) return std::nullopt;
    return fs::path(value);
}

std::vector<fs::path> candidates() {
    std::vector<fs::path> paths;
    if (const auto state = directoryIn("XDG_STATE_HOME")) paths.push_back(*state / "korvane");
    if (const auto home = directoryIn("HOME")) paths.push_back(*home / ".local/state/korvane");
    std::error_code failed;
    const fs::path temporary = fs::temp_directory_path(failed);
    if (!failed) paths.push_back(temporary / ("korvane-" + std::to_string(geteuid())));
    return paths;
}

/// Makes the directory if need be. One that belongs to somebody else does not count: a name in a directory
/// that all may write could have been put there to read our logs.
bool makeOwn(const fs::path& directory) {
    std::error_code ignored;
    fs::create_directories(directory.parent_path(), ignored);
    mkdir(directory.c_str(), S_IRWXU);
    struct stat found {};
    return lstat(directory.c_str(), &found) == 0 && S_ISDIR(found.st_mode) && found.st_uid == geteuid() &&
           access(directory.c_str(), W_OK | X_OK) == 0;
}

std::string defaultPath() {
    for (const fs::path& directory : candidates()) {
        if (makeOwn(directory)) return directory.string();
    }
    return fs::current_path().string();
}

} // namespace

std::string App::Path() {
    if (chosenPath().empty()) chosenPath() = defaultPath();
    return chosenPath();
}

void App::Path(std::string_view directory) {
    chosenPath() = directory;
}

std::string App::FileDescription() {
    return translate("Korvane::runtime", "Korvane data-entry library");
}

} // namespace Korvane
