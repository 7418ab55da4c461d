#include <korvane/ado/sqlite/ResultCursor.h>

#include <korvane/ado/sql/Names.h>
#include <korvane/ado/sqlite/Error.h>
#include <korvane/ado/sqlite/Session.h>
#include <korvane/ado/sqlite/Values.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <sqlite3.h>

#include <utility>

namespace Korvane::ado::sqlite {

ResultCursor::ResultCursor(Session& session, Lease lease, bool atEnd)
    : mSession(&session), mLease(std::move(lease)), mColumns(mLease.shape->columns), mLive(!atEnd) {
    mAtEnd = atEnd;
}

ResultCursor::~ResultCursor() {
    close();
}

void ResultCursor::close() noexcept {
    if (!mSession) return;
    mSession->giveBack(std::move(mLease));
    mSession->forget(*this);
    mSession = nullptr;
    mIsOpen = false;
    mLive = false;
    mAtEnd = true;
}

std::span<const ColumnInfo> ResultCursor::columns() const {
    return std::span(mColumns->all()).first(ownColumns());
}

int ResultCursor::columnIndex(std::string_view name) const {
    const int index = mColumns->indexOf(name);
    return index < static_cast<int>(ownColumns()) ? index : -1;
}

// A result that could not be read on is closed: what is left of it must not pass for all of it.
void ResultCursor::advance() {
    try {
        mLive = mLease.statement.step();
    } catch (...) {
        close();
        throw;
    }
}

void ResultCursor::moveNext() {
    if (mLive) {
        advance();
        mAtEnd = !mLive;
        // The compiled form is free for the next one to ask the same.
        if (mAtEnd) mSession->giveBack(std::move(mLease));
        return;
    }
    ++mRow;
    mAtEnd = (mRow + 1) * width() > mCells.size();
}

void ResultCursor::value(int ordinal, Variant& value) const {
    const auto place = static_cast<std::size_t>(ordinal);
    if (mLive) {
        read(mLease.statement.get(), ordinal, mColumns->all()[place].type, value);
    } else {
        value = mCells[mRow * width() + place];
    }
}

void ResultCursor::peek(int first, std::span<CellView> cells) const {
    for (CellView& cell : cells) {
        const DataType type = mColumns->all()[static_cast<std::size_t>(first)].type;
        cell = mLive ? sqlite::peek(mLease.statement.get(), first, type) : CellView();
        ++first;
    }
}

void ResultCursor::spool() {
    if (!mLive) return;
    while (mLive) {
        for (std::size_t i = 0; i < width(); ++i) {
            // Key columns are kept as they are stored, to be found again.
            const DataType type = i < ownColumns() ? mColumns->all()[i].type : DataType::Empty;
            Variant& cell = mCells.emplace_back();
            read(mLease.statement.get(), static_cast<int>(i), type, cell);
        }
        advance();
    }
    mRow = 0;
    mSession->giveBack(std::move(mLease));
}

void ResultCursor::become(ado::CursorType cursorType, ado::LockType lockType, Writeback writeback) {
    mWriteback = std::move(writeback);
    if (!mWriteback.key.empty()) noteOrigins();
    spool();
    mRowCount = static_cast<std::int32_t>(width() == 0 ? 0 : mCells.size() / width());
    mCursorType = cursorType;
    mLockType = lockType;
}

void ResultCursor::noteOrigins() {
    sqlite3_stmt* statement = mLease.statement.get();
    for (std::size_t i = 0; i < ownColumns(); ++i) {
        const char* table = sqlite3_column_table_name(statement, static_cast<int>(i));
        const char* origin = sqlite3_column_origin_name(statement, static_cast<int>(i));
        const bool ours = table && origin && sameName(table, mWriteback.table);
        mOrigins.emplace_back(ours ? origin : "");
    }
}

void ResultCursor::requireWritable(std::span<const FieldChange> changes) const {
    bool writable = mLockType != ado::LockType::ReadOnly && !mWriteback.key.empty();
    for (const FieldChange& change : changes) {
        writable = writable && !mOrigins[static_cast<std::size_t>(change.ordinal)].empty();
    }
    if (!writable) throw RuntimeError(RuntimeError::ReadOnlyRecordset);
}

// The values as they were stored come back with it; no row comes back when it was not found.
std::string ResultCursor::updateStatement(std::span<const FieldChange> changes) const {
    std::string set;
    std::string stored;
    for (const FieldChange& change : changes) {
        const std::string column = sql::quotedName(mOrigins[static_cast<std::size_t>(change.ordinal)]);
        set += (set.empty() ? "" : ", ") + column + " = ?";
        stored += column + ", ";
    }
    std::string where;
    for (const std::string& key : mWriteback.key) {
        where += (where.empty() ? "" : " And ") + sql::quotedName(key) + " Is ?";
        stored += sql::quotedName(key) + (&key == &mWriteback.key.back() ? "" : ", ");
    }
    return "Update " + sql::quotedName(mWriteback.schema, mWriteback.table) + " Set " + set + " Where " +
           where + " Returning " + stored;
}

void ResultCursor::update(std::span<const FieldChange> changes) {
    requireWritable(changes);
    CompiledStatement statement = mSession->compileForWriting(updateStatement(changes));
    std::string scratch;
    std::string variantText;
    int parameter = 0;
    const auto bindNext = [&](const sql::ColumnValue& value) {
        check(mSession->handle(), bind(statement.get(), ++parameter, value, TextLives::OnlyNow));
    };
    for (const FieldChange& change : changes) {
        const ColumnInfo& column = mColumns->all()[static_cast<std::size_t>(change.ordinal)];
        bindNext(
            sql::toColumn(sql::fromVariant(change.value, variantText), column, sql::Use::Store, scratch));
    }
    for (std::size_t i = 0; i < mWriteback.key.size(); ++i) {
        bindNext(sql::asItStands(sql::fromVariant(cell(ownColumns() + i), variantText), scratch));
    }
    if (!statement.step()) {
        throw RuntimeError(RuntimeError::DatabaseFailure,
                           Korvane::translate("Korvane::ado",
                                              "The row could not be found to be updated: it has been "
                                              "deleted, or its key has been changed, since it was read."));
    }
    std::vector<Variant> stored(changes.size() + mWriteback.key.size());
    for (std::size_t i = 0; i < stored.size(); ++i) {
        const bool isKey = i >= changes.size();
        const DataType type =
            isKey ? DataType::Empty : mColumns->all()[static_cast<std::size_t>(changes[i].ordinal)].type;
        read(statement.get(), static_cast<int>(i), type, stored[i]);
    }
    while (statement.step()) {
    }
    for (std::size_t i = 0; i < stored.size(); ++i) {
        const std::size_t place = i < changes.size() ? static_cast<std::size_t>(changes[i].ordinal)
                                                     : ownColumns() + i - changes.size();
        cell(place) = std::move(stored[i]);
    }
}

} // namespace Korvane::ado::sqlite
