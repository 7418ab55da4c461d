#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/ado/FieldKey.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::ado {

class Recordset;

/// A field of an open recordset, as it stands in the current row. Every use after the recordset was closed,
/// reopened or released raises ObjectClosed.
class Field {
  public:
    /// The name of the column, as the result has it.
    std::string Name() const;
    /// The type of the column; a value may be Null whatever it is.
    DataType Type() const;
    /// Characters; 0 when the type has no length.
    std::int32_t DefinedSize() const;
    /// Null included. NoCurrentRecord at the end.
    Variant Value() const;
    /// Takes effect in the table with `Recordset::Update`. ReadOnlyRecordset unless opened for writing.
    void Value(const Variant& value) const;

  private:
    friend class Recordset;
    Field(std::weak_ptr<Recordset> owner, int ordinal, std::uint32_t opening);
    std::shared_ptr<Recordset> owner() const;

    std::weak_ptr<Recordset> mOwner;
    int mOrdinal;
    std::uint32_t mOpening;
};

/// The rows that a statement returns, walked forward.
///
///     auto rs = Recordset::create();
///     rs->CursorType(CursorType::Static);
///     rs->Open("Select PatientID From Encounter", db);
///     for (; !rs->Eof(); rs->MoveNext()) use(rs->Value("PatientID"));
///     rs->Close();
///
/// A new one is closed, forward-only and read-only. Members that need rows raise ObjectClosed while it is
/// closed.
class Recordset : public std::enable_shared_from_this<Recordset> {
  public:
    /// Codes of `Supports`.
    enum Capability : std::int32_t { Updating = 16777216, Bookmark = 8192, ApproximatePosition = 16384 };

    /// A closed one.
    static std::shared_ptr<Recordset> create();
    /// Pending changes are dropped.
    ~Recordset();

    /// 1 while open, else 0.
    std::int32_t State() const;

    /// What is asked for, or, while open, what the provider gave. ObjectOpen when set while open.
    ado::CursorType CursorType() const;
    void CursorType(ado::CursorType type);
    ado::LockType LockType() const;
    void LockType(ado::LockType type);

    /// Runs the statement and stands on its first row. A statement that returns no rows runs and leaves the
    /// recordset closed. ObjectOpen when already open, InvalidConnection without a connection, ObjectClosed
    /// when that is closed.
    void Open(std::string_view source, const std::shared_ptr<Connection>& connection);

    /// Drops pending changes. ObjectClosed when not open.
    void Close();

    /// Whether everything in the sum of capabilities is there: bookmarks and approximate position for static
    /// and keyset cursors (a dynamic one is given as keyset), updating for a lock type other than read-only.
    bool Supports(std::int32_t capabilities) const;

    /// The number of rows; -1 for a forward-only one.
    std::int32_t RecordCount() const;

    /// Whether it stands behind the last row: there is no current one. So it begins where there are no rows.
    bool Eof() const;

    /// To the next row; pending changes of the current one are written first. NoCurrentRecord when already at
    /// the end.
    void MoveNext();

    /// How many columns each row has, also where there are no rows.
    std::int32_t FieldCount() const;
    /// A column, for the current row. ItemNotFound for an unknown name or ordinal.
    Field Fields(const FieldKey& key) const;
    DataType FieldType(const FieldKey& key) const;

    /// The value in the current row, Null included. NoCurrentRecord at the end, ItemNotFound for an unknown
    /// field.
    Variant Value(const FieldKey& key) const;
    /// The same into a variant whose storage is reused: for walking many rows.
    void Value(const FieldKey& key, Variant& value) const;
    /// The same, and the field's ordinal; at the end nothing, with `value` left alone. The key may be a view
    /// of the text in `value`: it is done with by then.
    std::optional<int> ValueUnlessEof(const FieldKey& key, Variant& value) const;
    /// The value to be looked at, for walking very many rows: stands until the connection is used again.
    /// Nothing where it is not to be had so; what is wrong then, the others say.
    CellView Peek(const FieldKey& key) const;
    /// The same of the first fields, as many as `cells` has room for; nothing behind the last.
    void Peek(std::span<CellView> cells) const;
    /// Changes the current row; written by `Update`. ReadOnlyRecordset unless opened for writing.
    void SetValue(const FieldKey& key, const Variant& value);

    /// Writes the pending changes of the current row into its table. On failure they stay pending. Nothing
    /// pending: nothing happens.
    void Update();
    /// Drops the pending changes: the row reads as it did before.
    void CancelUpdate();

  private:
    Recordset();
    friend class Field;
    struct Opened;
    Opened& opened() const;  ///< raises ObjectClosed
    Opened& current() const; ///< raises NoCurrentRecord as well
    const ColumnInfo& columnInfo(const FieldKey& key) const;
    bool isAsRead() const; ///< stands on a row in which nothing is pending
    ado::CursorType mCursorType = ado::CursorType::ForwardOnly;
    ado::LockType mLockType = ado::LockType::ReadOnly;
    std::unique_ptr<Opened> mOpened;
    std::uint32_t mOpening = 0;
};

} // namespace Korvane::ado
