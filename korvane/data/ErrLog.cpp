#include <korvane/data/ErrLog.h>

#include <korvane/data/PrivateFile.h>
#include <korvane/runtime/Clock.h>

namespace Korvane {

void ErrLog(std::string_view message) {
    try {
        appendToAppFile("ERR.txt", Clock::now().text() + " " + std::string(message) + "\n");
    } catch (...) {
        // Whoever logs is already dealing with a failure.
    }
}

} // namespace Korvane
