#pragma once

#include <korvane/runtime/Variant.h>

#include <cstdint>
#include <string>

namespace Korvane {

/// One field of a Nip: its definition, its place, its value. See `cNIP`, which holds them.
struct FieldRecord {
    // What a load touches stands together: a big Nip is read as fast as its records come into the cache.
    Variant value;
    Variant previousValue; ///< as loaded
    std::string displayType;
    std::int16_t initialValueRule = 0;
    std::int16_t choiceListCount = 0;
    bool initialised = false;
    bool changed = false;
    bool pending = false;
    bool asStored = false; ///< the column is no text column and holds what `previousValue` was read from
    Variant choiceList;

    // And so does what an allowed value touches.
    std::string fieldName; ///< also the column in the group's table
    std::int32_t groupID = 0;
    std::int16_t valueListCount = 0;
    Variant valueList;
    Variant defaultValue;

    std::int32_t id = 0;
    std::string tableName;
    std::string groupName;
    std::string newFieldName; ///< while it is being renamed
    std::string caption;
    std::int16_t maxLength = 0;    ///< characters; 0: no limit
    std::int16_t storedLength = 0; ///< `maxLength` as it is in the database
    std::string dataType;
    float ordinal = 0;
    std::int16_t controlIndex = 0;
    std::int16_t controlIndexLabel = 0;
    std::int16_t rowIndex = 0;
    std::int16_t colIndex = 0; ///< 1, or 2 for a comment beside its field
};

} // namespace Korvane
