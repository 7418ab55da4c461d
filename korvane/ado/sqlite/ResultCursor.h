#pragma once

#include <korvane/ado/Cursor.h>
#include <korvane/ado/sqlite/Shapes.h>

#include <cstddef>
#include <memory>
#include <string>
#include <vector>

namespace Korvane::ado::sqlite {

class Session;

/// Where a result's rows can be written back: one table and the columns of its key, which stand behind the
/// result's own.
struct Writeback {
    std::string schema; ///< empty when the statement names none
    std::string table;
    std::vector<std::string> key;
};

/// A result, stepped through as it is walked, or read into memory: as a whole when its rows are to be counted
/// or written, and the rest of it when something is written through the same connection, so that what was
/// asked for is what is seen, and no lock outlives its use.
class ResultCursor final : public Cursor {
  public:
    /// Takes over a statement that stands on its first row, or (`atEnd`) behind its last.
    ResultCursor(Session& session, Lease lease, bool atEnd);
    ~ResultCursor() override;
    ResultCursor(const ResultCursor&) = delete;
    ResultCursor& operator=(const ResultCursor&) = delete;

    /// Reads the rows that are left into memory and lets the statement go.
    void spool();
    /// Makes it one of all rows, counted.
    void become(CursorType cursorType, LockType lockType, Writeback writeback = {});
    void close() noexcept;

    std::span<const ColumnInfo> columns() const override;
    int columnIndex(std::string_view name) const override;
    void moveNext() override;
    void value(int ordinal, Variant& value) const override;
    void peek(int first, std::span<CellView> cells) const override;
    std::int32_t rowCount() const override { return mRowCount; }
    ado::CursorType cursorType() const override { return mCursorType; }
    ado::LockType lockType() const override { return mLockType; }
    void update(std::span<const FieldChange> changes) override;

  private:
    std::size_t width() const { return mColumns->all().size(); }
    std::size_t ownColumns() const { return width() - mWriteback.key.size(); }
    Variant& cell(std::size_t ordinal) { return mCells[mRow * width() + ordinal]; }
    void advance();
    void noteOrigins();
    void requireWritable(std::span<const FieldChange> changes) const;
    std::string updateStatement(std::span<const FieldChange> changes) const;

    Session* mSession;
    Lease mLease;
    std::shared_ptr<const ResultColumns> mColumns;
    bool mLive = false;          ///< the statement stands on the current row
    std::vector<Variant> mCells; ///< rows in memory, the current one at mRow
    std::size_t mRow = 0;
    std::int32_t mRowCount = -1;
    ado::CursorType mCursorType = ado::CursorType::ForwardOnly;
    ado::LockType mLockType = ado::LockType::ReadOnly;
    Writeback mWriteback;
    std::vector<std::string>
        mOrigins; ///< the table's column behind each column; empty for one that cannot be written
};

} // namespace Korvane::ado::sqlite
