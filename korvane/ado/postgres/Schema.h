#pragma once

#include <korvane/ado/postgres/Types.h>
#include <korvane/ado/sql/Tables.h>

#include <string>
#include <unordered_map>
#include <vector>

struct pg_result;

namespace Korvane::ado::postgres {

/// What the catalog says of the tables on the search path, read as a whole, in one round trip, until
/// `forget`. Names are found without regard to case; where several differ in nothing else, the one written
/// exactly so comes first, then the one in lower case.
class Schema : public sql::Tables {
  public:
    /// Asks for what `read` takes.
    static std::string_view query();

    bool isRead() const { return mIsRead; }
    void read(const pg_result* catalog);
    void forget();

    std::span<const ColumnInfo> columnsOf(std::string_view table) const override;
    std::string nameOf(std::string_view table) const override;

    /// The names of the columns that find a row of a table: its primary key, else where the row lies
    /// ("ctid"). Empty for a view and for a table that is not there.
    std::vector<std::string> keyOf(std::string_view table) const;

    /// The table's column that a column of a result comes from, by the engine's numbers; empty when it comes
    /// from elsewhere.
    std::string originOf(std::string_view table, TypeId relation, int column) const;

  private:
    struct Table {
        std::string name;
        TypeId relation = 0;
        bool hasRows = false; ///< keeps rows of its own
        std::vector<ColumnInfo> columns;
        std::vector<int> numbers; ///< the engine's, one for each column
        std::vector<std::pair<int, std::string>> key;
    };
    const Table* find(std::string_view name) const;

    std::unordered_map<std::string, std::vector<Table>> mTables; ///< by the name in lower case
    bool mIsRead = false;
};

} // namespace Korvane::ado::postgres
