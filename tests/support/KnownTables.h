#pragma once

#include <korvane/ado/sql/Tables.h>
#include <korvane/runtime/Text.h>

#include <initializer_list>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Korvane::Testing {

/// The columns of the library's tables, without a database.
class KnownTables : public ado::sql::Tables {
  public:
    /// As a server's catalog spells the names: plain ones in lower case. Those of DBFieldValues were made by
    /// somebody who wrote them with marks.
    void fold() {
        for (auto& [table, columns] : mTables) {
            const bool hadMarks = table == "dbfieldvalues";
            mNames[table] = hadMarks ? "DBFieldValues" : table;
            for (ado::ColumnInfo& column : columns) {
                const bool needsMarks = column.name.find_first_of("- ") != std::string::npos;
                if (!hadMarks && !needsMarks) column.name = lowerCase(column.name);
                column.nullable = table != "encounter" || column.name != "encounterid";
            }
        }
    }

    /// Every column as a text column, whose values stay as they are.
    void becomeTexts() {
        for (auto& [table, columns] : mTables) {
            for (ado::ColumnInfo& column : columns)
                column.type = ado::DataType::VarWChar;
        }
    }

    std::string nameOf(const ado::sql::TableName& table) const override {
        const auto found = mNames.find(lowerCase(table.name));
        return found == mNames.end() ? std::string() : found->second;
    }

    std::span<const ado::ColumnInfo> columnsOf(const ado::sql::TableName& table) const override {
        const auto found = mTables.find(lowerCase(table.name));
        return found == mTables.end() || !table.schema.empty() ? std::span<const ado::ColumnInfo>{}
                                                               : found->second;
    }

  private:
    static std::vector<ado::ColumnInfo>
    columns(std::initializer_list<std::pair<ado::DataType, std::initializer_list<const char*>>> groups) {
        std::vector<ado::ColumnInfo> all;
        for (const auto& [type, names] : groups) {
            for (const char* name : names)
                all.push_back({name, type, 0});
        }
        return all;
    }

    std::map<std::string, std::vector<ado::ColumnInfo>> mTables{
        {"encounter", columns({{ado::DataType::Integer,
                                {"EncounterID", "EncounterMethodID", "ProviderID", "ForeignProviderID",
                                 "LocationID", "Transport"}},
                               {ado::DataType::VarWChar, {"PatientID", "Description"}},
                               {ado::DataType::Date, {"EncounterDate"}},
                               {ado::DataType::Boolean, {"Outgoing"}}})},
        {"attachment", columns({{ado::DataType::Integer, {"AttachmentID", "EncounterID"}},
                                {ado::DataType::VarWChar,
                                 {"AttachmentType", "Description", "Category", "Archived", "Origin",
                                  "Filename", "Orientation", "InUseBy"}},
                                {ado::DataType::Date, {"EntryDate", "OriginDate"}},
                                {ado::DataType::Boolean, {"Deleted", "Locked"}}})},
        {"dbfieldgroups", columns({{ado::DataType::Integer, {"DBFieldGroupID"}},
                                   {ado::DataType::VarWChar, {"GroupName", "TableName"}},
                                   {ado::DataType::Double, {"Ordinal"}}})},
        {"dbfields",
         columns({{ado::DataType::Integer, {"ID", "DBFieldGroupID", "MaxLength"}},
                  {ado::DataType::SmallInt, {"InitialValueRuleID"}},
                  {ado::DataType::VarWChar, {"FieldName", "FieldCaption", "dataType", "DisplayType"}},
                  {ado::DataType::Single, {"Ordinal"}}})},
        {"dbfieldvalues", columns({{ado::DataType::VarWChar, {"FieldName", "FieldValue"}},
                                   {ado::DataType::Boolean, {"DefaultValue"}},
                                   {ado::DataType::Integer, {"DBFieldGroupID", "Ordinal"}}})},
        {"nip_custom1", columns({{ado::DataType::Integer, {"EncounterID"}},
                                 {ado::DataType::VarWChar, {"Pulse", "Temp-1", "Problem List"}},
                                 {ado::DataType::Date, {"Seen"}},
                                 {ado::DataType::Boolean, {"Smoker"}},
                                 {ado::DataType::Double, {"Weight", "User"}}})},
    };
    std::map<std::string, std::string> mNames;
};

} // namespace Korvane::Testing
