#pragma once

#include <korvane/runtime/Date.h>

#include <functional>

namespace Korvane {

/// The one place that reads the time. Local time, whole seconds.
///
///     Clock::set([] { return Date::of(2026, 11, 15, 17, 21, 51); });   // in a test or a demonstration
///     Clock::set(nullptr);                                            // the system's clock again
class Clock {
  public:
    /// What tells the time.
    using Source = std::function<Date()>;

    static Date now();
    static void set(Source source);
};

} // namespace Korvane
