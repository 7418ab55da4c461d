#pragma once

#include <korvane/nip/FieldList.h>
#include <korvane/nip/FieldRecord.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Korvane {

/// One group of a Nip with its fields. See `cNIP`, which holds them.
struct GroupRecord {
    std::string tableName; ///< of the table that holds the group's data
    std::string groupName;
    std::string groupID; ///< in decimal
    std::int16_t fieldCount = 0;
    std::int16_t rowCount = 0;
    bool hasChanges = false; ///< some field is new or changed: spares a walk through the others
    /// Element 0 is empty, 1 to `fieldCount` are the fields; what may stand behind is no field.
    std::vector<FieldRecord> fields;
    /// Made when it is first needed; to be reset whenever a field is added, removed or renamed.
    std::optional<FieldList> fieldList;
};

} // namespace Korvane
