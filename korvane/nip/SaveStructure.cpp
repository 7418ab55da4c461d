#include <korvane/nip/cNIP.h>

#include <korvane/ado/Table.h>
#include <korvane/data/ErrLog.h>
#include <korvane/nip/DataTable.h>
#include <korvane/nip/Query.h>
#include <korvane/nip/StructureSteps.h>
#include <korvane/runtime/Text.h>

#include <algorithm>

namespace Korvane {

namespace {

/// Those of the name in any case: that is how they are found.
std::string deleteTwins(const std::string& fieldName, std::int32_t groupID) {
    return "Delete From DBFieldValues Where Upper(fieldName)=Upper('" + escapeQuotes(fieldName) +
           "') and DBFieldGroupID=" + std::to_string(groupID);
}

std::string deleteValues(const std::string& fieldName, std::int32_t groupID) {
    return "Delete From DBFieldValues Where fieldName='" + escapeQuotes(fieldName) +
           "' and DBFieldGroupID=" + std::to_string(groupID);
}

/// The name that the field has once it is saved.
const std::string& savedName(const FieldRecord& field) {
    return field.newFieldName.empty() ? field.fieldName : field.newFieldName;
}

void settle(GroupRecord& group) {
    if (!group.hasChanges) return;
    group.hasChanges = false;
    for (FieldRecord& field : group.fields) {
        if (!field.pending && !field.changed) continue;
        if (field.pending || !field.newFieldName.empty()) group.fieldList.reset();
        field.fieldName = savedName(field);
        field.newFieldName.clear();
        field.storedLength = field.maxLength;
        field.pending = false;
        field.changed = false;
    }
}

} // namespace

bool cNIP::SaveStructure() {
    const auto hasChanges = [](const GroupRecord& group) { return group.hasChanges; };
    if (mStructureLoaded && std::ranges::none_of(mGroups, hasChanges)) return true;
    const bool saved = changeSchema("Error in cNip.SaveStructure: ", [&] {
        const SchemaFacts schema{[&](const std::string& table) { return catalog().Tables().Exists(table); },
                                 [&](const std::string& table, const std::string& column) {
                                     return columnSize(catalog(), table, column);
                                 }};
        return std::ranges::all_of(planStructureSave(mGroups, schema),
                                   [&](const StructureStep& step) { return take(step); });
    });
    if (saved)
        for (GroupRecord& group : mGroups)
            settle(group);
    return saved;
}

bool cNIP::take(const StructureStep& step) {
    GroupRecord& group = existingGroup(step.place.group);
    FieldRecord& field = existingField(step.place.group, step.place.field);
    switch (step.kind) {
    case StructureStep::CreateTable:
        if (createTable(group.tableName)) return true;
        ErrLog("cNip.SaveStructure - could not create Table: " + group.tableName);
        return false;
    case StructureStep::AddColumn: {
        ado::Table table = catalog().Tables().Item(group.tableName);
        createColumn(table, {field.fieldName, field.dataType, IndexKind::None, field.maxLength});
        break;
    }
    case StructureStep::InsertField:
        insertField(field);
        break;
    case StructureStep::RenameColumn:
        catalog().Tables().Item(group.tableName).Columns().Rename(field.fieldName, field.newFieldName);
        break;
    case StructureStep::WidenColumn:
        catalog().Tables().Item(group.tableName).Columns().Widen(savedName(field), field.maxLength);
        break;
    case StructureStep::UpdateField:
        updateField(group, field);
        break;
    case StructureStep::WriteValues:
        writeAllowedValues(field);
        break;
    }
    return true;
}

void cNIP::insertField(FieldRecord& field) {
    constexpr std::int16_t code = 1;
    constexpr std::int16_t no = 0;
    field.id = nextID("Select Max(ID) as MaxID From DBFields");
    SQLData lists;
    lists.InsertListClear();
    lists.InsertListAdd("ID", field.id);
    lists.InsertListAdd("Code", code);
    lists.InsertListAdd("FieldName", field.fieldName);
    lists.InsertListAdd("FieldCaption", field.caption);
    lists.InsertListAdd("DBFieldGroupID", field.groupID);
    lists.InsertListAdd("MaxLength", field.maxLength);
    lists.InsertListAdd("dataType", field.dataType);
    lists.InsertListAdd("DisplayType", field.displayType);
    lists.InsertListAdd("Indexed", no);
    lists.InsertListAdd("Required", no);
    lists.InsertListAdd("Ordinal", field.ordinal);
    lists.InsertListAdd("InitialValueRuleID", field.initialValueRule);
    raiseFailure(lists);
    execute("Insert Into DBFields " + lists.InsertListGet());
}

void cNIP::updateField(const GroupRecord& group, const FieldRecord& field) {
    SQLData query;
    query.UpdateListClear();
    if (!field.newFieldName.empty()) query.UpdateListAdd("FieldName", field.newFieldName);
    query.UpdateListAdd("FieldCaption", field.caption);
    query.UpdateListAdd("MaxLength", field.maxLength);
    query.UpdateListAdd("DisplayType", field.displayType);
    query.UpdateListAdd("InitialValueRuleID", field.initialValueRule);
    query.UpdateListAdd("Ordinal", field.ordinal);
    raiseFailure(query);
    Korvane::run(query, mConnection,
                 "Update DBFields Set " + query.UpdateListGet() + " Where ID=" + std::to_string(field.id),
                 true);
    if (query.RecordsAffected() != 1)
        ErrLog("Error in cNip.SaveStructure: updated " + std::to_string(query.RecordsAffected()) +
               " record(s) for field " + field.fieldName + " in group " + group.groupName);
}

/// A renamed field takes its values along; what is left over under its new name is none of its own.
void cNIP::writeAllowedValues(const FieldRecord& field) {
    std::vector<std::string> statements{deleteValues(field.fieldName, field.groupID),
                                        deleteTwins(field.fieldName, field.groupID)};
    if (!field.newFieldName.empty()) statements.push_back(deleteTwins(field.newFieldName, field.groupID));
    const std::string byDefault = field.defaultValue.textOrEmpty();
    SQLData lists;
    for (std::int16_t position = 1; position <= field.valueListCount; ++position) {
        const std::string value = field.valueList.array().at(position).textOrEmpty();
        lists.InsertListClear();
        lists.InsertListAdd("FieldName", savedName(field));
        lists.InsertListAdd("DBFieldGroupID", field.groupID);
        lists.InsertListAdd("FieldValue", value);
        lists.InsertListAdd("DefaultValue", !byDefault.empty() && value == byDefault);
        lists.InsertListAdd("Ordinal", position);
        raiseFailure(lists);
        statements.push_back("Insert Into DBFieldValues " + lists.InsertListGet());
    }
    execute(statements);
}

} // namespace Korvane
