#pragma once

#include <korvane/runtime/RuntimeError.h>

#include <gtest/gtest.h>

#include <functional>

namespace Korvane::Testing {

/// The number of the RuntimeError that an action raises; 0 when it raises none.
inline int errorOf(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error.Number();
    }
    return 0;
}

/// The RuntimeError that an action raises; a failure of the test when it raises none.
inline RuntimeError raised(const std::function<void()>& action) {
    try {
        action();
    } catch (const RuntimeError& error) {
        return error;
    }
    ADD_FAILURE() << "no error";
    return RuntimeError(0, "");
}

} // namespace Korvane::Testing
