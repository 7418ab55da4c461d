#include "SyntheticNip.h"

#include <korvane/runtime/Text.h>

namespace Korvane::Bench {

namespace {

constexpr int choices = 8;

std::string choice(int number) {
    return "Choice number " + std::to_string(number % choices + 1);
}

} // namespace

std::string tableName(int group) {
    return "NIP_Custom" + std::to_string(group);
}

std::string fieldName(int field) {
    return "Field" + std::to_string(field);
}

std::string_view displayType(int group, int field) {
    constexpr int cycle = 20;
    const int place = (field * 7 + group) % cycle;
    if (place < 12) return "TEXT";
    if (place < 14) return "COMBOBOX";
    if (place < 16) return "COMBOBOX-RESTRICTED";
    if (place < 18) return "LIST";
    return place == 18 ? "LIST-MULTIPLE" : "LIST-EDITCONTENT";
}

std::vector<std::string> allowedValues(int group, int field) {
    const std::string_view type = displayType(group, field);
    if (type == "TEXT" || type == "LIST-EDITCONTENT") return {};
    return allowedChoices();
}

std::vector<std::string> allowedChoices() {
    std::vector<std::string> values;
    for (int i = 0; i < choices; ++i)
        values.push_back(choice(i));
    return values;
}

StructureChange changedField(const Size& size, int turn) {
    const int group = turn % size.groups + 1;
    int field = 1;
    while (displayType(group, field) != StructureChange::displayType)
        ++field;
    return {group, field, (group - 1) * size.fields + field, fieldName(field),
            "Caption in turn " + std::to_string(turn)};
}

StructureChange addedField(const Size& size, int turn) {
    return {turn % size.groups + 1, 0, 0, "Added" + std::to_string(turn), "The new one"};
}

std::string valueOf(int group, int field, int turn) {
    const int number = group * 31 + field * 17 + turn;
    const std::string_view type = displayType(group, field);
    if (type == "LIST-MULTIPLE" || type == "LIST-EDITCONTENT")
        return choice(number) + "|" + choice(number + 1);
    if (type != "TEXT") return choice(number);
    return number % 10 == 0 ? "the patient's own " + std::to_string(number)
                            : "value " + std::to_string(number);
}

std::vector<std::string> structureStatements() {
    return {
        "Select DBFieldGroups.DBFieldGroupID, DBFieldGroups.GroupName, DBFieldGroups.TableName From DBFields "
        "RIGHT OUTER JOIN DBFieldGroups ON DBFields.DBFieldGroupID=DBFieldGroups.DBFieldGroupID Where "
        "DBFieldGroups.DBFieldGroupID>1 GROUP BY DbFieldGroups.DBFieldGroupID, DBFieldGroups.GroupName , "
        "DBFieldGroups.TableName, DBFieldGroups.Ordinal Order By DBFieldGroups.Ordinal",
        "Select DBFieldGroups.GroupName, DBFields.ID, DBFieldGroups.TableName, DBFieldGroups.DBFieldGroupID, "
        "maxlength, fieldName,fieldCaption,displaytype,InitialValueRuleID,DBFields.Ordinal From DBFields "
        "INNER "
        "JOIN DBFieldGroups ON DBFields.DBFieldGroupID=DBFieldGroups.DBFieldGroupID Where "
        "DBFieldGroups.DBFieldGroupID>1 and DBFields.FieldName<>'EncounterID' Order By "
        "DBFieldGroups.DBFieldGroupID, DBFieldGroups.Ordinal, DBFields.Ordinal, DBFields.fieldname",
        "Select fieldValue,defaultvalue,FieldName,DBFieldGroupID,Ordinal From DBFieldValues Order By "
        "Ordinal"};
}

std::string selectStatement(const Size& size, int group, int encounter) {
    std::string names;
    for (int field = 1; field <= size.fields; ++field)
        names += (field == 1 ? "" : ",") + fieldName(field);
    return "Select " + names + " From " + tableName(group) +
           " Where EncounterID=" + std::to_string(encounter);
}

std::string updateStatement(const Size& size, int group, int encounter, int turn) {
    std::string list;
    for (int field = 1; field <= size.fields; ++field)
        list += (field == 1 ? "[" : ",[") + fieldName(field) + "]='" +
                escapeQuotes(valueOf(group, field, turn)) + "'";
    return "Update " + tableName(group) + " Set " + list + " Where EncounterID=" + std::to_string(encounter);
}

std::string insertStatement(const Size& size, int group, int encounter, int turn) {
    std::string columns, values;
    for (int field = 1; field <= size.fields; ++field) {
        columns += "[" + fieldName(field) + "],";
        values += "'" + escapeQuotes(valueOf(group, field, turn)) + "',";
    }
    return "Insert Into " + tableName(group) + "(" + columns + "[EncounterID])  values (" + values +
           std::to_string(encounter) + ")";
}

std::string addColumnStatement(const StructureChange& change) {
    return "Alter Table " + tableName(change.group) + " Add Column " + change.name + " VarChar(" +
           std::to_string(StructureChange::maxLength) + ")";
}

std::vector<std::string> structureRows(const StructureChange& change, int id, bool isNew) {
    const std::string owner = std::to_string(change.group + 1);
    const std::string length = std::to_string(StructureChange::maxLength);
    std::vector<std::string> statements;
    if (isNew)
        statements.push_back("Insert Into DBFields "
                             "([ID],[Code],[FieldName],[FieldCaption],[DBFieldGroupID],[MaxLength],[dataType]"
                             ",[DisplayType],[Indexed],[Required],[Ordinal],[InitialValueRuleID])  values (" +
                             std::to_string(id) + ",1,'" + change.name + "','" + change.caption + "'," +
                             owner + "," + length + ",'dbText','" + StructureChange::displayType +
                             "',0,0,1000,0)");
    else
        statements.push_back("Update DBFields Set [FieldCaption]='" + change.caption +
                             "',[MaxLength]=" + length + ",[DisplayType]='" + StructureChange::displayType +
                             "',[InitialValueRuleID]=0,[Ordinal]=" + std::to_string(change.field) +
                             " Where ID=" + std::to_string(id));
    statements.push_back("Delete From DBFieldValues Where fieldName='" + change.name +
                         "' and DBFieldGroupID=" + owner);
    int ordinal = 0;
    for (const std::string& value : allowedChoices())
        statements.push_back(
            "Insert Into DBFieldValues "
            "([FieldName],[DBFieldGroupID],[FieldValue],[DefaultValue],[Ordinal])  values ('" +
            change.name + "'," + owner + ",'" + value + "',False," + std::to_string(++ordinal) + ")");
    return statements;
}

} // namespace Korvane::Bench
