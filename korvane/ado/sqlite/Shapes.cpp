#include <korvane/ado/sqlite/Shapes.h>

#include <korvane/runtime/Text.h>

#include <bit>
#include <cstdint>
#include <utility>

namespace Korvane::ado::sqlite {

ResultColumns::ResultColumns(std::vector<ColumnInfo> columns)
    : mColumns(std::move(columns)), mSlots(std::bit_ceil(mColumns.size() * 2 + 1), -1) {
    for (std::size_t i = 0; i < mColumns.size(); ++i) {
        const std::size_t slot = slotOf(mColumns[i].name);
        if (mSlots[slot] < 0) mSlots[slot] = static_cast<int>(i);
    }
}

// The slot that holds the name, or the free one where it would be.
std::size_t ResultColumns::slotOf(std::string_view name) const {
    std::uint64_t hash = 14695981039346656037U;
    for (const char c : name)
        hash = (hash ^ static_cast<std::uint64_t>(c | 0x20)) * 1099511628211U;
    const std::size_t mask = mSlots.size() - 1;
    std::size_t slot = static_cast<std::size_t>(hash ^ (hash >> 32)) & mask;
    while (mSlots[slot] >= 0 && !sameName(mColumns[static_cast<std::size_t>(mSlots[slot])].name, name)) {
        slot = (slot + 1) & mask;
    }
    return slot;
}

int ResultColumns::indexOf(std::string_view name) const {
    return mSlots[slotOf(name)];
}

std::shared_ptr<Shape> Shapes::find(std::string_view text) {
    const auto found = mByText.find(text);
    if (found == mByText.end()) return nullptr;
    mShapes.splice(mShapes.begin(), mShapes, found->second);
    return *found->second;
}

void Shapes::keep(std::shared_ptr<Shape> shape) {
    mShapes.push_front(std::move(shape));
    mByText.emplace(mShapes.front()->text, mShapes.begin());
    makeRoom();
}

void Shapes::giveBack(Lease lease) {
    if (!lease || !lease.statement) return;
    lease.statement.reset();
    if (!lease.shape->forgotten && !lease.shape->idle) lease.shape->idle = std::move(lease.statement);
}

void Shapes::forget() {
    mByText.clear();
    for (const auto& shape : mShapes) {
        shape->forgotten = true;
        shape->idle = {};
    }
    mShapes.clear();
}

void Shapes::limit(std::size_t most) {
    mMost = most;
    makeRoom();
}

void Shapes::makeRoom() {
    while (mShapes.size() > mMost) {
        const auto& oldest = mShapes.back();
        mByText.erase(oldest->text);
        oldest->forgotten = true;
        oldest->idle = {};
        mShapes.pop_back();
    }
}

} // namespace Korvane::ado::sqlite
