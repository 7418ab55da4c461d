#include <korvane/ado/Connection.h>

#ifdef KORVANE_HAS_POSTGRES
#include <korvane/ado/postgres/PostgresConnection.h>
#endif
#include <korvane/ado/sqlite/SqliteConnection.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>
#include <korvane/runtime/Translation.h>

namespace Korvane::ado {

namespace {

[[noreturn]] void refuse(const std::string& reason) {
    throw RuntimeError(RuntimeError::InvalidArgument, reason);
}

std::shared_ptr<Connection> openSqlite(std::string_view rest) {
    bool readOnly = false;
    if (const auto mark = rest.rfind('?'); mark != std::string_view::npos) {
        const std::string_view option = rest.substr(mark + 1);
        if (option != "mode=ro" && option != "mode=rwc") {
            refuse(filled(translate("Korvane::ado", "The database address has an option that is not known: "
                                                    "\"%1\". There are mode=ro (to read only) and mode=rwc."),
                          {option}));
        }
        readOnly = option == "mode=ro";
        rest = rest.substr(0, mark);
    }
    return sqlite::open(rest, readOnly);
}

std::shared_ptr<Connection> openPostgres([[maybe_unused]] std::string_view address) {
#ifdef KORVANE_HAS_POSTGRES
    return postgres::open(address);
#else
    refuse(translate("Korvane::ado", "This build has no PostgreSQL provider."));
#endif
}

} // namespace

void Connection::Announce(std::span<const std::string>) {}

void Connection::Reset() {
    if (State() == 0) throw RuntimeError(RuntimeError::ObjectClosed);
}

std::shared_ptr<Connection> open(std::string_view address) {
    const auto colon = address.find(':');
    const std::string scheme = lowerCase(address.substr(0, colon));
    if (colon != std::string_view::npos) {
        if (scheme == "sqlite") return openSqlite(address.substr(colon + 1));
        if (scheme == "postgresql" || scheme == "postgres") return openPostgres(address);
    }
    // The rest of the address may hold a password.
    if (colon == std::string_view::npos)
        refuse(translate("Korvane::ado",
                         "The database address does not begin with a kind of database that is "
                         "known: sqlite:file, sqlite::memory: or postgresql://host/database."));
    refuse(filled(translate("Korvane::ado",
                            "The database address \"%1:\" does not begin with a kind of database that "
                            "is known: sqlite:file, sqlite::memory: or postgresql://host/database."),
                  {scheme}));
}

} // namespace Korvane::ado
