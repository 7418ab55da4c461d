#include "BarePostgres.h"

#include <cstdlib>
#include <stdexcept>

namespace Korvane::Bench {

std::string BarePostgres::ownWords(std::string statement) {
    std::erase_if(statement, [](char c) { return c == '[' || c == ']'; });
    return statement;
}

BarePostgres::BarePostgres(const std::string& address) : mHandle(PQconnectdb(address.c_str())) {
    if (PQstatus(mHandle.get()) != CONNECTION_OK) throw std::runtime_error(PQerrorMessage(mHandle.get()));
}

int BarePostgres::run(const std::string& statement, KeptCells& cells) const {
    struct Clear {
        void operator()(PGresult* result) const { PQclear(result); }
    };
    const std::unique_ptr<PGresult, Clear> answer(PQexec(mHandle.get(), statement.c_str()));
    PGresult* rows = answer.get();
    const ExecStatusType status = PQresultStatus(rows);
    if (status != PGRES_TUPLES_OK && status != PGRES_COMMAND_OK)
        throw std::runtime_error(PQerrorMessage(mHandle.get()));
    for (int row = 0; row < PQntuples(rows); ++row) {
        cells.expect(PQnfields(rows));
        for (int i = 0; i < PQnfields(rows); ++i)
            cells.keep({PQgetvalue(rows, row, i), static_cast<std::size_t>(PQgetlength(rows, row, i))});
    }
    return std::atoi(PQcmdTuples(rows));
}

void BarePostgres::run(const std::string& statement) const {
    KeptCells dropped;
    run(statement, dropped);
}

} // namespace Korvane::Bench
