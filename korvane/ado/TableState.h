#pragma once

#include <korvane/ado/Column.h>
#include <korvane/ado/Connection.h>
#include <korvane/ado/Index.h>

#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado {

/// What the handles of a table share: where it is and how it is called there; its parts while it is new.
struct TableState {
    std::string name;
    std::shared_ptr<Connection> connection; ///< null while it is new
    std::vector<Column> columns;
    std::vector<Index> indexes;

    /// InvalidArgument while it is new.
    Connection& requireStored() const;
};

/// A table or view as the database has it now.
struct Relation {
    std::string name;
    bool isTable = false;
    std::vector<Column> columns; ///< none when only the relation itself was asked for
};

/// How much is to be read of a relation.
enum class Read { Columns, NameOnly };

/// An index as the database has it now.
struct StoredIndex {
    std::string storedName; ///< empty for a primary key
    Index index;
};

/// The table or view of a name; of several that differ in case only, the one spelled so, else the one in
/// lower case.
std::optional<Relation> findRelation(Connection& connection, std::string_view name,
                                     Read what = Read::Columns);
/// ItemNotFound when there is no such table.
Relation requireTable(Connection& connection, std::string_view name, Read what = Read::Columns);
/// The indexes of a table, its primary key among them.
std::vector<StoredIndex> storedIndexes(Connection& connection, const std::string& table);

/// The one of that name: spelled so, else without regard to case; null when there is none.
const Column* columnNamed(std::span<const Column> columns, std::string_view name);
/// ItemNotFound when the table has no such column.
const Column& requireColumn(const Relation& table, std::string_view name);

/// Refuses a column that cannot be added to those of a table.
void requireNewColumn(std::span<const Column> columns, const std::string& table, const Column& column);
/// The index with its columns spelled as those of the table. Refuses one that cannot be added.
Index newIndex(std::span<const Index> indexes, std::span<const Column> columns, const std::string& table,
               const Index& index);

/// Runs the steps of a change, all or none.
void runSteps(Connection& connection, const std::vector<std::string>& steps);

} // namespace Korvane::ado
