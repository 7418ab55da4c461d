#pragma once

#include <korvane/ado/Cursor.h>

#include <cstddef>
#include <string_view>
#include <vector>

namespace Korvane::ado {

/// The columns of a result, found by name without regard to case.
class ResultColumns {
  public:
    explicit ResultColumns(std::vector<ColumnInfo> columns);
    const std::vector<ColumnInfo>& all() const { return mColumns; }
    /// -1 when there is none of that name; of several the one spelled so, else the first.
    int indexOf(std::string_view name) const;

  private:
    std::size_t slotOf(std::string_view name) const;
    std::vector<ColumnInfo> mColumns;
    std::vector<int> mSlots; ///< open addressing; -1 is free
    bool mHasTwins = false;  ///< names that differ in case only
};

} // namespace Korvane::ado
