#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/records/RecordRow.h>
#include <korvane/runtime/Variant.h>

#include <cstdint>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <utility>

namespace Korvane {

/// One row of the table `Attachment`: a file that belongs to an encounter.
///
///     Attachment a;
///     a.Connection(db);
///     a.EncounterID(12);
///     a.FileName("scan.png");
///     a.Save();                       // inserted, AttachmentID is now set
///
/// A new one is not stored: its `AttachmentID` is Empty. Database failures are reported to the user by
/// `SQLData`.
class Attachment {
  public:
    Attachment() = default;

    /// Empty until stored; text after a load, a number after an insert.
    const Variant& AttachmentID() const { return mAttachmentID; }
    /// Stores the identifier and loads its row; without a row every field is empty. An identifier that is not
    /// a whole number finds nothing. A column whose value does not fit its property is written to the error
    /// log and reads as if empty. Such a column, and one that is null, keeps what is stored until its
    /// property is changed. When the row could not be read at all, `Save` refuses until a load succeeds.
    void AttachmentID(const Variant& id);

    /// The columns of the row, in the host's own words: nothing is made of them here. What is set is stored
    /// by `Save`. The category is a number as text, see `ListCategories`.
    const std::string& Archived() const { return mArchived; }
    void Archived(std::string_view value);
    const std::string& AttachmentType() const { return mAttachmentType; }
    void AttachmentType(std::string_view value);
    const std::string& CategoryID() const { return mCategoryID; }
    void CategoryID(std::string_view value);
    const std::string& Description() const { return mDescription; }
    void Description(std::string_view value);
    std::int32_t EncounterID() const { return mEncounterID; }
    void EncounterID(std::int32_t value);
    const std::string& FileName() const { return mFileName; }
    void FileName(std::string_view value);
    const std::string& InUseBy() const { return mInUseBy; }
    void InUseBy(std::string_view value);
    bool Locked() const { return mLocked; }
    void Locked(bool value);
    const std::string& Orientation() const { return mOrientation; }
    void Orientation(std::string_view value);
    const std::string& Origin() const { return mOrigin; }
    void Origin(std::string_view value);

    /// The name of the category `CategoryID`, counted from 0. SubscriptOutOfRange outside 0 to 6.
    const std::string& Category() const;

    /// Whether it counts as deleted, while its row is still there. Setting it marks it so, whatever value is
    /// given: an attachment is never undeleted this way.
    bool Deleted() const { return mDeleted; }
    void Deleted(bool value);

    /// Dates as texts. One that is no date is ignored; the same date in other words changes nothing.
    const std::string& EntryDate() const { return mEntryDate; }
    void EntryDate(std::string_view value);
    const std::string& OriginDate() const { return mOriginDate; }
    void OriginDate(std::string_view value);

    /// What it loads from and saves to; the host's, and to be given before an identifier.
    void Connection(std::shared_ptr<ado::Connection> connection) { mConnection = std::move(connection); }

    /// Name and number in turn ("Audio", "1", ... "Other", "7"), an array from 0 to 13. The numbers are one
    /// more than the matching `CategoryID`.
    Variant ListCategories() const;

    /// Inserts with the next free identifier (the highest plus 1, at least 1), or updates. False, with a line
    /// in the error log, when `EncounterID` is below 0, when no next identifier could be found, or when the
    /// row it would overwrite could not be read before. A row that is gone or another encounter's by now is
    /// not written, with a line in the error log. The outcome of the statement itself is not told: see
    /// `Stored`. After an insert that failed `AttachmentID` is Empty still, and the next `Save` inserts
    /// again, with an identifier that is then free; where the connection was lost with it, only when the row
    /// is not there after all.
    bool Save();

    /// Whether the statement of the last `Save` touched exactly one row. False after an insert that failed,
    /// an update of a row that is gone or another encounter's by now, and before any `Save`. It does not know
    /// of a transaction that is rolled back later: keep a copy from before to go back to.
    bool Stored() const { return mRow.stored(); }

    /// False, with a message of level 2 in the message log, when there is no such row, and with a line in the
    /// error log when it is not the one that was loaded or stored. The file itself stays.
    bool Delete();

  private:
    static std::span<const RecordColumn<Attachment>> columns();
    void change(std::string& property, std::string_view value);
    void changeDate(std::string& property, std::string_view value);
    bool SaveObjectToDatabase();
    bool DeleteObjectFromDatabase(std::string_view id);
    void LoadObjectFromDatabase(std::string_view id);

    Variant mAttachmentID;
    std::string mArchived, mAttachmentType, mCategoryID, mDescription, mEntryDate, mFileName, mInUseBy,
        mOrientation, mOrigin, mOriginDate;
    std::int32_t mEncounterID = 0;
    bool mDeleted = false;
    bool mLocked = false;
    bool mChanged = false;
    std::shared_ptr<ado::Connection> mConnection;
    RecordRow<Attachment> mRow{"Attachment", columns(), "EncounterID"};
};

} // namespace Korvane
