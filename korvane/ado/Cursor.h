#pragma once

#include <korvane/ado/DataType.h>
#include <korvane/runtime/Variant.h>

#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace Korvane::ado {

/// What a provider knows of a column of a result.
struct ColumnInfo {
    std::string name;                   ///< as the result has it
    DataType type = DataType::VarWChar; ///< of its values that are not Null
    std::int32_t definedSize = 0;       ///< characters; 0 when the type has no length
    bool nullable = true;               ///< false when the database is known to refuse a Null in it
    /// The engine keeps something else (a time of day, a number of its own) that goes in and out as text.
    bool onlyShownAsText = false;
};

/// One field of the current row with the value it is to take.
struct FieldChange {
    int ordinal = 0; ///< from 0
    Variant value;   ///< Null for none
};

/// A cell where it is, without a copy: a whole number (True is -1), a text, or nothing for any other value,
/// Null included, and where it is not to be had so.
using CellView = std::variant<std::monostate, std::int64_t, std::string_view>;

/// How a result may be walked; the codes are those of a recordset's `CursorType`.
enum class CursorType : int { ForwardOnly = 0, Keyset = 1, Dynamic = 2, Static = 3 };
/// How a result may be written; the codes are those of a recordset's `LockType`.
enum class LockType : int { ReadOnly = 1, Pessimistic = 2, Optimistic = 3, BatchOptimistic = 4 };

/// The provider's side of an open recordset: one result, walked forward. Made by `Connection::openCursor`,
/// already on its first row. Hosts use `Recordset`.
class Cursor {
  public:
    virtual ~Cursor() = default;

    /// False once its connection was closed; nothing but this may be asked then.
    bool isOpen() const { return mIsOpen; }

    /// In their order, also when there are no rows.
    virtual std::span<const ColumnInfo> columns() const = 0;
    /// The ordinal of the column of that name (case does not count); -1 when there is none.
    virtual int columnIndex(std::string_view name) const = 0;

    /// Whether it stands behind the last row.
    bool atEnd() const { return mAtEnd; }
    /// To the next row. Only while not `atEnd`. Engine failures are raised.
    virtual void moveNext() = 0;
    /// The value of a column of the current row, Null included, into `value` (whose storage is reused).
    virtual void value(int ordinal, Variant& value) const = 0;
    /// The same values, of as many columns from `first` on, to be looked at: stands until the connection is
    /// used again.
    virtual void peek(int first, std::span<CellView> cells) const = 0;

    /// The number of rows; -1 when it is not known without walking them.
    virtual std::int32_t rowCount() const = 0;
    /// The types really given.
    virtual CursorType cursorType() const = 0;
    virtual LockType lockType() const = 0;

    /// Writes the changed fields of the current row into its table, found by the table's key; the current row
    /// then shows them. ReadOnlyRecordset when the result cannot be traced to the key of one table, or was
    /// not opened for writing.
    virtual void update(std::span<const FieldChange> changes) = 0;

  protected:
    /// What `isOpen` and `atEnd` say, for the provider to set: asked for with every cell.
    bool mIsOpen = true;
    bool mAtEnd = false;
};

} // namespace Korvane::ado
