#pragma once

#include <korvane/data/SQLData.h>
#include <korvane/records/RecordColumn.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// The identifier of a new row: the "MaxID" that the statement reads, plus 1, and never below 1. Nothing,
/// with a line in the error log made of `prefix`, the error's number, a blank and its description, when the
/// statement fails, or the number does not fit 32 bits.
std::optional<std::int32_t> nextIdentifier(const std::shared_ptr<ado::Connection>& connection,
                                           std::string_view statement, std::string_view prefix);

/// The row that a record object stands for: loads, inserts and updates it, and remembers how that went, so
/// that a save overwrites nothing that it must not.
///
///     RecordRow<Encounter> mRow{"Encounter", columns()};
///     mRow.load(*this, mConnection, "12", "Error in Encounter.LoadObjectFromDatabase: ");
///     mRow.update(*this, mConnection, "12");
///
/// The first column is the key. Failing statements are reported to the user by `SQLData`; `prefix` opens the
/// lines that go to the error log.
template <typename Record>
class RecordRow {
  public:
    using Connection = std::shared_ptr<ado::Connection>;

    RecordRow(std::string_view table, std::span<const RecordColumn<Record>> columns)
        : mTable(table), mColumns(columns) {}

    /// Whether the last insert or update touched exactly one row; not so once a save has begun.
    bool stored() const { return mStored; }
    void beginSave() { mStored = false; }
    /// Whether the last load failed: nobody knows what an update would overwrite.
    bool unread() const { return mUnread; }
    /// Whether the last insert failed: the row of that identifier, if there is one, is somebody else's.
    bool insertFailed() const { return mInsertFailed; }

    /// Runs the statement that finds the row. False when it failed.
    bool find(SQLData& query, const Connection& connection, std::string_view id) const {
        return query.SQL(connection, "select * from " + mTable + where(id), false, AccessMode::Read);
    }

    /// Sets every column but the key; from Empty when there is no row, which is so without an identifier. A
    /// value that does not fit is written to the error log and reads as Empty.
    void load(Record& record, const Connection& connection, const std::optional<std::string>& id,
              std::string_view prefix) {
        SQLData query;
        mUnread = id && !find(query, connection, *id);
        mInsertFailed = false;
        mStandIns.assign(mColumns.size(), std::nullopt);
        const bool found = query.State() == 1 && !query.Eof();
        for (std::size_t i = 1; i < mColumns.size(); ++i) {
            if (!found)
                mColumns[i].set(record, Variant());
            else if (!loadColumn(query, record, mColumns[i], prefix))
                mStandIns[i] = mColumns[i].get(record);
        }
    }

    /// Inserts with the next free identifier, which the record then holds, also when the insert fails. False
    /// when there is no such identifier.
    bool insert(Record& record, const Connection& connection, std::string_view prefix) {
        const std::string maximum = "Select Max(" + key() + ") as MaxID From " + mTable;
        const auto id = nextIdentifier(connection, maximum, prefix);
        if (!id) return false;
        mColumns.front().set(record, *id);
        SQLData query;
        for (const auto& column : mColumns)
            query.InsertListAdd(column.name, column.get(record), std::int32_t{column.insertQuoting});
        run(query, connection, "Insert into " + mTable + " " + query.InsertListGet());
        mInsertFailed = !mStored;
        mStandIns.clear();
        return true;
    }

    /// Writes every column but the key. One that was null or could not be read is left as it is stored while
    /// it has the value that it was given in its stead.
    void update(const Record& record, const Connection& connection, std::string_view id) {
        SQLData query;
        for (std::size_t i = 1; i < mColumns.size(); ++i)
            if (!isStandIn(record, i)) addToUpdate(query, record, mColumns[i]);
        // Nothing to write still has to tell whether the row is there.
        if (query.UpdateListGet().empty()) addToUpdate(query, record, mColumns.front());
        run(query, connection, "Update " + mTable + " Set " + query.UpdateListGet() + where(id));
        if (!mStored) return;
        for (std::size_t i = 1; i < mStandIns.size(); ++i)
            if (!isStandIn(record, i)) mStandIns[i].reset();
    }

  private:
    std::string key() const { return std::string(mColumns.front().name); }
    std::string where(std::string_view id) const { return " Where " + key() + "=" + std::string(id); }

    bool isStandIn(const Record& record, std::size_t i) const {
        return i < mStandIns.size() && mStandIns[i] && *mStandIns[i] == mColumns[i].get(record);
    }

    static void addToUpdate(SQLData& query, const Record& record, const RecordColumn<Record>& column) {
        query.UpdateListAdd(column.name, column.get(record), std::int32_t{column.updateQuoting});
    }

    /// Not when a value in the list had no text: that has been reported, and the statement is not whole.
    void run(SQLData& query, const Connection& connection, const std::string& statement) {
        mStored = !query.LastError() && query.SQL(connection, statement, true, AccessMode::Read) &&
                  query.RecordsAffected() == 1;
    }

    std::string mTable;
    std::span<const RecordColumn<Record>> mColumns;
    std::vector<std::optional<Variant>> mStandIns; ///< beside `mColumns`, or empty
    bool mStored = false;
    bool mUnread = false;
    bool mInsertFailed = false;
};

} // namespace Korvane
