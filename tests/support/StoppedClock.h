#pragma once

#include <korvane/runtime/Clock.h>

namespace Korvane::Testing {

/// Stops the clock at 15 November 2026 5:21:51 PM, or at the moment given, for as long as it lives.
class StoppedClock {
  public:
    explicit StoppedClock(Date moment = Date::of(2026, 11, 15, 17, 21, 51)) {
        Clock::set([moment] { return moment; });
    }
    ~StoppedClock() { Clock::set(nullptr); }
    StoppedClock(const StoppedClock&) = delete;
    StoppedClock& operator=(const StoppedClock&) = delete;
};

} // namespace Korvane::Testing
