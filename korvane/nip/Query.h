#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/ado/Transaction.h>
#include <korvane/data/SQLData.h>

#include <memory>
#include <optional>
#include <string_view>

namespace Korvane {

/// Runs a statement; a failure, which the query has reported by itself, is raised.
void run(SQLData& query, const std::shared_ptr<ado::Connection>& connection, std::string_view statement,
         bool executeOnly = false);

/// Raises the failure that a query has reported while it was read, if any.
void raiseFailure(const SQLData& query);

/// Lets the reads made while it lives see the database as of one moment. On a connection that is not open it
/// does nothing: the first query reports that.
class Snapshot {
  public:
    explicit Snapshot(ado::Connection& connection);
    void end();

  private:
    std::optional<ado::Transaction> mTransaction;
};

} // namespace Korvane
