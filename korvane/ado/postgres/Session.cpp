#include <korvane/ado/postgres/Session.h>

#include <korvane/ado/postgres/ChangedTable.h>
#include <korvane/ado/postgres/ResultCursor.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <libpq-fe.h>

#include <algorithm>

namespace Korvane::ado::postgres {

Session::Session(std::unique_ptr<Wire> wire)
    : mWire(std::move(wire)), mSettings(*mWire), mTransactions(*mWire) {
    setUp();
}

Session::~Session() {
    letGo();
}

void Session::requireLine() const {
    if (!mOpen) throw RuntimeError(RuntimeError::ObjectClosed);
    if (mWire->isTakenBack()) {
        throw RuntimeError(
            RuntimeError::ObjectClosed,
            Korvane::translate("Korvane::ado", "The connection was closed by the program that opened it."));
    }
}

void Session::requireOpen() const {
    requireLine();
    if (!mWire->isUp()) {
        throw RuntimeError(
            RuntimeError::ObjectClosed,
            Korvane::translate("Korvane::ado",
                               "The connection to the database server was lost; it has to be opened again."));
    }
}

void Session::requireReady(std::string_view statement) const {
    requireOpen();
    mTransactions.requireNotLost();
    if (statement.find('\0') != std::string_view::npos) {
        throw RuntimeError(RuntimeError::InvalidArgument,
                           Korvane::translate("Korvane::ado", "A statement cannot hold the character NUL."));
    }
}

std::int32_t Session::Execute(std::string_view statement) {
    requireReady(statement);
    return perform(statement).touched;
}

std::int32_t Session::BeginTrans(TransactionFor use) {
    requireOpen();
    settle();
    return mTransactions.begin(use);
}

void Session::CommitTrans() {
    requireOpen();
    settle();
    if (mAnnouncements.hasUnaskedWrites()) {
        throw RuntimeError(
            RuntimeError::InvalidProcedureCall,
            Korvane::translate(
                "Korvane::ado",
                "A statement that was announced has not been run: the transaction cannot be committed."));
    }
    mTransactions.commit();
    if (transactionLevel() > 0) return;
    mAnnouncements.clear();
    mTouched.clear();
}

void Session::RollbackTrans() {
    if (!mOpen) throw RuntimeError(RuntimeError::ObjectClosed);
    settle();
    mAnnouncements.clear();
    mTransactions.rollback();
    for (const std::string& table : mTouched)
        forgetTable(table);
    if (transactionLevel() == 0) mTouched.clear();
}

void Session::Announce(std::span<const std::string> statements) {
    settle();
    if (transactionLevel() == 0) mAnnouncements.clear();
    mAnnouncements.add(statements);
}

void Session::Reset() {
    requireLine();
    settle();
    if (mWire->isUp()) return;
    if (transactionLevel() > 0) throw RuntimeError(RuntimeError::TransactionOpen);
    mWire->reset();
    mAnnouncements.clear();
    forgetSchema();
    mDropped->clear();
    setUp();
}

void Session::Close() {
    if (!mOpen) throw RuntimeError(RuntimeError::ObjectClosed);
    if (transactionLevel() > 0) throw RuntimeError(RuntimeError::TransactionOpen);
    if (mWire->isLent() && mWire->isUp() && mWire->transaction() == Wire::Transaction::Failed) {
        throw RuntimeError(
            RuntimeError::TransactionOpen,
            Korvane::translate(
                "Korvane::ado",
                "The transaction of the connection's owner has failed. It has to be rolled back before the "
                "connection is let go of, or the owner's settings could not be put back."));
    }
    letGo();
}

void Session::letGo() noexcept {
    if (!mOpen) return;
    settle();
    while (!mCursors.empty())
        mCursors.back()->close();
    try {
        while (transactionLevel() > 0)
            mTransactions.rollback();
        mShapes.forget();
        if (mWire->isLent()) giveBack();
    } catch (const RuntimeError&) {
        // The line is lost, and what was open on it with it; a lent one is its owner's to mend.
    }
    mOpen = false;
    if (!mWire->isLent()) mWire->hangUp();
}

void Session::setUp() {
    // It is not there before version 12. Who has set it has reasons.
    const Answer planning =
        mSettings.make({.text = "Select pg_catalog.current_setting('plan_cache_mode', true)"});
    mPlansAsNeeded = std::string_view(PQgetvalue(planning.get(), 0, 0)) == "auto";
}

// Nothing runs inside a transaction of the owner's that has failed.
void Session::giveBack() {
    if (!mWire->isUp() || mWire->transaction() == Wire::Transaction::Failed) return;
    if (!mDropped->empty()) deallocate();
    mSettings.restore();
}

// The owner may have discarded what was prepared.
void Session::deallocate() {
    const Command asking{.text = "Select name From pg_catalog.pg_prepared_statements"};
    const Answer names = std::move(sendAll({&asking, 1}).front());
    std::vector<Command> commands;
    for (int row = 0; row < PQntuples(names.get()); ++row) {
        const std::string name = PQgetvalue(names.get(), row, 0);
        if (std::find(mDropped->begin(), mDropped->end(), name) != mDropped->end())
            commands.push_back({.text = "Deallocate " + name});
    }
    mDropped->clear();
    if (!commands.empty()) sendAll(commands);
}

void Session::limits(const Limits& limits) {
    if (!mOpen) throw RuntimeError(RuntimeError::ObjectClosed);
    settle();
    mWire->limits(limits);
    mSettings.limit(limits.statement);
}

void Session::requireSchema() {
    const Command command{.text = mSchema.query()};
    if (command.text.empty()) return;
    settle();
    mSchema.read(sendAll({&command, 1}).front().get());
}

void Session::forgetSchema() {
    mShapes.forget();
    mSchema.forget();
}

void Session::forgetTable(std::string_view name) {
    mShapes.forget();
    if (name.empty())
        mSchema.forget();
    else
        mSchema.forget(name);
}

std::unique_ptr<Cursor> Session::openCursor(std::string_view statement, CursorType cursorType,
                                            LockType lockType) {
    requireReady(statement);
    if (lockType != LockType::ReadOnly || cursorType == CursorType::Keyset ||
        cursorType == CursorType::Dynamic)
        return openKeyset(statement, lockType);
    return cursorOn(perform(statement), cursorType, lockType);
}

std::unique_ptr<Cursor> Session::openNative(std::string_view statement) {
    requireReady(statement);
    Request once;
    once.shape = std::make_shared<Shape>();
    once.shape->effect = sql::effectOf(statement);
    if (once.shape->effect == sql::Effect::Schema) once.shape->table = changedTable(statement);
    once.command.text = statement;
    if (once.shape->effect != sql::Effect::None) mAnnouncements.dropReads();
    return cursorOn(run(std::move(once)), CursorType::ForwardOnly, LockType::ReadOnly);
}

std::unique_ptr<Cursor> Session::cursorOn(Outcome outcome, CursorType cursorType, LockType lockType) {
    if (!outcome.columns) return nullptr;
    auto cursor = std::make_unique<ResultCursor>(*this, std::move(outcome.rows), std::move(outcome.columns),
                                                 cursorType, lockType);
    mCursors.push_back(cursor.get());
    return cursor;
}

void Session::forget(const ResultCursor& cursor) {
    std::erase(mCursors, &cursor);
}

} // namespace Korvane::ado::postgres
