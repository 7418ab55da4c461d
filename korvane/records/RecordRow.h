#pragma once

#include <korvane/data/SQLData.h>
#include <korvane/records/RecordColumn.h>
#include <korvane/records/RowOwner.h>
#include <korvane/runtime/RuntimeError.h>

#include <algorithm>
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
/// statement fails or gives no row, or the number does not fit 32 bits.
std::optional<std::int32_t> nextIdentifier(const std::shared_ptr<ado::Connection>& connection,
                                           std::string_view statement, std::string_view prefix);

/// Writes to the error log that it could not be found out whether a row is stored.
void logUnsettled(std::string_view prefix);
/// Writes to the error log that a row is no longer there, or no longer the record's.
void logGone(std::string_view prefix);

/// What became of a row that was to be deleted.
enum class Deletion { NotRun, NoRow, Run };

/// The row that a record object stands for: loads, inserts, updates and deletes it, and remembers how that
/// went, so that a save overwrites nothing that it must not, and stores nothing twice.
///
///     RecordRow<Encounter> mRow{"Encounter", columns(), "PatientID"};
///     mRow.load(*this, mConnection, "12", "Error in Encounter.LoadObjectFromDatabase: ");
///     mRow.update(*this, mConnection, "12", "Error in Encounter.SaveObjectToDatabase: ");
///
/// The first column is the key; `owner` is the column that tells the row from another one with its key.
/// Failing statements are reported to the user by `SQLData`; `prefix` opens the lines that go to the error
/// log.
template <typename Record>
class RecordRow {
  public:
    /// The host's connection.
    using Connection = std::shared_ptr<ado::Connection>;

    RecordRow(std::string_view table, std::span<const RecordColumn<Record>> columns, std::string_view owner)
        : mTable(table), mColumns(columns), mOwner(owner) {}

    /// Whether the last insert or update touched exactly one row; not so once a save has begun.
    bool stored() const { return mStored; }
    void beginSave() { mStored = mKeyTaken = mGone = false; }
    /// Whether the last load failed: nobody knows what an update would overwrite.
    bool unread() const { return mUnread; }
    /// Whether the last insert failed because a row with its identifier was there already.
    bool keyTaken() const { return mKeyTaken; }
    /// Whether the last update found its row gone, or another owner's.
    bool gone() const { return mGone; }

