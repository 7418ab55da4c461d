#pragma once

#include <korvane/ado/postgres/Types.h>
#include <korvane/ado/sql/Tables.h>

#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

struct pg_result;

namespace Korvane::ado::postgres {

/// What the catalog says of the tables on the search path, read as a whole, in one round trip; after `forget`
/// what was forgotten is read again. Names are found without regard to case; where several differ in nothing
/// else, the one written exactly so comes first, then the one in lower case.
class Schema : public sql::Tables {
  public:
    /// Asks for what has to be read, which `read` takes; empty when all is known.
    std::string query() const;

    /// Asks for a number that stands for the tables and columns there are, by their names and places.
    static std::string_view markQuery();

    void read(const pg_result* catalog);

    /// Whether something is known that may have grown old.
    bool isRead() const { return mIsRead; }
    /// Forgets all, or what goes by one name.
    void forget();
    void forget(std::string_view table);

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
    std::set<std::string> mForgotten;                            ///< names in lower case, to be read again
    bool mIsRead = false;
};

} // namespace Korvane::ado::postgres
