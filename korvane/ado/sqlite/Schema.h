#pragma once

#include <korvane/ado/sql/Tables.h>

#include <string>
#include <unordered_map>
#include <vector>

struct sqlite3;

namespace Korvane::ado::sqlite {

/// What the database says of its tables, asked once for each until `forget`.
class Schema : public sql::Tables {
  public:
    explicit Schema(sqlite3* handle) : mHandle(handle) {}

    std::span<const ColumnInfo> columnsOf(const sql::TableName& table) const override;

    /// The names of the columns that find a row of a table: its primary key, else the row number ("rowid").
    /// Empty for a view and for a table that is not there.
    std::vector<std::string> keyOf(const sql::TableName& table) const;

    void forget() { mTables.clear(); }

  private:
    struct Table {
        std::vector<ColumnInfo> columns;
        std::vector<std::string> key;
    };
    const Table& table(const sql::TableName& table) const;
    Table load(const std::string& name, const std::string& schema) const;

    sqlite3* mHandle;
    mutable std::unordered_map<std::string, Table> mTables; ///< by schema and name in lower case
};

} // namespace Korvane::ado::sqlite
