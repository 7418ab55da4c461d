#pragma once

#include <korvane/ado/Connection.h>

namespace Korvane::ado {

/// A transaction that rolls back unless it was committed.
///
///     Transaction work(*db);
///     db->Execute(...);
///     work.commit();
class Transaction {
  public:
    /// Begins one, inside what is open. Raises when it cannot: a lock that another desk keeps too long, a
    /// line that is down.
    explicit Transaction(Connection& connection, TransactionFor use = TransactionFor::Writing);
    /// Rolls back when not committed; never raises.
    ~Transaction();

    Transaction(const Transaction&) = delete;
    Transaction& operator=(const Transaction&) = delete;

    /// Raises when the commit fails; the transaction is then rolled back by the destructor.
    void commit();

  private:
    Connection& mConnection;
    bool mOpen = false;
};

} // namespace Korvane::ado
