#include <korvane/controls/nippanel/Routine.h>

#include <korvane/data/ErrLog.h>
#include <korvane/runtime/RuntimeError.h>

#include <string>

namespace Korvane {

void logFailure(std::string_view prefix) {
    const RuntimeError error = currentError();
    ErrLog(std::string(prefix) + std::to_string(error.Number()) + ":" + error.Description() + " on line 0");
}

} // namespace Korvane
