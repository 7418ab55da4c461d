#pragma once

#include <korvane/ado/Column.h>
#include <korvane/ado/Cursor.h>
#include <korvane/ado/Index.h>

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado {

/// What a `Catalog` has to know of an engine: how the engine is asked for its tables and told to change them.
/// Only texts are made here, in the engine's own words; they are run by `Connection::openNative`. What all
/// engines say alike is said here, and each says the rest.
class CatalogDialect {
  public:
    virtual ~CatalogDialect() = default;

    // Questions

    /// Asks for the names of all tables (no views), in the order of their names.
    virtual std::string tablesQuery() const = 0;
    /// Asks for the tables and views of a name, without regard to case. A row for each column, those of one
    /// relation together and in its order: name of the relation, whether it is a table, name of the column
    /// (Null when there is none), and what `column` reads. Without columns a row for each relation, its
    /// column Null: that takes much less time.
    virtual std::string relationQuery(std::string_view name, bool withColumns) const = 0;
    virtual ColumnInfo column(const Cursor& row) const = 0;
    /// Asks for the indexes of a table, which is spelled as the database does. A row for each column, those
    /// of one index together and in its order: stored name ('' for the primary key), whether unique, whether
    /// primary key, name of the column (Null for an expression).
    virtual std::string indexesQuery(const std::string& table) const = 0;
    /// Asks for one row of a table, or none.
    std::string anyRowQuery(const std::string& table) const;

    // Steps; tables, columns and indexes that are there are spelled as the database does.

    std::vector<std::string> createTable(const std::string& table, std::span<const Column> columns,
                                         std::span<const Index> indexes) const;
    std::string dropTable(const std::string& table) const;
    std::string addColumn(const std::string& table, const Column& column) const;
    std::string renameColumn(const std::string& table, const std::string& column,
                             const std::string& newName) const;
    std::string dropColumn(const std::string& table, const std::string& column) const;
    std::string createIndex(const std::string& table, const Index& index) const;
    std::string dropIndex(const std::string& storedName) const;
    /// Nothing where columns have no size that binds.
    virtual std::optional<std::string> widenColumn(const std::string& table, const Column& column) const = 0;

    // Names and habits

    /// InvalidArgument for a name that the engine would not keep as it is.
    void requireName(std::string_view name) const;
    /// How the database calls an index of a table: its indexes share one space of names.
    static std::string storedIndexName(const std::string& table, const std::string& index);
    /// Whether a column takes the indexes that it is in with it; otherwise they have to go first.
    virtual bool dropsIndexesWithColumn() const = 0;

  protected:
    /// Of currencies and bytes the engines have names of their own.
    virtual std::string typeName(const Column& column) const;
    /// In bytes; nothing when there is no limit.
    virtual std::optional<std::size_t> longestName() const { return std::nullopt; }

  private:
    std::string definition(const Column& column) const;
};

} // namespace Korvane::ado
