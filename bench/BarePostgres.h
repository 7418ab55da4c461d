#pragma once

#include "KeptCells.h"

#include <libpq-fe.h>

#include <memory>
#include <string>

namespace Korvane::Bench {

/// libpq as a plain program uses it: one literal statement after the other, each failure an exception.
class BarePostgres {
  public:
    static constexpr const char* beginning = "Begin";
    /// A statement as this engine takes it: its names need no marks.
    static std::string ownWords(std::string statement);

    /// The address is as the library takes it.
    explicit BarePostgres(const std::string& address);

    /// Runs, keeps the cells of every row. The number of rows touched.
    int run(const std::string& statement, KeptCells& cells) const;
    void run(const std::string& statement) const;

  private:
    struct Close {
        void operator()(PGconn* handle) const { PQfinish(handle); }
    };
    std::unique_ptr<PGconn, Close> mHandle;
};

} // namespace Korvane::Bench
