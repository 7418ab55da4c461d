#include <korvane/records/Encounter.h>

#include <korvane/data/ErrLog.h>
#include <korvane/data/SQLData.h>
#include <korvane/runtime/RuntimeError.h>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

constexpr std::string_view kSaving = "Error in Encounter.SaveObjectToDatabase: ";
constexpr std::string_view kDeleting = "Error in Encounter.DeleteObjectFromDatabase: ";
constexpr std::string_view kLoading = "Error in Encounter.LoadObjectFromDatabase: ";
constexpr std::string_view kLoadingAttachments = "Error in Encounter.LoadAttachments: ";

} // namespace

std::span<const RecordColumn<Encounter>> Encounter::columns() {
    static constexpr RecordColumn<Encounter> table[] = {
        recordColumn<&Encounter::mEncounterID>("EncounterID", Quoting::Bare),
        recordColumn<&Encounter::mMethodID>("EncounterMethodID", Quoting::Bare),
        recordColumn<&Encounter::mPatientID>("PatientID", Quoting::Quoted),
        recordColumn<&Encounter::mProviderID>("ProviderID", Quoting::Bare),
        recordColumn<&Encounter::mForeignProviderID>("ForeignProviderID", Quoting::Bare),
        recordColumn<&Encounter::mLocationID>("LocationID", Quoting::Bare),
        recordColumn<&Encounter::mEncounterDate>("EncounterDate", Quoting::Quoted),
        recordColumn<&Encounter::mOutgoing>("Outgoing", Quoting::Bare),
        recordColumn<&Encounter::mDescription>("Description", Quoting::Quoted),
        recordColumn<&Encounter::mTransport>("Transport", Quoting::Bare),
    };
    return table;
}

void Encounter::EncounterID(std::int32_t id) {
    mEncounterID = id;
    LoadObjectFromDatabase();
}

void Encounter::LoadObjectFromDatabase() {
    mRow.load(*this, mConnection, std::to_string(mEncounterID), kLoading);
}

bool Encounter::Save() {
    const bool inserts = isNew();
    mRow.beginSave();
    if (!guarded(kSaving, false, [this] { return SaveObjectToDatabase(); })) return false;
    if (inserts)
        guarded(kSaving, false, [this] {
            SavedNewEncounter.raise();
            return true;
        });
    return true;
}

bool Encounter::isNew() const {
    return mEncounterID == -1;
}

/// What keeps it from being saved; empty when nothing does.
std::string_view Encounter::invalidity() const {
    if (mMethodID < 0) return "Invalid EncounterMethodID, aborting!";
    if (mPatientID.empty()) return "Invalid PatientID, aborting!";
    if (mProviderID < 0) return "Invalid ProviderID, aborting!";
    if (mLocationID < 0) return "Invalid LocationID, aborting!";
    if (mRow.unread() && !isNew()) return "The stored row could not be read, aborting!";
    return {};
}

bool Encounter::SaveObjectToDatabase() {
    if (const std::string_view reason = invalidity(); !reason.empty()) {
        ErrLog(std::string(kSaving).append(reason));
        return false;
    }
    if (!Settle()) return false;
    if (isNew()) return mRow.insert(*this, mConnection, kSaving);
    mRow.update(*this, mConnection, std::to_string(mEncounterID), kSaving);
    return true;
}

bool Encounter::Settle() {
    return mRow.settle(*this, mConnection, kSaving);
}

std::optional<bool> Encounter::Claim() const {
    return mRow.claim(mConnection, std::to_string(mEncounterID));
}

bool Encounter::Delete() {
    return DeleteObjectFromDatabase(std::to_string(mEncounterID));
}

bool Encounter::DeleteObjectFromDatabase(std::string_view id) {
    const std::string statement = "delete From Encounter WHERE EncounterID=" + std::string(id);
    if (mRow.remove(mConnection, id, statement, kDeleting) == Deletion::NoRow)
        ErrLog(std::string(kDeleting) + "EncounterID doesn't exist, aborting!");
    return false;
}

void Encounter::LoadAttachments() {
    SQLData query;
    const bool ran = query.SQL(
        mConnection, "Select AttachmentID From Attachment Where EncounterID=" + std::to_string(mEncounterID),
        false, AccessMode::Read);
    mAttachments.clear();
    if (!ran) return;
    const bool walked = guarded(kLoadingAttachments, false, [&] {
        for (; !query.Eof(); query.NextRow())
            addStored(query.DataView("AttachmentID"));
        return !query.LastError();
    });
    if (!walked) mAttachments.clear();
}

/// One that is there already is passed over.
void Encounter::addStored(const Variant& id) {
    guarded(kLoadingAttachments, false, [&] {
        auto attachment = std::make_shared<Attachment>();
        attachment->Connection(mConnection);
        attachment->AttachmentID(id);
        AttachmentLet(std::move(attachment));
        return true;
    });
}

void Encounter::AttachmentLet(std::shared_ptr<Attachment> attachment) {
    if (!attachment) throw RuntimeError(RuntimeError::InvalidArgument);
    std::string key = attachment->AttachmentID().textOrEmpty();
    if (std::ranges::find(mAttachments, key, &KeyedAttachment::key) != mAttachments.end())
        throw RuntimeError(RuntimeError::DuplicateKey);
    mAttachments.push_back({std::move(key), std::move(attachment)});
}

std::int16_t Encounter::AttachmentCount() const {
    if (mAttachments.size() > std::size_t{std::numeric_limits<std::int16_t>::max()})
        throw RuntimeError(RuntimeError::Overflow);
    return static_cast<std::int16_t>(mAttachments.size());
}

bool Encounter::AttachmentGet(std::int16_t index, std::shared_ptr<Attachment>& attachment) const {
    if (index > AttachmentCount()) {
        attachment.reset();
        return true;
    }
    if (index < 1) throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    attachment = mAttachments[static_cast<std::size_t>(index) - 1].attachment;
    return false;
}

} // namespace Korvane
