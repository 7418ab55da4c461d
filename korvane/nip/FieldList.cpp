#include <korvane/nip/FieldList.h>

#include <korvane/data/ErrLog.h>
#include <korvane/nip/GroupRecord.h>
#include <korvane/nip/SqlName.h>
#include <korvane/runtime/Text.h>

#include <algorithm>
#include <array>

namespace Korvane {

namespace {

using namespace std::string_view_literals;

bool isColumnOfEncounter(std::string_view name) {
    constexpr std::array columns = {
        "EncounterID"sv, "EncounterMethodID"sv, "PatientID"sv, "ProviderID"sv,  "ForeignProviderID"sv,
        "LocationID"sv,  "EncounterDate"sv,     "Outgoing"sv,  "Description"sv, "Transport"sv};
    return std::ranges::any_of(columns, [&](std::string_view column) { return sameName(column, name); });
}

void appendColumn(FieldList& list, std::string_view fieldName) {
    if (!list.columns.empty()) {
        list.columns += ',';
        list.joinedColumns += ',';
    }
    const std::string column = sqlName(fieldName);
    list.columns += column;
    if (isColumnOfEncounter(fieldName)) list.joinedColumns += list.tableName + '.';
    list.joinedColumns += column;
    list.hasPatientID = list.hasPatientID || sameName(fieldName, "PatientID");
    list.hasEncounterDate = list.hasEncounterDate || sameName(fieldName, "EncounterDate");
}

} // namespace

FieldList GetFieldList(const GroupRecord& group) {
    FieldList list;
    list.columnOf.assign(static_cast<std::size_t>(group.fieldCount) + 1, FieldList::noColumn);
    if (group.fieldCount == 0) return list;
    list.tableName = sqlName(group.tableName);
    std::int16_t column = 0;
    for (std::size_t i = 1; i < list.columnOf.size(); ++i) {
        const std::string& fieldName = group.fields[i].fieldName;
        if (trim(fieldName).empty()) {
            ErrLog("cNip.GetFieldList-Trying to add a blank field to a select list");
            continue;
        }
        appendColumn(list, fieldName);
        list.columnOf[i] = column++;
    }
    return list;
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
