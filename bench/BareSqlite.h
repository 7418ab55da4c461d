#pragma once

#include "KeptCells.h"

#include <sqlite3.h>

#include <memory>
#include <string>

namespace Korvane::Bench {

struct CloseHandle {
    void operator()(sqlite3* handle) const { sqlite3_close_v2(handle); }
};
struct FinalizeStatement {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using BareStatement = std::unique_ptr<sqlite3_stmt, FinalizeStatement>;

/// The sqlite3 library as a careful program uses it without another one: the pragmas of our own connections,
/// each failure an exception.
class BareSqlite {
  public:
    static constexpr const char* beginning = "Begin Immediate";
    /// A statement as this engine takes it.
    static std::string ownWords(std::string statement) { return statement; }

    /// The address is as the library takes it.
    explicit BareSqlite(const std::string& address);

    sqlite3* handle() const { return mHandle.get(); }
    BareStatement prepare(const std::string& statement) const;

    /// Prepares, runs, keeps the cells of every row, finalizes. The number of rows changed, for a statement
    /// that changes any.
    int run(const std::string& statement, KeptCells& cells) const;
    void run(const std::string& statement) const;

    /// Runs a statement prepared before, with its one parameter.
    void runPrepared(const BareStatement& statement, int parameter, KeptCells& cells) const;

  private:
    static void keepRow(sqlite3_stmt* statement, KeptCells& cells);
    void stepAll(sqlite3_stmt* statement, KeptCells& cells) const;
    [[noreturn]] void fail() const;

    std::unique_ptr<sqlite3, CloseHandle> mHandle;
};

} // namespace Korvane::Bench
