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
    std::vector<std::string> values;
    const std::string_view type = displayType(group, field);
    if (type == "TEXT" || type == "LIST-EDITCONTENT") return values;
    for (int i = 0; i < choices; ++i)
        values.push_back(choice(i));
    return values;
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

} // namespace Korvane::Bench
