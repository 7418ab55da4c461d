#include <korvane/ado/sqlite/Session.h>

#include <korvane/ado/StatementErrors.h>
#include <korvane/ado/sql/Lexer.h>
#include <korvane/ado/sql/Names.h>
#include <korvane/ado/sqlite/Error.h>
#include <korvane/ado/sqlite/ResultCursor.h>
#include <korvane/ado/sqlite/Types.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>

#include <sqlite3.h>

#include <algorithm>
#include <limits>
#include <utility>

namespace Korvane::ado::sqlite {

namespace {

// Undoes what a statement that failed left behind, and keeps the compiled form.
class Returned {
  public:
    Returned(Shapes& shapes, Lease& lease) : mShapes(shapes), mLease(lease) {}
    ~Returned() { mShapes.giveBack(std::move(mLease)); }
    Returned(const Returned&) = delete;
    Returned& operator=(const Returned&) = delete;

  private:
    Shapes& mShapes;
    Lease& mLease;
};

} // namespace

Session::Session(sqlite3* handle) : mHandle(handle), mOwned(true), mSchema(handle), mTransactions(handle) {}

Session::Session(sqlite3* handle, StillLent stillLent)
    : mHandle(handle), mOwned(false), mStillLent(std::move(stillLent)), mSchema(handle),
      mTransactions(handle) {
    // The engine keeps a handle for as long as there is a statement of it: nobody can close it under us.
    if (mStillLent) versionQuery();
}

Session::~Session() {
    letGo();
}

sqlite3* Session::handle() const {
    if (!mHandle) throw RuntimeError(RuntimeError::ObjectClosed);
    if (isTakenBack()) {
        throw RuntimeError(
            RuntimeError::ObjectClosed,
            Korvane::translate("Korvane::ado", "The connection was closed by the program that opened it."));
    }
    return mHandle;
}

void Session::Close() {
    handle();
    if (transactionLevel() > 0) throw RuntimeError(RuntimeError::TransactionOpen);
    letGo();
}

void Session::letGo() noexcept {
    if (!mHandle) return;
    while (!mCursors.empty())
        mCursors.back()->close();
    mShapes.forget();
    while (transactionLevel() > 0) {
        try {
            mTransactions.rollback();
        } catch (const RuntimeError&) {
            break; // closing the handle undoes it as well; a lent one is its owner's to mend
        }
    }
    // A lender who closed the handle early could not, because of our statements: the last one does it.
    if (mOwned || isTakenBack()) sqlite3_close_v2(mHandle);
    mVersionQuery = {};
    mHandle = nullptr;
}

std::int32_t Session::Execute(std::string_view statement) {
    requireReady(statement);
    Lease lease = prepare(statement);
    const Returned returned(mShapes, lease);
    bindLiterals(lease, TextLives::UntilTheStatementIsDone);
    return run(lease);
}

// Runs a bound statement to its end; how many rows it touched.
std::int32_t Session::run(Lease& lease) {
    const bool reads = sqlite3_stmt_readonly(lease.statement.get()) != 0;
    if (!reads) settleCursors();
    while (lease.statement.step()) {
    }
    if (lease.shape->changesSchema) forgetSchema();
    if (reads || !lease.shape->countsRows) return 0;
    return sqlite3_changes(mHandle);
}

std::int32_t Session::BeginTrans(TransactionFor use) {
    handle();
    if (use != TransactionFor::Reading && transactionLevel() == 0) settleCursors();
    const std::int32_t level = mTransactions.begin(use);
    if (level == 1 && mOwned) {
        // From the first look at it the schema stays as it is until the end of the transaction.
        try {
            refreshSchema();
        } catch (const RuntimeError&) {
            mTransactions.rollback();
            throw;
        }
        mSchemaPinned = mTransactions.ownsOutermost();
    }
    return level;
}

void Session::CommitTrans() {
    handle();
    mTransactions.commit();
    if (transactionLevel() == 0) mSchemaPinned = false;
}

void Session::RollbackTrans() {
    handle();
    if (!mTransactions.lost()) {
        try {
            settleCursors();
        } catch (const RuntimeError&) {
            // The one that failed is closed by it, and rolling back goes first.
        }
    }
    mTransactions.rollback();
    forgetSchema(); // the schema may have been changed in it
    if (transactionLevel() == 0) mSchemaPinned = false;
}

void Session::requireReady(std::string_view statement) const {
    handle();
    mTransactions.requireNotLost();
    if (statement.find('\0') != std::string_view::npos) {
        throw RuntimeError(
            RuntimeError::InvalidArgument,
            Korvane::translate("Korvane::ado",
                               "The statement holds a NUL character, which no text column can keep."));
    }
}

void Session::liftFrom(std::string_view statement) {
    mLifter.lift(statement);
    const int most = sqlite3_limit(mHandle, SQLITE_LIMIT_VARIABLE_NUMBER, -1);
    if (mLifter.literals().size() > static_cast<std::size_t>(most)) mLifter.leave(statement);
}

// Finds or makes the compiled form of a statement; its values are in mLifter.
Lease Session::prepare(std::string_view statement) {
    liftFrom(statement);
    std::shared_ptr<Shape> shape = mShapes.find(mLifter.shape());
    // What the values become rests on the types of the columns, and a form compiled now has the columns of
    // now: what is known of them must be no older.
    if (!shape || !shape->idle || restsOnColumns(*shape)) {
        refreshSchema();
        if (shape && shape->forgotten) shape = nullptr;
    }
    if (!shape) {
        shape = makeShape(mLifter.shape(), {});
        if (shape->idle) mShapes.keep(shape);
    }
    Lease lease{shape, std::move(shape->idle)};
    if (!lease.statement) lease.statement = CompiledStatement(mHandle, shape->translation.text, true);
    return lease;
}

// Whether a change of a column's type would change what is bound. A number that is compared with a number is
// the same in all.
bool Session::restsOnColumns(const Shape& shape) const {
    if (!shape.meetsColumns) return false;
    const auto& literals = mLifter.literals();
    for (std::size_t i = 0; i < literals.size(); ++i) {
        const sql::ParameterRule& rule = shape.translation.parameters[i];
        if (!rule.column) continue;
        const bool comparesNumbers = literals[i].kind == sql::Literal::Integer &&
                                     rule.use == sql::Use::Compare && rule.column->type == DataType::Integer;
        if (!comparesNumbers) return true;
    }
    return false;
}

Lease Session::prepareOnce(std::string_view statement, std::string_view addedColumns) {
    liftFrom(statement);
    refreshSchema();
    auto shape = makeShape(mLifter.shape(), addedColumns);
    shape->forgotten = true;
    CompiledStatement compiled = std::move(shape->idle);
    return {std::move(shape), std::move(compiled)};
}

std::shared_ptr<Shape> Session::makeShape(std::string_view text, std::string_view addedColumns) {
    auto shape = std::make_shared<Shape>();
    shape->text = text;
    shape->translation = translate(text, mSchema, addedColumns);
    shape->idle = CompiledStatement(mHandle, shape->translation.text, true);
    if (!shape->idle) throw noStatement();
    shape->meetsColumns =
        std::ranges::any_of(shape->translation.parameters,
                            [](const sql::ParameterRule& rule) { return rule.column.has_value(); });
    const sql::Effect effect = sql::effectOf(text);
    shape->countsRows = effect == sql::Effect::Rows;
    shape->changesSchema = effect == sql::Effect::Schema;
    return shape;
}

void Session::bindLiterals(const Lease& lease, TextLives lives) {
    sqlite3_stmt* statement = lease.statement.get();
    const auto& literals = mLifter.literals();
    if (sqlite3_bind_parameter_count(statement) != static_cast<int>(literals.size())) throw parameterMark();
    for (std::size_t i = 0; i < literals.size(); ++i) {
        const sql::Literal& literal = literals[i];
        const sql::ParameterRule& rule = lease.shape->translation.parameters[i];
        const sql::ColumnValue value = rule.column ? sql::toColumn(literal, *rule.column, rule.use, mScratch)
                                                   : sql::asItStands(literal, mScratch);
        const TextLives textLives = literal.doubledQuotes ? TextLives::OnlyNow : lives;
        check(mHandle, bind(statement, static_cast<int>(i) + 1, value, textLives));
    }
}

CompiledStatement& Session::versionQuery() {
    if (!mVersionQuery) mVersionQuery = CompiledStatement(mHandle, "Pragma schema_version", true);
    return mVersionQuery;
}

std::int64_t Session::schemaVersion() {
    CompiledStatement& query = versionQuery();
    query.step();
    const std::int64_t version = sqlite3_column_int64(query.get(), 0);
    query.reset();
    return version;
}

void Session::refreshSchema() {
    if (mSchemaPinned && mSchemaVersion) return;
    const std::int64_t version = schemaVersion();
    if (mSchemaVersion && *mSchemaVersion != version) forgetSchema();
    mSchemaVersion = version;
}

void Session::forgetSchema() {
    mShapes.forget();
    mSchema.forget();
    mSchemaVersion.reset();
}

void Session::settleCursors() {
    const std::vector<ResultCursor*> cursors = mCursors;
    for (ResultCursor* cursor : cursors)
        cursor->spool();
}

std::unique_ptr<Cursor> Session::openCursor(std::string_view statement, CursorType cursorType,
                                            LockType lockType) {
    requireReady(statement);
    if (lockType != LockType::ReadOnly || cursorType == CursorType::Keyset ||
        cursorType == CursorType::Dynamic) {
        return openKeyset(statement, lockType);
    }
    Lease lease = prepare(statement);
    const Returned returned(mShapes, lease);
    bindLiterals(lease, TextLives::OnlyNow);
    auto cursor = open(lease);
    if (cursor && cursorType == CursorType::Static) cursor->become(CursorType::Static, LockType::ReadOnly);
    return cursor;
}

// Runs a bound statement and gives the cursor on its result, which takes the lease over; null when it returns
// no rows.
std::unique_ptr<ResultCursor> Session::open(Lease& lease) {
    sqlite3_stmt* statement = lease.statement.get();
    if (sqlite3_column_count(statement) == 0) {
        run(lease);
        return nullptr;
    }
    const bool writes = sqlite3_stmt_readonly(statement) == 0;
    if (writes) settleCursors();
    const bool atEnd = !lease.statement.step();
    describeResult(lease);
    auto cursor = std::make_unique<ResultCursor>(*this, std::move(lease), atEnd);
    mCursors.push_back(cursor.get());
    // What writes has written only when it is done.
    if (writes) cursor->spool();
    return cursor;
}

std::unique_ptr<Cursor> Session::openNative(std::string_view statement) {
    requireReady(statement);
    auto shape = std::make_shared<Shape>();
    shape->changesSchema = sql::effectOf(statement) == sql::Effect::Schema;
    shape->forgotten = true;
    Lease lease{std::move(shape), CompiledStatement(mHandle, statement)};
    return open(lease);
}

std::unique_ptr<Cursor> Session::openKeyset(std::string_view statement, LockType lockType) {
    Writeback writeback;
    std::string keyColumns;
    if (const auto rows = lockType == LockType::ReadOnly ? std::nullopt : sql::rowSource(statement)) {
        refreshSchema();
        writeback = {rows->schema, rows->table, mSchema.keyOf(rows->name())};
        for (const std::string& column : writeback.key) {
            keyColumns += ", " + sql::quotedName(rows->calledAs) + "." + sql::quotedName(column);
        }
    }
    Lease lease = prepareOnce(statement, keyColumns);
    const Returned returned(mShapes, lease);
    bindLiterals(lease, TextLives::OnlyNow);
    auto cursor = open(lease);
    if (cursor) cursor->become(CursorType::Keyset, lockType, std::move(writeback));
    return cursor;
}

// Reads names and types of a result's columns once for its shape; again when the engine compiled it anew for
// a new schema.
void Session::describeResult(const Lease& lease) {
    sqlite3_stmt* statement = lease.statement.get();
    const bool recompiled = sqlite3_stmt_status(statement, SQLITE_STMTSTATUS_REPREPARE, 1) > 0;
    if (recompiled) refreshSchema();
    if (lease.shape->columns && !lease.shape->forgotten && !recompiled) return;
    std::vector<ColumnInfo> columns;
    const auto& computed = lease.shape->translation.resultTypes;
    const auto count = static_cast<std::size_t>(sqlite3_column_count(statement));
    for (std::size_t i = 0; i < count; ++i) {
        const char* declaration = sqlite3_column_decltype(statement, static_cast<int>(i));
        DeclaredType declared = declaration ? declaredType(declaration) : DeclaredType{};
        if (!declaration && computed.size() == count && computed[i]) declared.type = *computed[i];
        columns.push_back(
            {sqlite3_column_name(statement, static_cast<int>(i)), declared.type, declared.size});
    }
    lease.shape->columns = std::make_shared<ResultColumns>(std::move(columns));
}

CompiledStatement Session::compileForWriting(std::string_view statement) {
    requireReady(statement);
    settleCursors();
    return CompiledStatement(handle(), statement);
}

void Session::giveBack(Lease lease) {
    mShapes.giveBack(std::move(lease));
}

void Session::forget(const ResultCursor& cursor) {
    std::erase(mCursors, &cursor);
}

} // namespace Korvane::ado::sqlite
