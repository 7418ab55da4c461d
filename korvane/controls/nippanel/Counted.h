#pragma once

#include <cstdint>

namespace Korvane {

/// The indexes 1 to `count` of groups or fields. A loop that counts in 16 bits itself never ends at 32767.
///
///     for (const std::int16_t group : CountedFrom1(nip.GroupCount())) ...
class CountedFrom1 {
  public:
    /// A number counted upwards.
    struct Iterator {
        int index;
        std::int16_t operator*() const { return static_cast<std::int16_t>(index); }
        Iterator& operator++() { return ++index, *this; }
        bool operator==(const Iterator&) const = default;
    };

    explicit CountedFrom1(std::int16_t count) : mEnd{count < 0 ? 1 : count + 1} {}
    Iterator begin() const { return {1}; }
    Iterator end() const { return mEnd; }

  private:
    Iterator mEnd;
};

} // namespace Korvane
