#pragma once

#include <korvane/nip/FieldPlace.h>
#include <korvane/nip/GroupRecord.h>

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace Korvane {

/// One step of bringing the database to a structure that was changed in the model.
struct StructureStep {
    /// What the step does.
    enum Kind {
        CreateTable,  ///< the group's, with its key column
        AddColumn,    ///< for a new field
        InsertField,  ///< its row in `DBFields`
        RenameColumn, ///< to the field's new name
        WidenColumn,  ///< to the field's length
        UpdateField,  ///< its row in `DBFields`
        WriteValues,  ///< its allowed values, in place of those before
    };
    Kind kind;
    FieldPlace place;

    bool operator==(const StructureStep&) const = default;
};

/// What the plan asks of the database.
struct SchemaFacts {
    std::function<bool(const std::string& table)> hasTable;
    /// The characters that a text column takes; 0 for one without a limit, or of another type, or missing.
    std::function<std::int32_t(const std::string& table, const std::string& column)> sizeOf;
};

/// The steps for every pending and every changed field, in the order of the model. Nothing is asked of the
/// database for the other fields. A column is never narrowed: it may hold longer texts.
std::vector<StructureStep> planStructureSave(const std::vector<GroupRecord>& groups,
                                             const SchemaFacts& schema);

} // namespace Korvane
