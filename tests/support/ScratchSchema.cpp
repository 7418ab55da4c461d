#include "support/ScratchSchema.h"

#include <korvane/ado/Connection.h>
#include <korvane/runtime/RuntimeError.h>

#include <unistd.h>

#include <cstdlib>
#include <iostream>

namespace Korvane::Testing {

namespace {

std::string server() {
    const char* address = std::getenv("KORVANE_TEST_POSTGRES");
    return address ? address : "";
}

} // namespace

bool ScratchSchema::hasServer() {
    return !server().empty();
}

ScratchSchema::ScratchSchema() {
    static int last = 0;
    mName = "korvane_test_" + std::to_string(::getpid()) + "_" + std::to_string(++last);
    ado::open(server())->Execute("Create Schema " + mName);
}

ScratchSchema::~ScratchSchema() {
    try {
        ado::open(server())->Execute("Drop Schema " + mName + " Cascade");
    } catch (const RuntimeError& error) {
        std::cerr << error.Description() << "\n"; // the server goes away with everything that is left on it
    }
}

std::string ScratchSchema::address(const std::string& options) const {
    const char* mark = server().find('?') == std::string::npos ? "?" : "&";
    return server() + mark + "options=-csearch_path%3D" + mName + (options.empty() ? "" : "&" + options);
}

} // namespace Korvane::Testing
