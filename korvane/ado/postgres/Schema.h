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

/// What the catalog says of the tables on the search path, and of those in schemas that were asked for, read
/// as a whole, in one round trip; after `forget` what was forgotten is read again. Names are found without
/// regard to case; where several differ in nothing else, the one written exactly so comes first, then the one
/// in lower case.
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

    /// Has the tables of a schema read from now on, also where it is not on the search path; what is known is
    /// forgotten when they were not. Not those of the engine's own schemas.
    void include(std::string_view schema);

    std::span<const ColumnInfo> columnsOf(const sql::TableName& table) const override;
    std::string nameOf(const sql::TableName& table) const override;
    std::string schemaOf(std::string_view schema) const override;

    /// The names of the columns that find a row of a table: its primary key; else where the row lies and
    /// which writing of it that is ("tableoid", "ctid", "xmin"), so that no row is taken for another. Empty
    /// for a view and for a table that is not there.
    std::vector<std::string> keyOf(const sql::TableName& table) const;

    /// The table's column that a column of a result comes from, by the engine's numbers; null when it comes
    /// from elsewhere.
    const ColumnInfo* originOf(const sql::TableName& table, TypeId relation, int column) const;

    /// A table for a With that nobody reads, so that it costs nothing but being understood: the server
    /// refuses it, and the statement with it, when one of the columns is no longer of the type that is known.
    /// Empty when there is none of them.
    std::string typeCheck(const sql::TableName& table, std::span<const std::string> columns) const;

  private:
    struct Table {
        std::string schema;
        std::string name;
        TypeId relation = 0;
        bool isVisible = false; ///< found without its schema
        bool hasRows = false;   ///< keeps rows of its own
        std::vector<ColumnInfo> columns;
        std::vector<int> numbers;       ///< the engine's, one for each column
        std::vector<std::string> types; ///< by the engine's names, the same
        std::vector<std::pair<int, std::string>> key;
    };
    const Table* find(const sql::TableName& name) const;
    static Table tableFrom(const pg_result* catalog, int row);
    static void addColumn(Table& table, const pg_result* catalog, int row);

    std::unordered_map<std::string, std::vector<Table>> mTables; ///< by the name in lower case
    std::set<std::string> mForgotten;                            ///< names in lower case, to be read again
    std::set<std::string> mIncluded;                             ///< schemas, in lower case
    bool mIsRead = false;
};

} // namespace Korvane::ado::postgres
