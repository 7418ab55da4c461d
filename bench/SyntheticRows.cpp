#include "SyntheticRows.h"

#include "SyntheticNip.h"

#include <korvane/ado/Transaction.h>
#include <korvane/data/Tables.h>

namespace Korvane::Bench {

namespace {

std::string literalText(std::string_view text) {
    return "'" + std::string(text) + "'";
}

void writeField(ado::Connection& db, const Size& size, int group, int field) {
    const std::string id = std::to_string((group - 1) * size.fields + field);
    const std::string owner = std::to_string(group + 1);
    db.Execute("Insert Into DBFields "
               "(ID,Code,FieldName,FieldCaption,DBFieldGroupID,MaxLength,dataType,DisplayType,Indexed,"
               "Required,Ordinal,InitialValueRuleID) Values (" +
               id + ",1," + literalText(fieldName(field)) + "," + literalText("Caption of field " + id) +
               "," + owner + ",255,'dbText'," + literalText(displayType(group, field)) + ",0,0," +
               std::to_string(field) + ",0)");
    int ordinal = 0;
    for (const std::string& value : allowedValues(group, field))
        db.Execute(
            "Insert Into DBFieldValues (FieldValue,DefaultValue,FieldName,DBFieldGroupID,Ordinal) Values (" +
            literalText(value) + ",0," + literalText(fieldName(field)) + "," + owner + "," +
            std::to_string(++ordinal) + ")");
}

// Doubles what is there until it is enough: faster than any number of inserts.
void multiplyRows(ado::Connection& db, const std::string& table, const std::string& columns, int present) {
    for (; present < storedEncounters; present *= 2) {
        const std::string offset = std::to_string(present);
        db.Execute("Insert Into " + table + " Select EncounterID+" + offset + "," + columns + " From " +
                   table + " Where EncounterID<=" + std::to_string(storedEncounters - present));
    }
}

void writeGroup(ado::Connection& db, const Size& size, int group) {
    constexpr int distinctRows = 16;
    const std::string table = tableName(group);
    db.Execute("Insert Into DBFieldGroups (DBFieldGroupID,GroupName,TableName,Ordinal) Values (" +
               std::to_string(group + 1) + "," + literalText("Group " + std::to_string(group)) + "," +
               literalText(table) + "," + std::to_string(group) + ")");
    std::string declarations = "EncounterID INTEGER PRIMARY KEY";
    std::string columns;
    for (int field = 1; field <= size.fields; ++field) {
        writeField(db, size, group, field);
        declarations += "," + fieldName(field) + " VARCHAR(255)";
        columns += (field == 1 ? "" : ",") + fieldName(field);
    }
    db.Execute("Create Table " + table + " (" + declarations + ")");
    for (int encounter = 1; encounter <= distinctRows; ++encounter)
        db.Execute(insertStatement(size, group, encounter, encounter));
    multiplyRows(db, table, columns, distinctRows);
}

void writeEncounters(ado::Connection& db) {
    db.Execute("Insert Into Encounter Values (1,1,'P-0001',1,0,0,'2026-11-15 17:21:51',1,'Visit',0)");
    multiplyRows(db, "Encounter",
                 "EncounterMethodID,PatientID,ProviderID,ForeignProviderID,LocationID,EncounterDate,Outgoing,"
                 "Description,Transport",
                 1);
    db.Execute("Insert Into Provider Values (1,'Physician','Anna','Köhler','MD')");
}

} // namespace

void writeRows(ado::Connection& db, const Size& size) {
    installTables(db);
    ado::Transaction work(db);
    for (int group = 1; group <= size.groups; ++group)
        writeGroup(db, size, group);
    writeEncounters(db);
    work.commit();
}

} // namespace Korvane::Bench
