#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/ado/Table.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado {

/// The tables of a database, found by their names without regard to case (on an engine that tells case apart,
/// the one spelled so comes first). Views are none. Every call asks the database, so that what others
/// changed, and what was rolled back, is seen.
class Tables {
  public:
    /// As `Catalog::Tables` makes it.
    explicit Tables(std::shared_ptr<Connection> connection) : mConnection(std::move(connection)) {}

    /// How many there are, without the views and the engine's own tables.
    std::int32_t Count() const;
    /// All of them, in the order of their names.
    std::vector<std::string> Names() const;
    /// Whether there is a table of that name; a view does not count.
    bool Exists(std::string_view name) const;
    /// ItemNotFound when there is none.
    Table Item(std::string_view name) const;

    /// Makes a new table with the columns and indexes that it was given, all or nothing, inside the
    /// connection's transaction if one is open; `table` is that table from then on. Names are kept as they
    /// are written. DuplicateKey when a table or view of that name is there; InvalidArgument when the table
    /// is in a database already, has no columns, or has a name in it that the engine cannot keep as it is.
    void Append(const Table& table);

    /// Drops a table with all its rows and indexes. ItemNotFound.
    void Delete(std::string_view name);

  private:
    std::shared_ptr<Connection> mConnection;
};

/// The schema of a database.
///
///     Catalog catalog(db);
///     if (catalog.Tables().Count() == 0) installTables(*db);
///     catalog.Tables().Item("NIP_Custom1").Columns().Append(Column("Pulse", DataType::SmallInt));
///
/// Changes take part in the transaction that is open on the connection, and a change of several steps is made
/// whole or not at all. A column that allows Null is added, and a name changed, without touching the rows.
class Catalog {
  public:
    /// InvalidConnection without a connection.
    explicit Catalog(std::shared_ptr<Connection> connection);

    /// What it was made with; never null.
    const std::shared_ptr<Connection>& ActiveConnection() const { return mConnection; }

    /// The tables as they are at each call to it.
    ado::Tables Tables() const { return ado::Tables(mConnection); }

  private:
    std::shared_ptr<Connection> mConnection;
};

} // namespace Korvane::ado
