#pragma once

#include <korvane/nip/FieldPlace.h>
#include <korvane/nip/GroupRecord.h>
#include <korvane/runtime/Text.h>

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <unordered_set>
#include <vector>

namespace Korvane {

/// Finds the fields of a model by group identifier and name (case does not count) without walking them.
/// Fields are added once their record is filled; groups and fields must not be removed while it is used.
class FieldIndex {
  public:
    explicit FieldIndex(const std::vector<GroupRecord>& groups)
        : mGroups(&groups), mPlaces(16, Hash{&groups}, Same{&groups}) {}

    void add(FieldPlace place) { mPlaces.insert(place); }

    /// Every field of that name, in no particular order.
    auto find(std::int32_t groupID, std::string_view name) const {
        const auto [first, last] = mPlaces.equal_range(Key{groupID, name});
        return Found<decltype(first)>{first, last};
    }

    /// The first field of exactly that name (case counts); null when there is none.
    const FieldRecord* first(std::int32_t groupID, std::string_view name) const {
        const FieldRecord* found = nullptr;
        std::int16_t lowest = 0;
        for (const FieldPlace place : find(groupID, name)) {
            const FieldRecord& field = fieldAt(place, *mGroups);
            if (field.fieldName != name || (found && place.field > lowest)) continue;
            found = &field;
            lowest = place.field;
        }
        return found;
    }

  private:
    template <typename Iterator>
    struct Found {
        Iterator first;
        Iterator last;
        Iterator begin() const { return first; }
        Iterator end() const { return last; }
        bool empty() const { return first == last; }
    };

    struct Key {
        std::int32_t groupID;
        std::string_view name;
    };

    static Key keyOf(const Key& key, const std::vector<GroupRecord>*) { return key; }
    static const FieldRecord& fieldAt(FieldPlace place, const std::vector<GroupRecord>& groups) {
        return groups[static_cast<std::size_t>(place.group)].fields[static_cast<std::size_t>(place.field)];
    }
    static Key keyOf(FieldPlace place, const std::vector<GroupRecord>* groups) {
        const FieldRecord& field = fieldAt(place, *groups);
        return {field.groupID, field.fieldName};
    }

    struct Hash {
        using is_transparent = void;
        const std::vector<GroupRecord>* groups;

        std::size_t operator()(const auto& place) const {
            const Key key = keyOf(place, groups);
            std::size_t hash = 1469598103934665603u ^ static_cast<std::uint32_t>(key.groupID);
            for (const char c : key.name) {
                const auto byte = static_cast<unsigned char>(c);
                const bool capital = byte >= 'A' && byte <= 'Z';
                hash = (hash ^ (capital ? byte + 32u : byte)) * 1099511628211u;
            }
            return hash;
        }
    };

    struct Same {
        using is_transparent = void;
        const std::vector<GroupRecord>* groups;

        bool operator()(const auto& a, const auto& b) const {
            const Key left = keyOf(a, groups);
            const Key right = keyOf(b, groups);
            return left.groupID == right.groupID && sameName(left.name, right.name);
        }
    };

    const std::vector<GroupRecord>* mGroups;
    std::unordered_multiset<FieldPlace, Hash, Same> mPlaces;
};

} // namespace Korvane