    /// As `RowOwner::claim`; nothing, too, when the row could not be read.
    std::optional<bool> claim(const Connection& connection, std::string_view id) const {
        if (mUnread) return std::nullopt;
        return mOwner.claim(connection, mTable, where(id));
    }

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
        mInDoubt = false;
        mAttempt.clear();
        mStandIns.assign(mColumns.size(), std::nullopt);
        const bool found = query.State() == 1 && !query.Eof();
        for (std::size_t i = 1; i < mColumns.size(); ++i) {
            if (!found)
                mColumns[i].set(record, Variant());
            else if (!loadColumn(query, record, mColumns[i], prefix))
                mStandIns[i] = mColumns[i].get(record);
        }
        mOwner.forget();
        if (found) readOwner(query, prefix);
    }

    /// Inserts with the next free identifier, which the record then holds. When the insert fails the key is
    /// what it was: the row of that identifier, if there is one, is somebody else's, and nothing that belongs
    /// to this record may be written under it. False when there is no such identifier.
    bool insert(Record& record, const Connection& connection, std::string_view prefix) {
        const std::string maximum = "Select Max(" + key() + ") as MaxID From " + mTable;
        const auto id = nextIdentifier(connection, maximum, prefix);
        if (!id) return false;
        const Variant before = mColumns.front().get(record);
        mColumns.front().set(record, *id);
        const std::vector<Variant> attempt = valuesOf(record);
        SQLData query;
        for (std::size_t i = 0; i < mColumns.size(); ++i)
            query.InsertListAdd(mColumns[i].name, attempt[i], std::int32_t{mColumns[i].insertQuoting});
        run(query, connection, "Insert into " + mTable + " " + query.InsertListGet());
        mStandIns.clear();
        mKeyTaken = query.LastError() && query.LastError()->Number() == RuntimeError::DuplicateKey;
        if (mStored || lostItsLine(connection)) {
            mAttempt = attempt;
            mInDoubt = !mStored;
        }
        if (mStored) {
            mUnread = false;
            mOwner.is(attempt[ownerColumn()]);
        }
        if (!mStored) mColumns.front().set(record, before);
        return true;
    }

    /// Says that nobody knows whether the insert that `other` made was committed.
    void doubt(const RecordRow& other) {
        mAttempt = other.mAttempt;
        mInDoubt = !mAttempt.empty();
    }

    /// Finds out whether an insert that is in doubt took place after all; the record then has its identifier,
    /// and what is saved next updates that row. False, with a line in the error log, when that cannot be
    /// read. Where no row is found it stays in doubt until the record is stored: the database may be slower
    /// to store it than its user is to try again.
    bool settle(Record& record, const Connection& connection, std::string_view prefix) {
        if (!mInDoubt) return true;
        SQLData query;
        if (!find(query, connection, mAttempt.front().text())) {
            logUnsettled(prefix);
            return false;
        }
        if (query.Eof() || !isAttempt(query, prefix)) return true;
        mColumns.front().set(record, mAttempt.front());
        mOwner.is(mAttempt[ownerColumn()]);
        mInDoubt = false;
        return true;
    }

    /// Writes every column but the key. One that was null or could not be read is left as it is stored while
    /// it has the value that it was given in its stead. Nothing is written, and a line goes to the error log,
    /// when the row is gone or another owner's by now.
    void update(const Record& record, const Connection& connection, std::string_view id,
                std::string_view prefix) {
        mStored = together(connection, [&] {
            const std::optional<bool> own = claim(connection, id);
            mGone = own == false;
            if (own == true) write(record, connection, id);
            return mStored;
        });
        if (mGone) logGone(prefix);
        if (!mStored) return;
        if (!isStandIn(record, ownerColumn())) mOwner.is(mColumns[ownerColumn()].get(record));
        for (std::size_t i = 1; i < mStandIns.size(); ++i)
            if (!isStandIn(record, i)) mStandIns[i].reset();
    }

    /// Runs `statement`, which deletes the row. Not when there is none, and, with a line in the error log,
    /// when it is another owner's by now.
    Deletion remove(const Connection& connection, std::string_view id, std::string_view statement,
                    std::string_view prefix) {
        Deletion deletion = Deletion::NotRun;
        const bool removed = together(connection, [&] {
            SQLData query;
            if (!find(query, connection, id)) return false;
            if (query.Eof()) {
                deletion = Deletion::NoRow;
                return false;
            }
            const std::optional<bool> own = claim(connection, id);
            if (own == false) logGone(prefix);
            if (own != true) return false;
            deletion = Deletion::Run;
            return query.SQL(connection, statement, true, AccessMode::Read);
        });
        if (removed) mOwner.forget();
        return deletion;
    }

  private:
    void write(const Record& record, const Connection& connection, std::string_view id) {
        SQLData query;
        for (std::size_t i = 1; i < mColumns.size(); ++i)
            if (!isStandIn(record, i)) addToUpdate(query, record, mColumns[i]);
        // Nothing to write still has to tell whether the row is there.
        if (query.UpdateListGet().empty()) addToUpdate(query, record, mColumns.front());
        run(query, connection, "Update " + mTable + " Set " + query.UpdateListGet() + where(id));
    }

    /// As it is stored, which may be another thing than the property that shows it.
    void readOwner(SQLData& query, std::string_view prefix) {
        try {
            mOwner.is(query.Fields(mOwner.column()).value().Value());
        } catch (...) {
            logColumnFailure(prefix);
        }
    }

    std::size_t ownerColumn() const {
        const auto column = std::ranges::find(mColumns, mOwner.column(), &RecordColumn<Record>::name);
        return static_cast<std::size_t>(column - mColumns.begin());
    }

    std::string key() const { return std::string(mColumns.front().name); }
    std::string where(std::string_view id) const { return " Where " + key() + "=" + std::string(id); }

    bool isStandIn(const Record& record, std::size_t i) const {
        return i < mStandIns.size() && mStandIns[i] && *mStandIns[i] == mColumns[i].get(record);
    }

    std::vector<Variant> valuesOf(const Record& record) const {
        std::vector<Variant> values;
        for (const auto& column : mColumns)
            values.push_back(column.get(record));
        return values;
    }

    static bool lostItsLine(const Connection& connection) { return connection && connection->State() != 1; }

    /// Whether the query's row is the one that was inserted, in every column.
    bool isAttempt(SQLData& query, std::string_view prefix) const {
        Record there;
        for (std::size_t i = 0; i < mColumns.size(); ++i) {
            loadColumn(query, there, mColumns[i], prefix);
            if (!readAlike(mColumns[i].get(there), mAttempt[i])) return false;
        }
        return true;
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
    RowOwner mOwner;
    std::vector<std::optional<Variant>> mStandIns; ///< beside `mColumns`, or empty
    bool mStored = false;
    bool mUnread = false;
    bool mKeyTaken = false;
    bool mGone = false;
    std::vector<Variant> mAttempt; ///< beside `mColumns`: what was inserted last, or may have been
    bool mInDoubt = false;         ///< whether it was is not known
};

} // namespace Korvane
