#include <korvane/ado/postgres/PostgresConnection.h>

#include <korvane/ado/postgres/Session.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

#include <libpq-fe.h>

#include <charconv>
#include <string>
#include <utility>

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
            refuse(Korvane::translate(
                "Korvane::ado", "The statement_timeout of a database address is a number of milliseconds."));
        limits.statement = std::chrono::milliseconds(milliseconds);
    }
    return rest;
}

// The client library quotes what it does not understand, and that may be a piece of the password.
void requireUnderstood(const std::string& address) {
    char* said = nullptr;
    PQconninfoOption* const options = PQconninfoParse(address.c_str(), &said);
    PQfreemem(said);
    bool good = options != nullptr;
    for (const PQconninfoOption* option = options; option && option->keyword; ++option) {
        const std::string_view keyword = option->keyword;
        const std::string_view value = option->val ? option->val : "";
        if (keyword == "host" && value.find('@') != std::string_view::npos) good = false;
        if (keyword == "port" && value.find_first_not_of("0123456789,") != std::string_view::npos)
            good = false;
    }
    PQconninfoFree(options);
    if (good) return;
    refuse(Korvane::translate("Korvane::ado",
                              "The database address is not understood. It reads "
                              "postgresql://user@host:port/database; in a name or a password a character "
                              "such as @ : / ? is written as % and its two hexadecimal digits (%40 for @)."));
}

Session& sessionOf(Connection& connection) {
    auto* session = dynamic_cast<Session*>(&connection);
    if (!session)
        refuse(Korvane::translate("Korvane::ado", "The connection is not one to a PostgreSQL database."));
    return *session;
}

} // namespace

std::shared_ptr<Connection> open(std::string_view address, const Limits& limits) {
    if (address.find('\0') != std::string_view::npos)
        refuse(Korvane::translate("Korvane::ado", "The database address holds the character NUL."));
    Limits own = limits;
    const std::string rest = takeStatementTimeout(address, own);
    requireUnderstood(rest);
    return std::make_shared<Session>(std::make_unique<Wire>(rest, own));
}

std::shared_ptr<Connection> adopt(pg_conn* handle, StillLent stillLent) {
    if (!handle || PQstatus(handle) != CONNECTION_OK || PQpipelineStatus(handle) != PQ_PIPELINE_OFF ||
        PQtransactionStatus(handle) == PQTRANS_ACTIVE) {
        throw RuntimeError(RuntimeError::InvalidConnection);
    }
    if (PQtransactionStatus(handle) == PQTRANS_INERROR) {
        throw RuntimeError(RuntimeError::InvalidConnection,
                           Korvane::translate("Korvane::ado",
                                              "The connection is inside a transaction that has failed; it "
                                              "has to be rolled back before it is handed over."));
    }
    return std::make_shared<Session>(std::make_unique<Wire>(handle, std::move(stillLent)));
}

void setLimits(Connection& connection, const Limits& limits) {
    sessionOf(connection).limits(limits);
}

void setShapeLimit(Connection& connection, std::size_t most) {
    sessionOf(connection).keepShapes(most);
}

} // namespace Korvane::ado::postgres
