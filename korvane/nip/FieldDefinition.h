#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace Korvane {

/// What its maker decides of a field. See `cNIP::CreateField` and `cNIP::EditField`.
///
///     nip.CreateField(1, {.fieldName = "Mood", .caption = "Mood", .maxLength = 20, .displayType = "LIST",
///                         .values = {"Good", "Poor"}, .defaultValue = "Good"});
struct FieldDefinition {
    std::string fieldName = {};           ///< also the column in the group's table
    std::string caption = {};             ///< what stands beside its entry
    std::int16_t maxLength = 0;           ///< characters, from 1
    std::string displayType = "TEXT";     ///< or "LIST", "COMBOBOX" ..., see `cNIP::displayType`
    std::int16_t initialValueRule = 0;    ///< 1: a new encounter begins with the value of the latest one
    std::vector<std::string> values = {}; ///< allowed, in order
    std::string defaultValue = {};        ///< one of `values`; empty: none of them
    std::int16_t rowIndex = 0;            ///< from 1, any above the last is the last; 0: where it stands now,
                                          ///< a new field behind all others
};

} // namespace Korvane
