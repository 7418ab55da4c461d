#include "clinic/sample/NipStructure.h"

#include "clinic/sample/RowInsert.h"

namespace Clinic {

namespace {

using Korvane::ado::Connection;

// Group 1 is reserved.
constexpr std::int32_t firstGroupID = 2;

std::string columnType(const FieldDefinition& field) {
    return field.maxLength > 0 ? "VARCHAR(" + std::to_string(field.maxLength) + ")" : "TEXT";
}

void createDataTable(Connection& connection, const std::string& table, const FormDefinition& form) {
    std::string statement = "Create Table " + table + " ([EncounterID] INTEGER NOT NULL PRIMARY KEY";
    for (const FieldDefinition& field : form.fields)
        statement += ",[" + field.name + "] " + columnType(field);
    connection.Execute(statement + ")");
}

void writeValues(Batch& batch, std::int32_t groupID, const FieldDefinition& field) {
    std::int32_t ordinal = 0;
    for (const std::string& value : field.values) {
        RowInsert row;
        row.add("FieldName", field.name).add("DBFieldGroupID", groupID).add("FieldValue", value);
        row.add("DefaultValue", value == field.defaultValue).add("Ordinal", ++ordinal);
        row.into(batch, "DBFieldValues");
    }
}

void writeField(Batch& batch, std::int32_t groupID, std::int32_t id, std::int32_t ordinal,
                const FieldDefinition& field) {
    RowInsert row;
    row.add("ID", id).add("Code", 1).add("FieldName", field.name).add("FieldCaption", field.caption);
    row.add("DBFieldGroupID", groupID).add("MaxLength", field.maxLength);
    row.add("dataType", field.maxLength > 0 ? "dbText" : "dbMemo").add("DisplayType", field.displayType);
    row.add("Indexed", 0).add("Required", 0).add("Ordinal", ordinal);
    row.add("InitialValueRuleID", field.carriedForward ? 1 : 0);
    row.into(batch, "DBFields");
    writeValues(batch, groupID, field);
}

} // namespace

std::string dataTable(std::size_t form) {
    return "NIP_Custom" + std::to_string(form + 1);
}

void writeStructure(Connection& connection, const std::vector<FormDefinition>& forms) {
    Batch batch(connection);
    std::int32_t fieldID = 0;
    for (std::size_t i = 0; i < forms.size(); ++i) {
        const auto place = static_cast<std::int32_t>(i);
        RowInsert row;
        row.add("DBFieldGroupID", firstGroupID + place).add("GroupName", forms[i].group);
        row.add("TableName", dataTable(i)).add("Ordinal", place + 1);
        row.into(batch, "DBFieldGroups");
        std::int32_t ordinal = 0;
        for (const FieldDefinition& field : forms[i].fields)
            writeField(batch, firstGroupID + place, ++fieldID, ++ordinal, field);
        createDataTable(connection, dataTable(i), forms[i]);
    }
    batch.run();
}

} // namespace Clinic
