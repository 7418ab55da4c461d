#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

struct GroupRecord;

/// The columns of a group as its statements name them. Made once for a structure and kept with the group.
struct FieldList {
    static constexpr std::int16_t noColumn = -1;

    std::string tableName; ///< as it is written into a statement
    std::string columns;   ///< "Pulse,[Temp-1]", in field order; empty when there is nothing to read or write
    /// `columns` for a statement that joins the table `Encounter`; empty until `qualifyColumns`.
    std::string joinedColumns;
    std::vector<std::int16_t> columnOf; ///< by field index: its place in `columns`, or `noColumn`
    std::vector<bool> keepsText; ///< by field index: it is a text column; empty until a result has told
    bool hasPatientID = false;   ///< a field is named like that column of `Encounter`
    bool hasEncounterDate = false;
};

/// A field that is not saved yet has no column. Neither has one whose name is blank; it is left out, with a
/// line in the error log. Raises InvalidArgument for a field or table whose name no statement can hold, and
/// for two fields whose names differ in case only: they would share one column.
FieldList GetFieldList(const GroupRecord& group);

/// Makes `joinedColumns`: a name that is also one of these columns of `Encounter` is qualified.
void qualifyColumns(FieldList& list, const GroupRecord& group,
                    const std::vector<std::string>& columnsOfEncounter);

/// Whether a field of the group has an initial value rule, so that a new encounter needs the latest one.
bool hasInitialValueRule(const GroupRecord& group);

// The statements are written into a text whose storage is reused: they are long, and a load makes many.

/// The group's row of an encounter.
void encounterStatement(const FieldList& list, std::int32_t encounterID, std::string& statement);

/// The group's row of the patient's latest encounter. An encounter that has an identifier (is not -1) is not
/// its own predecessor.
void latestEncounterStatement(const FieldList& list, std::string_view patientID, std::int32_t encounterID,
                              std::string& statement);

} // namespace Korvane
