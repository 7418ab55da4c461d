#include <korvane/ado/ResultColumns.h>

#include <korvane/runtime/Text.h>

#include <algorithm>
#include <bit>
#include <utility>

namespace Korvane::ado {

ResultColumns::ResultColumns(std::vector<ColumnInfo> columns)
    : mColumns(std::move(columns)), mSlots(std::bit_ceil(mColumns.size() * 2 + 1), -1) {
    for (std::size_t i = 0; i < mColumns.size(); ++i) {
        const std::size_t slot = slotOf(mColumns[i].name);
        if (mSlots[slot] < 0)
            mSlots[slot] = static_cast<int>(i);
        else
            mHasTwins = true;
    }
}

// The slot that holds the name, or the free one where it would be.
std::size_t ResultColumns::slotOf(std::string_view name) const {
    const std::size_t mask = mSlots.size() - 1;
    std::size_t slot = nameHash(name) & mask;
    while (mSlots[slot] >= 0) {
        const std::string& other = mColumns[static_cast<std::size_t>(mSlots[slot])].name;
        if (other == name || sameName(other, name)) break;
        slot = (slot + 1) & mask;
    }
    return slot;
}

int ResultColumns::indexOf(std::string_view name) const {
    if (mHasTwins) {
        const auto same = [&](const ColumnInfo& column) { return column.name == name; };
        const auto exact = std::find_if(mColumns.begin(), mColumns.end(), same);
        if (exact != mColumns.end()) return static_cast<int>(exact - mColumns.begin());
    }
    return mSlots[slotOf(name)];
}

} // namespace Korvane::ado
