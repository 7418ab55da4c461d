#include <korvane/ado/postgres/ResultCursor.h>

#include <korvane/ado/postgres/Session.h>
#include <korvane/ado/postgres/Values.h>
#include <korvane/ado/sql/Names.h>
#include <korvane/runtime/RuntimeError.h>

#include <libpq-fe.h>

namespace Korvane::ado::postgres {

ResultCursor::ResultCursor(Session& session, std::shared_ptr<const pg_result> rows,
                           std::shared_ptr<const ResultColumns> columns, ado::CursorType cursorType,
                           ado::LockType lockType, Writeback writeback)
    : mSession(&session), mRows(std::move(rows)), mColumns(std::move(columns)),
      mRowCount(PQntuples(mRows.get())), mCursorType(cursorType), mLockType(lockType),
      mWriteback(std::move(writeback)) {}

ResultCursor::~ResultCursor() {
    close();
}

void ResultCursor::close() noexcept {
    if (mSession) mSession->forget(*this);
    mSession = nullptr;
}

std::span<const ColumnInfo> ResultCursor::columns() const {
    return std::span(mColumns->all()).first(ownColumns());
}

int ResultCursor::columnIndex(std::string_view name) const {
    const int index = mColumns->indexOf(name);
    return index < static_cast<int>(ownColumns()) ? index : -1;
}

std::int32_t ResultCursor::rowCount() const {
    return mCursorType == ado::CursorType::ForwardOnly ? -1 : mRowCount;
}

ResultCursor::Cell ResultCursor::cell(int column) const {
    if (const auto written = mWritten.find({mRow, column}); written != mWritten.end()) return written->second;
    if (PQgetisnull(mRows.get(), mRow, column)) return std::nullopt;
    return std::string(PQgetvalue(mRows.get(), mRow, column),
                       static_cast<std::size_t>(PQgetlength(mRows.get(), mRow, column)));
}

void ResultCursor::value(int ordinal, Variant& value) const {
    const DataType type = mColumns->all()[static_cast<std::size_t>(ordinal)].type;
    if (!mWritten.empty()) {
        const Cell current = cell(ordinal);
        if (current)
            read(*current, type, value);
        else
            value = Variant::null();
        return;
    }
    // No text of this engine holds a zero byte.
    const std::string_view text = PQgetvalue(mRows.get(), mRow, ordinal);
    if (text.empty() && PQgetisnull(mRows.get(), mRow, ordinal))
        value = Variant::null();
    else
        read(text, type, value);
}

// The table's columns behind the fields to be changed.
std::vector<std::string> ResultCursor::requireOrigins(std::span<const FieldChange> changes) const {
    std::vector<std::string> origins;
    for (const FieldChange& change : changes) {
        std::string origin;
        if (mLockType != ado::LockType::ReadOnly && !mWriteback.key.empty()) {
            origin = mSession->schema().originOf(mWriteback.table, PQftable(mRows.get(), change.ordinal),
                                                 PQftablecol(mRows.get(), change.ordinal));
        }
        if (origin.empty()) throw RuntimeError(RuntimeError::ReadOnlyRecordset);
        origins.push_back(std::move(origin));
    }
    return origins;
}

// The values as they were stored come back with it; no row comes back when it was not found.
Command ResultCursor::updateCommand(std::span<const FieldChange> changes,
                                    const std::vector<std::string>& origins) const {
    Command command;
    std::string set;
    std::string stored;
    std::string scratch;
    std::string variantText;
    const auto place = [&] { return "$" + std::to_string(command.values.size()); };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const ColumnInfo& column = mColumns->all()[static_cast<std::size_t>(changes[i].ordinal)];
        const sql::ColumnValue value =
            sql::toColumn(sql::fromVariant(changes[i].value, variantText), column, sql::Use::Store, scratch);
        command.types.push_back(parameterType({column, sql::Use::Store}, value));
        command.values.push_back(parameterText(value));
        set += (set.empty() ? "" : ", ") + sql::quotedName(origins[i]) + " = " + place();
        stored += sql::quotedName(origins[i]) + ", ";
    }
    std::string where;
    for (std::size_t i = 0; i < mWriteback.key.size(); ++i) {
        const std::string name = sql::quotedName(mWriteback.key[i]);
        command.types.push_back(types::unknown);
        command.values.push_back(cell(static_cast<int>(ownColumns() + i)));
        where += (where.empty() ? "" : " And ") + name + " = " + place();
        stored += name + (i + 1 < mWriteback.key.size() ? ", " : "");
    }
    command.text = "Update " + sql::quotedName(mSession->schema().nameOf(mWriteback.table)) + " Set " + set +
                   " Where " + where + " Returning " + stored;
    return command;
}

void ResultCursor::update(std::span<const FieldChange> changes) {
    mSession->requireSchema();
    const Answer stored = mSession->runForWriting(updateCommand(changes, requireOrigins(changes)));
    if (PQntuples(stored.get()) == 0) {
        throw RuntimeError(
            RuntimeError::DatabaseFailure,
            "The row could not be found to be updated: it has been deleted, or its key has been changed, "
            "since it was read.");
    }
    for (int i = 0; i < PQnfields(stored.get()); ++i) {
        const auto at = static_cast<std::size_t>(i);
        const int column =
            at < changes.size() ? changes[at].ordinal : static_cast<int>(ownColumns() + at - changes.size());
        const bool isNull = PQgetisnull(stored.get(), 0, i) != 0;
        mWritten[{mRow, column}] = isNull ? Cell() : Cell(PQgetvalue(stored.get(), 0, i));
    }
}

} // namespace Korvane::ado::postgres
