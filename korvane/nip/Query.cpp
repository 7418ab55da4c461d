#include <korvane/nip/Query.h>

namespace Korvane {

void run(SQLData& query, const std::shared_ptr<ado::Connection>& connection, std::string_view statement,
         bool executeOnly) {
    if (!query.SQL(connection, statement, executeOnly, AccessMode::Read)) raiseFailure(query);
}

void raiseFailure(const SQLData& query) {
    if (query.LastError()) throw *query.LastError();
}

Snapshot::Snapshot(ado::Connection& connection) {
    if (connection.State() == 1) mTransaction.emplace(connection, ado::TransactionFor::Reading);
}

void Snapshot::end() {
    if (mTransaction) mTransaction->commit();
}

} // namespace Korvane
