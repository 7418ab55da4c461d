// How a session opens results whose rows are written back.

#include <korvane/ado/postgres/Session.h>

#include <korvane/ado/postgres/Error.h>
#include <korvane/ado/postgres/ResultCursor.h>
#include <korvane/ado/sql/Names.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

namespace Korvane::ado::postgres {

std::unique_ptr<Cursor> Session::openKeyset(std::string_view statement, LockType lockType) {
    const auto source = lockType == LockType::ReadOnly ? std::nullopt : sql::rowSource(statement);
    const bool knewSchema = mSchema.isRead();
    if (source) mSchema.include(source->schema);
    requireSchema();
    // Another program may have made the table since.
    if (source && knewSchema && mSchema.nameOf(source->name()).empty()) rereadSchema();
    try {
        return openKeysetOf(statement, source, lockType);
    } catch (const RuntimeError& error) {
        if (State() == 0) throw;
        const bool isGrouped = sqlState(error.NativeCode()) == "42803";
        if (isGrouped && source) return openKeysetOf(statement, std::nullopt, lockType);
        if (!knewSchema || !mayDoBetterAsText(error)) throw;
    }
    rereadSchema();
    return openKeysetOf(statement, source, lockType);
}

// Without a source the rows cannot be written.
std::unique_ptr<Cursor> Session::openKeysetOf(std::string_view statement,
                                              const std::optional<sql::RowSource>& source,
                                              LockType lockType) {
    Writeback writeback;
    std::string keyColumns;
    if (source) {
        writeback = {source->schema, source->table, mSchema.keyOf(source->name())};
        const std::string called =
            source->calledAs == source->table ? mSchema.nameOf(source->name()) : lowerCase(source->calledAs);
        for (const std::string& column : writeback.key)
            keyColumns += ", " + sql::quotedName(called) + "." + sql::quotedName(column);
    }
    Outcome outcome = run(literalRequest(statement, keyColumns));
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

void Session::rereadSchema() {
    forgetSchema();
    requireSchema();
}

} // namespace Korvane::ado::postgres
