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

    /// The current local time, or what the source says that was set.
    static Date now();
    /// For the whole process; null goes back to the system's clock.
    static void set(Source source);
};

} // namespace Korvane
