#include <korvane/ado/Connection.h>

#include <korvane/ado/sqlite/SqliteConnection.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Text.h>

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
            refuse("The database address has an option that is not known: \"" + std::string(option) +
                   "\". There are mode=ro (to read only) and mode=rwc.");
        }
        readOnly = option == "mode=ro";
        rest = rest.substr(0, mark);
    }
    return sqlite::open(rest, readOnly);
}

} // namespace

void Connection::Announce(std::span<const std::string>) {}

std::shared_ptr<Connection> open(std::string_view address) {
    const auto colon = address.find(':');
    const std::string scheme = lowerCase(address.substr(0, colon));
    if (colon != std::string_view::npos) {
        if (scheme == "sqlite") return openSqlite(address.substr(colon + 1));
        if (scheme == "postgresql" || scheme == "postgres") refuse("This build has no PostgreSQL provider.");
    }
    refuse("The database address \"" + std::string(address) +
           "\" does not begin with a kind of database that is known: sqlite:file, sqlite::memory: or "
           "postgresql://host/database.");
}

} // namespace Korvane::ado
