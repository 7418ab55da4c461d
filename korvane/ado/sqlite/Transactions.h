#pragma once

#include <korvane/ado/Connection.h>

#include <cstdint>
#include <vector>

struct sqlite3;

namespace Korvane::ado::sqlite {

/// The nested transactions of a handle. A transaction that the handle's owner has open is joined by a
/// savepoint.
class Transactions {
  public:
    explicit Transactions(sqlite3* handle) : mHandle(handle) {}

    std::int32_t begin(TransactionFor use);
    void commit();
    void rollback();
    std::int32_t level() const { return static_cast<std::int32_t>(mSavepoints.size()); }

    /// Whether the engine rolled everything back by itself (a full disk, an interrupt) while transactions
    /// were open here. Until they have been rolled back here too, nothing may run: it would be written
    /// outside of them.
    bool lost() const;
    /// Raises when lost.
    void requireNotLost() const;

    /// Whether the outermost one was begun here, so that nobody else can change the schema until it ends.
    bool ownsOutermost() const { return !mSavepoints.empty() && !mSavepoints.front(); }

  private:
    void run(const char* verb, std::int32_t savepoint) const;
    void run(const char* statement) const;

    sqlite3* mHandle;
    std::vector<bool> mSavepoints; ///< for each level whether it is a savepoint
};

} // namespace Korvane::ado::sqlite
