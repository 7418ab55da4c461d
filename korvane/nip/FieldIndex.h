#pragma once

#include <korvane/nip/FieldPlace.h>
#include <korvane/nip/GroupRecord.h>
#include <korvane/runtime/Text.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace Korvane {

/// Finds the fields of a model by group identifier and name (case does not count) without walking them.
/// Fields are added once their record is filled; groups and fields must not be removed while it is used.
class FieldIndex {
  public:
    explicit FieldIndex(const std::vector<GroupRecord>& groups) : mGroups(groups), mSlots(1024) {}

    void add(FieldPlace place) {
        if (++mCount * 2 > mSlots.size()) grow();
        const FieldRecord& field = fieldAt(place);
        put({hashOf(field.groupID, field.fieldName), place});
    }

    /// Calls `visit(place)` for every field of that name, in no particular order.
    template <typename Visit>
    void forEach(std::int32_t groupID, std::string_view name, Visit&& visit) const {
        const std::uint32_t hash = hashOf(groupID, name);
        const std::size_t mask = mSlots.size() - 1;
        for (std::size_t at = hash & mask; mSlots[at].place != free; at = (at + 1) & mask) {
            if (mSlots[at].hash != hash) continue;
            const FieldRecord& field = fieldAt(mSlots[at].place);
            if (field.groupID == groupID && sameName(field.fieldName, name)) visit(mSlots[at].place);
        }
    }

    /// The first field of exactly that name (case counts); null when there is none.
    const FieldRecord* first(std::int32_t groupID, std::string_view name) const {
        const FieldRecord* found = nullptr;
        std::int16_t lowest = 0;
        forEach(groupID, name, [&](FieldPlace place) {
            const FieldRecord& field = fieldAt(place);
            if (field.fieldName != name || (found && place.field > lowest)) return;
            found = &field;
            lowest = place.field;
        });
        return found;
    }

  private:
    static constexpr FieldPlace free{}; ///< no field has it: they are counted from 1

    struct Slot {
        std::uint32_t hash = 0;
        FieldPlace place = free;
    };

    const FieldRecord& fieldAt(FieldPlace place) const {
        return mGroups[static_cast<std::size_t>(place.group)].fields[static_cast<std::size_t>(place.field)];
    }

    static std::uint32_t hashOf(std::int32_t groupID, std::string_view name) {
        constexpr std::uint32_t factor = 0x9E3779B1U;
        return static_cast<std::uint32_t>(nameHash(name)) ^ static_cast<std::uint32_t>(groupID) * factor;
    }

    void put(const Slot& slot) {
        const std::size_t mask = mSlots.size() - 1;
        std::size_t at = slot.hash & mask;
        while (mSlots[at].place != free)
            at = (at + 1) & mask;
        mSlots[at] = slot;
    }

    void grow() {
        const std::vector<Slot> former = std::exchange(mSlots, std::vector<Slot>(mSlots.size() * 2));
        for (const Slot& slot : former) {
            if (slot.place != free) put(slot);
        }
    }

    const std::vector<GroupRecord>& mGroups;
    std::vector<Slot> mSlots; ///< open addressing, at most half of them taken; a power of 2
    std::size_t mCount = 0;
};

} // namespace Korvane
