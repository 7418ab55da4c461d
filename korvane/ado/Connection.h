#pragma once

#include <korvane/ado/Cursor.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>

namespace Korvane::ado {

class CatalogDialect;

/// What a transaction is for: reading sees one snapshot and takes no write lock, writing takes the lock at
/// once, so that a read followed by a write cannot lose against another writer half-way. Changing the schema
/// is writing, one at a time: it waits for another one that is at it.
enum class TransactionFor { Reading, Writing, ChangingSchema };

/// An open database. All statements are in the library's one SQL dialect (see docs/sql-dialect.md); the
/// provider turns them into its engine's own.
///
///     auto db = ado::open("sqlite:clinic.db");
///     db->Execute("Update Encounter Set [Description]='Visit' Where EncounterID=12");
///
/// Used by one thread. Failures are raised as `RuntimeError` with the engine's code; ObjectClosed when not
/// open.
class Connection : public std::enable_shared_from_this<Connection> {
  public:
    virtual ~Connection() = default;
    Connection(const Connection&) = delete;
    Connection& operator=(const Connection&) = delete;

    /// 1 while open, 0 once closed.
    virtual std::int32_t State() const = 0;

    /// Runs a statement and returns the number of rows it inserted, updated or deleted (0 for any other
    /// statement; rows that a statement returns are dropped). The schema may change with it.
    virtual std::int32_t Execute(std::string_view statement) = 0;

    /// Begins a transaction, inside one that is open if there is one; returns its level, 1 for the outermost.
    virtual std::int32_t BeginTrans(TransactionFor use = TransactionFor::Writing) = 0;
    /// Ends the innermost one. An error when none is open. After a failed `CommitTrans` the transaction is
    /// still open.
    virtual void CommitTrans() = 0;
    virtual void RollbackTrans() = 0;
    /// How many transactions begun here are open.
    virtual std::int32_t transactionLevel() const = 0;

    /// Says which statements are about to run, in this order, so that a provider may send them together. The
    /// statements are still run one by one by their callers, who see no difference but speed. What writes is
    /// sent ahead inside a transaction only, and has to be run before that is committed; an Insert announced
    /// behind an Update of the same table need not be: it is sent ahead only when that has touched no row.
    /// Does nothing on an engine that gains nothing.
    virtual void Announce(std::span<const std::string> statements);

    /// A query for one cell that is another one after any table or column was made, renamed or removed, by
    /// whomever: what was learnt of the schema before may no longer hold. It may also change without need.
    virtual std::string schemaMarkStatement() const = 0;

    /// Connects again after the server, or the line to it, went away (`State` is 0 then, though nobody closed
    /// the connection), to the same database with the same settings. Transactions that were open are lost
    /// with the line; they have to be rolled back here first (TransactionOpen). Does nothing while open;
    /// ObjectClosed once closed. Recordsets keep the rows they have.
    virtual void Reset();

    /// Closes; open recordsets of this connection become closed. Rolls nothing back silently: TransactionOpen
    /// while a transaction is open. A handle that a host lent is not closed, only let go of. Closing twice is
    /// an error (ObjectClosed).
    virtual void Close() = 0;

    /// Opens a result for a `Recordset`. A statement that returns no rows gives null.
    virtual std::unique_ptr<Cursor> openCursor(std::string_view statement, CursorType cursorType,
                                               LockType lockType) = 0;

    /// For a `Catalog`: runs a statement in the engine's own words, as it stands, and opens its result to be
    /// read once; null when it returns no rows. The schema may change with it.
    virtual std::unique_ptr<Cursor> openNative(std::string_view statement) = 0;
    /// For a `Catalog`: how its engine reads and changes a schema.
    virtual const CatalogDialect& catalogDialect() const = 0;

  protected:
    Connection() = default;
};

/// Says whether a handle that was lent is still there; an empty one never says no.
using StillLent = std::function<bool()>;

/// Opens a database by its address: "sqlite:clinic.db", "sqlite:/var/lib/clinic/clinic.db",
/// "sqlite::memory:"; for SQLite,
/// "?mode=ro" opens read-only. A file that does not exist is created. "postgresql://user@host/database" is a
/// database of a server, in builds that have PostgreSQL (see postgres/PostgresConnection.h for its options).
/// Raises a RuntimeError that says what was wrong.
std::shared_ptr<Connection> open(std::string_view address);

} // namespace Korvane::ado
