#include <korvane/ado/Recordset.h>

#include <korvane/runtime/RuntimeError.h>

#include <algorithm>
#include <utility>

namespace Korvane::ado {

struct Recordset::Opened {
    // Behind the cursor, which is released first.
    std::shared_ptr<Connection> connection;
    std::unique_ptr<Cursor> cursor;
    int columns; ///< how many there are
    std::vector<FieldChange> pending{};

    /// -1 when it is not there.
    int find(const FieldKey& key) const {
        const int ordinal = key.isOrdinal() ? key.ordinal() : cursor->columnIndex(key.name());
        return ordinal < columns ? ordinal : -1;
    }
    /// Of a field that is there; raises ItemNotFound.
    int ordinalOf(const FieldKey& key) const {
        const int ordinal = find(key);
        if (ordinal < 0) throw RuntimeError(RuntimeError::ItemNotFound);
        return ordinal;
    }

    const FieldChange* pendingFor(int ordinal) const {
        for (const FieldChange& change : pending) {
            if (change.ordinal == ordinal) return &change;
        }
        return nullptr;
    }
};

Recordset::Recordset() = default;
Recordset::~Recordset() = default;

std::shared_ptr<Recordset> Recordset::create() {
    return std::shared_ptr<Recordset>(new Recordset);
}

std::int32_t Recordset::State() const {
    return mOpened && mOpened->cursor->isOpen() ? 1 : 0;
}

Recordset::Opened& Recordset::opened() const {
    if (State() == 0) throw RuntimeError(RuntimeError::ObjectClosed);
    return *mOpened;
}

Recordset::Opened& Recordset::current() const {
    Opened& open = opened();
    if (open.cursor->atEnd()) throw RuntimeError(RuntimeError::NoCurrentRecord);
    return open;
}

const ColumnInfo& Recordset::columnInfo(const FieldKey& key) const {
    const Opened& open = opened();
    return open.cursor->columns()[static_cast<std::size_t>(open.ordinalOf(key))];
}

CursorType Recordset::CursorType() const {
    return State() == 1 ? mOpened->cursor->cursorType() : mCursorType;
}

void Recordset::CursorType(ado::CursorType type) {
    if (State() == 1) throw RuntimeError(RuntimeError::ObjectOpen);
    mCursorType = type;
}

LockType Recordset::LockType() const {
    return State() == 1 ? mOpened->cursor->lockType() : mLockType;
}

void Recordset::LockType(ado::LockType type) {
    if (State() == 1) throw RuntimeError(RuntimeError::ObjectOpen);
    mLockType = type;
}

void Recordset::Open(std::string_view source, const std::shared_ptr<Connection>& connection) {
    if (State() == 1) throw RuntimeError(RuntimeError::ObjectOpen);
    if (!connection) throw RuntimeError(RuntimeError::InvalidConnection);
    mOpened.reset();
    ++mOpening;
    auto cursor = connection->openCursor(source, mCursorType, mLockType);
    if (!cursor) return;
    const auto columns = static_cast<int>(cursor->columns().size());
    mOpened = std::make_unique<Opened>(Opened{connection, std::move(cursor), columns});
}

void Recordset::Close() {
    opened();
    mOpened.reset();
    ++mOpening;
}

bool Recordset::Supports(std::int32_t capabilities) const {
    const Opened& open = opened();
    const bool counted =
        open.cursor->cursorType() == CursorType::Static || open.cursor->cursorType() == CursorType::Keyset;
    std::int32_t there = counted ? Bookmark + ApproximatePosition : 0;
    if (open.cursor->lockType() != LockType::ReadOnly) there += Updating;
    return (capabilities & ~there) == 0;
}

std::int32_t Recordset::RecordCount() const {
    return opened().cursor->rowCount();
}

bool Recordset::Eof() const {
    return opened().cursor->atEnd();
}

void Recordset::MoveNext() {
    Opened& open = current();
    if (!open.pending.empty()) Update();
    open.cursor->moveNext();
}

std::int32_t Recordset::FieldCount() const {
    return opened().columns;
}

Field Recordset::Fields(const FieldKey& key) const {
    const int ordinal = opened().ordinalOf(key);
    return {std::const_pointer_cast<Recordset>(shared_from_this()), ordinal, mOpening};
}

DataType Recordset::FieldType(const FieldKey& key) const {
    return columnInfo(key).type;
}

Variant Recordset::Value(const FieldKey& key) const {
    Variant value;
    Value(key, value);
    return value;
}

void Recordset::Value(const FieldKey& key, Variant& value) const {
    opened().ordinalOf(key);
    if (!ValueUnlessEof(key, value)) throw RuntimeError(RuntimeError::NoCurrentRecord);
}

std::optional<int> Recordset::ValueUnlessEof(const FieldKey& key, Variant& value) const {
    const Opened& open = opened();
    if (open.cursor->atEnd()) return std::nullopt;
    const int ordinal = open.ordinalOf(key);
    if (const FieldChange* change = open.pendingFor(ordinal))
        value = change->value;
    else
        open.cursor->value(ordinal, value);
    return ordinal;
}

CellView Recordset::Peek(const FieldKey& key) const {
    CellView cell;
    if (!isAsRead()) return cell;
    const int ordinal = mOpened->find(key);
    if (ordinal >= 0) mOpened->cursor->peek(ordinal, {&cell, 1});
    return cell;
}

void Recordset::Peek(std::span<CellView> cells) const {
    const std::size_t there = isAsRead() ? std::min(cells.size(), std::size_t(mOpened->columns)) : 0;
    if (there > 0) mOpened->cursor->peek(0, cells.first(there));
    std::ranges::fill(cells.subspan(there), CellView());
}

bool Recordset::isAsRead() const {
    return State() == 1 && !mOpened->cursor->atEnd() && mOpened->pending.empty();
}

void Recordset::SetValue(const FieldKey& key, const Variant& value) {
    const int ordinal = opened().ordinalOf(key);
    Opened& open = current();
    if (open.cursor->lockType() == LockType::ReadOnly) throw RuntimeError(RuntimeError::ReadOnlyRecordset);
    if (value.isArray()) throw RuntimeError(RuntimeError::TypeMismatch);
    const auto same = [&](const FieldChange& change) { return change.ordinal == ordinal; };
    std::erase_if(open.pending, same);
    open.pending.push_back({ordinal, value});
}

void Recordset::Update() {
    Opened& open = opened();
    if (open.pending.empty()) return;
    open.cursor->update(open.pending);
    open.pending.clear();
}

void Recordset::CancelUpdate() {
    opened().pending.clear();
}

} // namespace Korvane::ado
