#include <korvane/runtime/Clock.h>

#include <ctime>
#include <utility>

namespace Korvane {

namespace {

Clock::Source& source() {
    static Clock::Source installed;
    return installed;
}

Date systemTime() {
    const std::time_t seconds = std::time(nullptr);
    std::tm local{};
    localtime_r(&seconds, &local);
    return Date::of(local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min,
                    local.tm_sec);
}

} // namespace

Date Clock::now() {
    return source() ? source()() : systemTime();
}

void Clock::set(Source newSource) {
    source() = std::move(newSource);
}

} // namespace Korvane
