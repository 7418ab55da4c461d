#pragma once

#include <korvane/ado/Cursor.h>

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace Korvane::ado {

struct TableState;

/// What a column is: a value, of a new column or as it was read. Changing it changes no table.
///
///     Column pulse("Pulse", DataType::VarWChar, 40);
///     pulse.Nullable(false);
class Column {
  public:
    /// `definedSize` in characters; only a VarWChar has one, and 0 there means texts of any length.
    explicit Column(std::string_view name, DataType type = DataType::VarWChar, std::int32_t definedSize = 0)
        : mInfo{std::string(name), type, definedSize} {}
    /// As a result or a table has told of it.
    explicit Column(ColumnInfo info) : mInfo(std::move(info)) {}

    /// As it is written; to find one, case does not count.
    const std::string& Name() const { return mInfo.name; }
    void Name(std::string_view name) { mInfo.name = name; }

    /// The type of its values. A size that is there stays, and counts only for a VarWChar.
    DataType Type() const { return mInfo.type; }
    void Type(DataType type) { mInfo.type = type; }

    /// Characters; 0 for texts of any length, and for what is no text.
    std::int32_t DefinedSize() const { return mInfo.definedSize; }
    void DefinedSize(std::int32_t characters) { mInfo.definedSize = characters; }

    /// Whether it may hold Null; true at first.
    bool Nullable() const { return mInfo.nullable; }
    void Nullable(bool nullable) { mInfo.nullable = nullable; }

    /// All of it at once.
    const ColumnInfo& info() const { return mInfo; }

  private:
    ColumnInfo mInfo;
};

/// The columns of a `Table`, in its order, found by their names without regard to case. Those of a table that
/// is in the database are read when they are asked for and changed at once, inside the connection's
/// transaction if one is open. Raises ItemNotFound for a column, or a table, that is not there (any more).
class Columns {
  public:
    /// As `Table::Columns` makes it.
    explicit Columns(std::shared_ptr<TableState> table) : mTable(std::move(table)) {}

    /// At the time of the call, copies: changing one changes no table.
    std::int32_t Count() const { return static_cast<std::int32_t>(All().size()); }
    std::vector<Column> All() const;
    bool Exists(std::string_view name) const;
    Column Item(std::string_view name) const;

    /// Adds a column behind the others; rows that are there have Null in it. DuplicateKey when there is one
    /// of that name; InvalidArgument for a name that the engine cannot keep as it is, for a size below 0, and
    /// when the table has rows and the column may not be Null.
    void Append(const Column& column);

    /// Gives a column another name, which may differ in case only; indexes and rows stay. Fails as `Append`
    /// does for the new name.
    void Rename(std::string_view name, std::string_view newName);

    /// Makes a text column take texts of that many characters. One that takes them stays as it is: nothing is
    /// ever narrowed. On an engine that stores texts of any length in every column (SQLite) the size is what
    /// the column was declared with, and stays. InvalidArgument for a column that keeps no text.
    void Widen(std::string_view name, std::int32_t definedSize);

    /// Removes a column with its contents and the indexes that it is in. InvalidArgument for a part of the
    /// primary key and for the last column.
    void Delete(std::string_view name);

  private:
    std::shared_ptr<TableState> mTable;
};

} // namespace Korvane::ado
