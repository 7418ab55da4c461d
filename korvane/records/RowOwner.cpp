#include <korvane/records/RowOwner.h>

#include <korvane/ado/Transaction.h>
#include <korvane/data/SQLData.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

namespace Korvane {

std::optional<bool> RowOwner::claim(const std::shared_ptr<ado::Connection>& connection,
                                    std::string_view table, std::string_view where) const {
    if (!mValue) return false;
    const std::string column(mColumn);
    std::string statement = "Update " + std::string(table) + " Set [" + column + "]=[" + column + "]";
    statement.append(where).append(" And ").append(column);
    statement += mValue->isNull() ? " Is Null" : "='" + escapeQuotes(mValue->textOrEmpty()) + "'";
    SQLData query;
    if (!query.SQL(connection, statement, true, AccessMode::Read)) return std::nullopt;
    return query.RecordsAffected() == 1;
}

bool together(const std::shared_ptr<ado::Connection>& connection, const std::function<bool()>& work) {
    // Without a connection to begin on, the work's own statements say so.
    if (!connection || connection->State() != 1 || connection->transactionLevel() > 0) return work();
    try {
        ado::Transaction transaction(*connection);
        if (!work()) return false;
        transaction.commit();
        return true;
    } catch (...) {
        SQLData().ReportError(currentError());
        return false;
    }
}

} // namespace Korvane
