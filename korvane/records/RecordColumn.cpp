#include <korvane/records/RecordColumn.h>

#include <korvane/data/ErrLog.h>

#include <limits>

namespace Korvane {

namespace {

bool isBlank(const Variant& value) {
    return value.isEmpty() || (value.isText() && value.asText().empty());
}

std::int32_t following(const Variant& maximum) {
    const std::int32_t highest = maximum.toInt32();
    if (highest == std::numeric_limits<std::int32_t>::max()) throw RuntimeError(RuntimeError::Overflow);
    return highest + 1;
}

} // namespace

void assignColumn(std::int32_t& member, const Variant& value) {
    member = isBlank(value) ? 0 : value.toInt32();
}

void assignColumn(bool& member, const Variant& value) {
    member = !isBlank(value) && value.toBoolean();
}

void assignColumn(Date& member, const Variant& value) {
    member = isBlank(value) ? Date() : value.toDate();
}

void assignColumn(Variant& member, const Variant& value) {
    member = value;
}

void assignColumn(std::string& member, const Variant& value) {
    if (value.isText())
        member = value.asText();
    else
        member = value.textOrEmpty();
}

void logColumnFailure(std::string_view prefix) {
    ErrLog(std::string(prefix) + currentError().Description());
}

std::optional<std::int32_t> nextIdentifier(const std::shared_ptr<ado::Connection>& connection,
                                           std::string_view statement, std::string_view prefix) {
    RuntimeError failure(0, "");
    try {
        SQLData query;
        const bool ran = query.SQL(connection, statement, false, AccessMode::Read);
        if (ran) {
            // Empty is what a failed read gives: it must not pass for the maximum of an empty table.
            const Variant& maximum = query.DataView("MaxID");
            if (!maximum.isEmpty()) return following(maximum);
        }
        if (query.LastError()) failure = *query.LastError();
    } catch (...) {
        failure = currentError();
    }
    ErrLog(std::string(prefix) + std::to_string(failure.Number()) + " " + failure.Description());
    return std::nullopt;
}

} // namespace Korvane
