#include <korvane/nip/FieldList.h>

#include <korvane/data/ErrLog.h>
#include <korvane/nip/GroupRecord.h>
#include <korvane/nip/SqlName.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>
#include <set>

namespace Korvane {

namespace {

void append(std::string& columns, std::string_view column) {
    if (!columns.empty()) columns += ',';
    columns += column;
}

} // namespace

FieldList GetFieldList(const GroupRecord& group) {
    FieldList list;
    list.columnOf.assign(static_cast<std::size_t>(group.fieldCount) + 1, FieldList::noColumn);
    if (group.fieldCount == 0) return list;
    list.tableName = sqlName(group.tableName);
    std::set<std::string> names;
    std::int16_t column = 0;
    for (std::size_t i = 1; i < list.columnOf.size(); ++i) {
        const std::string& fieldName = group.fields[i].fieldName;
        if (group.fields[i].pending) continue;
        if (trim(fieldName).empty()) {
            ErrLog("cNip.GetFieldList-Trying to add a blank field to a select list");
            continue;
        }
        if (!names.insert(lowerCase(fieldName)).second)
            throw RuntimeError(
                RuntimeError::InvalidArgument,
                filled(translate("Korvane::nip", "Two fields of the table %1 have the name %2"),
                       {group.tableName, fieldName}));
        append(list.columns, sqlName(fieldName));
        list.columnOf[i] = column++;
    }
    list.hasPatientID = names.contains("patientid");
    list.hasEncounterDate = names.contains("encounterdate");
    return list;
}

void qualifyColumns(FieldList& list, const GroupRecord& group,
                    const std::vector<std::string>& columnsOfEncounter) {
    list.joinedColumns.clear();
    for (std::size_t i = 1; i < list.columnOf.size(); ++i) {
        if (list.columnOf[i] == FieldList::noColumn) continue;
        const std::string& name = group.fields[i].fieldName;
        const bool isShared = std::ranges::any_of(
            columnsOfEncounter, [&](const std::string& column) { return sameName(column, name); });
        append(list.joinedColumns, (isShared ? list.tableName + '.' : "") + sqlName(name));
    }
}

bool hasInitialValueRule(const GroupRecord& group) {
    for (std::size_t i = 1; i <= static_cast<std::size_t>(group.fieldCount); ++i)
        if (group.fields[i].initialValueRule != 0) return true;
    return false;
}

void encounterStatement(const FieldList& list, std::int32_t encounterID, std::string& statement) {
    statement.assign("Select ").append(list.columns).append(" From ").append(list.tableName);
    statement.append(" Where EncounterID=").append(std::to_string(encounterID));
}

void latestEncounterStatement(const FieldList& list, std::string_view patientID, std::int32_t encounterID,
                              std::string& statement) {
    statement.assign("Select Top 1 ").append(list.joinedColumns).append(" From ").append(list.tableName);
    statement.append(" INNER JOIN Encounter ON Encounter.EncounterID=").append(list.tableName);
    statement.append(".EncounterID Where ").append(list.hasPatientID ? "Encounter.PatientID" : "PatientID");
    statement.append("='").append(escapeQuotes(patientID)).append("'");
    if (encounterID != -1)
        statement.append(" And Encounter.EncounterID<>").append(std::to_string(encounterID));
    statement.append(" Order By ");
    statement.append(list.hasEncounterDate ? "Encounter.EncounterDate" : "EncounterDate").append(" DESC");
}

} // namespace Korvane
