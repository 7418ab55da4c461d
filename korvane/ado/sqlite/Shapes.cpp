#include <korvane/ado/sqlite/Shapes.h>

#include <korvane/runtime/Text.h>

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

namespace Korvane::ado::sqlite {

ResultColumns::ResultColumns(std::vector<ColumnInfo> columns)
    : mColumns(std::move(columns)), mSlots(std::bit_ceil(mColumns.size() * 2 + 1), -1) {
    for (std::size_t i = 0; i < mColumns.size(); ++i) {
        const std::size_t slot = slotOf(mColumns[i].name);
        if (mSlots[slot] < 0) mSlots[slot] = static_cast<int>(i);
    }
}

namespace {

// Letters that differ in case only give the same value; eight characters at a time.
std::size_t nameHash(std::string_view name) {
    constexpr std::uint64_t lowerCaseBits = 0x2020202020202020U;
    constexpr std::uint64_t factor = 0x9E3779B97F4A7C15U;
    std::uint64_t hash = name.size();
    while (!name.empty()) {
        std::uint64_t part = 0;
        const std::size_t length = std::min(name.size(), sizeof part);
        std::memcpy(&part, name.data(), length);
        hash = (hash ^ (part | lowerCaseBits)) * factor;
        hash ^= hash >> 32;
        name.remove_prefix(length);
    }
    return static_cast<std::size_t>(hash);
}

} // namespace

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
