#include <korvane/data/SQLData.h>

#include <korvane/data/PrivateFile.h>
#include <korvane/runtime/App.h>
#include <korvane/runtime/Clock.h>
#include <korvane/runtime/Interaction.h>
#include <korvane/runtime/Translation.h>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

constexpr const char* kNothingToRead = translatable(
    "Korvane::data", "Attempt to return results from an Execute only SQL cmd or error creating RS object");
constexpr const char* kNothingToWrite = translatable(
    "Korvane::data", "Attempt to write results to an Execute only SQL cmd or error creating RS object");
constexpr const char* kClosed = translatable("Korvane::data", "Attempt to read data from a closed Recordset");

constexpr std::int32_t kCountNotSupported = -2;
constexpr std::int32_t kOpen = 1;

bool differs(const Variant& a, const Variant& b) {
    if (a.isNull() || b.isNull()) return a.isNull() != b.isNull();
    // Texts that only sort alike are still two texts: a control character must not get lost.
    if (a.isText() && b.isText()) return a != b;
    try {
        return compare(a, b) != Comparison::Equal;
    } catch (const RuntimeError&) {
        return true; // values that cannot be compared are not the same
    }
}

std::int16_t narrowCount(std::int32_t count) {
    if (count > std::numeric_limits<std::int16_t>::max()) throw RuntimeError(RuntimeError::Overflow);
    return static_cast<std::int16_t>(count);
}

void setAccess(ado::Recordset& recordset, std::int32_t mode) {
    if (mode == AccessMode::Read || mode == AccessMode::ReadCounted) {
        recordset.LockType(ado::LockType::ReadOnly);
        recordset.CursorType(mode == AccessMode::Read ? ado::CursorType::ForwardOnly
                                                      : ado::CursorType::Static);
    } else if (mode == AccessMode::Write) {
        recordset.LockType(ado::LockType::Optimistic);
        recordset.CursorType(ado::CursorType::Dynamic);
    }
}

} // namespace

SQLData::~SQLData() {
    try {
        if (State() == kOpen) CloseRS();
    } catch (...) {
        // Nobody is left to be told.
    }
}

bool SQLData::SQL(const std::shared_ptr<ado::Connection>& connection, std::string_view statement,
                  bool executeOnly, std::int32_t mode) {
    mStatement = statement;
    mFieldCount = -1;
    mPendingEdit = false; // what was changed and not written is dropped with the old rows
    mRecordsAffected = -1;
    mMode = mode;
    emptyCache();
    try {
        if (State() == kOpen) mRecordset->Close();
        if (!connection || connection->State() != kOpen) {
            ReportError(translatable("Korvane::data", "Attempt to query while ADO Connection not open"));
            return false;
        }
        if (executeOnly)
            mRecordsAffected = connection->Execute(mStatement);
        else
            openRecordset(connection, mStatement);
        return true;
    } catch (...) {
        ReportError(currentError());
        return false;
    }
}

void SQLData::openRecordset(const std::shared_ptr<ado::Connection>& connection, std::string_view statement) {
    mRecordset = ado::Recordset::create();
    setAccess(*mRecordset, mMode);
    mRecordset->Open(statement, connection);
    mFieldCount = narrowCount(mRecordset->FieldCount());
    const bool counted = mRecordset->Supports(ado::Recordset::ApproximatePosition) ||
                         mRecordset->Supports(ado::Recordset::Bookmark);
    mRecordCount = counted ? mRecordset->RecordCount() : kCountNotSupported;
}

/// Whether there is an open result; reports which of the two is missing.
bool SQLData::readable(const char* withoutRecordset) {
    if (!mRecordset) {
        ReportError(withoutRecordset);
        return false;
    }
    if (mRecordset->State() != kOpen) {
        ReportError(kClosed);
        return false;
    }
    return true;
}

const Variant& SQLData::DataView(const ado::FieldKey& key) {
    static const Variant empty;
    if (!readable(kNothingToRead)) return empty;
    if (isCached(key)) return mCachedValue;
    try {
        // Kept first: the key may be a view of the value that is about to be replaced.
        mCachedOrdinal = key.isOrdinal() ? std::optional(key.ordinal()) : std::nullopt;
        if (!mCachedOrdinal) mCachedKey = key.name();
        readField(key, mCachedValue);
        return mCachedValue;
    } catch (...) {
        emptyCache();
        ReportError(currentError());
        return empty;
    }
}

void SQLData::DataInto(const ado::FieldKey& key, Variant& value) {
    const ado::CellView cell = Peek(key);
    if (const auto* text = std::get_if<std::string_view>(&cell)) return value.setText(*text);
    try {
        if (readable(kNothingToRead)) return readField(key, value);
    } catch (...) {
        ReportError(currentError());
    }
    value = Variant();
}

