#include <korvane/ado/postgres/Session.h>

#include <korvane/ado/postgres/ChangedTable.h>
#include <korvane/ado/postgres/ResultCursor.h>
#include <korvane/ado/sql/Names.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <libpq-fe.h>

namespace Korvane::ado::postgres {

Session::Session(std::unique_ptr<Wire> wire) : mWire(std::move(wire)), mTransactions(*mWire) {
    setUp();
}

Session::~Session() {
    letGo();
}

void Session::requireLine() const {
    if (!mOpen) throw RuntimeError(RuntimeError::ObjectClosed);
    if (mWire->isTakenBack()) {
        throw RuntimeError(RuntimeError::ObjectClosed,
                           "The connection was closed by the program that opened it.");
    }
}

void Session::requireOpen() const {
    requireLine();
    if (!mWire->isUp()) {
        throw RuntimeError(RuntimeError::ObjectClosed,
                           "The connection to the database server was lost; it has to be opened again.");
    }
}

void Session::requireReady(std::string_view statement) const {
    requireOpen();
    mTransactions.requireNotLost();
    if (statement.find('\0') != std::string_view::npos) {
        throw RuntimeError(RuntimeError::InvalidArgument, "A statement cannot hold the character NUL.");
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
            "A statement that was announced has not been run: the transaction cannot be committed.");
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
        if (mWire->isLent() && mWire->isUp()) restoreSettings();
    } catch (const RuntimeError&) {
        // The line is lost, and what was open on it with it; a lent one is its owner's to mend.
    }
    mOpen = false;
    if (!mWire->isLent()) mWire->hangUp();
}

// Texts come as UTF-8 and dates in the ISO form, whatever the server is set to.
void Session::setUp() {
    mFormerSettings.clear();
    std::vector<std::pair<std::string, std::string>> settings{
        {"client_encoding", "UTF8"}, {"DateStyle", "ISO, MDY"}, {"standard_conforming_strings", "on"}};
    if (mWire->isLent()) {
        for (const auto& [name, value] : settings)
            mFormerSettings.emplace_back(name, mWire->parameter(name.c_str()));
    }
    const auto limit = mWire->limits().statement.count();
    if (!mWire->isLent() || limit > 0) settings.emplace_back("statement_timeout", std::to_string(limit));
    std::vector<Command> commands;
    commands.reserve(settings.size() + 1);
    for (const auto& [name, value] : settings)
        commands.push_back({.text = "Select pg_catalog.set_config($1, $2, false)", .values = {name, value}});
    // It is not there before version 12. Who has set it has reasons.
    commands.push_back({.text = "Select pg_catalog.current_setting('plan_cache_mode', true)"});
    const std::vector<Answer> answers = sendAll(commands);
    mPlansAsNeeded = std::string_view(PQgetvalue(answers.back().get(), 0, 0)) == "auto";
}

void Session::restoreSettings() {
    std::vector<Command> commands;
    for (const std::string& name : *mDropped)
        commands.push_back({.text = "Deallocate " + name});
    for (const auto& [name, value] : mFormerSettings)
        commands.push_back({.text = "Select pg_catalog.set_config($1, $2, false)", .values = {name, value}});
    mDropped->clear();
    mWire->send(commands);
}

void Session::limits(const Limits& limits) {
    if (!mOpen) throw RuntimeError(RuntimeError::ObjectClosed);
    settle();
    mWire->limits(limits);
    if (!mWire->isUp()) return; // told to the server by `Reset`
    const Command command{.text = "Select pg_catalog.set_config('statement_timeout', $1, false)",
                          .values = {std::to_string(limits.statement.count())}};
    sendAll({&command, 1});
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

std::unique_ptr<Cursor> Session::openKeyset(std::string_view statement, LockType lockType) {
    requireSchema();
    Writeback writeback;
    std::string keyColumns;
    if (const auto rows = lockType == LockType::ReadOnly ? std::nullopt : sql::rowSource(statement)) {
        writeback = {rows->table, mSchema.keyOf(rows->table)};
        const std::string table = mSchema.nameOf(rows->table);
        const std::string called = rows->calledAs == rows->table ? table : lowerCase(rows->calledAs);
        for (const std::string& column : writeback.key)
            keyColumns += ", " + sql::quotedName(called) + "." + sql::quotedName(column);
    }
    Request once = literalRequest(statement, keyColumns);
    Outcome outcome = run(std::move(once));
    if (!outcome.columns) return nullptr;
    auto cursor = std::make_unique<ResultCursor>(*this, std::move(outcome.rows), std::move(outcome.columns),
                                                 CursorType::Keyset, lockType, std::move(writeback));
    mCursors.push_back(cursor.get());
    return cursor;
}

Answer Session::runForWriting(Command command) {
    requireOpen();
    mTransactions.requireNotLost();
    mAnnouncements.dropReads();
    Request request;
    request.command = std::move(command);
    return sendAlone(std::move(request)).next();
}

void Session::forget(const ResultCursor& cursor) {
    std::erase(mCursors, &cursor);
}

} // namespace Korvane::ado::postgres
