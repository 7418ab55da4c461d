#pragma once

#include <korvane/runtime/Text.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace Korvane {

/// The place of a field in a model.
struct FieldPlace {
    std::int16_t group = 0;
    std::int16_t field = 0;
};

/// Finds the fields of a model by group identifier and name (case does not count) without walking them.
class FieldIndex {
  public:
    void add(std::int32_t groupID, std::string_view name, FieldPlace place) {
        mPlaces[keyOf(groupID, name)].push_back(place);
    }

    /// Every field of that name, in the order in which they were added.
    std::span<const FieldPlace> find(std::int32_t groupID, std::string_view name) const {
        const auto found = mPlaces.find(keyOf(groupID, name));
        return found == mPlaces.end() ? std::span<const FieldPlace>() : found->second;
    }

  private:
    static std::string keyOf(std::int32_t groupID, std::string_view name) {
        return lowerCase(name) + '.' + std::to_string(groupID);
    }

    std::unordered_map<std::string, std::vector<FieldPlace>> mPlaces;
};

} // namespace Korvane
