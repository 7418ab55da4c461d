#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/records/Attachment.h>
#include <korvane/records/RecordRow.h>
#include <korvane/runtime/Clock.h>
#include <korvane/runtime/Event.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane {

/// One row of the table `Encounter`: a patient's contact with a provider.
///
///     Encounter e;
///     e.Connection(db);
///     e.PatientID("P-0042");
///     e.ProviderID(3);
///     e.Save();                       // inserted; EncounterID is now set, SavedNewEncounter was raised
///
/// A new one has the `EncounterID` -1 (not stored), the provider -1, method 1, outgoing, the current date and
/// time, and no attachments. Database failures are reported to the user by `SQLData`.
class Encounter {
  public:
    Encounter() = default;

    /// Raised when a new row has been inserted and `EncounterID` is its identifier; also when that insert
    /// failed, with -1: the identifier it tried is then another desk's. What a listener throws is written to
    /// the error log ("Error in Encounter.SaveObjectToDatabase: " and its description); the listeners behind
    /// it are not called.
    Event<> SavedNewEncounter;

    /// -1 in a new one until its row has been inserted.
    std::int32_t EncounterID() const { return mEncounterID; }
    /// Stores the identifier and loads its row; without a row numbers are 0, texts empty and the date the
    /// zero date. A column whose value does not fit its property is written to the error log and reads as
    /// if empty; the other columns are loaded all the same. Such a column, and one that is null, keeps what
    /// is stored until its property is changed. When the row could not be read at all, `Save` refuses until a
    /// load succeeds.
    void EncounterID(std::int32_t id);
    /// Of the collection here: none until `LoadAttachments`. Overflow above 32767.
    std::int16_t AttachmentCount() const;
    /// Adds it under the text of its identifier. DuplicateKey when there is one with that identifier,
    /// InvalidArgument for nothing.
    void AttachmentLet(std::shared_ptr<Attachment> attachment);

    /// The columns of the row. What is set is checked and stored by `Save`.
    const std::string& Description() const { return mDescription; }
    void Description(std::string_view value) { mDescription = value; }
    Date EncounterDate() const { return mEncounterDate; }
    void EncounterDate(Date value) { mEncounterDate = value; }
    void LocationID(std::int16_t value) { mLocationID = value; }
    void MethodID(std::int16_t value) { mMethodID = value; }
    void Outgoing(bool value) { mOutgoing = value; }
    std::int32_t ProviderID() const { return mProviderID; }
    void ProviderID(std::int32_t value) { mProviderID = value; }
    const std::string& PatientID() const { return mPatientID; }
    void PatientID(std::string_view value) { mPatientID = value; }
    void Transport(std::int32_t value) { mTransport = value; }
    /// What it loads from and saves to; the host's, and to be given before an identifier.
    void Connection(std::shared_ptr<ado::Connection> connection) { mConnection = std::move(connection); }

    /// Whether the statement of the last `Save` touched exactly one row. False after an insert that failed,
    /// an update of a row that is gone or another patient's by now, and before any `Save`. It does not know
    /// of a transaction that is rolled back later: keep a copy from before to go back to.
    bool Stored() const { return mRow.stored(); }
    /// Whether the last `Save` failed because another desk had inserted a row with the same identifier. The
    /// next one finds a free one.
    bool KeyTaken() const { return mRow.keyTaken(); }

    /// Whether the last `Save` wrote nothing because the row is gone, or its number another patient's by now.
    bool Gone() const { return mRow.gone(); }

    /// In a transaction: whether the row is there, and of the patient of whom it was when this one last
    /// loaded or stored it. From then on to the end of the transaction nobody else changes or deletes it.
    /// Nothing when that could not be found out. `Save` and `Delete` do it by themselves.
    std::optional<bool> Claim() const;

    /// Says that nobody knows whether the transaction in which `attempt`, a copy of this one, was inserted
    /// has been committed. Before it inserts again, `Save` then looks whether the row is there, in every
    /// column as it was, and if so updates it, so that nothing is stored twice. An insert that itself lost
    /// its connection needs no such word.
    void MayBeStored(const Encounter& attempt) { mRow.doubt(attempt.mRow); }

    /// Has that look now: `EncounterID` is the identifier if the row is there. False, with a line in the
    /// error log, when it cannot be read.
    bool Settle();
    /// Whether the last load failed, which is another thing than finding no row. For use within the library.
    bool Unread() const { return mRow.unread(); }

    /// Deletes the row, or writes a line to the error log when there is none, or it is not the one that was
    /// loaded or stored. Always false. Attachments stay.
    bool Delete();

    /// Inserts with the next free identifier (the highest plus 1, at least 1), or updates. False, with a line
    /// in the error log, when the method, patient, provider or location is invalid (in this order), when no
    /// next identifier could be found, or when the row it would overwrite could not be read before. A row
    /// that is gone or another patient's by now is not written, with a line in the error log. The outcome of
    /// the statement itself is not told: see `Stored`. After an insert that failed `EncounterID` is -1 still,
    /// and the next `Save` inserts again, with an identifier that is then free, and raises the event again.
    bool Save();

    /// Replaces the collection by the attachments stored for this encounter; by an empty one when they cannot
    /// be read. A second one with the same identifier is passed over with a line in the error log.
    void LoadAttachments();

    /// The attachment at an index counted from 1. True, and nothing in `attachment`, when the index is above
    /// the count. SubscriptOutOfRange below 1. For use within the library.
    bool AttachmentGet(std::int16_t index, std::shared_ptr<Attachment>& attachment) const;

  private:
    static std::span<const RecordColumn<Encounter>> columns();
    std::string_view invalidity() const;
    bool SaveObjectToDatabase();
    bool isNew() const;
    void addStored(const Variant& id);
    bool DeleteObjectFromDatabase(std::string_view id);
    void LoadObjectFromDatabase();

    /// The key stays what it was when the attachment was added.
    struct KeyedAttachment {
        std::string key;
        std::shared_ptr<Attachment> attachment;
    };

    std::int32_t mEncounterID = -1;
    std::int32_t mMethodID = 1;
    std::string mPatientID;
    std::int32_t mProviderID = -1;
    std::int32_t mForeignProviderID = 0;
    std::int32_t mLocationID = 0;
    Date mEncounterDate = Clock::now();
    bool mOutgoing = true;
    std::string mDescription;
    std::int32_t mTransport = 0;
    std::shared_ptr<ado::Connection> mConnection;
    std::vector<KeyedAttachment> mAttachments;
    RecordRow<Encounter> mRow{"Encounter", columns(), "PatientID"};
};

} // namespace Korvane
