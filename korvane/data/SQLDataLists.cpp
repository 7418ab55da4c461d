#include <korvane/data/SQLData.h>

#include <korvane/runtime/Text.h>

#include <charconv>

namespace Korvane {

namespace {

std::int32_t NeedsQuotes(const Variant& value) {
    switch (value.type()) {
    case VarType::Null:
    case VarType::Int16:
    case VarType::Int32:
    case VarType::Single:
    case VarType::Boolean:
        return Quoting::Bare;
    default:
        return Quoting::Quoted;
    }
}

void appendInteger(std::string& list, std::int32_t number) {
    char digits[12];
    list.append(digits, std::to_chars(digits, digits + sizeof digits, number).ptr);
}

void appendBare(std::string& list, const Variant& value) {
    if (const auto* number = std::get_if<std::int32_t>(&value.storage()))
        appendInteger(list, *number);
    else if (const auto* small = std::get_if<std::int16_t>(&value.storage()))
        appendInteger(list, *small);
    else
        list.append(value.textOrEmpty());
}

/// The text is taken before anything is appended: a value that has none must not leave an open quote.
void appendQuoted(std::string& list, const Variant& value) {
    const std::string converted = value.isText() ? std::string() : value.textOrEmpty();
    list.push_back('\'');
    appendEscaped(list, value.isText() ? value.asText() : converted);
    list.push_back('\'');
}

void appendColumn(std::string& list, std::string_view column) {
    if (!list.empty()) list.push_back(',');
    list.append("[").append(column).push_back(']');
}

} // namespace

void SQLData::InsertListClear() {
    mInsertColumns.clear();
    mInsertValues.clear();
}

void SQLData::UpdateListClear() {
    mUpdateList.clear();
}

std::string SQLData::InsertListGet() const {
    return "(" + mInsertColumns + ")  values (" + mInsertValues + ")";
}

const std::string& SQLData::UpdateListGet() const {
    return mUpdateList;
}

// A value without a text (an array, a date out of range) is reported and leaves its place empty, so that the
// statement made from the list cannot run.

void SQLData::InsertListAdd(std::string_view column, const Variant& value, std::int32_t& quoting) {
    if (quoting == Quoting::Automatic) quoting = NeedsQuotes(value);
    appendColumn(mInsertColumns, column);
    if (!mInsertValues.empty()) mInsertValues.push_back(',');
    try {
        if (quoting == Quoting::Bare && value.isNull())
            mInsertValues.push_back('0');
        else if (quoting == Quoting::Bare)
            appendBare(mInsertValues, value);
        else if (quoting == Quoting::Quoted)
            appendQuoted(mInsertValues, value);
    } catch (...) {
        ReportError(currentError());
    }
}

void SQLData::UpdateListAdd(std::string_view column, const Variant& value, std::int32_t& quoting) {
    if (quoting == Quoting::Automatic) quoting = NeedsQuotes(value);
    appendColumn(mUpdateList, column);
    try {
        if (quoting == Quoting::Bare) {
            mUpdateList.push_back('=');
            appendBare(mUpdateList, value);
        } else if (quoting == Quoting::Quoted) {
            mUpdateList.push_back('=');
            appendQuoted(mUpdateList, value);
        }
    } catch (...) {
        ReportError(currentError());
    }
}

void SQLData::InsertListAdd(std::string_view column, const Variant& value, std::int32_t&& quoting) {
    InsertListAdd(column, value, quoting);
}

void SQLData::UpdateListAdd(std::string_view column, const Variant& value, std::int32_t&& quoting) {
    UpdateListAdd(column, value, quoting);
}

} // namespace Korvane
