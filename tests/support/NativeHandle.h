#pragma once

#include <gtest/gtest.h>
#include <libpq-fe.h>

#include <string>

namespace Korvane::Testing {

/// A connection of the engine's client library, as a host may have one, used past the library.
class NativeHandle {
  public:
    explicit NativeHandle(const std::string& address) : mHandle(PQconnectdb(address.c_str())) {
        EXPECT_EQ(PQstatus(mHandle), CONNECTION_OK) << PQerrorMessage(mHandle);
        PQsetNoticeReceiver(
            mHandle, [](void*, const PGresult*) {}, nullptr);
    }
    ~NativeHandle() { PQfinish(mHandle); }
    NativeHandle(const NativeHandle&) = delete;
    NativeHandle& operator=(const NativeHandle&) = delete;

    PGconn* get() const { return mHandle; }

    /// Runs a statement; the first value of its first row, if it has any.
    std::string value(const std::string& statement) const {
        PGresult* result = PQexec(mHandle, statement.c_str());
        EXPECT_NE(PQresultStatus(result), PGRES_FATAL_ERROR) << PQresultErrorMessage(result);
        const std::string value = PQntuples(result) > 0 ? PQgetvalue(result, 0, 0) : "";
        PQclear(result);
        return value;
    }
    void run(const std::string& statement) const { value(statement); }

  private:
    PGconn* mHandle;
};

} // namespace Korvane::Testing
