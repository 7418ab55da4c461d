#pragma once

#include "Place.h"
#include "Size.h"

#include <benchmark/benchmark.h>

#include <algorithm>
#include <map>
#include <string>

namespace Korvane::Bench {

/// Calls `measure(place, size)` for every size of a file, and for those that are measured on a server at each
/// distance of it.
template <typename Measure>
void forEachDatabase(Measure&& measure) {
    for (const Size& size : sizes)
        measure(file, size);
    if (!hasServer()) return;
    for (const Place& place : serverPlaces)
        for (const Size& size : serverSizes)
            measure(place, size);
}

/// What stays open through all repetitions, as it does through a day; made from the address of its database.
template <typename Kept>
Kept& keptOn(const std::string& address) {
    static std::map<std::string, Kept> kept;
    return kept.try_emplace(address, address).first->second;
}

/// Registers "<work><place>/<size>/<by>". Where a server or a line does part of the work the clock on the
/// wall counts.
template <typename Run>
auto* measure(const std::string& work, const Place& place, const Size& size, const char* by, Run run) {
    const std::string name = work + place.suffix + "/" + size.name() + "/" + by;
    auto* registered = benchmark::RegisterBenchmark(name.c_str(), run, place, size);
    if (place.onServer) registered->UseRealTime();
    return registered;
}

/// Keeps the greatest number of round trips that one run of some work has made.
class Trips {
  public:
    explicit Trips(const Place& place) : mPlace(place) {}

    void begin() { mBegun = tripsTo(mPlace); }
    void end() { mMost = std::max(mMost, tripsTo(mPlace) - mBegun); }
    void report(benchmark::State& state) const {
        if (mMost > 0) state.counters["trips"] = static_cast<double>(mMost);
    }

  private:
    Place mPlace;
    std::size_t mBegun = 0;
    std::size_t mMost = 0;
};

} // namespace Korvane::Bench
