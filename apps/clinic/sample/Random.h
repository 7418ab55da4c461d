#pragma once

#include <cstddef>
#include <cstdint>
#include <random>

namespace Clinic {

/// The same numbers on every machine and with every standard library: the engine is exactly defined, the
/// distributions of the standard library are not.
///
///     Random random(7);
///     random.between(60, 100);
class Random {
  public:
    explicit Random(std::uint64_t seed) : mEngine(seed) {}

    /// 0 to count - 1.
    std::size_t below(std::size_t count) { return static_cast<std::size_t>(mEngine() % count); }
    /// Both ends included.
    int between(int low, int high) {
        return low + static_cast<int>(below(static_cast<std::size_t>(high - low) + 1));
    }
    bool chance(int percent) { return between(1, 100) <= percent; }

    template <typename List>
    const auto& pick(const List& list) {
        return list[below(list.size())];
    }

  private:
    std::mt19937_64 mEngine;
};

} // namespace Clinic
