#pragma once

#ifdef KORVANE_HAS_POSTGRES
#include <korvane/ado/postgres/Translate.h>
#endif
#include <korvane/ado/sqlite/Translate.h>

#include "support/KnownTables.h"

#include <ostream>
#include <string>
#include <string_view>
#include <vector>

namespace Korvane::Testing {

/// An engine's translation, with tables as it has them and the file of what it makes of statements.
struct Translating {
    std::string name;
    ado::sql::Translation (*translate)(std::string_view, const ado::sql::Tables&, std::string_view);
    bool isServer;

    KnownTables tables() const {
        KnownTables tables;
        if (isServer) tables.fold();
        return tables;
    }
    friend void PrintTo(const Translating& engine, std::ostream* out) { *out << engine.name; }
};

inline const std::vector<Translating>& translations() {
    static const std::vector<Translating> all{
        {"sqlite", ado::sqlite::translate, false},
#ifdef KORVANE_HAS_POSTGRES
        {"postgres", ado::postgres::translate, true},
#endif
    };
    return all;
}

} // namespace Korvane::Testing
