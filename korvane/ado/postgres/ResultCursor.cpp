#include <korvane/ado/postgres/ResultCursor.h>

#include <korvane/ado/postgres/Error.h>
#include <korvane/ado/postgres/Session.h>
#include <korvane/ado/postgres/Values.h>
#include <korvane/ado/sql/Names.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>

#include <libpq-fe.h>

namespace Korvane::ado::postgres {

ResultCursor::ResultCursor(Session& session, std::shared_ptr<const pg_result> rows,
                           std::shared_ptr<const ResultColumns> columns, ado::CursorType cursorType,
                           ado::LockType lockType, Writeback writeback)
    : mSession(&session), mRows(std::move(rows)), mColumns(std::move(columns)),
      mRowCount(PQntuples(mRows.get())), mCursorType(cursorType), mLockType(lockType),
      mWriteback(std::move(writeback)) {
    mAtEnd = mRowCount == 0;
}

ResultCursor::~ResultCursor() {
    close();
}

void ResultCursor::close() noexcept {
    if (mSession) mSession->forget(*this);
    mSession = nullptr;
    mIsOpen = false;
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

void ResultCursor::moveNext() {
    mAtEnd = ++mRow >= mRowCount;
    constexpr int many = 128;
    if (mRow % many == 0) mSession->takeIn();
}

// Blanks behind a text of fixed length mean nothing to the engine. No text of it holds a NUL.
std::string_view ResultCursor::stored(int column) const {
    const std::string_view text(PQgetvalue(mRows.get(), mRow, column));
    if (!text.ends_with(' ') || PQftype(mRows.get(), column) != types::blankPadded) return text;
    const bool isText = mColumns->all()[static_cast<std::size_t>(column)].type == DataType::VarWChar;
    if (!isText) return text;
    return text.substr(0, text.find_last_not_of(' ') + 1);
}

ResultCursor::Cell ResultCursor::cell(int column) const {
    if (const auto written = mWritten.find({mRow, column}); written != mWritten.end()) return written->second;
    if (PQgetisnull(mRows.get(), mRow, column)) return std::nullopt;
    return std::string(stored(column));
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
    const std::string_view text = stored(ordinal);
    if (text.empty() && PQgetisnull(mRows.get(), mRow, ordinal))
        value = Variant::null();
    else
        read(text, type, value);
}

void ResultCursor::peek(int first, std::span<CellView> cells) const {
    const bool isAsRead = mWritten.empty();
    for (CellView& cell : cells) {
        const std::string_view text = stored(first);
        const bool isNull = text.empty() && PQgetisnull(mRows.get(), mRow, first);
        const DataType type = mColumns->all()[static_cast<std::size_t>(first)].type;
        cell = isAsRead && !isNull ? postgres::peek(text, type) : CellView();
        ++first;
    }
}

// The table's columns behind the fields to be changed; none when one of them is no such column.
std::vector<const ColumnInfo*> ResultCursor::findOrigins(std::span<const FieldChange> changes) const {
    std::vector<const ColumnInfo*> origins;
    for (const FieldChange& change : changes) {
        origins.push_back(mSession->schema().originOf(mWriteback.name(),
                                                      PQftable(mRows.get(), change.ordinal),
                                                      PQftablecol(mRows.get(), change.ordinal)));
        if (!origins.back()) return {};
    }
    return origins;
}

std::vector<const ColumnInfo*> ResultCursor::requireOrigins(std::span<const FieldChange> changes) const {
    std::vector<const ColumnInfo*> origins;
    if (mLockType != ado::LockType::ReadOnly && !mWriteback.key.empty()) {
        mSession->requireSchema();
        origins = findOrigins(changes);
        // Another program may have added the column since.
        if (origins.empty()) mSession->rereadSchema();
        if (origins.empty()) origins = findOrigins(changes);
    }
    if (origins.empty()) throw RuntimeError(RuntimeError::ReadOnlyRecordset);
    return origins;
}

// The values as they were stored come back with it; no row comes back when it was not found. More than one
// is a failure, so that none of them has been written.
Command ResultCursor::updateCommand(std::span<const FieldChange> changes,
                                    const std::vector<const ColumnInfo*>& origins) const {
    Command command;
    std::string set;
    std::string returned;
    std::string scratch;
    std::string variantText;
    std::vector<std::string> names;
    const auto place = [&] { return "$" + std::to_string(command.values.size()); };
    for (std::size_t i = 0; i < changes.size(); ++i) {
        const sql::ColumnValue value = sql::toColumn(sql::fromVariant(changes[i].value, variantText),
                                                     *origins[i], sql::Use::Store, scratch);
        command.types.push_back(parameterType({*origins[i], sql::Use::Store}, value));
        command.values.push_back(parameterText(value));
        names.push_back(origins[i]->name);
        set += (set.empty() ? "" : ", ") + sql::quotedName(names.back()) + " = " + place();
        returned += (i > 0 ? ", " : "") + sql::quotedName(names.back());
    }
    std::string where;
    for (std::size_t i = 0; i < mWriteback.key.size(); ++i) {
        const std::string name = sql::quotedName(mWriteback.key[i]);
        command.types.push_back(types::unknown);
        command.values.push_back(cell(static_cast<int>(ownColumns() + i)));
        where += (where.empty() ? "" : " And ") + name + " = " + place();
        returned += ", " + name;
    }
    const Schema& schema = mSession->schema();
    const std::string table = schema.nameOf(mWriteback.name());
    const std::string check = schema.typeCheck(mWriteback.name(), names);
    const std::string within = mWriteback.schema.empty() ? "" : schema.schemaOf(mWriteback.schema);
    command.text = "With " + check + (check.empty() ? "" : ", ") + "written As (Update " +
                   sql::quotedName(within, table) + " Set " + set + " Where " + where + " Returning " +
                   returned + ") Select *, (Select 1 From written) From written";
    return command;
}

Answer ResultCursor::write(std::span<const FieldChange> changes) {
    const auto origins = requireOrigins(changes);
    try {
        return mSession->runForWriting(updateCommand(changes, origins));
    } catch (const RuntimeError& error) {
        if (sqlState(error.NativeCode()) == "21000") {
            throw RuntimeError(
                RuntimeError::DatabaseFailure,
                Korvane::translate(
                    "Korvane::ado",
                    "The row cannot be told from another one of its table; nothing was written."),
                error.NativeCode());
        }
        if (mSession->State() == 0 || !mayDoBetterAsText(error)) throw;
        mSession->rereadSchema();
        if (error.NativeCode() == 0) throw;
        throw RuntimeError(
            error.Number(),
            filled(
                Korvane::translate("Korvane::ado",
                                   "%1 Another program may have changed the table since its rows were read."),
                {error.Description()}),
            error.NativeCode());
    }
}

void ResultCursor::update(std::span<const FieldChange> changes) {
    const Answer stored = write(changes);
    if (PQntuples(stored.get()) == 0) {
        throw RuntimeError(RuntimeError::DatabaseFailure,
                           Korvane::translate("Korvane::ado",
                                              "The row could not be found to be updated: it has been "
                                              "deleted, or its key has been changed, since it was read."));
    }
    const std::size_t returned = changes.size() + mWriteback.key.size();
    for (std::size_t at = 0; at < returned; ++at) {
        const int i = static_cast<int>(at);
        const int column =
            at < changes.size() ? changes[at].ordinal : static_cast<int>(ownColumns() + at - changes.size());
        const bool isNull = PQgetisnull(stored.get(), 0, i) != 0;
        mWritten[{mRow, column}] = isNull ? Cell() : Cell(PQgetvalue(stored.get(), 0, i));
    }
}

} // namespace Korvane::ado::postgres