std::string_view SQLData::DataText(const ado::FieldKey& key) {
    const ado::CellView cell = Peek(key);
    if (const auto* text = std::get_if<std::string_view>(&cell)) return *text;
    const Variant& value = DataView(key);
    if (value.isText()) return value.asText();
    mTextOfValue = value.textOrEmpty();
    return mTextOfValue;
}

ado::CellView SQLData::Peek(const ado::FieldKey& key) const {
    return mRecordset ? mRecordset->Peek(key) : ado::CellView();
}

void SQLData::Peek(std::span<ado::CellView> cells) const {
    if (mRecordset)
        mRecordset->Peek(cells);
    else
        std::ranges::fill(cells, ado::CellView());
}

void SQLData::readField(const ado::FieldKey& key, Variant& value) const {
    const std::optional<int> ordinal = mRecordset->ValueUnlessEof(key, value);
    if (!ordinal) {
        value = Variant();
        return;
    }
    if (!value.isNull()) return;
    if (ado::IsNumericField(mRecordset->FieldType(*ordinal)))
        value = std::int16_t{0};
    else
        value.setText("");
}

void SQLData::Data(const ado::FieldKey& key, const Variant& value) {
    if (!readable(kNothingToWrite)) return;
    if (mMode != AccessMode::Write) {
        ReportError(translatable("Korvane::data", "Attempt to write results to ReadOnly Recordset"));
        return;
    }
    try {
        writeField(key, value);
    } catch (...) {
        ReportError(currentError());
    }
}

void SQLData::writeField(const ado::FieldKey& key, const Variant& value) {
    if (differs(mRecordset->Value(key), value)) {
        mPendingEdit = true;
        mRecordset->SetValue(key, value);
        emptyCache();
    } else if (isCached(key) && !value.isNull()) { // a null written over a null keeps its stand-in
        mCachedValue = value;
    }
}

std::int32_t SQLData::State() const {
    return mRecordset ? mRecordset->State() : 0;
}

bool SQLData::Eof() {
    if (!mRecordset) {
        ReportError(kNothingToRead);
        return false;
    }
    return mRecordset->State() != kOpen || mRecordset->Eof();
}

void SQLData::NextRow() {
    if (!mRecordset) {
        ReportError(kNothingToRead);
        return;
    }
    if (mPendingEdit) {
        mPendingEdit = false;
        try {
            mRecordset->Update();
        } catch (...) {
            ReportError(currentError());
            // Left pending, the move would try them again and raise what has been told already.
            if (mRecordset->State() == kOpen) mRecordset->CancelUpdate();
        }
    }
    emptyCache();
    if (!readable(kNothingToRead)) return;
    if (mRecordset->Eof()) {
        ReportError(translatable("Korvane::data", "Attempt to read past end of file"));
        return;
    }
    mRecordset->MoveNext();
}

void SQLData::CloseRS() {
    try {
        if (mPendingEdit) mRecordset->Update();
    } catch (...) {
    }
    mPendingEdit = false;
    emptyCache();
    try {
        if (State() != 0) mRecordset->Close();
    } catch (...) {
    }
}

std::optional<ado::Field> SQLData::Fields(const ado::FieldKey& key) const {
    if (State() != kOpen) return std::nullopt;
    return mRecordset->Fields(key);
}

std::int32_t SQLData::RecordCount() {
    if (mRecordCount != kCountNotSupported) return mRecordCount;
    ReportError(translatable("Korvane::data",
                             "Attempt to get RecordCount from a query that does not support that property"));
    return 0;
}

bool SQLData::isCached(const ado::FieldKey& key) const {
    if (key.isOrdinal() && mCachedOrdinal) return *mCachedOrdinal == key.ordinal();
    if (!key.isOrdinal() && !mCachedOrdinal) return key.name() == mCachedKey;
    // An ordinal and a name are one key when they read the same.
    return key.text() == (mCachedOrdinal ? std::to_string(*mCachedOrdinal) : mCachedKey);
}

/// Both parts empty, as at the start; the storage of a text is kept for the next one.
void SQLData::emptyCache() {
    mCachedKey.clear();
    mCachedOrdinal.reset();
    mCachedValue.setText("");
}

void SQLData::ReportError(const char* description) {
    ReportError(RuntimeError(0, translate("Korvane::data", description)));
}

void SQLData::ReportError(RuntimeError error) {
    mLastError = std::move(error);
    if (mReported) return;
    mReported = true;
    const std::string failure = std::to_string(mLastError->Number()) + " " + mLastError->Description();
    // All that is needed of this object is taken now: it may be used again while the box is up.
    const std::string line = Clock::now().text() + "-SQLData Class->" + failure + "\n\t" + mStatement + "\n";
    try {
        Interaction::current().MsgBox(
            failure + "\r\n\r\n" +
                filled(translate("Korvane::data", "It is recommended that you restart the %1"),
                       {App::FileDescription()}),
            MsgBoxStyle::Critical, "");
    } catch (...) {
        // That the box failed is no failure of the query.
    }
    appendToAppFile("err.txt", line);
}

} // namespace Korvane
