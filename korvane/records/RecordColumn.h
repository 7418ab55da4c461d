#pragma once

#include <korvane/data/SQLData.h>
#include <korvane/runtime/Variant.h>

#include <cstdint>
#include <optional>
#include <span>
#include <string>
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
void assignColumn(bool& member, const Variant& value);
void assignColumn(Date& member, const Variant& value);
void assignColumn(Variant& member, const Variant& value);
void assignColumn(std::string& member, const Variant& value);

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
template <auto Member>
constexpr auto recordColumn(std::string_view name, std::int32_t quoting) {
    return recordColumn<Member>(name, quoting, quoting);
}

/// Fills the query's insert list with every column. What a value's conversion raises goes to the caller.
template <typename Record>
void fillInsertList(SQLData& query, const Record& record, std::span<const RecordColumn<Record>> columns) {
    query.InsertListClear();
    for (const auto& column : columns)
        query.InsertListAdd(column.name, column.get(record), std::int32_t{column.insertQuoting});
}

/// Fills the query's update list with every column but the first, which is the key.
template <typename Record>
void fillUpdateList(SQLData& query, const Record& record, std::span<const RecordColumn<Record>> columns) {
    query.UpdateListClear();
    for (const auto& column : columns.subspan(1))
        query.UpdateListAdd(column.name, column.get(record), std::int32_t{column.updateQuoting});
}

/// Writes the exception being handled to the error log, behind `prefix`. Call inside a `catch`.
void logColumnFailure(std::string_view prefix);

/// Sets every column but the key from the query's current row; from Empty without a query. A value that does
/// not fit is written to the error log behind `prefix` and reads as Empty.
template <typename Record>
void loadColumns(SQLData* query, Record& record, std::span<const RecordColumn<Record>> columns,
                 std::string_view prefix) {
    for (const auto& column : columns.subspan(1)) {
        try {
            column.set(record, query ? query->DataView(column.name) : Variant());
        } catch (...) {
            logColumnFailure(prefix);
            column.set(record, Variant());
        }
    }
}

/// The identifier of a new row: the "MaxID" that the statement reads, plus 1. Nothing, with a line in the
/// error log made of `prefix`, the error's number, a blank and its description, when the statement fails, or
/// the number does not fit 32 bits.
std::optional<std::int32_t> nextIdentifier(const std::shared_ptr<ado::Connection>& connection,
                                           std::string_view statement, std::string_view prefix);

} // namespace Korvane
