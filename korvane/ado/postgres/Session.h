#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/ado/postgres/Announcements.h>
#include <korvane/ado/postgres/Batch.h>
#include <korvane/ado/postgres/CatalogDialect.h>
#include <korvane/ado/postgres/Schema.h>
#include <korvane/ado/postgres/Settings.h>
#include <korvane/ado/postgres/Shapes.h>
#include <korvane/ado/postgres/Transactions.h>
#include <korvane/ado/postgres/Wire.h>
#include <korvane/ado/sql/Lift.h>
#include <korvane/ado/sql/Statement.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Korvane::ado::postgres {

class ResultCursor;

/// The connection over one line to a server.
class Session final : public Connection {
  public:
    explicit Session(std::unique_ptr<Wire> wire);
    ~Session() override;

    std::int32_t State() const override { return mOpen && mWire->isUp() ? 1 : 0; }
    std::int32_t Execute(std::string_view statement) override;
    std::int32_t BeginTrans(TransactionFor use) override;
    void CommitTrans() override;
    void RollbackTrans() override;
    std::int32_t transactionLevel() const override { return mTransactions.level(); }
    void Announce(std::span<const std::string> statements) override;
    void Reset() override;
    void Close() override;
    std::unique_ptr<Cursor> openCursor(std::string_view statement, CursorType cursorType,
                                       LockType lockType) override;
    std::unique_ptr<Cursor> openNative(std::string_view statement) override;
    std::string schemaMarkStatement() const override { return std::string(Schema::markQuery()); }
    const ado::CatalogDialect& catalogDialect() const override { return mCatalogDialect; }

    void limits(const Limits& limits);
    /// How many shapes of statements are kept prepared.
    void keepShapes(std::size_t most) { mShapes.limit(most); }

    /// For cursors: what is known of the tables, once it is required; runs what writes a row back; knows a
    /// cursor no longer.
    const Schema& schema() const { return mSchema; }
    void requireSchema();
    void rereadSchema();
    Answer runForWriting(Command command);
    void forget(const ResultCursor& cursor);
    /// The same, now and then while they walk their rows: keeps what is on its way behind them coming.
    void takeIn() { mWire->takeIn(); }

  private:
    /// Announced statements on their way.
    struct Ahead {
        std::vector<Announcements::Item*> items; ///< one for each request
        Batch batch;
    };

    void setUp();
    void requireLine() const;
    void requireOpen() const;
    void requireReady(std::string_view statement) const;
    Request request(std::string_view statement);
    Request literalRequest(std::string_view statement, std::string_view addedColumns);
    std::shared_ptr<Shape> makeShape(std::string_view text, std::string_view addedColumns);
    Form& formFor(Shape& shape, std::vector<TypeId> types);
    Outcome perform(std::string_view statement);
    std::optional<Outcome> takeAnnounced(std::string_view statement);
    void sendAnnounced(const Announcements::Item& first);
    std::vector<std::pair<Announcements::Item*, Request>> requestsFrom(const Announcements::Item& first);
    bool mayBeReadLater(const std::vector<Request>& requests) const;
    void receiveAhead();
    void settle();
    Batch send(std::vector<Request> requests);
    Batch sendAlone(Request request);
    Outcome run(Request request);
    std::vector<Command> preliminaries(bool plansOnce);
    void requireTables(const sql::Statement& statement);
    void addTypeCheck(sql::Translation& translation, const sql::Source& written) const;
    std::vector<Answer> sendAll(std::span<const Command> commands);
    Outcome outcomeOf(const Request& request, Answer answer);
    std::shared_ptr<const ResultColumns> describe(const Shape& shape, const pg_result* rows) const;
    std::unique_ptr<Cursor> openKeyset(std::string_view statement, LockType lockType);
    std::unique_ptr<Cursor> openKeysetOf(std::string_view statement,
                                         const std::optional<sql::RowSource>& source, LockType lockType);
    std::unique_ptr<Cursor> cursorOn(Outcome outcome, CursorType cursorType, LockType lockType);
    void forgetSchema();
    void forgetTable(std::string_view name);
    void letGo() noexcept;
    void giveBack();
    void deallocate();

    std::unique_ptr<Wire> mWire;
    bool mOpen = true;
    CatalogDialect mCatalogDialect;
    Schema mSchema;
    std::set<std::string> mTouched; ///< tables changed in the transaction that is open; empty for any
    Settings mSettings;
    Transactions mTransactions;
    Shapes mShapes;
    std::shared_ptr<std::vector<std::string>> mDropped = std::make_shared<std::vector<std::string>>();
    Announcements mAnnouncements;
    std::optional<Ahead> mAhead;
    bool mPlansAsNeeded = false; ///< the server decides by itself whether to plan for every value anew
    sql::Lifter mLifter;
    std::string mScratch;
    std::vector<ResultCursor*> mCursors;
};

} // namespace Korvane::ado::postgres
