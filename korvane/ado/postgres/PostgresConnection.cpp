#include <korvane/ado/postgres/PostgresConnection.h>

#include <korvane/ado/postgres/Session.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

#include <libpq-fe.h>

#include <charconv>
#include <string>

namespace Korvane::ado::postgres {

namespace {

[[noreturn]] void refuse(const std::string& reason) {
    throw RuntimeError(RuntimeError::InvalidArgument, reason);
}

// Takes the option that is ours out of the address.
std::string takeStatementTimeout(std::string_view address, Limits& limits) {
    constexpr std::string_view option = "statement_timeout=";
    const auto question = address.find('?');
    if (question == std::string_view::npos) return std::string(address);
    std::string rest(address.substr(0, question));
    char mark = '?';
    for (std::string_view options = address.substr(question + 1); !options.empty();) {
        const auto end = std::min(options.find('&'), options.size());
        const std::string_view one = options.substr(0, end);
        options.remove_prefix(std::min(end + 1, options.size()));
        if (!one.starts_with(option)) {
            rest += mark + std::string(one);
            mark = '&';
            continue;
        }
        const std::string_view digits = one.substr(option.size());
        int milliseconds = -1;
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), milliseconds);
        if (read.ptr != digits.data() + digits.size() || milliseconds < 0)
            refuse("The statement_timeout of a database address is a number of milliseconds.");
        limits.statement = std::chrono::milliseconds(milliseconds);
    }
    return rest;
}

Session& sessionOf(Connection& connection) {
    auto* session = dynamic_cast<Session*>(&connection);
    if (!session) refuse("The connection is not one to a PostgreSQL database.");
    return *session;
}

} // namespace

std::shared_ptr<Connection> open(std::string_view address, const Limits& limits) {
    if (address.find('\0') != std::string_view::npos) refuse("The database address holds the character NUL.");
    Limits own = limits;
    const std::string rest = takeStatementTimeout(address, own);
    return std::make_shared<Session>(std::make_unique<Wire>(rest, own));
}

std::shared_ptr<Connection> adopt(pg_conn* handle) {
    if (!handle || PQstatus(handle) != CONNECTION_OK || PQpipelineStatus(handle) != PQ_PIPELINE_OFF ||
        PQtransactionStatus(handle) == PQTRANS_ACTIVE) {
        throw RuntimeError(RuntimeError::InvalidConnection);
    }
    return std::make_shared<Session>(std::make_unique<Wire>(handle));
}

void setLimits(Connection& connection, const Limits& limits) {
    sessionOf(connection).limits(limits);
}

void setShapeLimit(Connection& connection, std::size_t most) {
    sessionOf(connection).keepShapes(most);
}

} // namespace Korvane::ado::postgres
