#include <korvane/records/RecordRow.h>

#include <korvane/data/ErrLog.h>

#include <algorithm>
#include <limits>

namespace Korvane {

namespace {

/// Of an empty table the maximum reads as 0 or, where the key's type does not count as numeric, as an empty
/// text. Below 0 lies what means "not stored": never hand that out.
std::int32_t following(const Variant& maximum) {
    std::int32_t highest = 0;
    assignColumn(highest, maximum);
    if (highest == std::numeric_limits<std::int32_t>::max()) throw RuntimeError(RuntimeError::Overflow);
    return std::max(highest, 0) + 1;
}

} // namespace

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

void logUnsettled(std::string_view prefix) {
    ErrLog(std::string(prefix) + "Whether the row was stored before could not be read, aborting!");
}

void logGone(std::string_view prefix) {
    ErrLog(std::string(prefix) + "The stored row is no longer there, or no longer this record's, aborting!");
}

} // namespace Korvane
