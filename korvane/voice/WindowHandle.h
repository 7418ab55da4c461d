#pragma once

#include <cstdint>

namespace Korvane::voice {

/// Names the window that a menu belongs to: any number that its owner keeps apart from those of other
/// windows, the address of the widget for instance. 0 is no window.
using WindowHandle = std::uintptr_t;

} // namespace Korvane::voice
