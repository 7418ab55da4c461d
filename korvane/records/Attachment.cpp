#include <korvane/records/Attachment.h>

#include <korvane/data/ErrLog.h>
#include <korvane/data/MessageLog.h>
#include <korvane/data/SQLData.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <algorithm>
#include <array>

namespace Korvane {

namespace {

constexpr std::string_view kSaving = "Error in Attachment.SaveObjectToDatabase: ";
constexpr std::string_view kDeleting = "Error in Attachment.DeleteObjectFromDatabase: ";
constexpr std::string_view kLoading = "Error in Attachment.LoadObjectFromDatabase: ";

const std::array<std::string, 7>& categories() {
    static const std::array<std::string, 7> names = {"Audio", "Audio-Video", "Image", "Image Series",
                                                     "Text",  "Video",       "Other"};
    return names;
}

/// The identifier as it may stand in a statement; nothing when it is not a whole number.
std::optional<std::string> wholeNumber(std::string_view id) {
    const std::string_view number = trim(id);
    const std::string_view digits = number.starts_with('-') ? number.substr(1) : number;
    const auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
    if (digits.empty() || !std::ranges::all_of(digits, isDigit)) return std::nullopt;
    return std::string(number);
}

/// Minus one for a text that is no 16-bit number.
std::int16_t categoryIndex(const std::string& id) {
    try {
        return Variant(id).toInt16();
    } catch (const RuntimeError&) {
        return -1;
    }
}

/// Anything that is not plainly false counts as locked.
bool isLocked(const Variant& value) {
    const std::string text = value.textOrEmpty();
    return !text.empty() && text != "0" && text != "False";
}

} // namespace

std::span<const RecordColumn<Attachment>> Attachment::columns() {
    static constexpr RecordColumn<Attachment> locked = {
        "Locked", Quoting::Bare, Quoting::Quoted,
        [](const Attachment& attachment) { return Variant(attachment.mLocked); },
        [](Attachment& attachment, const Variant& value) { attachment.mLocked = isLocked(value); }};
    static constexpr RecordColumn<Attachment> table[] = {
        recordColumn<&Attachment::mAttachmentID>("AttachmentID", Quoting::Bare),
        recordColumn<&Attachment::mAttachmentType>("AttachmentType", Quoting::Quoted),
        recordColumn<&Attachment::mEncounterID>("EncounterID", Quoting::Bare),
        recordColumn<&Attachment::mDescription>("Description", Quoting::Quoted),
        recordColumn<&Attachment::mCategoryID>("Category", Quoting::Quoted),
        recordColumn<&Attachment::mArchived>("Archived", Quoting::Quoted),
        recordColumn<&Attachment::mDeleted>("Deleted", Quoting::Quoted),
        recordColumn<&Attachment::mOrigin>("Origin", Quoting::Quoted),
        recordColumn<&Attachment::mFileName>("Filename", Quoting::Quoted),
        recordColumn<&Attachment::mEntryDate>("EntryDate", Quoting::Quoted),
        recordColumn<&Attachment::mOriginDate>("OriginDate", Quoting::Quoted),
        recordColumn<&Attachment::mOrientation>("Orientation", Quoting::Quoted),
        locked,
        recordColumn<&Attachment::mInUseBy>("InUseBy", Quoting::Quoted),
    };
    return table;
}

void Attachment::change(std::string& property, std::string_view value) {
    property = value;
    mChanged = true;
}

void Attachment::changeDate(std::string& property, std::string_view value) {
    const auto date = parseDate(value);
    if (!date || parseDate(property) == date) return;
    change(property, value);
}

void Attachment::Archived(std::string_view value) {
    change(mArchived, value);
}
void Attachment::AttachmentType(std::string_view value) {
    change(mAttachmentType, value);
}
void Attachment::CategoryID(std::string_view value) {
    change(mCategoryID, value);
}
void Attachment::Description(std::string_view value) {
    change(mDescription, value);
}
void Attachment::EntryDate(std::string_view value) {
    changeDate(mEntryDate, value);
}
void Attachment::FileName(std::string_view value) {
    change(mFileName, value);
}
void Attachment::InUseBy(std::string_view value) {
    change(mInUseBy, value);
}
void Attachment::Orientation(std::string_view value) {
    change(mOrientation, value);
}
void Attachment::Origin(std::string_view value) {
    change(mOrigin, value);
}
void Attachment::OriginDate(std::string_view value) {
    changeDate(mOriginDate, value);
}

void Attachment::Deleted(bool) {
    mDeleted = true;
    mChanged = true;
}

void Attachment::EncounterID(std::int32_t value) {
    mEncounterID = value;
    mChanged = true;
}

void Attachment::Locked(bool value) {
    mLocked = value;
    mChanged = true;
}

const std::string& Attachment::Category() const {
    const std::int16_t index = categoryIndex(mCategoryID);
    if (index < 0 || static_cast<std::size_t>(index) >= categories().size())
        throw RuntimeError(RuntimeError::SubscriptOutOfRange);
    return categories()[static_cast<std::size_t>(index)];
}

Variant Attachment::ListCategories() const {
    VariantArray pairs;
    for (std::size_t i = 0; i < categories().size(); ++i) {
        pairs.elements.emplace_back(categories()[i]);
        pairs.elements.emplace_back(std::to_string(i + 1));
    }
    return pairs;
}

void Attachment::AttachmentID(const Variant& id) {
    guarded(kLoading, false, [&] {
        LoadObjectFromDatabase(id.textOrEmpty());
        return true;
    });
}

void Attachment::LoadObjectFromDatabase(std::string_view id) {
    mAttachmentID.setText(id);
    mRow.load(*this, mConnection, wholeNumber(id), kLoading);
    mChanged = false;
}

bool Attachment::Save() {
    mRow.beginSave();
    const bool saved = guarded(kSaving, false, [this] { return SaveObjectToDatabase(); });
    mChanged = false;
    return saved;
}

bool Attachment::SaveObjectToDatabase() {
    if (mEncounterID < 0) {
        ErrLog(std::string(kSaving) + "Invalid EncounterID, aborting!");
        return false;
    }
    if (!mRow.settle(*this, mConnection, kSaving)) return false;
    const std::string id = mAttachmentID.textOrEmpty();
    if (id.empty()) return mRow.insert(*this, mConnection, kSaving);
    if (mRow.unread()) {
        ErrLog(std::string(kSaving) + "The stored row could not be read, aborting!");
        return false;
    }
    if (const auto number = wholeNumber(id)) mRow.update(*this, mConnection, *number, kSaving);
    return true;
}

bool Attachment::Delete() {
    const bool deleted =
        guarded(kDeleting, false, [this] { return DeleteObjectFromDatabase(mAttachmentID.textOrEmpty()); });
    mChanged = false;
    return deleted;
}

bool Attachment::DeleteObjectFromDatabase(std::string_view id) {
    const auto number = wholeNumber(id);
    const Deletion deletion =
        number ? mRow.remove(mConnection, *number, "delete from Attachment WHERE AttachmentID=" + *number,
                             kDeleting)
               : Deletion::NoRow;
    if (deletion == Deletion::NoRow)
        vLogAdd("Attachment:DeleteObjectFromDatabase", "AttachmentID doesn't exist, aborting!", 2);
    return deletion == Deletion::Run;
}

} // namespace Korvane
