#include <korvane/ado/Catalog.h>

#include <korvane/ado/CatalogDialect.h>
#include <korvane/ado/TableState.h>
#include <korvane/runtime/RuntimeError.h>
#include <korvane/runtime/Translation.h>

#include <utility>

namespace Korvane::ado {

Catalog::Catalog(std::shared_ptr<Connection> connection) : mConnection(std::move(connection)) {
    if (!mConnection) throw RuntimeError(RuntimeError::InvalidConnection);
}

std::int32_t Tables::Count() const {
    return static_cast<std::int32_t>(Names().size());
}

std::vector<std::string> Tables::Names() const {
    std::vector<std::string> names;
    const auto rows = mConnection->openNative(mConnection->catalogDialect().tablesQuery());
    for (Variant name; !rows->atEnd(); rows->moveNext()) {
        rows->value(0, name);
        names.push_back(name.text());
    }
    return names;
}

bool Tables::Exists(std::string_view name) const {
    const auto found = findRelation(*mConnection, name, Read::NameOnly);
    return found && found->isTable;
}

Table Tables::Item(std::string_view name) const {
    auto state = std::make_shared<TableState>();
    state->name = requireTable(*mConnection, name, Read::NameOnly).name;
    state->connection = mConnection;
    return Table(std::move(state));
}

void Tables::Append(const Table& table) {
    TableState& state = *table.mState;
    const auto refuse = [&](int number, const std::string& reason, const std::string& other = {}) {
        throw RuntimeError(number, filled(reason, {state.name, other}));
    };
    if (state.connection)
        refuse(RuntimeError::InvalidArgument,
               translate("Korvane::ado", "The table \"%1\" is in a database already."));
    const CatalogDialect& dialect = mConnection->catalogDialect();
    dialect.requireName(state.name);
    if (state.columns.empty())
        refuse(RuntimeError::InvalidArgument, translate("Korvane::ado", "The table \"%1\" needs a column."));
    for (const Column& column : state.columns)
        dialect.requireName(column.Name());
    if (const auto known = findRelation(*mConnection, state.name, Read::NameOnly)) {
        refuse(RuntimeError::DuplicateKey,
               known->isTable ? translate("Korvane::ado",
                                          "The table \"%1\" cannot be made: there is already a table \"%2\".")
                              : translate("Korvane::ado",
                                          "The table \"%1\" cannot be made: there is already a view \"%2\"."),
               known->name);
    }
    runSteps(*mConnection, dialect.createTable(state.name, state.columns, state.indexes));
    state.connection = mConnection;
    state.columns.clear();
    state.indexes.clear();
}

void Tables::Delete(std::string_view name) {
    const std::string table = requireTable(*mConnection, name, Read::NameOnly).name;
    runSteps(*mConnection, {mConnection->catalogDialect().dropTable(table)});
}

} // namespace Korvane::ado
