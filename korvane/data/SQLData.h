#pragma once

#include <korvane/ado/Recordset.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Variant.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace Korvane {

/// How a query may be read: the access mode of `SQLData::SQL`.
namespace AccessMode {
enum : std::int32_t { Read = 0, ReadCounted = 1, Write = 2 };
}

/// How a value is written into a statement: the quoting argument of the list members.
namespace Quoting {
enum : std::int32_t { Automatic = -1, Bare = 0, Quoted = 1 };
}

/// Runs one statement over the host's connection and hands out its rows; shapes the lists of insert and
/// update statements.
///
///     SQLData query;
///     if (query.SQL(connection, "Select Description From Encounter Where EncounterID=12", false,
///     AccessMode::Read))
///         for (; !query.Eof(); query.NextRow()) show(query.Data("Description"));
///
///     SQLData insert;
///     insert.InsertListAdd("Description", "it's", Quoting::Quoted);
///     insert.SQL(connection, "Insert Into Encounter " + insert.InsertListGet(), true, AccessMode::Read);
///
/// Nothing is raised to the caller except where a member says so: the first failure of an object is shown to
/// the user and appended to "err.txt" in `App::Path()`, later ones of the same object are silent; the member
/// then returns false, Empty, 0 or nothing. The connection is never opened or closed here.
class SQLData {
  public:
    SQLData() = default;
    /// Closes an open result as `CloseRS` does, so that pending changes are written.
    ~SQLData();

    SQLData(const SQLData&) = delete;
    SQLData& operator=(const SQLData&) = delete;

    /// Runs the statement; an earlier result is closed first and its pending changes are dropped. With
    /// `executeOnly` no rows are kept and `RecordsAffected` tells how many were changed. True when it ran.
    bool SQL(const std::shared_ptr<ado::Connection>& connection, std::string_view statement, bool executeOnly,
             std::int32_t mode);

    /// The field's value in the current row: never Null (a null number, a boolean included, reads as the
    /// 16-bit 0, anything else as ""), Empty at the end of the rows.
    Variant Data(const ado::FieldKey& key) { return DataView(key); }
    /// The same without a copy, for reading many cells: stands until the next use of this object.
    ///
    ///     kept = query.DataView("Description");      // reuses the storage of the text kept so far
    const Variant& DataView(const ado::FieldKey& key);
    /// The same into storage that the caller keeps: the fastest way to take over a row.
    ///
    ///     query.DataInto(0, kept);
    void DataInto(const ado::FieldKey& key, Variant& value);
    /// The text of the same value, Empty as "": stands until the next use of this object or its connection.
    ///
    ///     kept = query.DataText(0);
    std::string_view DataText(const ado::FieldKey& key);
    /// The same value when it is a whole number (True is -1) or a text that can be had without a copy, for
    /// reading very many cells; else nothing, and the members above have it, or say what is wrong. Stands as
    /// long.
    ado::CellView Peek(const ado::FieldKey& key) const;
    /// The same of the first fields of the row, as many as `cells` has room for.
    void Peek(std::span<ado::CellView> cells) const;
    /// Changes the field in the current row; only in mode 2. A value equal to the current one changes
    /// nothing.
    void Data(const ado::FieldKey& key, const Variant& value);

    /// 0 without a result or when it is closed, 1 when open.
    std::int32_t State() const;
    /// Whether there is no current row any more. False, with a failure reported, without a result.
    bool Eof();
    /// Writes pending changes and goes to the next row. A failure to write is reported and the changes are
    /// dropped; a failure of the move itself is raised.
    void NextRow();
    /// Writes pending changes and closes the result; every failure is ignored.
    void CloseRS();

    /// Empties the list, for the next statement.
    void InsertListClear();
    void UpdateListClear();
    /// What stands behind "Insert Into <table>": "([a],[b])  values (1,'x')"
    std::string InsertListGet() const;
    /// What stands behind "Set" of an update: "[a]=1,[b]='x'"
    const std::string& UpdateListGet() const;

    /// Appends a column and its value. `quoting` Automatic is settled by the value's kind and written back:
    /// Bare for Null, 16- and 32-bit integers, singles and booleans, Quoted for everything else. A value that
    /// has no text (an array, a date out of range) is reported and leaves its place empty: no statement made
    /// of the list can run.
    void InsertListAdd(std::string_view column, const Variant& value, std::int32_t& quoting);
    void UpdateListAdd(std::string_view column, const Variant& value, std::int32_t& quoting);
    void InsertListAdd(std::string_view column, const Variant& value,
                       std::int32_t&& quoting = Quoting::Automatic);
    void UpdateListAdd(std::string_view column, const Variant& value,
                       std::int32_t&& quoting = Quoting::Automatic);

    /// -1 until a statement that returns no rows has run.
    std::int32_t RecordsAffected() const { return mRecordsAffected; }
    /// -1 until a query has run.
    std::int16_t FieldCount() const { return mFieldCount; }
    /// The field object; nothing without an open result. An unknown field raises ItemNotFound.
    std::optional<ado::Field> Fields(const ado::FieldKey& key) const;
    /// Known in modes 1 and 2; otherwise reported as a failure, and 0.
    std::int32_t RecordCount();

    /// The latest failure of this object, also one that was not shown; nothing when none has failed.
    const std::optional<RuntimeError>& LastError() const { return mLastError; }

    /// Reports a failure as one of this object: also one of what stands around its statements, such as a
    /// commit.
    void ReportError(RuntimeError error);

  private:
    void ReportError(const char* description);
    bool readable(const char* withoutRecordset);
    void openRecordset(const std::shared_ptr<ado::Connection>& connection, std::string_view statement);
    void readField(const ado::FieldKey& key, Variant& value) const;
    void writeField(const ado::FieldKey& key, const Variant& value);
    bool isCached(const ado::FieldKey& key) const;
    void emptyCache();

    std::shared_ptr<ado::Recordset> mRecordset;
    std::string mStatement;
    std::int32_t mMode = 0;
    std::int32_t mRecordsAffected = 0;
    std::int32_t mRecordCount = 0;
    std::int16_t mFieldCount = 0;
    bool mPendingEdit = false;
    bool mReported = false;
    std::optional<RuntimeError> mLastError;
    std::string mCachedKey;
    std::optional<int> mCachedOrdinal; ///< in place of the key, when the field was asked for by ordinal
    Variant mCachedValue;
    std::string mTextOfValue; ///< what `DataText` has handed out
    std::string mInsertColumns;
    std::string mInsertValues;
    std::string mUpdateList;
};

} // namespace Korvane
