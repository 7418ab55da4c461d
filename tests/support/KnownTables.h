#pragma once

#include "support/CaseTable.h"

#include <korvane/ado/sql/Tables.h>
#include <korvane/runtime/Text.h>

#include <map>
#include <span>
#include <string>
#include <string_view>
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
    using Columns = std::map<std::string, std::vector<ado::ColumnInfo>>;

    static const Columns& known() {
        static const Columns all = [] {
            Columns columns;
            for (const auto& row : readCases("knowntables.tsv")) {
                for (std::size_t i = 2; i < row.size(); ++i)
                    columns[row[0]].push_back({row[i], static_cast<ado::DataType>(std::stoi(row[1])), 0});
            }
            return columns;
        }();
        return all;
    }

    Columns mTables = known();
    std::map<std::string, std::string> mNames;
};

} // namespace Korvane::Testing
