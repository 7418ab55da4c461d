#pragma once

#include <korvane/ado/ResultColumns.h>
#include <korvane/ado/postgres/Wire.h>

#include <korvane/ado/Cursor.h>
#include <korvane/ado/sql/Tables.h>

#include <map>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace Korvane::ado::postgres {

class Session;

/// Where a result's rows can be written back: one table and the columns of its key, which stand behind the
/// result's own.
struct Writeback {
    std::string schema; ///< empty when the statement names none
    std::string table;
    std::vector<std::string> key;

    sql::TableName name() const { return {table, schema}; }
};

/// A result, which has come as a whole: it shows what was asked for, whatever is written meanwhile, and holds
/// nothing on the server.
class ResultCursor final : public Cursor {
  public:
    ResultCursor(Session& session, std::shared_ptr<const pg_result> rows,
                 std::shared_ptr<const ResultColumns> columns, CursorType cursorType, LockType lockType,
                 Writeback writeback = {});
    ~ResultCursor() override;
    ResultCursor(const ResultCursor&) = delete;
    ResultCursor& operator=(const ResultCursor&) = delete;

    void close() noexcept;

    std::span<const ColumnInfo> columns() const override;
    int columnIndex(std::string_view name) const override;
    void moveNext() override;
    void value(int ordinal, Variant& value) const override;
    void peek(int first, std::span<CellView> cells) const override;
    std::int32_t rowCount() const override;
    ado::CursorType cursorType() const override { return mCursorType; }
    ado::LockType lockType() const override { return mLockType; }
    void update(std::span<const FieldChange> changes) override;

  private:
    using Cell = std::optional<std::string>;
    std::size_t ownColumns() const { return mColumns->all().size() - mWriteback.key.size(); }
    Cell cell(int column) const;
    std::string_view stored(int column) const;
    std::vector<const ColumnInfo*> findOrigins(std::span<const FieldChange> changes) const;
    std::vector<const ColumnInfo*> requireOrigins(std::span<const FieldChange> changes) const;
    Command updateCommand(std::span<const FieldChange> changes,
                          const std::vector<const ColumnInfo*>& origins) const;
    Answer write(std::span<const FieldChange> changes);

    Session* mSession;
    std::shared_ptr<const pg_result> mRows;
    std::shared_ptr<const ResultColumns> mColumns;
    int mRow = 0;
    int mRowCount;
    ado::CursorType mCursorType;
    ado::LockType mLockType;
    Writeback mWriteback;
    std::map<std::pair<int, int>, Cell> mWritten; ///< cells that were written back, by row and column
};

} // namespace Korvane::ado::postgres
