#pragma once

#include <korvane/ado/Connection.h>
#include <korvane/ado/postgres/Wire.h>

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace Korvane::ado::postgres {

/// The nested transactions of a line. A transaction that the handle's owner has open is joined by a
/// savepoint. Beginning one, and ending an inner one, costs no round trip of its own: it is sent with the
/// next statement.
class Transactions {
  public:
    explicit Transactions(Wire& wire) : mWire(wire) {}

    std::int32_t begin(TransactionFor use);
    void commit();
    void rollback();
    std::int32_t level() const { return static_cast<std::int32_t>(mLevels.size()); }

    /// Whether all of it only reads: the outermost one was begun here, for that.
    bool isReading() const { return level() > 0 && mReads; }

    /// What has to be sent before the next statement. `sent` says that it was.
    const std::vector<std::string>& unsent() const { return mUnsent; }
    void sent() { mUnsent.clear(); }
    /// Whether that begins the transaction.
    bool begins() const { return !hasBegun(); }

    /// Whether a statement that is sent now runs inside a transaction, ours or the owner's.
    bool isOpen() const { return level() > 0 || mWire.transaction() != Wire::Transaction::None; }
    /// Raises when the server has ended the transaction by itself: until it has been rolled back here too,
    /// nothing may run, since it would be written outside of it.
    void requireNotLost() const;
    /// Raises when that is the answer to a commit which the server has turned into a rollback: so it ends a
    /// transaction in which something has failed, and calls it a success.
    static void requireCommitted(const pg_result* answer);

  private:
    bool lost() const;
    bool hasBegun() const { return mUnsent.empty() || mUnsent.front().rfind("Begin", 0) != 0; }
    Answer run(const std::string& statement);
    void runAll(std::vector<std::string> statements);

    Wire& mWire;
    std::vector<bool> mLevels; ///< for each level whether it is a savepoint
    bool mReads = false;
    std::vector<std::string> mUnsent;
};

} // namespace Korvane::ado::postgres
