#pragma once

#include <korvane/data/SQLData.h>
#include <korvane/runtime/Variant.h>

#include <cstdint>
#include <string_view>

namespace Korvane {

/// One column of a record class: its name, how it is written into the two lists, and the member behind it.
/// The tables of columns serve loading, inserting and updating alike, so that these cannot disagree.
///
///     constexpr auto description = recordColumn<&Encounter::mDescription>("Description", Quoting::Quoted);
template <typename Record>
struct RecordColumn {
    std::string_view name;
    std::int32_t insertQuoting;
    std::int32_t updateQuoting;
    Variant (*get)(const Record& record);
    void (*set)(Record& record, const Variant& value);
};

/// Conversions from what `SQLData` reads; Empty and the empty text (a null date or text column, a missing
/// row) give the member's zero. Errors as those of `Variant`.
void assignColumn(std::int32_t& member, const Variant& value);
/// @copydoc assignColumn(std::int32_t&, const Variant&)
void assignColumn(bool& member, const Variant& value);
/// @copydoc assignColumn(std::int32_t&, const Variant&)
void assignColumn(Date& member, const Variant& value);
/// @copydoc assignColumn(std::int32_t&, const Variant&)
void assignColumn(Variant& member, const Variant& value);
/// @copydoc assignColumn(std::int32_t&, const Variant&)
void assignColumn(std::string& member, const Variant& value);

/// Whether a value read back is the one that was written: the same text, or the same date in other words.
bool readAlike(const Variant& stored, const Variant& written);

/// What `recordColumn` makes, where the type of the record is to be found.
template <auto Member, typename Record, typename T>
constexpr RecordColumn<Record> recordColumnOf(T Record::*, std::string_view name, std::int32_t insertQuoting,
                                              std::int32_t updateQuoting) {
    return {name, insertQuoting, updateQuoting, [](const Record& record) { return Variant(record.*Member); },
            [](Record& record, const Variant& value) { assignColumn(record.*Member, value); }};
}

/// The column of a plain member.
template <auto Member>
constexpr auto recordColumn(std::string_view name, std::int32_t insertQuoting, std::int32_t updateQuoting) {
    return recordColumnOf<Member>(Member, name, insertQuoting, updateQuoting);
}
/// The same, quoted alike in inserts and updates.
template <auto Member>
constexpr auto recordColumn(std::string_view name, std::int32_t quoting) {
    return recordColumn<Member>(name, quoting, quoting);
}

/// Writes the exception being handled to the error log, behind `prefix`. Call inside a `catch`.
void logColumnFailure(std::string_view prefix);

/// Sets the member from the query's current row. False when that is not what is stored: a null, or a value
/// that does not fit, which is written to the error log behind `prefix` and reads as Empty.
template <typename Record>
bool loadColumn(SQLData& query, Record& record, const RecordColumn<Record>& column, std::string_view prefix) {
    try {
        column.set(record, query.DataView(column.name));
        return !query.Fields(column.name).value().Value().isNull();
    } catch (...) {
        logColumnFailure(prefix);
        column.set(record, Variant());
        return false;
    }
}

} // namespace Korvane
