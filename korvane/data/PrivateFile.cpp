#include <korvane/data/PrivateFile.h>

#include <korvane/runtime/App.h>

#include <cerrno>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace Korvane {

namespace {

std::error_code lastError() {
    return {errno, std::generic_category()};
}

} // namespace

std::error_code PrivateFile::open(const std::string& path) {
    close();
    do {
        mDescriptor = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, S_IRUSR | S_IWUSR);
    } while (mDescriptor < 0 && errno == EINTR);
    return mDescriptor < 0 ? lastError() : std::error_code();
}

std::error_code PrivateFile::append(std::string_view text) {
    while (!text.empty()) {
        const ssize_t written = ::write(mDescriptor, text.data(), text.size());
        if (written >= 0)
            text.remove_prefix(static_cast<std::size_t>(written));
        else if (errno != EINTR)
            return lastError();
    }
    return {};
}

void PrivateFile::close() {
    if (mDescriptor >= 0) ::close(mDescriptor);
    mDescriptor = -1;
}

void appendToAppFile(std::string_view name, std::string_view text) noexcept {
    try {
        PrivateFile file;
        if (!file.open(App::Path() + "/" + std::string(name))) file.append(text);
    } catch (...) {
    }
}

} // namespace Korvane
