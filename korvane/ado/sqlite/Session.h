#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/ado/sql/Lift.h>
#include <korvane/ado/sqlite/CatalogDialect.h>
#include <korvane/ado/sqlite/Schema.h>
#include <korvane/ado/sqlite/Shapes.h>
#include <korvane/ado/sqlite/Transactions.h>
#include <korvane/ado/sqlite/Values.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado::sqlite {

class ResultCursor;

/// The connection over one handle of the engine.
class Session final : public Connection {
  public:
    /// Owns the handle.
    explicit Session(sqlite3* handle);
    /// Works on a lent one, for as long as it is.
    Session(sqlite3* handle, StillLent stillLent);
    ~Session() override;

    std::int32_t State() const override { return mHandle && !isTakenBack() ? 1 : 0; }
    std::int32_t Execute(std::string_view statement) override;
    std::int32_t BeginTrans(TransactionFor use) override;
    void CommitTrans() override;
    void RollbackTrans() override;
    std::int32_t transactionLevel() const override { return mTransactions.level(); }
    void Close() override;
    std::unique_ptr<Cursor> openCursor(std::string_view statement, CursorType cursorType,
                                       LockType lockType) override;
    std::unique_ptr<Cursor> openNative(std::string_view statement) override;
    std::string schemaMarkStatement() const override { return "Pragma schema_version"; }
    const ado::CatalogDialect& catalogDialect() const override { return mCatalogDialect; }

    /// The handle, for as long as the connection is open. ObjectClosed behind that.
    sqlite3* handle() const;
    /// How many shapes of statements are kept compiled.
    void keepShapes(std::size_t most) { mShapes.limit(most); }

    /// For cursors: compiles a statement that runs once; takes back what `openCursor` gave; knows a cursor no
    /// longer.
    CompiledStatement compileForWriting(std::string_view statement);
    void giveBack(Lease lease);
    void forget(const ResultCursor& cursor);

  private:
    bool isTakenBack() const { return mStillLent && !mStillLent(); }
    void requireReady(std::string_view statement) const;
    Lease prepare(std::string_view statement);
    Lease prepareOnce(std::string_view statement, std::string_view addedColumns);
    std::shared_ptr<Shape> makeShape(std::string_view text, std::string_view addedColumns);
    bool restsOnColumns(const Shape& shape) const;
    void liftFrom(std::string_view statement);
    void bindLiterals(const Lease& lease, TextLives lives);
    void refreshSchema();
    CompiledStatement& versionQuery();
    std::int64_t schemaVersion();
    void forgetSchema();
    void settleCursors();
    std::int32_t run(Lease& lease);
    std::unique_ptr<ResultCursor> open(Lease& lease);
    std::unique_ptr<Cursor> openKeyset(std::string_view statement, LockType lockType);
    void describeResult(const Lease& lease);
    void letGo() noexcept;

    sqlite3* mHandle;
    bool mOwned;
    CatalogDialect mCatalogDialect;
    StillLent mStillLent;
    Schema mSchema;
    Transactions mTransactions;
    Shapes mShapes;
    sql::Lifter mLifter;
    std::string mScratch;
    CompiledStatement mVersionQuery;
    std::optional<std::int64_t> mSchemaVersion;
    bool mSchemaPinned = false; ///< in a transaction of ours that has seen the schema
    std::vector<ResultCursor*> mCursors;
};

} // namespace Korvane::ado::sqlite
