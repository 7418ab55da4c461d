#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::Bench {

/// The texts of a result, kept from one run to the next, so that a copy needs no memory of its own.
class KeptCells {
  public:
    void rewind() { mUsed = 0; }
    /// Makes room for a row.
    void expect(int cells) {
        const std::size_t needed = mUsed + static_cast<std::size_t>(cells);
        if (mCells.size() < needed) mCells.resize(needed);
    }
    const std::string& first() const { return mCells.front(); }
    void keep(std::string_view cell) { mCells[mUsed++].assign(cell); }

  private:
    std::vector<std::string> mCells;
    std::size_t mUsed = 0;
};

} // namespace Korvane::Bench
